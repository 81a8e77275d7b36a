// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchmodel.h"

#include <algorithm>

namespace {

QVariant alignmentOf(int column)
{
    const Qt::Alignment side = column == WatchModel::NameColumn ? Qt::AlignLeading : Qt::AlignTrailing;
    return QVariant(side | Qt::AlignVCenter);
}

} // namespace

WatchModel::~WatchModel() = default;

bool WatchModel::add(const WatchedFeature::ParameterPtr &parameter)
{
    const QString name = parameter->fullName();
    if (std::any_of(m_features.cbegin(), m_features.cend(),
                    [&name](const WatchedFeature *feature) { return feature->fullName() == name; })) {
        return false;
    }
    auto *const feature = new WatchedFeature(parameter, this);
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_features.append(feature);
    endInsertRows();
    connect(feature, SIGNAL(changed()), this, SLOT(onChanged()));
    return true;
}

void WatchModel::remove(int row)
{
    beginRemoveRows({}, row, row);
    delete m_features.takeAt(row);
    endRemoveRows();
}

void WatchModel::clear()
{
    beginResetModel();
    qDeleteAll(m_features);
    m_features.clear();
    endResetModel();
}

void WatchModel::onChanged()
{
    const auto row = static_cast<int>(m_features.indexOf(qobject_cast<WatchedFeature *>(sender())));
    emit dataChanged(index(row, ValueColumn), index(row, MeanColumn));
}

int WatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_features.size());
}

int WatchModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WatchModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const WatchedFeature &feature = *m_features[index.row()];
    if (role == Qt::ToolTipRole) {
        return feature.fullName();
    }
    if (role == Qt::TextAlignmentRole) {
        return alignmentOf(index.column());
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case NameColumn:
        return feature.title();
    case ValueColumn:
        return feature.value().isEmpty() ? QStringLiteral("–") : feature.value();
    case MinimumColumn:
        return feature.minimum();
    case MaximumColumn:
        return feature.maximum();
    case MeanColumn:
        return feature.mean();
    default:
        return {};
    }
}

QVariant WatchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole) {
        return alignmentOf(section);
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Feature");
    case ValueColumn:
        return tr("Value");
    case MinimumColumn:
        return tr("Minimum");
    case MaximumColumn:
        return tr("Maximum");
    case MeanColumn:
        return tr("Mean");
    default:
        return {};
    }
}
