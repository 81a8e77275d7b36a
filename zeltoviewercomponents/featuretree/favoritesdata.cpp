// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "favoritesdata.h"

#include "favoritesstore_p.h"
#include "settingswatcher_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <system_error>
#include <utility>

namespace {

constexpr int briefWait = 100; // ms
constexpr int retryPause = 250;
// The user waits meanwhile; what is saved for good goes on without the lock afterwards, since a list that
// cannot be saved is worse than one that is mixed.
constexpr int longWait = 2000;

// During static destruction the names that a QSettings needs may be gone already.
bool settingsUsable()
{
    return QCoreApplication::instance() != nullptr;
}

// Rows that are made anew take their editors with them, and a half-typed number might be written; a menu or a
// list that is open, or what is being dragged, would be about another row.
bool isInUse()
{
    if (QApplication::activePopupWidget() || QGuiApplication::mouseButtons() != Qt::NoButton) {
        return true;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        const QWidget *const focus = window->focusWidget();
        const auto *edit = qobject_cast<const QLineEdit *>(focus);
        edit = focus && !edit ? focus->findChild<QLineEdit *>({}, Qt::FindDirectChildrenOnly) : edit;
        const QWidget *parent = edit && edit->isModified() ? edit : nullptr;
        while (parent && !qobject_cast<const QAbstractItemView *>(parent)) {
            parent = parent->parentWidget();
        }
        return parent != nullptr;
    });
}

qsizetype indexIn(const QList<FavoriteEntry> &entries, const std::optional<FavoriteEntry> &entry)
{
    if (!entry) {
        return -1;
    }
    const auto found = std::find_if(entries.cbegin(), entries.cend(),
                                    [&entry](const auto &other) { return entry->isSameFavorite(other); });
    return found == entries.cend() ? -1 : found - entries.cbegin();
}

} // namespace

/*! \brief The list at one moment, and what differs from the store as far as is known here. */
struct FavoritesData::State
{
    /*! Returns what is stored with the own changes done again on it. */
    FavoritesList mergedWith(const FavoritesList &others) const;
    /*! Stores the list, after merging into it what others have stored meanwhile. Returns null when it did not
     * arrive. */
    std::unique_ptr<Saved> saveIn(FavoritesStore &store) const;

    FavoritesList list;
    QList<Change> changes;
    bool isViewAllChanged;
    bool isExpandedChanged;
    std::optional<FavoritesList> stored;
    QString storedPlace;
};

/*! \brief What saving came to. */
struct FavoritesData::Saved
{
    FavoritesList own;
    qsizetype changes; // of the own ones
    FavoritesList list;
    FavoritesList stored;
    QString place;
};

/*! \brief What another program may have stored. */
struct FavoritesData::Found
{
    FavoritesList list;
    bool isThere;
    QString place;
    QString group;
    int storings; // of ours, before

    static std::unique_ptr<Found> in(const QString &group, int storings)
    {
        FavoritesStore store(group);
        const FavoritesList list = store.read();
        return std::make_unique<Found>(Found{list, store.hasList(), store.place(), group, storings});
    }
};

FavoritesData::FavoritesData(QObject *parent)
    : QObject(parent)
{
}

FavoritesData::~FavoritesData()
{
    if (m_reading.valid()) {
        m_reading.wait();
    }
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
    m_settingsGroup = group;
    load(group);
    settle();
}

void FavoritesData::detach(QObject *view)
{
    if (view) {
        disconnect(view); // first: what others have stored is of no use to it any more
    }
    saveChanges();
}

void FavoritesData::setSettingsGroup(const QString &group)
{
    if (group == m_settingsGroup || !settingsUsable()) {
        m_settingsGroup = group;
        return;
    }
    saveChanges();
    const bool isFirst = m_settingsGroup.isEmpty();
    m_settingsGroup = group;
    if (group.isEmpty()) {
        forgetChanges();
        return;
    }
    if (!FavoritesStore(group).hasList()) {
        bringAlong();
    } else if (isFirst) {
        load(group); // what was added before any group was known has no other home, so it stays
    } else {
        forgetChanges();
        replaceBy(group);
    }
    settle();
}

void FavoritesData::settle()
{
    watchStore();
    if (hasChanges()) {
        scheduleSaving();
    }
}

