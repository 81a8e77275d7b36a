// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <support/memorycollection.h>

#include <QAbstractItemModel>
#include <QSharedPointer>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringList>

/*! \brief The names of a synthetic camera's features, a hundred to a category. */
QStringList featureNames(int count);

/*! Returns a collection of features called \a names, a hundred to a category. Of each ten, as many as
 * \a withEditor have a permanent editor; the others are strings, which have none. */
QSharedPointer<MemoryCollection> makeCamera(const QStringList &names, int withEditor);

/*! \brief The stock stack that figures are compared with: the same names in the same shape. */
class StockTree
{
public:
    /*! Copies name and value of all rows of \a model. */
    explicit StockTree(const QAbstractItemModel &model);

    QSortFilterProxyModel *proxy() { return &m_proxy; }

private:
    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
};

/*! Visits all rows below \a parent, as a shown and expanded view does. Returns their number. */
int visitRows(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex());
