// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingswriter.h"

#include <platform/core/settingslock.h>

#include <QSettings>

#include <system_error>
#include <utility>

SettingsWriter::SettingsWriter()
{
    Core::removeLeftLock(QSettings());
}

SettingsWriter::~SettingsWriter()
{
    finish();
}

void SettingsWriter::add(Change change)
{
    {
        const std::lock_guard lock(m_mutex);
        m_changes.append(std::move(change));
        if (std::exchange(m_isWorking, true)) {
            return;
        }
    }
    try {
        m_work = std::async(std::launch::async, [this] { work(); });
    } catch (const std::system_error &) {
        work(); // no thread is to be had
    }
}

void SettingsWriter::finish()
{
    if (m_work.valid()) {
        m_work.wait();
    }
}

void SettingsWriter::work()
{
    for (QList<Change> changes = takeChanges(); !changes.isEmpty(); changes = takeChanges()) {
        QSettings settings;
        for (const Change &change : std::as_const(changes)) {
            change(settings);
        }
        Core::removeLeftLock(settings);
    } // written here, once for all of them
}

QList<SettingsWriter::Change> SettingsWriter::takeChanges()
{
    const std::lock_guard lock(m_mutex);
    m_isWorking = !m_changes.isEmpty();
    return std::exchange(m_changes, {});
}
