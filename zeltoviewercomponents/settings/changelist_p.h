// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "change.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>
#include <memory>

/*! \brief The lines of a history, the newest first, as a model.
 *
 * Adding a line costs next to nothing: views hear of it when the event loop comes round.
 *
 * \ingroup settings
 */
class ChangeList : public QAbstractTableModel
{
    Q_OBJECT

public:
    using ChangePtr = std::shared_ptr<Change>;

    explicit ChangeList(qsizetype limit, QObject *parent = nullptr);
    ~ChangeList() override;

    void add(const ChangePtr &change);
    /*! Tells views that \a change, one of the list, reads differently now. */
    void update(const ChangePtr &change);
    void clear();
    /*! Returns the last line about the same feature that told of a write, null without one. */
    ChangePtr newestOf(const Change &feature) const;
    ChangePtr at(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private slots:
    void announce();

private:
    QString text(const Change &change, int column) const;
    QString toolTip(const Change &change) const;

    std::deque<ChangePtr> m_changes; // the oldest first
    qsizetype m_limit;
    size_t m_announced = 0; // how many of them views know
    QTimer m_timer;
};
