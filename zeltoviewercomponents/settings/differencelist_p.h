// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settingscomparison.h"

#include <QAbstractTableModel>
#include <QList>
#include <QSortFilterProxyModel>

#include <array>

/*! \brief The differences of two settings as a model: the feature, its value here, its value there.
 *
 * \ingroup settings
 */
class DifferenceList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, HereColumn, ThereColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;
    ~DifferenceList() override;

    void setDifferences(const QList<SettingsDifference> &differences);
    const QList<SettingsDifference> &differences() const { return m_differences; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<SettingsDifference> m_differences;
};

/*! \brief Those of a DifferenceList whose kinds are switched on.
 *
 * \ingroup settings
 */
class DifferenceFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    ~DifferenceFilter() override;

    void setShown(SettingsDifference::Kind kind, bool isShown);
    const SettingsDifference &difference(const QModelIndex &index) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    std::array<bool, 3> m_isShown{true, true, true}; // by kind
};