// To a group that has nothing stored all entries are new.
void FavoritesData::bringAlong()
{
    forgetChanges();
    setStored({}, FavoritesStore(m_settingsGroup).place());
    for (int i = 0; i < count(); ++i) {
        recordChange(Change::Insertion, i);
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
    finishSaving();
    FavoritesStore store(group);
    const FavoritesList stored = store.read();
    const bool isImport = !isStoredIn(group);
    append(stored.entries, isImport);
    const bool wasViewAll = std::exchange(m_viewAll, stored.viewAll);
    const bool wasExpanded = std::exchange(m_expanded, stored.expanded);
    if (isImport) {
        m_viewAllChanged = m_viewAllChanged || m_viewAll != wasViewAll;
        m_expandedChanged = m_expandedChanged || m_expanded != wasExpanded;
        scheduleSaving();
    } else {
        setStored(stored, store.place());
    }
    notify();
    if (m_expanded != wasExpanded) {
        emit expanded(m_expanded);
    }
    return true;
}

void FavoritesData::append(const QList<FavoriteEntry> &entries, bool isImport)
{
    QSet<std::pair<QString, QString>> known;
    for (const FavoriteEntry &entry : std::as_const(m_entries)) {
        known.insert(entry.identity());
    }
    for (const FavoriteEntry &entry : entries) {
        if (known.contains(entry.identity())) {
            continue;
        }
        m_entries.append(entry);
        if (isImport) {
            recordChange(Change::Insertion, count() - 1);
        }
        notify();
    }
}

bool FavoritesData::save(const QString &group)
{
    if (group.isEmpty() || !settingsUsable()) {
        return false;
    }
    finishSaving();
    std::unique_ptr<Saved> saved;
    {
        FavoritesStore store(group);
        store.lock(longWait);
        saved = state().saveIn(store);
    } // others hear of the list next, and perhaps save something
    if (saved && isStoredIn(group)) {
        takeOverSaved(*saved);
    }
    return saved != nullptr;
}

FavoritesData::State FavoritesData::state() const
{
    return {{m_entries, m_viewAll, m_expanded},
            m_changes,
            m_viewAllChanged,
            m_expandedChanged,
            m_stored ? std::make_optional(*m_stored) : std::nullopt,
            m_storedPlace};
}

std::unique_ptr<FavoritesData::Saved> FavoritesData::State::saveIn(FavoritesStore &store) const
{
    FavoritesList merged = list;
    if (stored && storedPlace == store.place()) {
        const FavoritesList others = store.read();
        merged = store.hasList() ? mergedWith(others) : list;
    }
    if (!store.write(merged)) {
        return nullptr;
    }
    return std::make_unique<Saved>(Saved{list, changes.size(), merged, store.read(), store.place()});
}

// What changed since the saving began is done again on what it came to.
void FavoritesData::takeOverSaved(const Saved &saved)
{
    m_changes.remove(0, saved.changes);
    m_viewAllChanged = m_viewAllChanged && m_viewAll != saved.own.viewAll;
    m_expandedChanged = m_expandedChanged && m_expanded != saved.own.expanded;
    setStored(saved.stored, saved.place);
    FavoritesList list = saved.list;
    for (const Change &change : std::as_const(m_changes)) {
        repeat(change, list.entries);
    }
    list.viewAll = m_viewAllChanged ? m_viewAll : list.viewAll;
    adopt(list);
}

// Before there is a settings group, the one that was loaded or saved last takes its place.
bool FavoritesData::isStoredIn(const QString &group) const
{
    return m_settingsGroup.isEmpty() || group == m_settingsGroup;
}

void FavoritesData::setStored(const FavoritesList &stored, const QString &place)
{
    m_stored = std::make_unique<FavoritesList>(stored);
    m_storedPlace = place;
    ++m_storings;
}

FavoritesList FavoritesData::State::mergedWith(const FavoritesList &others) const
{
    FavoritesList merged = list;
    if (others.entries != stored->entries) {
        merged.entries = others.entries;
        for (const Change &change : changes) {
            repeat(change, merged.entries);
        }
    }
    merged.viewAll = isViewAllChanged ? list.viewAll : others.viewAll;
    merged.expanded = isExpandedChanged ? list.expanded : others.expanded;
    return merged;
}

void FavoritesData::repeat(const Change &change, QList<FavoriteEntry> &entries)
{
    const qsizetype index = indexIn(entries, change.entry);
    if ((change.kind == Change::Insertion) == (index >= 0)) {
        return; // the other program has added it, too, or removed it
    }
    if (index >= 0) {
        entries.removeAt(index);
    }
    if (change.kind == Change::Removal) {
        return;
    }
    const qsizetype next = indexIn(entries, change.next);
    const qsizetype previous = change.kind == Change::Move ? indexIn(entries, change.previous) : -1;
    entries.insert(next >= 0 ? next : previous >= 0 ? previous + 1 : entries.size(), change.entry);
}

void FavoritesData::adopt(const FavoritesList &list)
{
    if (list.isSameAs({m_entries, m_viewAll, m_expanded})) {
        return;
    }
    m_entries = list.entries;
    m_viewAll = list.viewAll;
    notify();
}

// What is stored changes with each of our own changes, too: not here, where reading would wait for the disk.
void FavoritesData::readStored()
{
    if (m_settingsGroup.isEmpty() || m_saveScheduled || m_reading.valid() || !settingsUsable()) {
        return; // saving takes over, too
    }
    const auto read = [this, group = m_settingsGroup, storings = m_storings] {
        std::unique_ptr<Found> found = Found::in(group, storings);
        QMetaObject::invokeMethod(this, "takeOverStored", Qt::QueuedConnection);
        return found;
    };
    try {
        m_reading = std::async(std::launch::async, read);
    } catch (const std::system_error &) { // no thread is to be had
        m_reading = std::async(std::launch::deferred, read);
        m_reading.wait();
    }
}

void FavoritesData::takeOverStored()
{
    const std::unique_ptr<Found> found = m_reading.get();
    const bool isOutdated = found->group != m_settingsGroup || found->storings != m_storings;
    if (isOutdated || isInUse()) {
        if (m_watcher) {
            m_watcher->schedule();
        }
        return;
    }
    if (m_saveScheduled || !found->isThere || !m_stored || found->list.isSameAs(*m_stored)) {
        return;
    }
    // Changes that could not be saved stay; saving them here would change the folder that is watched.
    const FavoritesList merged = state().mergedWith(found->list);
    setStored(found->list, found->place);
    adopt(merged);
}

void FavoritesData::watchStore()
{
    const QString file = settingsUsable() ? FavoritesStore::fileName() : QString();
    if (!file.isEmpty() && !m_watcher) {
        m_watcher = new SettingsWatcher(file, QCoreApplication::instance()); // which this may outlive
        connect(m_watcher, SIGNAL(changed()), this, SLOT(readStored()));
        connect(QCoreApplication::instance(), SIGNAL(aboutToQuit()), this, SLOT(saveChanges()));
    }
}

bool FavoritesData::hasChanges() const
{
    return !m_changes.isEmpty() || m_viewAllChanged || m_expandedChanged;
}

void FavoritesData::forgetChanges()
{
    m_changes.clear();
    m_viewAllChanged = false;
    m_expandedChanged = false;
}

// Storing waits for the disk, and for other programs: not here, where the user waits for what was changed.
void FavoritesData::saveScheduled()
{
    finishSaving();
    if (!hasChanges() || m_settingsGroup.isEmpty() || !settingsUsable()) {
        m_saveScheduled = false;
        return;
    }
    try {
        m_saving = std::async(std::launch::async, [this, state = state(), group = m_settingsGroup] {
            FavoritesStore store(group);
            const bool isLocked = store.lock(briefWait);
            std::unique_ptr<Saved> saved = isLocked ? state.saveIn(store) : nullptr;
            QMetaObject::invokeMethod(this, isLocked ? "finishSaving" : "saveLater", Qt::QueuedConnection);
            return saved;
        });
    } catch (const std::system_error &) {
        saveChanges(); // no thread is to be had
    }
}

void FavoritesData::saveLater()
{
    if (m_saving.valid()) {
        m_saving.get();
        QTimer::singleShot(retryPause, this, SLOT(saveScheduled()));
    }
}

void FavoritesData::finishSaving()
{
    if (!m_saving.valid()) {
        return;
    }
    const std::unique_ptr<Saved> saved = m_saving.get();
    m_saveScheduled = false;
    if (!saved) {
        return;
    }
    takeOverSaved(*saved);
    if (hasChanges()) {
        scheduleSaving();
    }
}

void FavoritesData::saveChanges()
{
    finishSaving();
    m_saveScheduled = false;
    if (hasChanges()) {
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
    return static_cast<int>(indexIn(m_entries, entry));
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
    recordChange(Change::Insertion, position);
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
    recordChange(Change::Removal, index);
    FavoriteEntry entry = m_entries.takeAt(index);
    if (taken) {
        *taken = std::move(entry);
    }
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
    recordChange(Change::Move, position);
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
    m_viewAllChanged = true;
    scheduleSaving();
    notify();
}

void FavoritesData::setExpanded(bool expand)
{
    if (m_expanded == expand) {
        return;
    }
    m_expanded = expand;
    m_expandedChanged = true;
    scheduleSaving();
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

void FavoritesData::recordChange(Change::Kind kind, int index)
{
    m_changes.append({kind, m_entries.at(index), entryAt(index - 1), entryAt(index + 1)});
    scheduleSaving();
}

void FavoritesData::scheduleSaving()
{
    if (m_saveScheduled || !settingsUsable()) {
        return;
    }
    m_saveScheduled = true;
    QMetaObject::invokeMethod(this, "saveScheduled", Qt::QueuedConnection);
}
