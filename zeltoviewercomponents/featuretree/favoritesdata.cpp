// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "favoritesdata.h"

#include <QCoreApplication>
#include <QSet>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr QLatin1Char separator('*');
constexpr int formatVersion = 3;
// Far beyond any feature; what is longer is damage, and would stall whoever has to paint it.
constexpr int maximumStoredLength = 65536;

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

// During static destruction the names that a QSettings needs may be gone already.
bool settingsUsable()
{
    return QCoreApplication::instance() != nullptr;
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

// Not arg(): a "%1" in a name is part of the name.
QString storedText(const FavoriteEntry &entry)
{
    return entry.featureName + separator + entry.displayName + separator + entry.nodeMapKey;
}

bool isStorable(const FavoriteEntry &entry)
{
    return !entry.featureName.isEmpty() && !entry.nodeMapKey.isEmpty();
}

std::pair<QString, QString> identity(const FavoriteEntry &entry)
{
    return {entry.nodeMapKey, entry.featureName};
}

} // namespace

FavoritesData::FavoritesData(QObject *parent)
    : QObject(parent)
{
}

FavoritesData::~FavoritesData()
{
    saveChanges();
}

void FavoritesData::attach(const QString &group)
{
    if (m_loaded) {
        return;
    }
    m_loaded = true;
    if (!m_settingsGroup.isEmpty()) {
        setSettingsGroup(group);
        return;
    }
    // What was added before any group was known has no other home, so the stored entries join it.
    m_settingsGroup = group;
    load(group);
    if (m_unsaved) {
        markChanged();
    }
}

void FavoritesData::detach(QObject *view)
{
    save(m_settingsGroup);
    if (view) {
        disconnect(view);
    }
}

void FavoritesData::setSettingsGroup(const QString &group)
{
    if (group == m_settingsGroup) {
        return;
    }
    saveChanges();
    m_settingsGroup = group;
    m_unsaved = false;
    if (!group.isEmpty()) {
        replaceBy(group);
    }
}

void FavoritesData::replaceBy(const QString &group)
{
    const bool wasDeferred = m_deferred;
    setDeferredUpdates(true);
    m_entries.clear();
    load(group);
    notify();
    if (!wasDeferred) {
        setDeferredUpdates(false);
    }
}

bool FavoritesData::load(const QString &group)
{
    if (group.isEmpty() || !settingsUsable()) {
        return false;
    }
    QSettings settings;
    settings.beginGroup(group);
    loadEntries(settings);
    // A group that was never written hides unavailable favorites and shows the branch expanded.
    m_viewAll = settings.value(viewAllKey()).toBool();
    const bool wasExpanded = std::exchange(m_expanded, settings.value(expandedKey(), true).toBool());
    settings.endGroup();
    notify();
    if (m_expanded != wasExpanded) {
        emit expanded(m_expanded);
    }
    return true;
}

void FavoritesData::loadEntries(const QSettings &settings)
{
    QSet<std::pair<QString, QString>> known;
    for (const FavoriteEntry &entry : std::as_const(m_entries)) {
        known.insert(identity(entry));
    }
    const qint64 storedCount = settings.value(countKey(), 0).toLongLong();
    const QList<qint64> numbers = storedNumbers(settings);
    for (const qint64 number : numbers) {
        if (number >= storedCount) {
            break;
        }
        const auto entry = parseEntry(settings.value(QString::number(number)).toString());
        if (entry && !known.contains(identity(*entry))) {
            known.insert(identity(*entry));
            m_entries.append(*entry);
            notify();
        }
    }
}

bool FavoritesData::save(const QString &group)
{
    if (group.isEmpty() || !settingsUsable()) {
        return false;
    }
    QSettings settings;
    settings.beginGroup(group);
    settings.setValue(versionKey(), formatVersion);
    settings.setValue(countKey(), static_cast<qint64>(m_entries.size()));
    // Every number left over from another list goes: one in a gap would come back as a favorite.
    const QList<qint64> numbers = storedNumbers(settings);
    for (const qint64 number : numbers) {
        if (number >= m_entries.size() || !isStorable(m_entries.at(number))) {
            settings.remove(QString::number(number));
        }
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (isStorable(m_entries.at(i))) {
            settings.setValue(QString::number(i), storedText(m_entries.at(i)));
        }
    }
    settings.setValue(viewAllKey(), m_viewAll ? 1 : 0);
    settings.setValue(expandedKey(), m_expanded ? 1 : 0);
    settings.endGroup();
    settings.sync();
    // A format error is about what was read: the well-formed rest is kept and written.
    const bool written = settings.status() != QSettings::AccessError;
    if (written && group == m_settingsGroup) {
        m_unsaved = false;
    }
    return written;
}

void FavoritesData::saveChanges()
{
    m_saveScheduled = false;
    if (m_unsaved) {
        save(m_settingsGroup);
    }
}

std::optional<FavoriteEntry> FavoritesData::entryAt(int index) const
{
    if (index < 0 || index >= count()) {
        return std::nullopt;
    }
    return m_entries.at(index);
}

int FavoritesData::indexOfEntry(const FavoriteEntry &entry) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&entry](const auto &other) { return entry.isSameFavorite(other); });
    return found == m_entries.cend() ? -1 : static_cast<int>(found - m_entries.cbegin());
}

bool FavoritesData::insertEntry(int position, const FavoriteEntry &entry)
{
    if (position < 0) {
        position += count();
    }
    if (position < 0 || position > count() || entry.featureName.isEmpty() || indexOfEntry(entry) >= 0) {
        return false;
    }
    m_entries.insert(position, entry);
    markChanged();
    notify();
    return true;
}

bool FavoritesData::appendEntry(const FavoriteEntry &entry)
{
    return insertEntry(count(), entry);
}

bool FavoritesData::takeEntry(int index, FavoriteEntry *taken)
{
    if (index < 0 || index >= count()) {
        return false;
    }
    FavoriteEntry entry = m_entries.takeAt(index);
    if (taken) {
        *taken = std::move(entry);
    }
    markChanged();
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
    const int others = count() - 1;
    int position = from < to ? to - 1 : to;
    if (position < 0) {
        position += others;
    }
    if (from < 0 || from > others || position < 0 || position > others) {
        return false;
    }
    m_entries.move(from, position);
    markChanged();
    // One for the taking, one for the inserting, both afterwards: no receiver sees the list without the
    // entry.
    notify();
    notify();
    return true;
}

void FavoritesData::setViewAll(bool viewAll)
{
    if (m_viewAll == viewAll) {
        return;
    }
    m_viewAll = viewAll;
    markChanged();
    notify();
}

void FavoritesData::setExpanded(bool expand)
{
    if (m_expanded == expand) {
        return;
    }
    m_expanded = expand;
    markChanged();
    emit expanded(expand);
}

void FavoritesData::setDeferredUpdates(bool deferred)
{
    const bool due = !deferred && m_deferred && m_pending;
    m_deferred = deferred;
    if (due) {
        m_pending = false;
        emit dataUpdated();
    }
}

void FavoritesData::notify()
{
    if (m_deferred) {
        m_pending = true;
    } else {
        emit dataUpdated();
    }
}

void FavoritesData::markChanged()
{
    m_unsaved = true;
    if (m_saveScheduled || !settingsUsable()) {
        return;
    }
    m_saveScheduled = true;
    QMetaObject::invokeMethod(this, "saveChanges", Qt::QueuedConnection);
}
