// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreeproxymodel.h"

#include "favoritesdata.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreenames.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

namespace {

// Unique over all proxies, so that no proxy takes another's marks for its own.
quint64 nextPass()
{
    static quint64 pass = 0;
    return ++pass;
}

} // namespace

FeatureTreeProxyModel::FeatureTreeProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    connect(
        this,
        SIGNAL(layoutAboutToBeChanged(QList<QPersistentModelIndex>, QAbstractItemModel::LayoutChangeHint)),
        this, SLOT(onLayoutAboutToBeChanged()));
}

FeatureTreeProxyModel::~FeatureTreeProxyModel() = default;

void FeatureTreeProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    if (QAbstractItemModel *const old = this->sourceModel()) {
        disconnect(old, nullptr, this, nullptr);
        if (model()) {
            disconnect(model()->pollTimer(), nullptr, this, nullptr);
        }
    }
    m_treeJudged = false;
    m_index = FeatureTreeSearchIndex();
    m_mapping = nextPass();
    startPass();
    QSortFilterProxyModel::setSourceModel(sourceModel);
    if (!sourceModel) {
        return;
    }
    // After the base's connections, so that its mapping is up to date when ours are called.
    connect(sourceModel, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int)), this,
            SLOT(onSourceRowsAboutToBeInserted(QModelIndex, int, int)));
    connect(sourceModel, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(onSourceRowsInserted(QModelIndex, int, int)));
    const char *const changed = SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>));
    if (!model()) {
        connect(sourceModel, changed, this, SLOT(onForeignDataChanged(QModelIndex)));
    } else {
        // The base would map the rows beside each one that changes, which loads what stands below them.
        disconnect(sourceModel, changed, this, nullptr);
        connect(sourceModel, changed, this, SLOT(onSourceDataChanged(QModelIndex, QModelIndex, QList<int>)));
        m_reportedPolling = model()->GetPolling();
        connect(model()->pollTimer(), SIGNAL(timeout()), this, SLOT(onPollTimerShot()));
        connect(model(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)), this,
                SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)));
        connect(model(), SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)), this,
                SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)));
    }
}

FeatureTreeModel *FeatureTreeProxyModel::model() const
{
    return qobject_cast<FeatureTreeModel *>(sourceModel());
}

FeatureTreeItem *FeatureTreeProxyModel::rootItem() const
{
    const QModelIndex top = model() ? model()->index(0, 0) : QModelIndex();
    return top.isValid() ? model()->getFeatureTreeItem(top)->parent() : nullptr;
}

// An index made of the invisible root item: valid, but no row. The search row is announced below it.
bool FeatureTreeProxyModel::isPhantom(const QModelIndex &sourceIndex) const
{
    return sourceIndex.isValid() && !sourceIndex.parent().isValid()
        && sourceModel()->index(sourceIndex.row(), sourceIndex.column()) != sourceIndex;
}

QModelIndex FeatureTreeProxyModel::mapped(const QModelIndex &sourceIndex) const
{
    return isPhantom(sourceIndex) ? QModelIndex() : mapFromSource(sourceIndex);
}

QModelIndex FeatureTreeProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    const QModelIndex source = QSortFilterProxyModel::mapToSource(proxyIndex);
    if (m_shiftTopRows && source.isValid() && !source.parent().isValid()) {
        return sourceModel()->index(source.row() + 1, source.column());
    }
    return source;
}

int FeatureTreeProxyModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() && !hasChildren(parent) ? 0 : QSortFilterProxyModel::rowCount(parent);
}

bool FeatureTreeProxyModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return QSortFilterProxyModel::hasChildren(parent);
    }
    // The source knows without creating any: a category that passes has a row to show.
    return parent.column() == 0 && sourceModel()->hasChildren(mapToSource(parent));
}

Qt::ItemFlags FeatureTreeProxyModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags; // nothing is dropped beside the top rows
    }
    Qt::ItemFlags result = QSortFilterProxyModel::flags(index);
    const FeatureTreeItem *const item = getFeatureTreeItem(index);
    if (item && !item->isCategory()) {
        result |= Qt::ItemNeverHasChildren; // saves views the question
    }
    return result;
}

