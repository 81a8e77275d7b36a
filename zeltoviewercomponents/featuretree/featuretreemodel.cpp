// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreemodel.h"

#include "favoritesbranch_p.h"
#include "featuretreefavoritesitem_p.h"
#include "featuretreeinodeitem.h"
#include "featuretreenames.h"
#include "unshownnodes_p.h"

#include <platform/core/guard.h>
#include <platform/genicam/genericexception.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStringList>
#include <QTimer>

#include <algorithm>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.libs.zeltoViewerComponents.featureTreeModel")

namespace {

constexpr int refreshedLevels = 3;

Core::GuardSite site(const char *function)
{
    return {logCategory(), function};
}

// The models of the process: a drag from another tree's model is as good as one from our own. Never
// destroyed: models may live until the end of the process.
QList<const FeatureTreeItem *> &liveRoots()
{
    static auto *const roots = new QList<const FeatureTreeItem *>;
    return *roots;
}

bool isLive(const FeatureTreeItem *item)
{
    const auto &roots = liveRoots();
    return std::any_of(roots.cbegin(), roots.cend(),
                       [item](const FeatureTreeItem *root) { return root->findShallow(item); });
}

bool isSameValue(FeatureTreeItem &item, const QVariant &value)
{
    if (const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(&item)) {
        return nodeItem->isCurrentValue(value);
    }
    return item.data(FeatureTreeColumns::value, Qt::EditRole) == value;
}

// A category below itself would make an endless tree.
bool standsAbove(const FeatureTreeItem *row, const QSharedPointer<IParameter> &category)
{
    for (; row; row = row->parent()) {
        const auto *const nodeItem = qobject_cast<const FeatureTreeINodeItem *>(row);
        if (nodeItem && nodeItem->node() == category) {
            return true;
        }
    }
    return false;
}

} // namespace

FavoritesData FeatureTreeModel::m_favorites;

QString FeatureTreeModel::dragFormat()
{
    return QStringLiteral("application/x-fti");
}

FeatureTreeModel::FeatureTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_rootItem(std::make_unique<FeatureTreeItem>(QString(), this, QString(), nullptr))
    , m_favoritesBranch(std::make_unique<FavoritesBranch>(*this, m_favorites))
    , m_pollTimer(new QTimer(this))
{
    liveRoots().append(m_rootItem.get());
    m_pollTimer->setSingleShot(true);
    connect(m_pollTimer, SIGNAL(timeout()), this, SLOT(onTimerPoll()));
}

FeatureTreeModel::~FeatureTreeModel()
{
    if (m_polling) {
        m_pollTimer->stop();
    }
    liveRoots().removeOne(m_rootItem.get());
    m_rootItem.reset();
    m_favorites.detach(this);
}

FeatureTreeItem *FeatureTreeModel::itemAt(const QModelIndex &index) const
{
    return index.isValid() ? getFeatureTreeItem(index) : nullptr;
}

FeatureTreeItem *FeatureTreeModel::itemOrRoot(const QModelIndex &index) const
{
    FeatureTreeItem *const item = itemAt(index);
    return item ? item : m_rootItem.get();
}

QModelIndex FeatureTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    FeatureTreeItem *const child = itemOrRoot(parent)->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex FeatureTreeModel::parent(const QModelIndex &index) const
{
    FeatureTreeItem *const item = itemAt(index);
    FeatureTreeItem *const above = item ? item->parent() : nullptr;
    if (!above || above == m_rootItem.get()) {
        return {};
    }
    return createIndex(above->row(), 0, above);
}

int FeatureTreeModel::rowCount(const QModelIndex &parent) const
{
    // Nobody was told a count before the first fill, so that one owes no signal. Announcing rows from in here
    // would enter a proxy that is just building its mapping.
    const QScopedValueRollback<bool> silently(m_inRowCount, true);
    return itemOrRoot(parent)->childCount();
}

int FeatureTreeModel::columnCount(const QModelIndex &parent) const
{
    return itemOrRoot(parent)->columnCount();
}

bool FeatureTreeModel::hasChildren(const QModelIndex &parent) const
{
    const FeatureTreeItem *const item = itemOrRoot(parent);
    return item == m_rootItem.get() || item->hasChildren();
}

