// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

/*! \brief One favorite: a feature, identified by node map and name, whether the current camera has it or not.
 */
struct ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FavoriteEntry
{
    QString featureName; //!< the feature's short name
    QString displayName; //!< the text shown for it, as it was when the favorite was added
    QString nodeMapKey; //!< the first segment of its full name, such as "@CameraDevice"

    /*! Returns whether both name the same feature of the same node map; the displayed name takes no part. */
    bool isSameFavorite(const FavoriteEntry &other) const;
};

/*! \brief The list of favorites, kept once per process and in the application's settings.
 *
 * All models and views of the process share one store. It is loaded when the first view attaches, written
 * when it changed (once, when the event loop comes round) and when a view or model goes. Refusals are return
 * values. The stored form separates an entry's parts by "*": a name that contains one does not survive.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FavoritesData : public QObject
{
    Q_OBJECT

public:
    explicit FavoritesData(QObject *parent = nullptr);
    ~FavoritesData() override;

    /*! Loads the settings group \a group, on the first call of the process alone. */
    void attach(const QString &group);
    /*! Saves the list and disconnects \a view. */
    void detach(QObject *view);

    /*! Sets the settings group. Once attached, another group replaces the list by what is stored there. */
    void setSettingsGroup(const QString &group);
    QString settingsGroup() const;

    /*! Appends what is stored in \a group; malformed entries are skipped. Returns false for an empty group.
     */
    bool load(const QString &group);
    /*! Writes the list to \a group. Returns false for an empty group. */
    bool save(const QString &group);

    int count() const;
    /*! Returns the entry at \a index, nothing when there is none. */
    std::optional<FavoriteEntry> entryAt(int index) const;
    /*! Inserts before \a position, a negative one counted from the end. Returns false for a position outside
     * the list, an empty feature name or a favorite that is in the list already. */
    bool insertEntry(int position, const FavoriteEntry &entry);
    bool appendEntry(const FavoriteEntry &entry);
    /*! Removes the entry at \a index, copying it to \a out when given. Notifies nobody. */
    bool takeEntry(int index, FavoriteEntry *out = nullptr);
    bool removeEntry(int index);
    /*! Moves the entry at \a from before \a to, both counted with the entry in place. A refused move changes
     *  nothing. */
    bool moveEntry(int from, int to);
    /*! Returns the position of the same favorite, -1 when there is none. */
    int indexOfEntry(const FavoriteEntry &entry) const;

    /*! Sets whether favorites that the current camera lacks are shown. */
    void setViewAll(bool viewAll);
    bool viewAll() const;
    /*! Sets whether the favorites branch is expanded. */
    void setExpanded(bool expanded);
    bool isExpanded() const;

    /*! While deferred, changes are not notified; at the end one dataUpdated() tells of all of them. */
    void setDeferredUpdates(bool deferred);

signals:
    /*! The list, or whether unavailable favorites are shown, changed. */
    void dataUpdated();
    void expanded(bool isExpanded);

private slots:
    void saveChanges();

private:
    void notify();
    void scheduleSave();
    bool isValidPosition(int position) const;

    bool m_loaded = false;
    bool m_viewAll = true;
    bool m_expanded = false;
    bool m_deferred = false;
    bool m_pending = false;
    bool m_loading = false;
    bool m_saveScheduled = false;
    QString m_settingsGroup;
    QList<FavoriteEntry> m_entries;
};
