// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingswatcher_p.h"

#include <QFileInfo>
#include <QStringList>

namespace {

constexpr int pauseTime = 100;

// Returns the folder of the file, or the nearest one above it that exists.
QString existingFolder(const QString &fileName)
{
    QString folder = QFileInfo(fileName).absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).absolutePath()) {
        folder = QFileInfo(folder).absolutePath();
    }
    return folder;
}

} // namespace

SettingsWatcher::SettingsWatcher(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_fileName(fileName)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseTime);
    connect(&m_watcher, SIGNAL(fileChanged(QString)), this, SLOT(schedule()));
    connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(schedule()));
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(check()));
    watch();
}

SettingsWatcher::~SettingsWatcher() = default;

// Not anew with every change: a busy folder would put it off for ever.
void SettingsWatcher::schedule()
{
    if (!m_pause.isActive()) {
        m_pause.start();
    }
}

void SettingsWatcher::check()
{
    watch(); // first, so that no change slips in between
    emit changed();
}

void SettingsWatcher::watch()
{
    const QString folder = existingFolder(m_fileName);
    QStringList former = m_watcher.directories();
    if (former != QStringList(folder)) {
        former.removeAll(folder);
        if (!former.isEmpty()) {
            m_watcher.removePaths(former);
        }
        m_watcher.addPath(folder);
    }
    // A file that was replaced is no longer watched.
    if (m_watcher.files().isEmpty() && QFileInfo::exists(m_fileName)) {
        m_watcher.addPath(m_fileName);
    }
}
