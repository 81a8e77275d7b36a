// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "favoritesbranch_p.h"

#include "favoritesdata.h"
#include "featuretreefavoritesitem_p.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreenames.h"

#include <platform/core/guard.h>

#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <memory>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.libs.zeltoViewerComponents.featureTreeModel")

namespace {

Core::GuardSite site(const char *function)
{
    return {logCategory(), function};
}

// Names pass through the local 8-bit encoding, in which they are stored.
QString storedName(const QString &name)
{
    return QString::fromLocal8Bit(name.toLocal8Bit());
}

FavoriteEntry probeOf(const QString &featureName, const QString &nodeMapKey)
{
    FavoriteEntry entry;
    entry.featureName = storedName(featureName);
    entry.nodeMapKey = nodeMapKey;
    return entry;
}

QString firstSegment(const QString &path)
{
    return path.left(path.indexOf(QLatin1Char('/'))); // all of it where there is none
}

QString favoritesRowName(const FavoriteEntry &entry)
{
    QString nodeMap = firstSegment(entry.nodeMapKey);
    nodeMap.remove(QLatin1Char('@'));
    constexpr QLatin1Char separator(FeatureTreeNames::separator);
    return FeatureTreeNames::favorite + separator + nodeMap + separator + entry.featureName;
}

bool isPlaceholder(const FeatureTreeItem *row)
{
    return !qobject_cast<const FeatureTreeINodeItem *>(row) && row->getFullName() != FeatureTreeNames::dummy;
}

} // namespace

FavoritesBranch::FavoritesBranch(FeatureTreeModel &model, FavoritesData &favorites)
    : m_model(model)
    , m_favorites(favorites)
{
}

FeatureTreeFavoritesItem *FavoritesBranch::root() const
{
    return m_root;
}

void FavoritesBranch::forgetRows()
{
    m_root = nullptr;
}

QModelIndex FavoritesBranch::rootIndex() const
{
    return m_model.indexForItem(m_root, FeatureTreeColumns::name);
}

void FavoritesBranch::createRoot()
{
    if (m_root) {
        return;
    }
    emit m_model.layoutAboutToBeChanged();
    m_root = new FeatureTreeFavoritesItem(QString(), &m_model, m_model.m_rootItem.get());
    showHeadTexts();
    m_root->setVisibility(GenApi::Beginner);
    m_root->SetIsFullRowItem(true);
    m_root->SetIsSpecialNode(true);
    m_model.insertTopItem(m_root);
    emit m_model.layoutChanged();
    const QModelIndex root = m_model.indexForItem(m_model.m_rootItem.get(), FeatureTreeColumns::name);
    emit m_model.dataChanged(root, root);
    if (m_root) {
        const QModelIndex favoritesRoot = rootIndex();
        emit m_model.dataChanged(favoritesRoot, favoritesRoot);
    }
}

bool FavoritesBranch::rebuild()
{
    removeRows();
    if (!m_root || m_root->hasChildren()) {
        return false;
    }
    insertPlaceholders();
    return true;
}

void FavoritesBranch::removeRows()
{
    const int count = m_root ? m_root->existingChildCount() : 0;
    if (count == 0) {
        return;
    }
    m_model.beginRemoveRows(rootIndex(), 0, count - 1);
    ++m_model.m_removals;
    m_root->clearChildren();
    m_model.endRemoveRows();
}

void FavoritesBranch::insertPlaceholders()
{
    const GenApi::EVisibility visibility = m_favorites.viewAll() ? GenApi::Beginner : GenApi::Invisible;
    const int count = m_favorites.count();
    if (count == 0) {
        showEmptyHint();
        return;
    }
    m_model.beginInsertRows(rootIndex(), 0, count - 1);
    for (int i = 0; i < count; ++i) {
        const FavoriteEntry entry = *m_favorites.entryAt(i);
        auto *const row = new FeatureTreeItem(entry.displayName, &m_model, favoritesRowName(entry), m_root);
        row->setVisibility(visibility);
        m_root->appendChild(row);
    }
    m_model.endInsertRows();
}

void FavoritesBranch::showEmptyHint()
{
    const QPointer<FeatureTreeItem> hint(
        new FeatureTreeItem(QString(), &m_model, FeatureTreeNames::dummy, m_root));
    showHintTexts(*hint);
    hint->setVisibility(GenApi::Beginner);
    hint->SetIsFullRowItem(true);
    hint->SetIsSpecialNode(true);
    m_model.beginInsertRows(rootIndex(), 0, 0);
    m_root->appendChild(hint);
    m_model.endInsertRows();
    if (hint) {
        const QModelIndex index = m_model.indexForItem(hint, FeatureTreeColumns::name);
        emit m_model.dataChanged(index, index);
    }
}

