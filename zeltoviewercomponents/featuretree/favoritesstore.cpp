// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "favoritesstore_p.h"

#include <platform/core/settingslock.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr QLatin1Char separator('*');
constexpr int formatVersion = 3;
// Far beyond any feature; what is longer is damage, and would stall whoever has to paint it.
constexpr int maximumStoredLength = 65536;
// Who has the lock needs it for milliseconds; one that is much older was left behind, which is only known at
// once of the programs of this computer.
constexpr int lockAge = 1000; // ms
constexpr int lockInterval = 5;

constexpr QLatin1String versionKey("Version");
constexpr QLatin1String countKey("NumberOfEntries");
constexpr QLatin1String viewAllKey("ViewAll");
constexpr QLatin1String expandedKey("Expanded");

QString fileOf(const QSettings &settings)
{
#ifdef Q_OS_WIN
    if (settings.format() == QSettings::NativeFormat) {
        return {}; // the registry
    }
#endif
    return settings.fileName();
}

// Returns the numbers of the numbered keys that exist, ascending. Going by these instead of counting up makes
// a damaged number of entries harmless.
QList<qint64> storedNumbers(const QSettings &settings)
{
    QList<qint64> numbers;
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        bool ok = false;
        const qint64 number = key.toLongLong(&ok);
        if (ok && number >= 0 && QString::number(number) == key) {
            numbers.append(number);
        }
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::optional<FavoriteEntry> parseEntry(const QString &stored)
{
    if (stored.size() > maximumStoredLength) {
        return std::nullopt;
    }
    const QStringList parts = stored.split(separator, Qt::SkipEmptyParts);
    if (parts.size() != 3) {
        return std::nullopt;
    }
    return FavoriteEntry{QString::fromLocal8Bit(parts.at(0).toLocal8Bit()), parts.at(1), parts.at(2)};
}

// Not arg(): a "%1" in a name is part of the name. Empty parts would be skipped when it is read.
QString storedText(const FavoriteEntry &entry)
{
    const QString &shown = entry.displayName.isEmpty() ? entry.featureName : entry.displayName;
    return entry.featureName + separator + shown + separator + entry.nodeMapKey;
}

bool isStorable(const FavoriteEntry &entry)
{
    return !entry.featureName.isEmpty() && !entry.nodeMapKey.isEmpty();
}

} // namespace

FavoritesStore::FavoritesStore(const QString &group)
{
    m_settings.beginGroup(group);
}

QString FavoritesStore::fileName()
{
    return fileOf(QSettings());
}

QString FavoritesStore::place() const
{
    return m_settings.fileName() + QLatin1Char('\n') + m_settings.group();
}

bool FavoritesStore::lock(int milliseconds)
{
    const QString file = fileOf(m_settings);
    if (file.isEmpty() || !QDir().mkpath(QFileInfo(file).path())) {
        return true;
    }
    m_lock = std::make_unique<QLockFile>(file + QStringLiteral(".favorites.lock"));
    m_lock->setStaleLockTime(lockAge);
    // Asked for often: waiting in the lock itself sleeps so long in between that others slip in again and
    // again.
    const QDeadlineTimer deadline(milliseconds);
    while (!m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError && !deadline.hasExpired()) {
        QThread::msleep(lockInterval);
    }
    return m_lock->isLocked() || m_lock->error() != QLockFile::LockFailedError;
}

void FavoritesStore::unlock()
{
    m_lock.reset();
}

FavoritesList FavoritesStore::read()
{
    m_settings.sync();
    // A group that was never written hides unavailable favorites and shows the branch expanded.
    return {readEntries(), m_settings.value(viewAllKey).toBool(),
            m_settings.value(expandedKey, true).toBool()};
}

QList<FavoriteEntry> FavoritesStore::readEntries() const
{
    QList<FavoriteEntry> entries;
    QSet<std::pair<QString, QString>> known;
    const qint64 count = m_settings.value(countKey, 0).toLongLong();
    const QList<qint64> numbers = storedNumbers(m_settings);
    for (const qint64 number : numbers) {
        if (number >= count) {
            break;
        }
        const auto entry = parseEntry(m_settings.value(QString::number(number)).toString());
        if (entry && !known.contains(entry->identity())) {
            known.insert(entry->identity());
            entries.append(*entry);
        }
    }
    return entries;
}

bool FavoritesStore::hasList() const
{
    bool isNumber = false;
    return m_settings.value(countKey).toLongLong(&isNumber) >= 0 && isNumber;
}

bool FavoritesStore::write(const FavoritesList &list)
{
    m_settings.setValue(versionKey, formatVersion);
    m_settings.setValue(countKey, static_cast<qint64>(list.entries.size()));
    // Every number left over from another list goes: one in a gap would come back as a favorite.
    const QList<qint64> numbers = storedNumbers(m_settings);
    for (const qint64 number : numbers) {
        if (number >= list.entries.size() || !isStorable(list.entries.at(number))) {
            m_settings.remove(QString::number(number));
        }
    }
    for (qsizetype i = 0; i < list.entries.size(); ++i) {
        if (isStorable(list.entries.at(i))) {
            m_settings.setValue(QString::number(i), storedText(list.entries.at(i)));
        }
    }
    m_settings.setValue(viewAllKey, list.viewAll ? 1 : 0);
    m_settings.setValue(expandedKey, list.expanded ? 1 : 0);
    Core::removeLeftLock(m_settings);
    m_settings.sync();
    // A format error is about what was read: the well-formed rest is kept and written.
    if (m_settings.status() != QSettings::AccessError) {
        return true;
    }
    // Without an organisation's name there is an access error from the start; the file itself knows better.
    QSettings file(m_settings.fileName(), m_settings.format());
    file.sync();
    return file.status() != QSettings::AccessError;
}