QVariant FeatureTreeModel::data(const QModelIndex &index, int role) const
{
    FeatureTreeItem *const item = itemAt(index);
    if (!item) {
        return {};
    }
    try {
        QVariant result = item->data(index.column(), role);
        m_dataErrorShown = false;
        return result;
    } catch (...) {
        reportReadFailure();
        return {};
    }
}

// Reports the exception that is being handled, once until a read succeeds again: a broken feature is painted
// often.
void FeatureTreeModel::reportReadFailure() const
{
    const bool report = !m_dataErrorShown;
    m_dataErrorShown = true;
    try {
        throw;
    } catch (const GenICam::GenericException &) {
        // A feature that is momentarily unreadable; its row shows that by itself.
    } catch (...) {
        if (report) {
            showCurrentException(QStringLiteral("FeatureTreeModel::data"),
                                 tr("Failed to get a feature value"));
        }
    }
}

bool FeatureTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    FeatureTreeItem *const item = itemAt(index);
    if (!item || role != Qt::EditRole || index.column() != FeatureTreeColumns::value || !value.isValid()
        || !m_deviceAlive) {
        return false;
    }
    // A device that is lost by the write may have the tree cleared before the write returns.
    const QPointer<FeatureTreeItem> guardedItem(item);
    const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
    const QSharedPointer<IParameter> parameter = nodeItem ? nodeItem->node() : nullptr;
    try {
        if (!isSameValue(*item, value)) {
            item->setData(FeatureTreeColumns::value, value, Qt::EditRole);
            if (parameter && (!guardedItem || nodeItem->hasWritten())) {
                emit written(parameter);
            }
        }
        return true;
    } catch (...) {
        reportWriteFailure(guardedItem, parameter);
        return false;
    }
}

// Reports the exception that is being handled. The item is null when it is gone by now.
void FeatureTreeModel::reportWriteFailure(FeatureTreeItem *item, const QSharedPointer<IParameter> &parameter)
{
    const QString text = tr("Failed to set a feature value.");
    if (item && item->editorType() == FeatureTreeItem::Command) {
        scheduleForcedParameterDataChangedCheck(item);
    }
    if (!m_deviceAlive) {
        return;
    }
    if (parameter) {
        emit writeFailed(parameter, Core::currentExceptionText(text));
    }
    showCurrentException(QStringLiteral("FeatureTreeModel::setData"), text);
}

QVariant FeatureTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case FeatureTreeColumns::name:
        return tr("Feature");
    case FeatureTreeColumns::value:
        return tr("Value");
    default:
        return {};
    }
}

Qt::ItemFlags FeatureTreeModel::flags(const QModelIndex &index) const
{
    FeatureTreeItem *const item = itemAt(index);
    return item ? item->flags(index.column()) : Qt::ItemIsEnabled;
}

Qt::DropActions FeatureTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QMimeData *FeatureTreeModel::mimeData(const QModelIndexList &indexes) const
{
    QMimeData *const mimeData = QAbstractItemModel::mimeData(indexes);
    if (!mimeData) {
        return nullptr;
    }
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    for (const QModelIndex &index : indexes) {
        if (index.isValid()) {
            stream << static_cast<qint64>(reinterpret_cast<qintptr>(index.internalPointer()));
        }
    }
    mimeData->setData(dragFormat(), payload);
    return mimeData;
}

// The payload may come from another process or an old drag: an address is looked up among the items that
// live, never followed.
bool FeatureTreeModel::readDraggedItems(const QMimeData &data, QList<FeatureTreeItem *> &items) const
{
    QDataStream stream(data.data(dragFormat()));
    while (!stream.atEnd()) {
        qint64 address = 0;
        stream >> address;
        if (stream.status() != QDataStream::Ok) {
            return false;
        }
        if (address == 0) {
            continue;
        }
        auto *const item = reinterpret_cast<FeatureTreeItem *>(static_cast<qintptr>(address));
        if (!isLive(item)) {
            return false;
        }
        items.append(item);
    }
    return true;
}

