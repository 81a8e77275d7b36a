// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreerolefilter_p.h"

#include "featuretreeitem.h"
#include "featuretreenames.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace {

QString nameOf(const QModelIndex &row)
{
    return row.data(FeatureTreeItem::GenicamNameRole).toString();
}

QString fullNameOf(const QModelIndex &row)
{
    return row.data(FeatureTreeItem::FullNodeNameRole).toString();
}

int visibilityOf(const QModelIndex &row)
{
    return row.data(FeatureTreeItem::GenicamVisibility).toInt();
}

bool isShownAtAll(const QModelIndex &row)
{
    return row.data(FeatureTreeItem::IsShownAtAll).toBool();
}

} // namespace

FeatureTreeRoleFilter::FeatureTreeRoleFilter(const QAbstractItemModel &model, const QRegularExpression &text,
                                             GenApi::EVisibility level)
    : m_model(model)
    , m_text(text)
    , m_level(level)
{
}

// A feature without a snapshot answers nothing; the top rows always do.
bool FeatureTreeRoleFilter::hasRoles() const
{
    return m_model.index(0, FeatureTreeColumns::name).data(FeatureTreeItem::IsShownAtAll).isValid();
}

bool FeatureTreeRoleFilter::isEmptyText() const
{
    return m_text.pattern().isEmpty();
}

bool FeatureTreeRoleFilter::accepts(const QModelIndex &row) const
{
    if (!hasRoles() || (isEmptyText() && fullNameOf(row) == FeatureTreeNames::favoritesTopLevel)) {
        return true;
    }
    for (QModelIndex above = row; above.isValid(); above = above.parent()) {
        if (matches(above)) {
            return true;
        }
    }
    return hasMatchBelow(row);
}

bool FeatureTreeRoleFilter::isHit(const QModelIndex &row) const
{
    const QString name = nameOf(row);
    if (name == FeatureTreeNames::root || row.data(FeatureTreeItem::GenicamCategory).toBool()) {
        return false;
    }
    return row.data(Qt::DisplayRole).toString().contains(m_text) || name.contains(m_text);
}

bool FeatureTreeRoleFilter::matches(const QModelIndex &row) const
{
    const int visibility = visibilityOf(row);
    if (visibility > m_level || (m_level != GenApi::Invisible && !isShownAtAll(row))) {
        return false;
    }
    if (fullNameOf(row) == FeatureTreeNames::search) {
        return visibility < GenApi::Invisible; // shown by a search alone, at the highest level too
    }
    return isHit(row);
}

bool FeatureTreeRoleFilter::hasMatchBelow(const QModelIndex &parent) const
{
    const int count = m_model.hasChildren(parent) ? m_model.rowCount(parent) : 0;
    for (int row = 0; row < count; ++row) {
        if (matches(m_model.index(row, FeatureTreeColumns::name, parent))) {
            return true;
        }
    }
    for (int row = 0; row < count; ++row) {
        if (hasMatchBelow(m_model.index(row, FeatureTreeColumns::name, parent))) {
            return true;
        }
    }
    return false;
}

int FeatureTreeRoleFilter::effectiveVisibility(const QModelIndex &row) const
{
    const int visibility = visibilityOf(row);
    const bool isShown = m_level == GenApi::Invisible || visibility == GenApi::Invisible || isShownAtAll(row);
    return isShown ? visibility : static_cast<int>(GenApi::UndefinedVisibility);
}

FeatureTreeRoleFilter::Matches FeatureTreeRoleFilter::matches() const
{
    Matches found;
    if (!isEmptyText() && hasRoles()) {
        collect(QModelIndex(), GenApi::Beginner, found);
        found.hidden.subtract(found.visible);
    }
    return found;
}

void FeatureTreeRoleFilter::collect(const QModelIndex &parent, int visibilityAbove, Matches &found) const
{
    const int count = m_model.hasChildren(parent) ? m_model.rowCount(parent) : 0;
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = m_model.index(row, FeatureTreeColumns::name, parent);
        const int visibility = std::max(visibilityAbove, effectiveVisibility(index));
        const QString name = nameOf(index);
        // Hints, placeholders and the search row have one name only: they are no features.
        if (visibility < GenApi::Invisible || visibility <= m_level) {
            if (name != fullNameOf(index) && isHit(index)) {
                (visibility <= m_level ? found.visible : found.hidden).insert(name);
            }
        }
        collect(index, visibility, found);
    }
}
