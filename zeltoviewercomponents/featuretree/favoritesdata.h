// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "favoriteentry.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <future>
#include <memory>
#include <optional>

class FavoritesStore;
class SettingsWatcher;
struct FavoritesList;

/*! \brief The user's list of favorite features, in the order shown, and how its branch is to be shown.
 *
 * One object serves all models and views of the process and may be a static one: it uses QSettings only
 * while an application object exists. The list is kept in the application's settings, below the settings
 * group; changes are written within a second, by another thread, so that a crash loses next to none and
 * nobody waits for the disk; and at once when a view is detached and when the application quits. Attaching
 * and setting the group need that object, too. GUI thread only.
 *
 * Other programs may use the same settings. What changed here is then done again on what they have stored,
 * and what changed there is taken over as soon as it is stored, where the settings are a file; elsewhere with
 * the next change made here. Only the expansion of the branch stays each program's own.
 *
 * \ingroup favorites
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FavoritesData : public QObject
{
    Q_OBJECT

public:
    explicit FavoritesData(QObject *parent = nullptr);
    ~FavoritesData() override;

    /*! Loads \a group and makes it the settings group. Only the first call does anything. */
    void attach(const QString &group);
    /*! Saves what has changed, and disconnects \a view (or model), when given. */
    void detach(QObject *view);

    /*! Returns the settings group, empty before there is one. */
    QString settingsGroup() const { return m_settingsGroup; }
    /*! Makes \a group the settings group. What is stored there replaces what belongs to another group, and
     * joins what was added before there was any. The entries stay where nothing is stored. */
    void setSettingsGroup(const QString &group);

    /*! Appends the entries stored in \a group and takes over its flags; of another group than the settings
     * group, this is a change. Returns false for an empty group. */
    bool load(const QString &group);
    /*! Stores everything in \a group, after merging into it what others have stored there since it was loaded
     * or saved. Returns false for an empty group and when the store cannot be written. */
    bool save(const QString &group);

    /*! Returns the number of entries. */
    int count() const { return static_cast<int>(m_entries.size()); }
    /*! Returns the entry at \a index, none when there is no such. */
    std::optional<FavoriteEntry> entryAt(int index) const;
    /*! Returns the index of the same favorite as \a entry, -1 when the list lacks it. */
    int indexOfEntry(const FavoriteEntry &entry) const;

    /*! Inserts \a entry before \a position, which counts from the end when negative. Returns false for a
     * position out of range, an entry without a feature name and one that the list holds already. */
    bool insertEntry(int position, const FavoriteEntry &entry);
    /*! Inserts \a entry at the end, as insertEntry() does. */
    bool appendEntry(const FavoriteEntry &entry);
    /*! Removes the entry at \a index without notification, into \a taken when given. */
    bool takeEntry(int index, FavoriteEntry *taken = nullptr);
    /*! Removes the entry at \a index. */
    bool removeEntry(int index);
    /*! Moves the entry at \a from before the one at \a to; count() moves it to the end. A negative \a to
     * counts from the end of the other entries. A refused move changes nothing. */
    bool moveEntry(int from, int to);

    /*! Returns whether unavailable favorites are shown at every user level. */
    bool viewAll() const { return m_viewAll; }
    /*! Sets whether unavailable favorites are shown at every user level. */
    void setViewAll(bool viewAll);

    /*! Returns whether the branch is to be shown expanded. */
    bool isExpanded() const { return m_expanded; }
    /*! Stores whether the branch is expanded; a change is signalled at once, deferred updates or not. */
    void setExpanded(bool expand);

    /*! Collects notifications while on; switching it off emits one when there was any. */
    void setDeferredUpdates(bool deferred);

Q_SIGNALS:
    /*! The list or viewAll() changed. */
    void dataUpdated();
    /*! The branch is to be expanded or collapsed. */
    void expanded(bool isExpanded);

private Q_SLOTS:
    void saveScheduled();
    void saveLater();
    void finishSaving();
    void saveChanges();
    void readStored();
    void takeOverStored();

private:
    struct Change
    {
        enum Kind { Insertion, Removal, Move };
        Kind kind;
        FavoriteEntry entry;
        std::optional<FavoriteEntry> previous; // the neighbours at the new place
        std::optional<FavoriteEntry> next;
    };

    struct State;
    struct Saved;
    struct Found;

    void notify();
    void settle();
    void bringAlong();
    void append(const QList<FavoriteEntry> &entries, bool isImport);
    void replaceBy(const QString &group);
    void recordChange(Change::Kind kind, int index);
    void scheduleSaving();
    State state() const;
    void takeOverSaved(const Saved &saved);
    bool hasChanges() const;
    void forgetChanges();
    void watchStore();
    bool isStoredIn(const QString &group) const;
    void setStored(const FavoritesList &stored, const QString &place);
    static void repeat(const Change &change, QList<FavoriteEntry> &entries);
    void adopt(const FavoritesList &list);

    QList<FavoriteEntry> m_entries;
    QString m_settingsGroup;
    bool m_loaded = false;
    bool m_viewAll = true;
    bool m_expanded = false;
    bool m_deferred = false;
    bool m_pending = false;
    bool m_saveScheduled = false;
    // What differs from the store, as far as is known here.
    QList<Change> m_changes;
    bool m_viewAllChanged = false;
    bool m_expandedChanged = false;
    std::unique_ptr<FavoritesList> m_stored; // as last seen, none before
    QString m_storedPlace;
    int m_storings = 0; // so far
    QPointer<SettingsWatcher> m_watcher;
    std::future<std::unique_ptr<Saved>> m_saving; // while another thread is at it
    std::future<std::unique_ptr<Found>> m_reading; // likewise
};
