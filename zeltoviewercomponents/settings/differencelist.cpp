// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "differencelist_p.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

DifferenceList::~DifferenceList() = default;

void DifferenceList::setDifferences(const QList<SettingsDifference> &differences)
{
    beginResetModel();
    m_differences = differences;
    endResetModel();
}

int DifferenceList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_differences.size());
}

int DifferenceList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DifferenceList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const SettingsDifference &difference = m_differences[index.row()];
    const bool isOnlyThere = difference.kind == SettingsDifference::Kind::OnlyThere;
    const bool isOnlyHere = difference.kind == SettingsDifference::Kind::OnlyHere;
    const FeatureSettings::Setting &feature = isOnlyThere ? difference.there : difference.here;
    const bool lacksValue =
        (index.column() == HereColumn && isOnlyThere) || (index.column() == ThereColumn && isOnlyHere);
    switch (role) {
    case Qt::ForegroundRole: // asked for at each painting, since the colours may change
        return lacksValue ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                          : QVariant();
    case Qt::ToolTipRole:
        return feature.nodeMap + QLatin1Char('/') + feature.title();
    case Qt::DisplayRole:
        break;
    default:
        return {};
    }
    if (lacksValue) {
        return tr("no value");
    }
    switch (index.column()) {
    case NameColumn:
        return feature.title();
    case HereColumn:
        return difference.here.value;
    case ThereColumn:
        return difference.there.value;
    default:
        return {};
    }
}

QVariant DifferenceList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Feature");
    case HereColumn:
        return tr("Here");
    case ThereColumn:
        return tr("There");
    default:
        return {};
    }
}

DifferenceFilter::~DifferenceFilter() = default;

void DifferenceFilter::setShown(SettingsDifference::Kind kind, bool isShown)
{
    m_isShown[static_cast<size_t>(kind)] = isShown;
    invalidateFilter();
}

const SettingsDifference &DifferenceFilter::difference(const QModelIndex &index) const
{
    return static_cast<const DifferenceList *>(sourceModel())->differences()[mapToSource(index).row()];
}

bool DifferenceFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const auto *const list = static_cast<const DifferenceList *>(sourceModel());
    return m_isShown[static_cast<size_t>(list->differences()[row].kind)]
        && QSortFilterProxyModel::filterAcceptsRow(row, parent);
}
