// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/*! \brief Tells when a settings file may have changed, whoever changed it.
 *
 * Settings replace their file by another one and create it, with its folder, when they first have something
 * to keep. So the folder is watched, too, or the nearest one above it that exists. What happens in quick
 * succession is told once, and now and then something is told that was none of the file.
 *
 * \ingroup favorites
 */
class SettingsWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SettingsWatcher(const QString &fileName, QObject *parent = nullptr);
    ~SettingsWatcher() override;

public slots:
    /*! Tells of a change a little later. */
    void schedule();

signals:
    void changed();

private slots:
    void check();

private:
    void watch();

    QString m_fileName;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};