bool FeatureTreeProxyModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                         const QModelIndex &parent)
{
    if (row == -1 && IsFavoriteTreeRoot(getFeatureTreeItem(parent))) {
        // Onto the branch itself: appended, wherever the top rows end.
        return sourceModel()->dropMimeData(data, action, GetFavorites().count(), column, mapToSource(parent));
    }
    return QSortFilterProxyModel::dropMimeData(data, action, row, column, parent);
}

void FeatureTreeProxyModel::setAcceptAll(bool acceptAll)
{
    m_acceptAll = acceptAll;
}

bool FeatureTreeProxyModel::acceptAll() const
{
    return m_acceptAll;
}

bool FeatureTreeProxyModel::isUnfolded(const QModelIndex &index) const
{
    const FeatureTreeItem *const item = getFeatureTreeItem(index);
    return !item || isMapped(item);
}

bool FeatureTreeProxyModel::isMatch(const QModelIndex &index) const
{
    if (index.data(FeatureTreeItem::FullNodeNameRole).toString() == FeatureTreeNames::search) {
        return false;
    }
    const FeatureTreeItem *const item = getFeatureTreeItem(index);
    return item ? isHit(item) : index.isValid() && roleFilter().isHit(mapToSource(index));
}

QSet<QString> FeatureTreeProxyModel::visibleMatches() const
{
    completePass();
    return model() ? namesOf(m_visibleMatches) : roleMatches().visible;
}

int FeatureTreeProxyModel::visibleMatchCount() const
{
    completePass();
    return model() ? m_visibleMatches.count : static_cast<int>(roleMatches().visible.size());
}

QSet<QString> FeatureTreeProxyModel::hiddenMatches() const
{
    completePass();
    return model() ? namesOf(m_hiddenMatches) : roleMatches().hidden;
}

int FeatureTreeProxyModel::hiddenMatchCount() const
{
    completePass();
    return model() ? m_hiddenMatches.count : static_cast<int>(roleMatches().hidden.size());
}

QSet<QString> FeatureTreeProxyModel::namesOf(const Matches &matches) const
{
    QSet<QString> names;
    for (qsizetype i = 0; i < matches.isCounted.size(); ++i) {
        if (matches.isCounted[i]) {
            names.insert(m_index.names().at(i));
        }
    }
    return names;
}

void FeatureTreeProxyModel::Matches::clear(qsizetype nameCount)
{
    isCounted.fill(false, nameCount);
    count = 0;
}

void FeatureTreeProxyModel::Matches::add(int name)
{
    count += isCounted[name] ? 0 : 1;
    isCounted[name] = true;
}

void FeatureTreeProxyModel::Matches::remove(int name)
{
    count -= isCounted[name] ? 1 : 0;
    isCounted[name] = false;
}

void FeatureTreeProxyModel::setFilterFixedString(const QString &pattern)
{
    {
        // The base would take rows out one interval at a time, each with signals; one change of the layout
        // follows.
        const QScopedValueRollback<bool> frozen(m_frozen, model());
        QSortFilterProxyModel::setFilterFixedString(pattern);
    }
    m_pattern = filterRegularExpression().pattern();
    m_foldedText = FeatureTreeItem::foldedForSearch(pattern);
    refilter();
}

// Judges all rows anew and publishes the result.
void FeatureTreeProxyModel::refilter()
{
    m_refilterQueued = false;
    startPass();
    if (model() && !m_pattern.isEmpty()) {
        judgeTree();
    }
    {
        const QScopedValueRollback<bool> publishing(m_publishing, true);
        invalidate();
    }
    emit filtered();
}

template <typename Work>
void FeatureTreeProxyModel::rebuild(Work work)
{
    {
        const QScopedValueRollback<bool> rebuilding(m_rebuilding, true);
        work();
    }
    refilter();
}

void FeatureTreeProxyModel::startPass() const
{
    m_pass = nextPass();
    m_treeJudged = false;
    m_visibleMatches.clear(0);
    m_hiddenMatches.clear(0);
}

