// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class QAction;
class FileLook;
class QMenu;
class SettingsWriter;
struct CameraAddress;

/*! \brief The description files and live cameras that were opened last, as a menu and in the settings.
 *
 * Files that are gone are greyed, since they may be back soon: on a stick, on a server.
 */
class RecentSources : public QObject
{
    Q_OBJECT

public:
    /*! Fills \a menu, its parent; changes are stored by \a writer, which ends before this. */
    RecentSources(QMenu *menu, SettingsWriter *writer);
    ~RecentSources() override;

    /*! Puts the file or camera at \a address at the front. */
    void add(const CameraAddress &address);
    /*! Returns the id of the live camera that was opened last, empty when there is none. */
    QString lastCamera() const;

signals:
    /*! The user wants one of them; the other argument is empty. */
    void chosen(const QString &description, const QString &camera);

private slots:
    void fillMenu();
    void lookForFiles();
    void onMissing(const QString &file);
    void onTriggered(QAction *action);

private:
    void addEntry(const QString &source, int number);
    void change(const std::function<void(QStringList &)> &how);

    QMenu *m_menu;
    SettingsWriter *m_writer;
    QPointer<FileLook> m_look; // one at a time, also when it hangs
};
