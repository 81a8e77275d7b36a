// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "favoritesdata.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QSettings>
#include <QStringList>

namespace {

constexpr int formatVersion = 3;
// No list that a user made comes near this; a count beyond it is damage.
constexpr int largestStoredCount = 100'000;

QString versionKey()
{
    return QStringLiteral("Version");
}

QString countKey()
{
    return QStringLiteral("NumberOfEntries");
}

QString viewAllKey()
{
    return QStringLiteral("ViewAll");
}

QString expandedKey()
{
    return QStringLiteral("Expanded");
}

std::optional<FavoriteEntry> parseEntry(const QString &stored)
{
    const QStringList parts = stored.split(QLatin1Char('*'), Qt::SkipEmptyParts);
    if (parts.size() != 3) {
        return std::nullopt;
    }
    return FavoriteEntry{QString::fromLocal8Bit(parts[0].toLocal8Bit()), parts[1], parts[2]};
}

} // namespace

bool FavoriteEntry::isSameFavorite(const FavoriteEntry &other) const
{
    return nodeMapKey == other.nodeMapKey && featureName == other.featureName;
}

FavoritesData::FavoritesData(QObject *parent)
    : QObject(parent)
{
}

FavoritesData::~FavoritesData() = default;

void FavoritesData::attach(const QString &group)
{
    if (m_loaded) {
        return;
    }
    m_settingsGroup = group;
    load(group);
    m_loaded = true;
}

void FavoritesData::detach(QObject *view)
{
    if (m_loaded) {
        save(m_settingsGroup);
    }
    disconnect(this, nullptr, view, nullptr);
}

void FavoritesData::setSettingsGroup(const QString &group)
{
    if (m_settingsGroup == group) {
        return;
    }
    if (m_saveScheduled) {
        saveChanges();
    }
    m_settingsGroup = group;
    if (!m_loaded) {
        return;
    }
    const bool wasDeferred = m_deferred;
    setDeferredUpdates(true);
    m_entries.clear();
    load(group);
    m_pending = true;
    if (!wasDeferred) {
        setDeferredUpdates(false);
    }
}

QString FavoritesData::settingsGroup() const
{
    return m_settingsGroup;
}

bool FavoritesData::load(const QString &group)
{
    if (group.isEmpty()) {
        return false;
    }
    const QScopedValueRollback<bool> loading(m_loading, true);
    QSettings settings;
    settings.beginGroup(group);
    const int stored = qBound(0, settings.value(countKey(), 0).toInt(), largestStoredCount);
    for (int i = 0; i < stored; ++i) {
        if (const auto entry = parseEntry(settings.value(QString::number(i)).toString())) {
            appendEntry(*entry);
        }
    }
    setViewAll(settings.value(viewAllKey()).toBool());
    setExpanded(settings.value(expandedKey(), true).toBool());
    settings.endGroup();
    notify();
    return true;
}

bool FavoritesData::save(const QString &group)
{
    if (group.isEmpty()) {
        return false;
    }
    QSettings settings;
    settings.beginGroup(group);
    settings.setValue(versionKey(), formatVersion);
    const int oldCount = qMin(settings.value(countKey(), 0).toInt(), largestStoredCount);
    settings.setValue(countKey(), static_cast<qint64>(m_entries.size()));
    for (int i = 0; i < count(); ++i) {
        const FavoriteEntry &entry = m_entries[i];
        if (entry.featureName.isEmpty() || entry.nodeMapKey.isEmpty()) {
            continue;
        }
        settings.setValue(
            QString::number(i),
            QStringLiteral("%1*%2*%3").arg(entry.featureName, entry.displayName, entry.nodeMapKey));
    }
    for (int i = count(); i < oldCount; ++i) {
        settings.remove(QString::number(i));
    }
    settings.setValue(viewAllKey(), m_viewAll ? 1 : 0);
    settings.setValue(expandedKey(), m_expanded ? 1 : 0);
    settings.endGroup();
    return true;
}

void FavoritesData::scheduleSave()
{
    if (m_loading || !m_loaded || m_saveScheduled || !QCoreApplication::instance()) {
        return;
    }
    m_saveScheduled = QMetaObject::invokeMethod(this, "saveChanges", Qt::QueuedConnection);
}

void FavoritesData::saveChanges()
{
    m_saveScheduled = false;
    save(m_settingsGroup);
}

int FavoritesData::count() const
{
    return static_cast<int>(m_entries.size());
}

std::optional<FavoriteEntry> FavoritesData::entryAt(int index) const
{
    if (index < 0 || index >= count()) {
        return std::nullopt;
    }
    return m_entries[index];
}

bool FavoritesData::isValidPosition(int position) const
{
    return position >= 0 && position <= count();
}

bool FavoritesData::insertEntry(int position, const FavoriteEntry &entry)
{
    const int target = position < 0 ? position + count() : position;
    if (!isValidPosition(target) || entry.featureName.isEmpty() || indexOfEntry(entry) >= 0) {
        return false;
    }
    m_entries.insert(target, entry);
    notify();
    return true;
}

bool FavoritesData::appendEntry(const FavoriteEntry &entry)
{
    return insertEntry(count(), entry);
}

bool FavoritesData::takeEntry(int index, FavoriteEntry *out)
{
    if (index < 0 || index >= count()) {
        return false;
    }
    const FavoriteEntry taken = m_entries.takeAt(index);
    if (out) {
        *out = taken;
    }
    scheduleSave();
    return true;
}

bool FavoritesData::removeEntry(int index)
{
    if (!takeEntry(index)) {
        return false;
    }
    notify();
    return true;
}

bool FavoritesData::moveEntry(int from, int to)
{
    // Checked before the entry is taken, so that a refused move loses nothing.
    if (from < 0 || from >= count() || !isValidPosition(to)) {
        return false;
    }
    FavoriteEntry entry;
    takeEntry(from, &entry);
    return insertEntry(from < to ? to - 1 : to, entry);
}

int FavoritesData::indexOfEntry(const FavoriteEntry &entry) const
{
    for (int i = 0; i < count(); ++i) {
        if (m_entries[i].isSameFavorite(entry)) {
            return i;
        }
    }
    return -1;
}

void FavoritesData::setViewAll(bool viewAll)
{
    if (m_viewAll == viewAll) {
        return;
    }
    m_viewAll = viewAll;
    notify();
}

bool FavoritesData::viewAll() const
{
    return m_viewAll;
}

void FavoritesData::setExpanded(bool isExpanded)
{
    if (m_expanded == isExpanded) {
        return;
    }
    m_expanded = isExpanded;
    scheduleSave();
    emit expanded(isExpanded);
}

bool FavoritesData::isExpanded() const
{
    return m_expanded;
}

void FavoritesData::setDeferredUpdates(bool deferred)
{
    const bool publish = m_deferred && m_pending && !deferred;
    m_deferred = deferred;
    if (publish) {
        m_pending = false;
        emit dataUpdated();
    }
}

void FavoritesData::notify()
{
    scheduleSave();
    if (m_deferred) {
        m_pending = true;
    } else {
        emit dataUpdated();
    }
}