bool FeatureTreeModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                    const QModelIndex &parent)
{
    // Wherever in the tree it lands, a drop is meant for the favorites.
    Q_UNUSED(column)
    Q_UNUSED(parent)
    if (action == Qt::IgnoreAction) {
        return true;
    }
    QList<FeatureTreeItem *> items;
    if (row < -1 || !data || !data->hasFormat(dragFormat()) || !readDraggedItems(*data, items)) {
        return false;
    }
    m_favoritesBranch->drop(items, row == -1 ? rowCount() : row);
    return true;
}

bool FeatureTreeModel::IsFavoriteTreeItem(const FeatureTreeItem *item) const
{
    return m_favoritesBranch->contains(item);
}

bool FeatureTreeModel::IsFavoriteTreeRoot(const FeatureTreeItem *item) const
{
    return item && item == m_favoritesBranch->root();
}

QModelIndex FeatureTreeModel::indexForItem(FeatureTreeItem *item, int column)
{
    return item ? createIndex(item->row(), column, item) : QModelIndex();
}

QModelIndex FeatureTreeModel::GetFavoritesRootIndex()
{
    return indexForItem(m_favoritesBranch->root(), FeatureTreeColumns::name);
}

void FeatureTreeModel::EnablePolling(bool enable)
{
    if (m_polling == enable) {
        return;
    }
    m_polling = enable;
    if (enable) {
        m_pollTimer->start(m_pollInterval);
    }
}

bool FeatureTreeModel::GetPolling() const
{
    return m_polling;
}

const QTimer *FeatureTreeModel::pollTimer() const
{
    return m_pollTimer;
}

void FeatureTreeModel::onTimerPoll()
{
    if (!m_deviceAlive) {
        m_polling = false;
        return;
    }
    Core::guardedRun(site("FeatureTreeModel::onTimerPoll"), QStringLiteral("Failed to run feature polling."),
                     [this] {
                         const auto collection = firstCollection();
                         if (collection && m_monitorMode) {
                             collection->refresh();
                         } else if (collection) {
                             collection->poll(m_pollInterval);
                         }
                     });
    if (m_polling) {
        m_pollTimer->start(m_pollInterval);
    }
}

void FeatureTreeModel::SetDeviceAlive(bool alive)
{
    m_deviceAlive = alive;
}

bool FeatureTreeModel::isDeviceAlive() const
{
    return m_deviceAlive;
}

QModelIndex FeatureTreeModel::findItem(const FeatureTreeItem *item, const FeatureTreeItem *start, int column)
{
    const FeatureTreeItem *const top = start ? start : m_rootItem.get();
    return item && top->findShallow(item) ? indexForItem(const_cast<FeatureTreeItem *>(item), column)
                                          : QModelIndex();
}

QModelIndex FeatureTreeModel::findItemByFullName(const QString &fullName, FeatureTreeItem *start, int column)
{
    FeatureTreeItem *const top = start ? start : m_rootItem.get();
    return indexForItem(top->findByFullNameShallow(fullName), column);
}

QModelIndex FeatureTreeModel::findItemByRole(int role, const QVariant &value, FeatureTreeItem *start,
                                             int column)
{
    FeatureTreeItem *const top = start ? start : m_rootItem.get();
    return indexForItem(top->findByRoleShallow(role, value), column);
}

void FeatureTreeModel::addParameterCollection(QSharedPointer<IParameterCollection> collection,
                                              const QString &title, const QString &nodeMapName,
                                              bool childNodeFlag)
{
    m_childNodeFlag = childNodeFlag;
    const QString context = QStringLiteral("FeatureTreeModel::addParameterCollection");
    const QString failure = tr("Failed to get the node 'Root' from the node map");
    QSharedPointer<IParameter> root;
    try {
        if (collection) {
            root = collection->parameter(nodeMapName + QLatin1Char('/') + FeatureTreeNames::root);
        }
    } catch (...) {
        showCurrentException(context, failure);
        return;
    }
    if (!root) {
        showUnexpectedException(context, failure);
        return;
    }

    const QString fullName = nodeMapName + QLatin1Char(FeatureTreeNames::separator) + FeatureTreeNames::root;
    const QPointer<FeatureTreeINodeItem> item(
        new FeatureTreeINodeItem(collection, root, title, this, fullName, m_rootItem.get(), false));
    adoptNodeItem(item, true);
    Core::guardedRun(site("FeatureTreeModel::addParameterCollection"),
                     QStringLiteral("Failed to look at the node 'Root'"),
                     [&item] { UnshownNodes::report(*item); });
    // A new layout, not a new row: who listens looks at all top rows again, and what was open stays open.
    emit layoutAboutToBeChanged();
    m_rootItem->appendChild(item);
    emit layoutChanged();

    replaceFavoritesZombies(collection, nodeMapName);
    if (item) {
        item->childCount();
    }
    if (item) { // no receiver of these signals had the tree cleared
        m_collections.append({nodeMapName, collection, childNodeFlag});
        refreshSpecialItems();
    }
}