void FeatureTreeProxyModel::noticePattern() const
{
    const QString pattern = filterRegularExpression().pattern();
    if (pattern == m_pattern) {
        return;
    }
    m_pattern = pattern;
    m_foldedText.reset();
    if (pattern.isEmpty()) {
        m_foldedText = QString();
    }
    startPass();
}

bool FeatureTreeProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_rejectAll) {
        return false;
    }
    if (!model()) {
        return acceptsByRoles(sourceRow, sourceParent);
    }
    // Asked once a row at every key: straight to the item.
    auto *const parent = static_cast<FeatureTreeItem *>(sourceParent.internalPointer());
    if (parent) {
        parent->m_mapping = m_mapping;
    }
    const bool isBelowPhantom = parent && !parent->parent();
    if (m_acceptAll || isBelowPhantom) {
        return !isBelowPhantom;
    }
    FeatureTreeItem *const item = (parent ? parent : rootItem())->child(sourceRow);
    if (!item) {
        return false;
    }
    if (m_frozen) {
        return item->m_filterMark.pass == m_markedPass && item->m_filterMark.isAccepted;
    }
    noticePattern();
    return accepts(item);
}

bool FeatureTreeProxyModel::acceptsByRoles(int sourceRow, const QModelIndex &sourceParent) const
{
    if (m_acceptAll || isPhantom(sourceParent)) {
        return m_acceptAll && !isPhantom(sourceParent);
    }
    return roleFilter().accepts(sourceModel()->index(sourceRow, FeatureTreeColumns::name, sourceParent));
}

FeatureTreeRoleFilter FeatureTreeProxyModel::roleFilter() const
{
    return {*sourceModel(), filterRegularExpression(), m_level};
}

FeatureTreeRoleFilter::Matches FeatureTreeProxyModel::roleMatches() const
{
    return sourceModel() ? roleFilter().matches() : FeatureTreeRoleFilter::Matches();
}

// Rows are asked for when a view comes to it; the names of the matches may be wanted before.
void FeatureTreeProxyModel::completePass() const
{
    noticePattern();
    if (model() && !m_pattern.isEmpty() && !m_treeJudged) {
        judgeTree();
    }
}

bool FeatureTreeProxyModel::isSeen(const FeatureTreeItem *item) const
{
    return item->m_filterMark.pass == m_pass;
}

bool FeatureTreeProxyModel::isJudged(const FeatureTreeItem *item) const
{
    return isSeen(item) && item->m_filterMark.isJudged;
}

bool FeatureTreeProxyModel::accepts(FeatureTreeItem *item) const
{
    if (isJudged(item)) {
        return item->m_filterMark.isAccepted;
    }
    if (m_pattern.isEmpty()) {
        return judgeAlone(item);
    }
    if (m_treeJudged && !m_index.holds(item)) {
        startPass(); // it came after the pass
    }
    if (!m_treeJudged) {
        judgeTree();
    }
    return isJudged(item) && item->m_filterMark.isAccepted;
}

bool FeatureTreeProxyModel::judgeAlone(FeatureTreeItem *item) const
{
    const bool isAccepted =
        IsFavoriteTreeRoot(item) || matches(item) || hasMatchAbove(item) || hasMatchBelow(item);
    mark(item, isAccepted);
    return isAccepted;
}

// Marks what the search text is found in, all ancestors of that, and nothing else: other rows do not pass.
void FeatureTreeProxyModel::judgeTree() const
{
    m_treeJudged = true;
    FeatureTreeItem *const root = rootItem();
    if (!root) {
        return;
    }
    if (!m_index.isCurrent()) {
        loadTree(root);
        m_index.build(*root);
    }
    m_visibleMatches.clear(m_index.names().size());
    m_hiddenMatches.clear(m_index.names().size());
    if (FeatureTreeItem *const searchRow = getSearchHelpItem()) {
        mark(searchRow, matches(searchRow));
    }
    const FeatureTreeItem *parent = nullptr;
    GenApi::EVisibility visibilityAbove = GenApi::Beginner;
    const auto judge = [this, &parent, &visibilityAbove](const FeatureTreeSearchIndex::Row &row) {
        if (row.item->parent() != parent) {
            parent = row.item->parent();
            visibilityAbove = judgeAncestors(row.item->parent());
        }
        judgeHit(row, visibilityAbove);
    };
    if (m_foldedText) {
        m_index.forEachHit(*m_foldedText, judge);
        return;
    }
    for (const FeatureTreeSearchIndex::Row &row : m_index.rows()) {
        if (isHit(row.item)) {
            judge(row);
        }
    }
}

