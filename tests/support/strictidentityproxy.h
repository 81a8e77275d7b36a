// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIdentityProxyModel>

/*! \brief Passes a feature tree model through, so that QAbstractItemModelTester can watch it.
 *
 * Smooths what the model deliberately does otherwise than the tester wants: flags of the invalid index, and
 * rows below columns other than the first. Attach it when the special rows exist.
 */
class StrictIdentityProxy : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : QIdentityProxyModel::rowCount(parent);
    }
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.column() <= 0 && QIdentityProxyModel::hasChildren(parent);
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? QIdentityProxyModel::flags(index) : Qt::NoItemFlags;
    }
};

/*! Visits all rows below \a parent, as a view that expands everything does. Returns their number. */
inline int visitAll(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    const int count = model.hasChildren(parent) ? model.rowCount(parent) : 0;
    int visited = count;
    for (int row = 0; row < count; ++row) {
        visited += visitAll(model, model.index(row, 0, parent));
    }
    return visited;
}
