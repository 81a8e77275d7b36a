// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "favoriteentry.h"

#include <QList>
#include <QLockFile>
#include <QSettings>
#include <QString>

#include <memory>

/*! \brief What is stored of the favorites.
 *
 * \ingroup favorites
 */
struct FavoritesList
{
    /*! Returns whether both show the same favorites. */
    bool isSameAs(const FavoritesList &other) const
    {
        return entries == other.entries && viewAll == other.viewAll;
    }

    QList<FavoriteEntry> entries;
    bool viewAll = false;
    bool expanded = true;
};

/*! \brief The favorites in the application's settings, below one group.
 *
 * Settings are merged key by key when several programs write them, which would mix the numbered entries of
 * two lists. Whoever reads, changes and writes therefore locks the others out meanwhile.
 *
 * \ingroup favorites
 */
class FavoritesStore
{
public:
    explicit FavoritesStore(const QString &group);

    /*! Returns the file of the application's settings, empty when they are kept elsewhere. */
    static QString fileName();

    /*! Returns what tells this store from others: settings may move to another file. */
    QString place() const;

    /*! Keeps other programs from writing until unlock(), or while the object lives. Waits at most that long
     * for the others and returns false when one of them is still at it. */
    bool lock(int milliseconds);
    void unlock();
    /*! Reads anew what is stored. */
    FavoritesList read();
    /*! Returns whether there is a list, be it an empty one: damaged or removed settings are no word of
     * anybody's that the favorites were removed. */
    bool hasList() const;
    /*! Stores \a list. Returns whether it arrived. */
    bool write(const FavoritesList &list);

private:
    QList<FavoriteEntry> readEntries() const;

    QSettings m_settings;
    std::unique_ptr<QLockFile> m_lock;
};