// Marks the ancestors as not passing unless they do already. Returns the highest visibility among them.
GenApi::EVisibility FeatureTreeProxyModel::judgeAncestors(FeatureTreeItem *parent) const
{
    GenApi::EVisibility highest = GenApi::Beginner;
    for (FeatureTreeItem *ancestor = parent; ancestor && ancestor->parent(); ancestor = ancestor->parent()) {
        if (!isJudged(ancestor)) {
            mark(ancestor, false);
        }
        highest = std::max(highest, effectiveVisibility(ancestor));
    }
    return highest;
}

void FeatureTreeProxyModel::judgeHit(const FeatureTreeSearchIndex::Row &row,
                                     GenApi::EVisibility visibilityAbove) const
{
    FeatureTreeItem *const item = row.item;
    mark(item, false);
    countHit(row, std::max(visibilityAbove, effectiveVisibility(item)));
    const FeatureTreeItem::FilterMark &found = item->m_filterMark;
    const bool isMatch = passesLevel(found.visibility, found.isShownAtAll);
    item->m_filterMark.isAccepted = isMatch;
    for (FeatureTreeItem *ancestor = item->parent();
         isMatch && ancestor && ancestor->parent() && !ancestor->m_filterMark.isAccepted;
         ancestor = ancestor->parent()) {
        ancestor->m_filterMark.isAccepted = true;
    }
}

void FeatureTreeProxyModel::mark(FeatureTreeItem *item, bool isAccepted) const
{
    m_markedPass = m_pass;
    item->m_filterMark = {m_pass, item->getVisibility(), item->ShowMe(GenApi::Guru), isAccepted, true};
}

// Remembers the state on which the verdict about a row above was founded.
void FeatureTreeProxyModel::markSeen(FeatureTreeItem *item) const
{
    if (isSeen(item)) {
        return;
    }
    FeatureTreeItem::FilterMark &mark = item->m_filterMark;
    mark = {m_pass, item->getVisibility(), item->ShowMe(GenApi::Guru), mark.isAccepted, false};
}

// A row that contains the search text; categories and collections' top rows never do.
bool FeatureTreeProxyModel::isHit(const FeatureTreeItem *item) const
{
    if (item->isCategory()) {
        return false;
    }
    const bool found = m_pattern.isEmpty() || item->displayText().contains(filterRegularExpression())
        || item->nodeName().contains(filterRegularExpression());
    return found && item->nodeName() != FeatureTreeNames::root;
}

bool FeatureTreeProxyModel::passesLevel(GenApi::EVisibility visibility, bool isShownAtAll) const
{
    return (m_level == GenApi::Invisible || isShownAtAll) && visibility <= m_level;
}

// Returns the visibility at which a marked item would be seen, undefined when it is at none.
GenApi::EVisibility FeatureTreeProxyModel::effectiveVisibility(const FeatureTreeItem *item) const
{
    const FeatureTreeItem::FilterMark &mark = item->m_filterMark;
    const bool isShown =
        m_level == GenApi::Invisible || mark.isShownAtAll || mark.visibility == GenApi::Invisible;
    return isShown ? mark.visibility : GenApi::UndefinedVisibility;
}

bool FeatureTreeProxyModel::matches(FeatureTreeItem *item) const
{
    if (!passesLevel(item->getVisibility(), item->ShowMe(GenApi::Guru))) {
        return false;
    }
    if (item->getFullName() == FeatureTreeNames::search) {
        return item->getVisibility() < GenApi::Invisible; // shown by a search alone, at the highest level too
    }
    return isHit(item);
}

