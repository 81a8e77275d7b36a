// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreeitem.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

/*! \brief The head of the favorites branch: drawn like a category, shown at every level, target of drops.
 *
 * \ingroup items
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeFavoritesItem : public FeatureTreeItem
{
    Q_OBJECT

public:
    FeatureTreeFavoritesItem(const QString &name, IFeatureTreeModelExtension *extension,
                             FeatureTreeItem *parent);
    ~FeatureTreeFavoritesItem() override;

    QVariant data(int column, int role) override;
    EditorType editorType() override;
    bool ShowMe(GenApi::EVisibility level) const override;
    GenApi::EAccessMode getAccessMode() override;
    GenApi::EVisibility getVisibility() override;
    Qt::ItemFlags flags(int column) override;
    bool isCategory() const override;

protected:
    QVariant GetForegroundRole() override;
};
