// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/featuretreeitem.h>

#include <QAbstractItemModel>
#include <QStringList>

/*! Returns the full names of all rows below \a parent, from top to bottom. */
inline QStringList fullNames(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names.append(index.data(FeatureTreeItem::FullNodeNameRole).toString());
        names.append(fullNames(model, index));
    }
    return names;
}
