// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreefavoritesitem_p.h"

#include "featuretreenames.h"

FeatureTreeFavoritesItem::FeatureTreeFavoritesItem(const QString &name, IFeatureTreeModelExtension *extension,
                                                   FeatureTreeItem *parent)
    : FeatureTreeItem(name, extension, FeatureTreeNames::favoritesTopLevel, parent)
{
}

FeatureTreeFavoritesItem::~FeatureTreeFavoritesItem() = default;

QVariant FeatureTreeFavoritesItem::data(int column, int role)
{
    if (column == FeatureTreeColumns::name && role == GenicamCategory) {
        return isCategory();
    }
    return FeatureTreeItem::data(column, role);
}

FeatureTreeItem::EditorType FeatureTreeFavoritesItem::editorType()
{
    return Category;
}

bool FeatureTreeFavoritesItem::ShowMe(GenApi::EVisibility level) const
{
    Q_UNUSED(level)
    return true;
}

GenApi::EAccessMode FeatureTreeFavoritesItem::getAccessMode()
{
    return GenApi::RW;
}

GenApi::EVisibility FeatureTreeFavoritesItem::getVisibility()
{
    return GenApi::Beginner;
}

Qt::ItemFlags FeatureTreeFavoritesItem::flags(int column)
{
    Qt::ItemFlags result = FeatureTreeItem::flags(column) | Qt::ItemIsEnabled;
    if (column == FeatureTreeColumns::name) {
        result |= Qt::ItemIsDropEnabled;
    }
    return result;
}

bool FeatureTreeFavoritesItem::isCategory() const
{
    return true;
}

QVariant FeatureTreeFavoritesItem::GetForegroundRole()
{
    return {};
}