void FeatureTreeModel::adoptNodeItem(FeatureTreeINodeItem *item, bool isFullRowItem)
{
    item->setHighlighter(m_highlighter);
    item->SetIsFullRowItem(isFullRowItem);
    item->SetIsSpecialNode(false);
    item->setReporting(true);
}

void FeatureTreeModel::addChildren(FeatureTreeINodeItem *parent)
{
    const QList<FeatureTreeItem *> children = createChildItems(parent);
    if (children.isEmpty()) {
        return;
    }
    const bool announce = !m_inRowCount;
    if (announce) {
        beginInsertRows(indexForItem(parent, FeatureTreeColumns::name), 0,
                        static_cast<int>(children.size()) - 1);
    }
    for (FeatureTreeItem *const child : children) {
        parent->appendChild(child);
    }
    if (announce) {
        endInsertRows();
    }
}

QList<FeatureTreeItem *> FeatureTreeModel::createChildItems(FeatureTreeINodeItem *parent)
{
    const Core::GuardSite here = site("FeatureTreeModel::addChildren");
    const QStringList names = Core::guarded(
        here,
        [parent] { return QStringLiteral("Failed to list the children of %1").arg(parent->getFullName()); },
        QStringList(),
        [parent] {
            const auto parameter = parent->node();
            return parameter && parent->collection()
                ? parent->collection()->childNames(parameter->fullName(), 0, true)
                : QStringList();
        });
    QList<FeatureTreeItem *> items;
    items.reserve(names.size());
    for (const QString &name : names) {
        FeatureTreeItem *const item = Core::guarded(
            here, [&name] { return QStringLiteral("Failed to add the node %1").arg(name); },
            static_cast<FeatureTreeItem *>(nullptr),
            [this, parent, &name] { return createChildItem(parent, name); });
        if (item) {
            items.append(item);
        }
    }
    return items;
}

// Returns null for a node that is not admitted to the tree.
FeatureTreeItem *FeatureTreeModel::createChildItem(FeatureTreeINodeItem *parent, const QString &name)
{
    const QSharedPointer<IParameter> parameter = parent->collection()->parameter(name);
    if (!parameter) {
        UnshownNodes::reportMissing(*parent->collection(), name, parent->node()->fullName());
        return nullptr;
    }
    if (parameter->isExcluded()) {
        return nullptr;
    }
    if (parameter->type() == ParameterType::Category) {
        const GenApi::EVisibility visibility = parameter->visibility();
        if (visibility == GenApi::UndefinedVisibility) {
            UnshownNodes::reportUndefined(*parent->collection(), name);
        }
        if (visibility >= GenApi::Invisible || standsAbove(parent, parameter)) {
            return nullptr;
        }
    }
    // How texts are written is a matter of the whole model: the collection that was added last says it, also
    // for rows of earlier ones that are made only now.
    auto *const item =
        new FeatureTreeINodeItem(parent->collection(), parameter, this, name, parent, m_childNodeFlag);
    adoptNodeItem(item, false);
    UnshownNodes::report(*item);
    return item;
}

void FeatureTreeModel::onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem)
{
    if (!m_deviceAlive || row < 0) {
        return;
    }
    // One signal for each cell: views treat a change of a single cell specially. What the first leads to may
    // clear the tree.
    const QPointer<FeatureTreeINodeItem> item(nodeItem);
    for (const int column : {FeatureTreeColumns::name, FeatureTreeColumns::value}) {
        if (item) {
            const QModelIndex cell = createIndex(row, column, item.data());
            emit dataChanged(cell, cell);
        }
    }
}

