// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QtGlobal>

#include <functional>
#include <future>
#include <mutex>

class QSettings;

/*! \brief Changes the settings on a thread of its own, since that waits for the disk and for other programs.
 *
 * The changes are made in the order in which they come. Used on one thread.
 */
class SettingsWriter
{
public:
    using Change = std::function<void(QSettings &)>;

    /*! Looks after the settings: what a program that was killed has left must not keep others waiting. */
    SettingsWriter();
    /*! Waits until all changes are made. */
    ~SettingsWriter();
    Q_DISABLE_COPY_MOVE(SettingsWriter)

    /*! Has \a change made, soon. */
    void add(Change change);
    /*! Waits until all changes are made. */
    void finish();

private:
    void work();
    QList<Change> takeChanges();

    std::mutex m_mutex;
    QList<Change> m_changes;
    bool m_isWorking = false;
    std::future<void> m_work;
};
