// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "changelist_p.h"

#include "changehistory.h"

#include <QBrush>
#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>

ChangeList::ChangeList(qsizetype limit, QObject *parent)
    : QAbstractTableModel(parent)
    , m_limit(limit)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(announce()));
}

ChangeList::~ChangeList() = default;

void ChangeList::add(const ChangePtr &change)
{
    m_changes.push_back(change);
    if (!m_timer.isActive()) {
        m_timer.start(0);
    }
}

void ChangeList::announce()
{
    const size_t dropped = m_changes.size() - std::min(m_changes.size(), static_cast<size_t>(m_limit));
    const size_t droppedKnown = std::min(dropped, m_announced);
    if (droppedKnown > 0) {
        const int last = static_cast<int>(m_announced) - 1;
        beginRemoveRows({}, last - static_cast<int>(droppedKnown) + 1, last);
    }
    m_changes.erase(m_changes.begin(), m_changes.begin() + static_cast<std::ptrdiff_t>(dropped));
    m_announced -= droppedKnown;
    if (droppedKnown > 0) {
        endRemoveRows();
    }
    if (m_changes.size() > m_announced) {
        beginInsertRows({}, 0, static_cast<int>(m_changes.size() - m_announced) - 1);
        m_announced = m_changes.size();
        endInsertRows();
    }
}

void ChangeList::update(const ChangePtr &change)
{
    // Mostly one of the newest.
    const auto found = std::find(m_changes.crbegin(), m_changes.crend(), change);
    const auto age = static_cast<size_t>(found - m_changes.crbegin());
    const size_t unknown = m_changes.size() - m_announced;
    if (found != m_changes.crend() && age >= unknown) {
        const int row = static_cast<int>(age - unknown);
        emit dataChanged(index(row, 0), index(row, ChangeHistory::ColumnCount - 1));
    }
}

void ChangeList::clear()
{
    beginResetModel();
    m_changes.clear();
    m_announced = 0;
    endResetModel();
}

ChangeList::ChangePtr ChangeList::at(const QModelIndex &index) const
{
    return index.isValid() ? m_changes[m_announced - 1 - static_cast<size_t>(index.row())] : nullptr;
}

ChangeList::ChangePtr ChangeList::newestOf(const Change &feature) const
{
    const auto found =
        std::find_if(m_changes.crbegin(), m_changes.crend(), [&feature](const ChangePtr &change) {
            return change->result != Change::Result::Refused && change->isSameFeature(feature);
        });
    return found == m_changes.crend() ? nullptr : *found;
}

int ChangeList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_announced);
}

int ChangeList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ChangeHistory::ColumnCount;
}

QVariant ChangeList::data(const QModelIndex &index, int role) const
{
    const ChangePtr change = at(index);
    if (!change) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(*change, index.column());
    case Qt::ToolTipRole:
        return toolTip(*change);
    case Qt::ForegroundRole: // asked for at each painting, since the colours may change
        return change->result == Change::Result::Done
            ? QVariant()
            : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case ChangeHistory::NameRole:
        return change->kind == Change::Kind::File ? QString() : change->name;
    default:
        return {};
    }
}

QString ChangeList::text(const Change &change, int column) const
{
    switch (column) {
    case ChangeHistory::TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(change.time).toString(QStringLiteral("HH:mm:ss"));
    case ChangeHistory::NameColumn:
        return change.title();
    case ChangeHistory::BeforeColumn:
        return change.shown(change.before);
    case ChangeHistory::AfterColumn:
        return change.shown(change.after);
    case ChangeHistory::ResultColumn:
        return change.result == Change::Result::Refused ? tr("refused: %1").arg(change.reason)
            : change.result == Change::Result::Undone   ? tr("undone")
            : change.kind == Change::Kind::Command      ? tr("executed")
                                                        : tr("done");
    default:
        return {};
    }
}

QString ChangeList::toolTip(const Change &change) const
{
    const QString when = QLocale().toString(QDateTime::fromMSecsSinceEpoch(change.time), QLocale::LongFormat);
    return QStringLiteral("%1\n%2\n%3").arg(change.name, when, text(change, ChangeHistory::ResultColumn));
}

QVariant ChangeList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case ChangeHistory::TimeColumn:
        return tr("Time");
    case ChangeHistory::NameColumn:
        return tr("Feature");
    case ChangeHistory::BeforeColumn:
        return tr("Before");
    case ChangeHistory::AfterColumn:
        return tr("After");
    case ChangeHistory::ResultColumn:
        return tr("Result");
    default:
        return {};
    }
}