void FeatureTreeProxyModel::countHit(const FeatureTreeSearchIndex::Row &row,
                                     GenApi::EVisibility visibility) const
{
    if (row.name < 0) {
        return;
    }
    // A feature may stand in several places; where it is in sight decides.
    if (visibility <= m_level) {
        m_visibleMatches.add(row.name);
        m_hiddenMatches.remove(row.name);
    } else if (visibility < GenApi::Invisible && !m_visibleMatches.isCounted[row.name]) {
        m_hiddenMatches.add(row.name);
    }
}

bool FeatureTreeProxyModel::hasMatchAbove(FeatureTreeItem *item) const
{
    for (FeatureTreeItem *ancestor = item->parent(); ancestor && ancestor->parent();
         ancestor = ancestor->parent()) {
        if (matches(ancestor)) {
            return true;
        }
    }
    return false;
}

bool FeatureTreeProxyModel::hasMatchBelow(FeatureTreeItem *item) const
{
    loadChildren(item);
    for (int row = 0; row < item->existingChildCount(); ++row) {
        markSeen(item->child(row));
        if (matches(item->child(row))) {
            return true;
        }
    }
    for (int row = 0; row < item->existingChildCount(); ++row) {
        if (hasMatchBelow(item->child(row))) {
            return true;
        }
    }
    return false;
}

// Only the model's rowCount() fills a branch without announcing rows to the base, which may be asking.
void FeatureTreeProxyModel::loadChildren(FeatureTreeItem *item) const
{
    if (item->existingChildCount() == 0 && item->hasChildren()) {
        sourceModel()->rowCount(model()->indexForItem(item, FeatureTreeColumns::name));
    }
}

void FeatureTreeProxyModel::loadTree(FeatureTreeItem *item) const
{
    loadChildren(item);
    for (int row = 0; row < item->existingChildCount(); ++row) {
        loadTree(item->child(row));
    }
}

void FeatureTreeProxyModel::onSourceRowsAboutToBeInserted(const QModelIndex &parent, int first, int last)
{
    Q_UNUSED(first)
    Q_UNUSED(last)
    m_insertionParent = parent;
    if (isPhantom(parent)) {
        emit layoutAboutToBeChanged();
        blockSignals(true);
    }
}

void FeatureTreeProxyModel::onSourceRowsInserted(const QModelIndex &parent, int first, int last)
{
    Q_UNUSED(first)
    Q_UNUSED(last)
    if (parent.isValid() && !m_insertionParent.isValid()) {
        return; // a receiver of the base's signals had the tree cleared
    }
    if (isPhantom(parent)) {
        {
            // The row stands above all others, where the base's mapping knows nothing of it.
            const QScopedValueRollback<bool> shifted(m_shiftTopRows, true);
            invalidate();
        }
        blockSignals(false);
        emit layoutChanged();
        return;
    }
    if (!parent.isValid()) {
        return;
    }
    // The base lets rows below a filtered-out one pass by; one of them may make it pass. What rebuilds
    // branches filters at its end.
    if (!m_rebuilding && !mapFromSource(parent).isValid()) {
        refilter();
    }
}

// The base's invalidate() and the source's new layout ask for all rows anew.
void FeatureTreeProxyModel::onLayoutAboutToBeChanged()
{
    if (!m_publishing) {
        startPass();
    }
}

void FeatureTreeProxyModel::onSourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                                const QList<int> &roles)
{
    const FeatureTreeItem *const item = model()->getFeatureTreeItem(topLeft);
    if (!item || !item->parent()) {
        return;
    }
    const FeatureTreeItem::FilterMark &mark = item->m_filterMark;
    if (isSeen(item)
        && (mark.visibility != const_cast<FeatureTreeItem *>(item)->getVisibility()
            || mark.isShownAtAll != item->ShowMe(GenApi::Guru))) {
        queueRefilter();
    }
    if (!isMapped(item->parent())) {
        return;
    }
    QModelIndex first;
    QModelIndex last;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const QModelIndex left = mapFromSource(topLeft.siblingAtRow(row));
        if (left.isValid()) {
            first = first.isValid() ? first : left;
            last = mapFromSource(bottomRight.siblingAtRow(row));
        }
    }
    if (first.isValid()) {
        emit dataChanged(first, last, roles);
    }
}

