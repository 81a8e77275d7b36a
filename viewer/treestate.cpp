// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treestate.h"

#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QLineEdit>

#include <functional>

namespace {

QLineEdit *searchBox(const FeatureTreeWidget &tree)
{
    return tree.findChild<QLineEdit *>(QStringLiteral("filterEdit"));
}

// A feature may stand in two categories.
QString pathOf(const QModelIndex &index)
{
    const QString name = index.data(FeatureTreeItem::FullNodeNameRole).toString();
    return index.parent().isValid() ? pathOf(index.parent()) + QLatin1Char('\n') + name : name;
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

} // namespace

TreeState::TreeState(FeatureTreeWidget &tree)
    : m_search(searchBox(tree)->text())
{
    searchBox(tree)->clear();
    const FeatureTreeView &view = *tree.treeView();
    m_current = pathOf(tree.GetCurrentIndex().siblingAtColumn(0));
    forEachShownRow(view, QModelIndex(), [this, &view](const QModelIndex &index) {
        if (view.isExpanded(index)) {
            m_expanded.insert(pathOf(index));
        }
    });
}

void TreeState::applyTo(FeatureTreeWidget &tree) const
{
    FeatureTreeView &view = *tree.treeView();
    view.setExpandedRows([this](const QModelIndex &index) { return m_expanded.contains(pathOf(index)); });
    forEachShownRow(view, QModelIndex(), [this, &view](const QModelIndex &index) {
        if (pathOf(index) == m_current) {
            view.setCurrentIndex(index);
        }
    });
    searchBox(tree)->setText(m_search);
}
