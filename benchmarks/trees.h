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

/*! \brief What kinds of features a synthetic camera has. */
enum class Kinds {
    Usual, //!< of twenty three floats, four lists of eight entries, a Boolean; the others have no permanent
           //!< editor
    Strings, //!< no permanent editor at all
};

/*! Returns a collection of features called \a names, a hundred to a category. The features of every fifth
 * category are for experts. */
QSharedPointer<MemoryCollection> makeCamera(const QStringList &names, Kinds kinds,
                                            const QString &nodeMapName = QStringLiteral("@CameraDevice"));

/*! \brief The stock stack that figures are compared with: the same names in the same shape. */
class StockTree
{
public:
    /*! Copies name, value and kind of editor (Qt::UserRole of the value) of all rows of \a model. */
    explicit StockTree(const QAbstractItemModel &model);

    QSortFilterProxyModel *proxy() { return &m_proxy; }

private:
    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
};

/*! Visits all rows below \a parent, as a shown and expanded view does. Returns their number. */
int visitRows(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex());