// Whether the base has ever asked for the rows below. If not, nobody shows them.
bool FeatureTreeProxyModel::isMapped(const FeatureTreeItem *parent) const
{
    return !parent->parent() || parent->m_mapping == m_mapping;
}

void FeatureTreeProxyModel::queueRefilter()
{
    if (!m_refilterQueued) {
        m_refilterQueued = QMetaObject::invokeMethod(this, "refilter", Qt::QueuedConnection);
    }
}

// Nothing is remembered of these rows but whether they passed.
void FeatureTreeProxyModel::onForeignDataChanged(const QModelIndex &topLeft)
{
    for (QModelIndex row = topLeft; row.isValid() && !isPhantom(row); row = row.parent()) {
        if (filterAcceptsRow(row.row(), row.parent()) != mapFromSource(row).isValid()) {
            queueRefilter();
            return;
        }
    }
}

void FeatureTreeProxyModel::clear()
{
    if (!model()) {
        return;
    }
    beginResetModel();
    {
        // The mapping is dropped while the items that it points to live.
        const QSignalBlocker blocker(this);
        const QScopedValueRollback<bool> emptying(m_rejectAll, true);
        invalidate();
        model()->clear();
    }
    startPass();
    endResetModel();
}

void FeatureTreeProxyModel::onPollTimerShot()
{
    reportPollingState();
}

void FeatureTreeProxyModel::reportPollingState()
{
    const bool polling = GetPolling();
    if (m_reportedPolling != polling) {
        m_reportedPolling = polling;
        emit pollingStateChanged(polling);
    }
}

void FeatureTreeProxyModel::EnablePolling(bool enable)
{
    if (model()) {
        model()->EnablePolling(enable);
        reportPollingState();
    }
}

bool FeatureTreeProxyModel::GetPolling() const
{
    return model() && model()->GetPolling();
}

bool FeatureTreeProxyModel::IsFavoriteTreeItem(const FeatureTreeItem *item) const
{
    return model() && model()->IsFavoriteTreeItem(item);
}

bool FeatureTreeProxyModel::IsFavoriteTreeRoot(const FeatureTreeItem *item) const
{
    return model() && model()->IsFavoriteTreeRoot(item);
}

