// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// The settings file with the favorites: what can be read of it is the same after it has been written and read
// again.

#include "target.h"

#include <zeltoviewercomponents/featuretree/favoritesdata.h>

#include <QSettings>

namespace {

const QString group = QStringLiteral("Favorites");

QList<FavoriteEntry> entriesOf(const FavoritesData &favorites)
{
    QList<FavoriteEntry> entries;
    for (int i = 0; i < favorites.count(); ++i) {
        entries.append(*favorites.entryAt(i));
    }
    return entries;
}

void prepare()
{
    QSettings().setValue(QStringLiteral("first"), 1); // makes the folder
}

void run(const QByteArray &input)
{
    Fuzz::writeFile(QSettings().fileName(), input);
    FavoritesData favorites;
    favorites.load(group);
    const QList<FavoriteEntry> before = entriesOf(favorites);
    Fuzz::require(!favorites.insertEntry(favorites.count() + 1, {}), "an empty entry is refused");
    Fuzz::require(!favorites.moveEntry(favorites.count(), 0), "a move of nothing is refused");

    const QString copy = QStringLiteral("Copy");
    QSettings().remove(copy);
    Fuzz::require(favorites.save(copy), "favorites can be saved");
    FavoritesData again;
    again.load(copy);
    Fuzz::require(entriesOf(again) == before, "favorites survive being saved");
    Fuzz::require(again.viewAll() == favorites.viewAll(), "the view of all favorites survives being saved");
    Fuzz::settle();
}

const Fuzz::Target target("favorites", prepare, run);

} // namespace