void FeatureTreeModel::refresh()
{
    Core::guardedRun(site("FeatureTreeModel::refresh"), QStringLiteral("Failed to refresh the features."),
                     [this] {
                         if (const auto collection = firstCollection()) {
                             collection->refresh();
                         }
                     });
}

// The camera itself; what was added behind it has no values that change by themselves. A copy, which keeps
// the collection alive while it is at work: it may have the tree cleared.
QSharedPointer<IParameterCollection> FeatureTreeModel::firstCollection() const
{
    return m_collections.value(0).collection;
}

void FeatureTreeModel::setVisibility(GenApi::EVisibility visibility)
{
    m_visibility = visibility;
}

GenApi::EVisibility FeatureTreeModel::getVisibility()
{
    return m_visibility;
}

void FeatureTreeModel::setMonitorMode(bool enable)
{
    m_monitorMode = enable;
}

void FeatureTreeModel::setGenICamCallbacksEnable(bool enable)
{
    const bool resumes = enable && !m_callbacksEnabled;
    m_callbacksEnabled = enable;
    if (resumes) {
        scheduleChecksBelow(m_rootItem.get());
    }
}

// Snapshots were dropped for a while: every row that exists asks for its parameter's.
void FeatureTreeModel::scheduleChecksBelow(FeatureTreeItem *item)
{
    for (int row = 0; row < item->existingChildCount(); ++row) {
        FeatureTreeItem *const child = item->child(row);
        scheduleForcedParameterDataChangedCheck(child);
        scheduleChecksBelow(child);
    }
}

bool FeatureTreeModel::getGenICamCallbackEnable() const
{
    return m_callbacksEnabled;
}

FeatureTreeItem *FeatureTreeModel::getFeatureTreeItem(const QModelIndex &index) const
{
    return static_cast<FeatureTreeItem *>(index.internalPointer());
}

void FeatureTreeModel::setHighlighter(FeatureTreeHighlighter *highlighter)
{
    m_highlighter = highlighter;
}

FeatureTreeItem *FeatureTreeModel::getSearchHelpItem() const
{
    return m_searchHelpItem;
}

void FeatureTreeModel::retranslate()
{
    m_favoritesBranch->retranslate();
    emit headerDataChanged(Qt::Horizontal, FeatureTreeColumns::name, FeatureTreeColumns::value);
}

void FeatureTreeModel::refreshSpecialItems()
{
    const quint64 removals = m_removals;
    QList<FeatureTreeItem *> level{m_rootItem.get()};
    for (int depth = 0; depth < refreshedLevels; ++depth) {
        QList<FeatureTreeItem *> nextLevel;
        for (const FeatureTreeItem *const above : std::as_const(level)) {
            for (int row = 0; row < above->existingChildCount(); ++row) {
                nextLevel.append(above->child(row));
            }
        }
        for (FeatureTreeItem *const item : std::as_const(nextLevel)) {
            const QModelIndex index = indexForItem(item, FeatureTreeColumns::name);
            if (data(index, FeatureTreeItem::IsFullRowItem).toBool()
                && item->getFullName() != FeatureTreeNames::dummy) {
                emit dataChanged(index, index);
            }
            if (removals != m_removals) {
                return; // who removed rows has refreshed what is left
            }
        }
        level = nextLevel;
    }
}

// Announces nothing: whoever clears the model resets the views, too. What they hold points nowhere at once.
void FeatureTreeModel::clear()
{
    m_favoritesBranch->forgetRows();
    m_searchHelpItem = nullptr;
    m_collections.clear();
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex &index : persistent) {
        changePersistentIndex(index, QModelIndex());
    }
    ++m_removals;
    m_rootItem->clearChildren();
}

QString FeatureTreeModel::GetParameterCollectionName(QSharedPointer<IParameterCollection> collection)
{
    Q_UNUSED(collection) // rows and favorites know node maps by the name that they were added with
    return {};
}

void FeatureTreeModel::scheduleForcedParameterDataChangedCheck(FeatureTreeItem *item)
{
    if (auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item)) {
        Core::guardedRun(
            site("FeatureTreeModel::scheduleForcedParameterDataChangedCheck"),
            [nodeItem] {
                return QStringLiteral("Failed to ask for a re-read of %1").arg(nodeItem->getFullName());
            },
            [nodeItem] { nodeItem->scheduleForcedParameterDataChangedCheck(); });
    }
}