QModelIndex FeatureTreeProxyModel::indexForItem(FeatureTreeItem *item, int column)
{
    return model() ? mapped(model()->indexForItem(item, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::GetFavoritesRootIndex()
{
    return model() ? mapFromSource(model()->GetFavoritesRootIndex()) : QModelIndex();
}

void FeatureTreeProxyModel::EnableViewAllFavorites(bool enable)
{
    if (model()) {
        model()->EnableViewAllFavorites(enable);
    }
}

bool FeatureTreeProxyModel::GetViewAllFavorites() const
{
    return model() && model()->GetViewAllFavorites();
}

void FeatureTreeProxyModel::SetDeviceAlive(bool alive)
{
    if (model()) {
        model()->SetDeviceAlive(alive);
    }
}

bool FeatureTreeProxyModel::isDeviceAlive() const
{
    return !model() || model()->isDeviceAlive();
}

QModelIndex FeatureTreeProxyModel::findItem(const FeatureTreeItem *item, const FeatureTreeItem *start,
                                            int column)
{
    return model() ? mapped(model()->findItem(item, start, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::findItemByFullName(const QString &fullName, FeatureTreeItem *start,
                                                      int column)
{
    return model() ? mapped(model()->findItemByFullName(fullName, start, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::findItemByRole(int role, const QVariant &value, FeatureTreeItem *start,
                                                  int column)
{
    return model() ? mapped(model()->findItemByRole(role, value, start, column)) : QModelIndex();
}

void FeatureTreeProxyModel::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString &title,
    const QString &nodeMapName, bool childNodeFlag)
{
    if (model()) {
        rebuild([&] {
            model()->addParameterCollection(std::move(collection), title, nodeMapName, childNodeFlag);
        });
    }
}

void FeatureTreeProxyModel::rebuildFavoriteItems()
{
    if (model()) {
        rebuild([this] { model()->rebuildFavoriteItems(); });
    }
}

void FeatureTreeProxyModel::CreateFavoritesRoot()
{
    if (model()) {
        rebuild([this] { model()->CreateFavoritesRoot(); });
    }
}

void FeatureTreeProxyModel::replaceFavoritesZombies(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString &nodeMapName)
{
    if (model()) {
        rebuild([&] { model()->replaceFavoritesZombies(std::move(collection), nodeMapName); });
    }
}

bool FeatureTreeProxyModel::RemoveFavorite(QModelIndex index)
{
    return model() && model()->RemoveFavorite(mapToSource(index));
}

bool FeatureTreeProxyModel::AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int row)
{
    return model() && model()->AddFavorite(std::move(parameter), row);
}

FavoritesData &FeatureTreeProxyModel::GetFavorites()
{
    if (model()) {
        return model()->GetFavorites();
    }
    static FavoritesData none;
    return none;
}

bool FeatureTreeProxyModel::MoveFavorite(QModelIndex index, bool up)
{
    return model() && model()->MoveFavorite(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanMoveFavorite(QModelIndex index, bool up) const
{
    return model() && model()->CanMoveFavorite(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanAddAsFavorite(QModelIndex index) const
{
    return model() && model()->CanAddAsFavorite(mapToSource(index));
}

void FeatureTreeProxyModel::refresh()
{
    if (model()) {
        model()->refresh();
    }
}

void FeatureTreeProxyModel::addChildren(FeatureTreeINodeItem *parent)
{
    if (model()) {
        model()->addChildren(parent);
    }
}

void FeatureTreeProxyModel::setVisibility(GenApi::EVisibility visibility)
{
    m_level = visibility;
    startPass();
    if (model()) {
        model()->setVisibility(visibility);
    }
}

GenApi::EVisibility FeatureTreeProxyModel::getVisibility()
{
    return model() ? model()->getVisibility() : m_level;
}

void FeatureTreeProxyModel::setMonitorMode(bool enable)
{
    if (model()) {
        model()->setMonitorMode(enable);
    }
}

void FeatureTreeProxyModel::setGenICamCallbacksEnable(bool enable)
{
    if (model()) {
        model()->setGenICamCallbacksEnable(enable);
    }
}

bool FeatureTreeProxyModel::getGenICamCallbackEnable() const
{
    return model() && model()->getGenICamCallbackEnable();
}

FeatureTreeItem *FeatureTreeProxyModel::getFeatureTreeItem(const QModelIndex &index) const
{
    const QModelIndex source = model() ? mapToSource(index) : QModelIndex();
    return source.isValid() ? model()->getFeatureTreeItem(source) : nullptr;
}

void FeatureTreeProxyModel::setHighlighter(FeatureTreeHighlighter *highlighter)
{
    if (model()) {
        model()->setHighlighter(highlighter);
    }
}

FeatureTreeItem *FeatureTreeProxyModel::getSearchHelpItem() const
{
    return model() ? model()->getSearchHelpItem() : nullptr;
}

void FeatureTreeProxyModel::refreshSpecialItems()
{
    if (model()) {
        model()->refreshSpecialItems();
    }
}

void FeatureTreeProxyModel::onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem)
{
    if (model()) {
        model()->onNodeUpdated(row, nodeItem);
    }
}

void FeatureTreeProxyModel::onTimerPoll()
{
    if (model()) {
        model()->onTimerPoll();
        reportPollingState();
    }
}

QString FeatureTreeProxyModel::GetParameterCollectionName(
    QSharedPointer<ParameterCollection::IParameterCollection> collection)
{
    return model() ? model()->GetParameterCollectionName(std::move(collection))
                   : QStringLiteral("unknown NodeMap name");
}

int FeatureTreeProxyModel::getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem *item) const
{
    return model() ? model()->getFavoritesIndexFromFeatureTreeItem(item) : -1;
}

int FeatureTreeProxyModel::getFavoritesIndexFromModelIndex(QModelIndex index) const
{
    return model() ? model()->getFavoritesIndexFromModelIndex(mapToSource(index)) : -1;
}