void FavoritesBranch::showHeadTexts()
{
    m_root->setDisplayedName(FeatureTreeModel::tr("Favorites"));
    m_root->SetDescription(FeatureTreeModel::tr(
        "<h3>Favorites</h3><b>This node contains a list of features selected by the user</b><br><br>To add a "
        "feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also "
        "use "
        "drag and drop to add features to your favorites.<br>Favorites can be moved up and down within the "
        "list "
        "as well as removed from the list by right-clicking an item and choosing the appropriate option from "
        "the "
        "context menu."));
}

void FavoritesBranch::showHintTexts(FeatureTreeItem &hint)
{
    hint.setDisplayedName(FeatureTreeModel::tr("Add favorites by right-clicking a feature below."));
    hint.SetToolTip(FeatureTreeModel::tr(
        "To add a feature, right-click the feature and choose 'Add to Favorites' from the context "
        "menu. You can also use drag and drop to add features to your favorites."));
}

void FavoritesBranch::retranslate()
{
    if (!m_root) {
        return;
    }
    showHeadTexts();
    updateToolTip();
    FeatureTreeItem *const first = m_root->child(0);
    if (first && first->getFullName() == FeatureTreeNames::dummy) {
        showHintTexts(*first);
        const QModelIndex index = m_model.indexForItem(first, FeatureTreeColumns::name);
        emit m_model.dataChanged(index, index);
    }
}

void FavoritesBranch::replaceZombies(const QSharedPointer<IParameterCollection> &collection,
                                     const QString &nodeMapName, bool childNodeFlag)
{
    if (!collection || !m_root) {
        return;
    }
    const quint64 removals = m_model.m_removals;
    for (int i = 0; i < std::min(m_favorites.count(), m_root->existingChildCount()); ++i) {
        const FavoriteEntry entry = *m_favorites.entryAt(i);
        // The list may be ahead of its rows while its updates are deferred.
        if (entry.nodeMapKey != nodeMapName || m_root->child(i)->getFullName() != favoritesRowName(entry)) {
            continue;
        }
        const QString fullName = entry.nodeMapKey + QLatin1Char('/') + entry.featureName;
        const auto bringToLife = [this, &collection, &fullName, i, childNodeFlag] {
            const QSharedPointer<IParameter> parameter = collection->parameter(fullName);
            if (parameter && !parameter->isExcluded()) {
                replacePlaceholder(collection, parameter, i, childNodeFlag);
            }
        };
        Core::guardedRun(site("FeatureTreeModel::replaceFavoritesZombies"),
                         QStringLiteral("Failed to look up the favorite %1").arg(fullName), bringToLife);
        if (removals != m_model.m_removals) {
            return; // a receiver of these signals had the tree cleared or the rows made anew
        }
    }
    updateToolTip();
    m_model.refreshSpecialItems();
}

void FavoritesBranch::replacePlaceholder(const QSharedPointer<IParameterCollection> &collection,
                                         const QSharedPointer<IParameter> &parameter, int row,
                                         bool childNodeFlag)
{
    FeatureTreeItem *const old = m_root->child(row);
    if (qobject_cast<FeatureTreeINodeItem *>(old)) {
        old->SetIsFullRowItem(false);
        old->SetIsSpecialNode(false);
        return;
    }
    auto item = std::make_unique<FeatureTreeINodeItem>(collection, parameter, &m_model, old->getFullName(),
                                                       nullptr, childNodeFlag);
    m_model.adoptNodeItem(item.get(), false);
    const QModelIndex parent = rootIndex();
    const quint64 removals = m_model.m_removals;
    m_model.beginRemoveRows(parent, row, row);
    std::unique_ptr<FeatureTreeItem> placeholder(m_root->removeChild(row));
    m_model.endRemoveRows();
    placeholder.reset();
    if (removals != m_model.m_removals) {
        return;
    }
    m_model.beginInsertRows(parent, row, row);
    m_root->insertChild(item.release(), row);
    m_model.endInsertRows();
    if (removals == m_model.m_removals) {
        const QModelIndex index = m_model.index(row, FeatureTreeColumns::name, parent);
        emit m_model.dataChanged(index, index);
    }
}

void FavoritesBranch::updateToolTip()
{
    int unavailable = 0;
    for (int row = 0; row < m_root->existingChildCount(); ++row) {
        unavailable += isPlaceholder(m_root->child(row)) ? 1 : 0;
    }
    const int count = m_favorites.count();
    if (unavailable == 0 && count == 0) {
        return;
    }
    const QString noun = count < 2 ? FeatureTreeModel::tr("Favorite") : FeatureTreeModel::tr("Favorites");
    if (unavailable == 0) {
        m_root->SetToolTip(QStringLiteral("%1 %2").arg(count).arg(noun));
        return;
    }
    const QString text = unavailable == 1
        ? FeatureTreeModel::tr("%1 %2 (%3 is unavailable for the current camera)")
        : FeatureTreeModel::tr("%1 %2 (%3 are unavailable for the current camera)");
    m_root->SetToolTip(text.arg(count).arg(noun).arg(unavailable));
}