// Inserts a top row as the first, moving the persistent indexes of the others.
void FeatureTreeModel::insertTopItem(FeatureTreeItem *item)
{
    m_rootItem->insertChild(item, 0);
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex &index : persistent) {
        FeatureTreeItem *const moved = getFeatureTreeItem(index);
        if (moved->parent() == m_rootItem.get()) {
            changePersistentIndex(index, createIndex(index.row() + 1, index.column(), moved));
        }
    }
}

void FeatureTreeModel::createSearchRow()
{
    // The row is announced as the second top row, below the invisible root, and stands as the first:
    // hosts know it so, and FeatureTreeProxyModel sets it right.
    beginInsertRows(indexForItem(m_rootItem.get(), FeatureTreeColumns::name), 1, 1);
    m_searchHelpItem = new FeatureTreeItem(
        QStringLiteral("<HTML><B>X search results found (Y of them visible at higher user level)</B>"), this,
        FeatureTreeNames::search, m_rootItem.get());
    m_searchHelpItem->setVisibility(GenApi::Invisible);
    m_searchHelpItem->SetIsFullRowItem(true);
    m_searchHelpItem->SetIsSpecialNode(true);
    insertTopItem(m_searchHelpItem);
    const QModelIndex index = indexForItem(m_searchHelpItem, FeatureTreeColumns::name);
    emit dataChanged(index, index);
    endInsertRows();
}

void FeatureTreeModel::CreateFavoritesRoot()
{
    m_favoritesBranch->createRoot();
}

void FeatureTreeModel::rebuildFavoriteItems()
{
    CreateFavoritesRoot();
    if (!m_favoritesBranch->rebuild()) {
        return;
    }
    const QList<Collection> collections = m_collections;
    for (const Collection &entry : collections) {
        replaceFavoritesZombies(entry.collection, entry.nodeMapName);
    }
    if (m_favoritesBranch->root() && !m_searchHelpItem) {
        createSearchRow();
    }
    refreshSpecialItems();
}

void FeatureTreeModel::replaceFavoritesZombies(QSharedPointer<IParameterCollection> collection,
                                               const QString &nodeMapName)
{
    m_favoritesBranch->replaceZombies(collection, nodeMapName, childNodeFlagOf(collection.data()));
}

bool FeatureTreeModel::childNodeFlagOf(const IParameterCollection *collection) const
{
    const auto found =
        std::find_if(m_collections.cbegin(), m_collections.cend(),
                     [collection](const Collection &entry) { return entry.collection.data() == collection; });
    return found == m_collections.cend() ? m_childNodeFlag : found->childNodeFlag;
}

bool FeatureTreeModel::AddFavorite(QSharedPointer<IParameter> parameter, int row)
{
    return m_favoritesBranch->add(parameter, row);
}

bool FeatureTreeModel::CanAddAsFavorite(QModelIndex index) const
{
    return m_favoritesBranch->canAdd(itemAt(index));
}

bool FeatureTreeModel::CanMoveFavorite(QModelIndex index, bool up) const
{
    return m_favoritesBranch->canMove(itemAt(index), up);
}

bool FeatureTreeModel::MoveFavorite(QModelIndex index, bool up)
{
    return m_favoritesBranch->move(itemAt(index), up);
}

bool FeatureTreeModel::RemoveFavorite(QModelIndex index)
{
    return m_favoritesBranch->remove(itemAt(index));
}

int FeatureTreeModel::getFavoritesIndexFromModelIndex(QModelIndex index) const
{
    return getFavoritesIndexFromFeatureTreeItem(itemAt(index));
}

int FeatureTreeModel::getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const
{
    return m_favoritesBranch->indexOf(item);
}

FavoritesData &FeatureTreeModel::GetFavorites()
{
    return m_favorites;
}

void FeatureTreeModel::EnableViewAllFavorites(bool enable)
{
    m_favorites.setViewAll(enable);
}

bool FeatureTreeModel::GetViewAllFavorites() const
{
    return m_favorites.viewAll();
}
