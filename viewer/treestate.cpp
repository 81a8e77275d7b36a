// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treestate.h"

#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QLineEdit>

#include <functional>

namespace {

constexpr QLatin1Char separator('\n');

QLineEdit *searchBox(const FeatureTreeWidget &tree)
{
    return tree.findChild<QLineEdit *>(QStringLiteral("filterEdit"));
}

QString nameOf(const QModelIndex &index)
{
    return index.data(FeatureTreeItem::FullNodeNameRole).toString();
}

// A feature may stand in two categories.
QString pathOf(const QModelIndex &index)
{
    return index.parent().isValid() ? pathOf(index.parent()) + separator + nameOf(index) : nameOf(index);
}

// Visits the branches that are open, and the rows below them.
void forEachShownRow(const FeatureTreeView &view, const QModelIndex &parent,
                     const std::function<void(const QModelIndex &)> &visit)
{
    const int count = view.model()->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        visit(index);
        if (view.isExpanded(index)) {
            forEachShownRow(view, index, visit);
        }
    }
}

// Returns the row at \a path if it is shown, else an invalid index.
QModelIndex shownRow(const FeatureTreeView &view, const QString &path)
{
    QModelIndex found;
    const QStringList names = path.split(separator);
    for (const QString &name : names) {
        const QModelIndex parent = found;
        if (parent.isValid() && !view.isExpanded(parent)) {
            return {};
        }
        found = {};
        const int count = view.model()->rowCount(parent);
        for (int row = 0; row < count && !found.isValid(); ++row) {
            const QModelIndex index = view.model()->index(row, 0, parent);
            found = nameOf(index) == name ? index : found;
        }
        if (!found.isValid()) {
            return {};
        }
    }
    return found;
}

void makeCurrent(FeatureTreeView &view, const QString &path)
{
    const QModelIndex row = path.isEmpty() ? QModelIndex() : shownRow(view, path);
    if (row.isValid()) {
        view.setCurrentIndex(row);
    }
}

} // namespace

TreeState::TreeState(FeatureTreeWidget &tree)
    : m_search(searchBox(tree)->text())
{
    if (!m_search.isEmpty()) {
        m_hit = pathOf(tree.GetCurrentIndex().siblingAtColumn(0));
    }
    searchBox(tree)->clear();
    const FeatureTreeView &view = *tree.treeView();
    m_current = pathOf(tree.GetCurrentIndex().siblingAtColumn(0));
    forEachShownRow(view, QModelIndex(), [this, &view](const QModelIndex &index) {
        if (view.isExpanded(index)) {
            m_expanded.insert(pathOf(index));
        }
    });
}

TreeState::TreeState(const QStringList &openRows, const QString &currentRow)
    : m_current(currentRow)
    , m_expanded(openRows.cbegin(), openRows.cend())
{
}

void TreeState::applyTo(FeatureTreeWidget &tree) const
{
    FeatureTreeView &view = *tree.treeView();
    // Whether the favorites are open is remembered with them.
    const QModelIndex favorites = view.getFeatureExtension()->GetFavoritesRootIndex();
    view.setExpandedRows([this, &view, &favorites](const QModelIndex &index) {
        return index == favorites ? view.isExpanded(index) : m_expanded.contains(pathOf(index));
    });
    makeCurrent(view, m_current);
    searchBox(tree)->setText(m_search);
    makeCurrent(view, m_hit);
}

QStringList TreeState::openRows() const
{
    QStringList rows = m_expanded.values();
    rows.sort(); // the same state gives the same settings
    return rows;
}