bool FavoritesBranch::contains(const FeatureTreeItem *item) const
{
    return item && m_root && item->parent() == m_root;
}

int FavoritesBranch::indexOf(const FeatureTreeItem *item) const
{
    if (!item) {
        return -1;
    }
    const QStringList parts = item->getFullName().split(QLatin1Char(FeatureTreeNames::separator));
    if (parts.size() >= 2) {
        const bool isFavoritesName = parts.size() >= 3 && parts[0] == FeatureTreeNames::favorite;
        const qsizetype nodeMap = isFavoritesName ? 1 : 0;
        return m_favorites.indexOfEntry(probeOf(parts[nodeMap + 1], QLatin1Char('@') + parts[nodeMap]));
    }
    const auto *const nodeItem = qobject_cast<const FeatureTreeINodeItem *>(item);
    const QSharedPointer<IParameter> parameter = nodeItem ? nodeItem->node() : nullptr;
    if (!parameter) {
        return -1;
    }
    return Core::guarded(site("FeatureTreeModel::getFavoritesIndexFromFeatureTreeItem"),
                         QStringLiteral("Failed to identify a favorite"), -1, [this, &parameter] {
                             return m_favorites.indexOfEntry(
                                 probeOf(parameter->name(), firstSegment(parameter->fullName())));
                         });
}

bool FavoritesBranch::add(const QSharedPointer<IParameter> &parameter, int row)
{
    if (!parameter || row < 0) {
        return false;
    }
    return Core::guarded(site("FeatureTreeModel::AddFavorite"), QStringLiteral("Failed to add a favorite"),
                         false, [this, &parameter, row] {
                             if (parameter->isExcluded()) {
                                 return false;
                             }
                             FavoriteEntry entry;
                             entry.featureName = parameter->name();
                             // Without a text it would not survive being stored.
                             const auto access = parameter->propertyAccess();
                             entry.displayName = access
                                 ? access->property(QStringLiteral("DisplayName"), entry.featureName)
                                 : entry.featureName;
                             entry.nodeMapKey = firstSegment(parameter->fullName());
                             return row < m_favorites.count() ? m_favorites.insertEntry(row, entry)
                                                              : m_favorites.appendEntry(entry);
                         });
}

bool FavoritesBranch::canAdd(const FeatureTreeItem *item) const
{
    const auto *const nodeItem = qobject_cast<const FeatureTreeINodeItem *>(item);
    const QSharedPointer<IParameter> parameter = nodeItem ? nodeItem->node() : nullptr;
    if (!parameter || indexOf(item) >= 0) {
        return false;
    }
    return Core::guarded(
        site("FeatureTreeModel::CanAddAsFavorite"),
        QStringLiteral("Failed to ask whether a feature can be a favorite"), false,
        [&parameter] { return !parameter->isExcluded() && isFeatureType(parameter->type()); });
}

// A plain row of a favorite feature has its place in the list too; moving and removing act on the branch
// alone.
bool FavoritesBranch::canMove(const FeatureTreeItem *item, bool up) const
{
    const int i = contains(item) ? indexOf(item) : -1;
    return i >= 0 && (up ? i >= 1 : i < m_favorites.count() - 1);
}

bool FavoritesBranch::move(const FeatureTreeItem *item, bool up)
{
    if (!canMove(item, up)) {
        return false;
    }
    const int i = indexOf(item);
    // An entry is inserted before its target, counted with the entry still in place.
    return m_favorites.moveEntry(i, up ? i - 1 : i + 2);
}

bool FavoritesBranch::remove(const FeatureTreeItem *item)
{
    const int i = contains(item) ? indexOf(item) : -1;
    return i >= 0 && m_favorites.removeEntry(i);
}

void FavoritesBranch::drop(const QList<FeatureTreeItem *> &items, int row)
{
    int target = std::min(row, m_favorites.count());
    m_favorites.setDeferredUpdates(true);
    // From the last to the first: each lands on the same row, so that the dragged order stays.
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        target = dropItem(*item, target);
    }
    m_favorites.setDeferredUpdates(false);
}

// Moves or adds one favorite to \a row. Returns the row at which the item dragged before it belongs.
int FavoritesBranch::dropItem(FeatureTreeItem *item, int row)
{
    // Asked of the item's own model, which may be another tree's.
    if (item->getExtension()->IsFavoriteTreeItem(item)) {
        const int from = indexOf(item);
        const bool cameFromAbove = m_favorites.moveEntry(from, row) && from < row;
        return cameFromAbove ? row - 1 : row;
    }
    if (const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item)) {
        add(nodeItem->node(), row);
    }
    return row;
}
