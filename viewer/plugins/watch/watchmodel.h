// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "watchedfeature.h"

#include <QAbstractTableModel>
#include <QList>

/*! \brief The watched features as rows. */
class WatchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, MinimumColumn, MaximumColumn, MeanColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;
    ~WatchModel() override;

    /*! Adds \a parameter as the last row. Returns false when it is watched already. */
    bool add(const WatchedFeature::ParameterPtr &parameter);
    void remove(int row);
    void clear();
    const QList<WatchedFeature *> &features() const { return m_features; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private slots:
    void onChanged();

private:
    QList<WatchedFeature *> m_features;
};
