// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreeproxymodel.h"

#include "accessibletexts_p.h"
#include "favoritesdata.h"
#include "featuretreefilter_p.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreenames.h"
#include "featuretreerolefilter_p.h"

#include <QHash>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>

#include <type_traits>
#include <utility>

namespace {

QSharedPointer<ParameterCollection::IParameter> parameterOf(const FeatureTreeItem *item)
{
    const auto *const nodeItem = qobject_cast<const FeatureTreeINodeItem *>(item);
    return nodeItem ? nodeItem->node() : nullptr;
}

} // namespace

FeatureTreeProxyModel::FeatureTreeProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_filter(std::make_unique<FeatureTreeFilter>([this](FeatureTreeItem &item) { loadChildren(item); }))
    , m_expressionNotifier(bindableFilterRegularExpression().addNotifier([this] { onExpressionChanged(); }))
{
    connect(
        this,
        SIGNAL(layoutAboutToBeChanged(QList<QPersistentModelIndex>, QAbstractItemModel::LayoutChangeHint)),
        this, SLOT(onLayoutAboutToBeChanged()));
    // Before any view, which asks at once for the rows as they are now.
    for (const char *const change :
         {SIGNAL(layoutChanged(QList<QPersistentModelIndex>, QAbstractItemModel::LayoutChangeHint)),
          SIGNAL(rowsInserted(QModelIndex, int, int)), SIGNAL(rowsRemoved(QModelIndex, int, int)),
          SIGNAL(modelReset())}) {
        connect(this, change, this, SLOT(forgetMapping()));
    }
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
    m_filter->reset();
    m_asked.clear();
    forgetMapping();
    m_isPublished = false;
    m_model = qobject_cast<FeatureTreeModel *>(sourceModel);
    QSortFilterProxyModel::setSourceModel(sourceModel);
    if (!sourceModel) {
        return;
    }
    // After the base's connections, so that its mapping is up to date when ours are called.
    connect(sourceModel, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int)), this,
            SLOT(onSourceRowsAboutToBeInserted(QModelIndex, int, int)));
    connect(sourceModel, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(onSourceRowsInserted(QModelIndex, int, int)));
    if (model()) {
        connectTree();
    } else {
        connect(sourceModel, SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)), this,
                SLOT(onForeignDataChanged(QModelIndex)));
    }
}

void FeatureTreeProxyModel::connectTree()
{
    connect(model(), SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)), this,
            SLOT(onSourceRowsAboutToBeRemoved(QModelIndex, int, int)));
    // The base would map the rows beside each one that changes, which loads what stands below them.
    const char *const changed = SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>));
    disconnect(model(), changed, this, nullptr);
    connect(model(), changed, this, SLOT(onSourceDataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_reportedPolling = model()->GetPolling();
    connect(model()->pollTimer(), SIGNAL(timeout()), this, SLOT(onPollTimerShot()));
    connect(model(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)), this,
            SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)));
    connect(model(), SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)), this,
            SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)));
}

FeatureTreeModel *FeatureTreeProxyModel::model() const
{
    return m_model;
}

FeatureTreeItem *FeatureTreeProxyModel::rootItem() const
{
    const QModelIndex top = model() ? model()->index(0, 0) : QModelIndex();
    return top.isValid() ? model()->getFeatureTreeItem(top)->parent() : nullptr;
}

// The item of a proxy index, null for an invalid one and over sources of another class.
FeatureTreeItem *FeatureTreeProxyModel::itemAt(const QModelIndex &index) const
{
    if (m_siblings.item && isNoted(index)) {
        return m_siblings.item->child(index.row());
    }
    const QModelIndex source = model() ? mapToSource(index) : QModelIndex();
    return source.isValid() ? static_cast<FeatureTreeItem *>(source.internalPointer()) : nullptr;
}

// Asks the source, if it is a feature tree; nothing is done, or answered, otherwise.
template <auto Operation, typename... Arguments>
auto FeatureTreeProxyModel::forward(Arguments &&...arguments) const
{
    FeatureTreeModel *const tree = model();
    using Answer = std::invoke_result_t<decltype(Operation), FeatureTreeModel *, Arguments...>;
    if constexpr (std::is_void_v<Answer>) {
        if (tree) {
            (tree->*Operation)(std::forward<Arguments>(arguments)...);
        }
    } else {
        return tree ? (tree->*Operation)(std::forward<Arguments>(arguments)...) : Answer();
    }
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

// Views ask for every row at every layout, siblings one after the other. The base finds the way from each to
// the source, and to the parent's rows, anew.
QModelIndex FeatureTreeProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.isValid() && areNoted() && parent == m_siblings.parent) {
        const bool exists = row >= 0 && row < m_siblings.rows && column >= 0 && column < m_siblings.columns;
        return exists ? createIndex(row, column, m_siblings.mapping) : QModelIndex();
    }
    const QModelIndex result = QSortFilterProxyModel::index(row, column, parent);
    if (model() && parent.isValid() && result.isValid()) {
        noteSiblings(result, parent);
    }
    return result;
}

bool FeatureTreeProxyModel::areNoted() const
{
    return m_siblings.mapping && m_siblings.revision == FeatureTreeItem::treeRevision();
}

bool FeatureTreeProxyModel::isNoted(const QModelIndex &index) const
{
    return index.isValid() && index.internalPointer() == m_siblings.mapping && areNoted();
}

void FeatureTreeProxyModel::noteSiblings(const QModelIndex &index, const QModelIndex &parent) const
{
    FeatureTreeItem *const item = itemAt(parent);
    const int rows = QSortFilterProxyModel::rowCount(parent);
    const bool areAllShown = item && item->existingChildCount() == rows && sortColumn() < 0;
    m_siblings = {index.internalPointer(),
                  FeatureTreeItem::treeRevision(),
                  parent,
                  rows,
                  QSortFilterProxyModel::columnCount(parent),
                  areAllShown ? item : nullptr,
                  item && m_filter->isNumbered() && m_filter->isAboveLeaves(*item)};
}

bool FeatureTreeProxyModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return QSortFilterProxyModel::hasChildren(parent);
    }
    // The source knows without creating any: a category that passes has a row to show.
    if (parent.column() != 0 || (m_siblings.areLeaves && isNoted(parent))) {
        return false;
    }
    const FeatureTreeItem *const item = itemAt(parent);
    return item ? item->hasChildren() : sourceModel()->hasChildren(mapToSource(parent));
}

QVariant FeatureTreeProxyModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::AccessibleTextRole && role != Qt::AccessibleDescriptionRole) {
        return QSortFilterProxyModel::data(index, role);
    }
    FeatureTreeItem *const item = getFeatureTreeItem(index);
    if (!item) {
        return QSortFilterProxyModel::data(index, role);
    }
    return role == Qt::AccessibleTextRole ? AccessibleTexts::text(*item, index.column())
                                          : AccessibleTexts::description(*item);
}

Qt::ItemFlags FeatureTreeProxyModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags; // nothing is dropped beside the top rows
    }
    // Asked of every row at every layout: straight to the item.
    FeatureTreeItem *const item = itemAt(index);
    if (!item) {
        return sourceModel()->flags(mapToSource(index));
    }
    const Qt::ItemFlags result = item->flags(index.column());
    return item->isCategory() ? result : result | Qt::ItemNeverHasChildren; // saves views the question
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
    m_isPublished = m_isPublished && acceptAll == m_acceptAll;
    m_acceptAll = acceptAll;
}

bool FeatureTreeProxyModel::acceptAll() const
{
    return m_acceptAll;
}

bool FeatureTreeProxyModel::isUnfolded(const QModelIndex &index) const
{
    const FeatureTreeItem *const item = itemAt(index);
    return !item || isMapped(item);
}

bool FeatureTreeProxyModel::isMatch(const QModelIndex &index) const
{
    if (const FeatureTreeItem *const item = itemAt(index)) {
        return m_filter->isHit(*item);
    }
    return index.isValid()
        && index.data(FeatureTreeItem::FullNodeNameRole).toString() != FeatureTreeNames::search
        && roleFilter().isHit(mapToSource(index));
}

QSet<QString> FeatureTreeProxyModel::visibleMatches() const
{
    completePass();
    if (model() || !sourceModel()) {
        return m_filter->visibleMatches();
    }
    return roleFilter().matches().visible;
}

int FeatureTreeProxyModel::visibleMatchCount() const
{
    completePass();
    return model() ? m_filter->visibleMatchCount() : static_cast<int>(visibleMatches().size());
}

QSet<QString> FeatureTreeProxyModel::hiddenMatches() const
{
    completePass();
    if (model() || !sourceModel()) {
        return m_filter->hiddenMatches();
    }
    return roleFilter().matches().hidden;
}

int FeatureTreeProxyModel::hiddenMatchCount() const
{
    completePass();
    return model() ? m_filter->hiddenMatchCount() : static_cast<int>(hiddenMatches().size());
}

void FeatureTreeProxyModel::setFilterFixedString(const QString &pattern)
{
    {
        // The base would take rows out one interval at a time, each with signals; one change of the layout
        // follows.
        if (m_filter->isOutdated()) {
            completePass();
        }
        const QScopedValueRollback<bool> frozen(m_frozen, true);
        QSortFilterProxyModel::setFilterFixedString(pattern);
    }
    m_filter->setText(pattern, filterRegularExpression());
    refilter();
}

void FeatureTreeProxyModel::onExpressionChanged()
{
    const QRegularExpression expression = filterRegularExpression();
    if (m_frozen || expression.pattern() == m_filter->pattern()) {
        return;
    }
    m_filter->setExpression(expression);
    refilter();
}

void FeatureTreeProxyModel::filterIfExpired()
{
    if (!m_isPublished) {
        refilter();
    }
}

void FeatureTreeProxyModel::refilter()
{
    m_refilterQueued = false;
    const bool wasPublished = m_isPublished;
    const bool isChanged = judge();
    publish(isChanged || !wasPublished);
}

void FeatureTreeProxyModel::publish(bool isChanged)
{
    emit judged();
    if (isChanged || isSearchRowShown() != m_publishedSearchRow) {
        followVerdicts();
    }
    emit filtered();
}

void FeatureTreeProxyModel::followVerdicts()
{
    const QScopedValueRollback<bool> publishing(m_publishing, true);
    m_isPublished = true;
    ++m_publication;
    invalidate();
}

quint64 FeatureTreeProxyModel::publication() const
{
    return m_publication;
}

bool FeatureTreeProxyModel::isSearchRowShown() const
{
    FeatureTreeItem *const row = getSearchHelpItem();
    return row && (m_acceptAll || m_filter->isShownSearchRow(*row));
}

// Returns false when all verdicts are what they were.
bool FeatureTreeProxyModel::judge() const
{
    FeatureTreeItem *const root = rootItem();
    if (root) {
        return m_filter->judge(*root);
    }
    m_filter->reset();
    return true;
}

// Rows are asked for when a view comes to it; the names of the matches may be wanted before.
void FeatureTreeProxyModel::completePass() const
{
    if (model() && m_filter->hasText() && (m_filter->isExpired() || m_filter->isOutdated())) {
        m_isPublished = false;
        judge();
    }
}

template <typename Work>
void FeatureTreeProxyModel::rebuild(Work work)
{
    if (!model()) {
        return;
    }
    {
        const QScopedValueRollback<bool> rebuilding(m_rebuilding, true);
        work();
    }
    // Without a text, rows that came were judged when they did.
    if (m_filter->hasText() || !m_isPublished) {
        refilter();
    } else {
        emit filtered();
    }
}

/*! \brief What somebody holds of a row that is about to be made anew. */
struct FeatureTreeProxyModel::KeptRow
{
    QString fullName;
    QSharedPointer<ParameterCollection::IParameter> parameter;
    QModelIndex parked;
};

// Has the rows of a branch made anew. The base follows as they come and go one by one; for everybody else the
// layout changes once, and what they hold of a row follows it: editors, the current row, the selection.
template <typename Work>
void FeatureTreeProxyModel::keepRows(const QModelIndex &branch, Work work)
{
    const QPersistentModelIndex parent(branch);
    {
        const QScopedValueRollback<bool> publishing(m_publishing, true);
        emit layoutAboutToBeChanged();
    }
    const QList<KeptRow> rows = park(parent);
    {
        const QSignalBlocker blocker(this);
        const QScopedValueRollback<bool> keeping(m_keepsRows, true);
        work();
    }
    forgetMapping();
    if (!parent.isValid()) { // who was told of the rows by the source had the tree cleared
        beginResetModel();
        endResetModel();
        return;
    }
    unpark(parent, rows);
    if (m_filter->hasText() || !m_isPublished) {
        judge();
        emit judged();
        const QSignalBlocker blocker(this);
        followVerdicts();
    }
    emit layoutChanged();
}

// Takes the persistent indexes out of a branch, to beyond all top rows, where nothing happens to them.
QList<FeatureTreeProxyModel::KeptRow> FeatureTreeProxyModel::park(const QModelIndex &branch)
{
    constexpr int beyondAllRows = 1 << 24;
    QList<KeptRow> rows;
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList all = persistentIndexList();
    for (const QModelIndex &index : all) {
        const FeatureTreeItem *const item = index.parent() == branch ? itemAt(index) : nullptr;
        if (item) {
            from.append(index);
            to.append(createIndex(beyondAllRows + static_cast<int>(rows.size()), index.column(),
                                  branch.internalPointer()));
            rows.append({item->getFullName(), parameterOf(item), to.constLast()});
        }
    }
    changePersistentIndexList(from, to);
    return rows;
}

// Puts them where their rows are now; those of rows that are gone become invalid.
void FeatureTreeProxyModel::unpark(const QModelIndex &branch, const QList<KeptRow> &rows)
{
    const QModelIndex source = mapToSource(branch);
    const FeatureTreeItem *const parent = itemAt(branch);
    QHash<QString, int> places;
    for (int row = 0; row < parent->existingChildCount(); ++row) {
        places.insert(parent->child(row)->getFullName(), row);
    }
    QModelIndexList from;
    QModelIndexList to;
    for (const KeptRow &row : rows) {
        const int place = places.value(row.fullName, -1);
        const bool isSame = place >= 0 && parameterOf(parent->child(place)) == row.parameter;
        from.append(row.parked);
        to.append(isSame ? mapFromSource(sourceModel()->index(place, row.parked.column(), source))
                         : QModelIndex());
    }
    changePersistentIndexList(from, to);
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
    auto *parent = static_cast<FeatureTreeItem *>(sourceParent.internalPointer());
    if (!parent) {
        parent = rootItem();
    } else if (parent != m_lastAsked) { // rows are asked for one after the other
        if (!parent->parent()) {
            return false; // below the phantom
        }
        noteAsked(parent);
    }
    if (m_acceptAll || !parent) {
        return m_acceptAll;
    }
    if (m_frozen) {
        return m_filter->accepted(*parent, sourceRow);
    }
    if (m_keepsRows && m_filter->hasText()) {
        return true; // judged with all others when all have come
    }
    if (!m_filter->isExpired() && m_filter->isOutdated()) {
        m_isPublished = false; // the verdicts that the base knows were about other rows
        if (m_rebuilding) {
            return false; // a row has come; it shows with the pass at the end
        }
    }
    const bool isAccepted = m_filter->accepts(*parent, sourceRow);
    if (!sourceParent.isValid() && parent->child(sourceRow) == getSearchHelpItem()) {
        m_publishedSearchRow = isAccepted;
    }
    return isAccepted;
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
    return {*sourceModel(), filterRegularExpression(), m_filter->level()};
}

// Only the model's rowCount() fills a branch without announcing rows to the base, which may be asking.
void FeatureTreeProxyModel::loadChildren(FeatureTreeItem &item) const
{
    if (item.existingChildCount() == 0 && item.hasChildren()) {
        sourceModel()->rowCount(model()->indexForItem(&item, FeatureTreeColumns::name));
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
            m_filter->expire();
            forgetMapping();
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

void FeatureTreeProxyModel::onSourceRowsAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    for (int row = first; row <= last; ++row) {
        forgetAsked(model()->getFeatureTreeItem(model()->index(row, FeatureTreeColumns::name, parent)));
    }
}

// The base's invalidate() and the source's new layout ask for all rows anew.
void FeatureTreeProxyModel::onLayoutAboutToBeChanged()
{
    forgetMapping();
    if (!m_publishing) {
        m_filter->expire();
        m_isPublished = true;
    }
}

void FeatureTreeProxyModel::onSourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                                const QList<int> &roles)
{
    const FeatureTreeItem *const item = model()->getFeatureTreeItem(topLeft);
    if (!item || !item->parent()) {
        return;
    }
    const bool isSearchRow = item == getSearchHelpItem();
    if (item->isFlipping() || (isSearchRow && isSearchRowShown() != m_publishedSearchRow)) {
        queueRefilter();
    }
    if (signalsBlocked() || !isMapped(item->parent())) {
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

void FeatureTreeProxyModel::noteAsked(const FeatureTreeItem *parent) const
{
    forgetMapping(); // a new one may lie where an old one did
    m_lastAsked = parent;
    m_asked.insert(parent);
}

void FeatureTreeProxyModel::forgetMapping() const
{
    m_lastAsked = nullptr;
    m_siblings = {};
}

void FeatureTreeProxyModel::forgetAsked(const FeatureTreeItem *parent)
{
    if (!m_asked.remove(parent)) {
        return;
    }
    forgetMapping();
    for (int row = 0; row < parent->existingChildCount(); ++row) {
        forgetAsked(parent->child(row));
    }
}

// Whether the base has ever asked for the rows below. If not, nobody shows them.
bool FeatureTreeProxyModel::isMapped(const FeatureTreeItem *parent) const
{
    return !parent->parent() || m_asked.contains(parent);
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
    m_filter->reset();
    m_asked.clear();
    forgetMapping();
    m_publishedSearchRow = false;
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
    forward<&FeatureTreeModel::EnablePolling>(enable);
    reportPollingState();
}

bool FeatureTreeProxyModel::GetPolling() const
{
    return forward<&FeatureTreeModel::GetPolling>();
}

bool FeatureTreeProxyModel::IsFavoriteTreeItem(const FeatureTreeItem *item) const
{
    return forward<&FeatureTreeModel::IsFavoriteTreeItem>(item);
}

bool FeatureTreeProxyModel::IsFavoriteTreeRoot(const FeatureTreeItem *item) const
{
    return forward<&FeatureTreeModel::IsFavoriteTreeRoot>(item);
}

QModelIndex FeatureTreeProxyModel::indexForItem(FeatureTreeItem *item, int column)
{
    return mapped(forward<&FeatureTreeModel::indexForItem>(item, column));
}

QModelIndex FeatureTreeProxyModel::GetFavoritesRootIndex()
{
    return mapFromSource(forward<&FeatureTreeModel::GetFavoritesRootIndex>());
}

void FeatureTreeProxyModel::EnableViewAllFavorites(bool enable)
{
    forward<&FeatureTreeModel::EnableViewAllFavorites>(enable);
}

bool FeatureTreeProxyModel::GetViewAllFavorites() const
{
    return forward<&FeatureTreeModel::GetViewAllFavorites>();
}

void FeatureTreeProxyModel::SetDeviceAlive(bool alive)
{
    forward<&FeatureTreeModel::SetDeviceAlive>(alive);
}

bool FeatureTreeProxyModel::isDeviceAlive() const
{
    return !model() || model()->isDeviceAlive();
}

QModelIndex FeatureTreeProxyModel::findItem(const FeatureTreeItem *item, const FeatureTreeItem *start,
                                            int column)
{
    return mapped(forward<&FeatureTreeModel::findItem>(item, start, column));
}

QModelIndex FeatureTreeProxyModel::findItemByFullName(const QString &fullName, FeatureTreeItem *start,
                                                      int column)
{
    return mapped(forward<&FeatureTreeModel::findItemByFullName>(fullName, start, column));
}

QModelIndex FeatureTreeProxyModel::findItemByRole(int role, const QVariant &value, FeatureTreeItem *start,
                                                  int column)
{
    return mapped(forward<&FeatureTreeModel::findItemByRole>(role, value, start, column));
}

void FeatureTreeProxyModel::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString &title,
    const QString &nodeMapName, bool childNodeFlag)
{
    rebuild([&] {
        forward<&FeatureTreeModel::addParameterCollection>(std::move(collection), title, nodeMapName,
                                                           childNodeFlag);
    });
}

void FeatureTreeProxyModel::rebuildFavoriteItems()
{
    const auto work = [this] { forward<&FeatureTreeModel::rebuildFavoriteItems>(); };
    const QModelIndex branch = GetFavoritesRootIndex();
    if (!branch.isValid() || !getSearchHelpItem()) {
        rebuild(work); // makes top rows, too
    } else {
        keepRows(branch, work);
        emit filtered();
    }
}

void FeatureTreeProxyModel::CreateFavoritesRoot()
{
    rebuild([this] { forward<&FeatureTreeModel::CreateFavoritesRoot>(); });
}

void FeatureTreeProxyModel::replaceFavoritesZombies(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString &nodeMapName)
{
    rebuild([&] { forward<&FeatureTreeModel::replaceFavoritesZombies>(std::move(collection), nodeMapName); });
}

bool FeatureTreeProxyModel::RemoveFavorite(QModelIndex index)
{
    return forward<&FeatureTreeModel::RemoveFavorite>(mapToSource(index));
}

bool FeatureTreeProxyModel::AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int row)
{
    return forward<&FeatureTreeModel::AddFavorite>(std::move(parameter), row);
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
    return forward<&FeatureTreeModel::MoveFavorite>(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanMoveFavorite(QModelIndex index, bool up) const
{
    return forward<&FeatureTreeModel::CanMoveFavorite>(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanAddAsFavorite(QModelIndex index) const
{
    return forward<&FeatureTreeModel::CanAddAsFavorite>(mapToSource(index));
}

void FeatureTreeProxyModel::refresh()
{
    forward<&FeatureTreeModel::refresh>();
}

void FeatureTreeProxyModel::addChildren(FeatureTreeINodeItem *parent)
{
    forward<&FeatureTreeModel::addChildren>(parent);
}

void FeatureTreeProxyModel::setVisibility(GenApi::EVisibility visibility)
{
    if (visibility != m_filter->level()) {
        m_filter->setLevel(visibility);
        m_isPublished = false;
    }
    forward<&FeatureTreeModel::setVisibility>(visibility);
}

GenApi::EVisibility FeatureTreeProxyModel::getVisibility()
{
    return model() ? model()->getVisibility() : m_filter->level();
}

void FeatureTreeProxyModel::setMonitorMode(bool enable)
{
    forward<&FeatureTreeModel::setMonitorMode>(enable);
}

void FeatureTreeProxyModel::setGenICamCallbacksEnable(bool enable)
{
    forward<&FeatureTreeModel::setGenICamCallbacksEnable>(enable);
}

bool FeatureTreeProxyModel::getGenICamCallbackEnable() const
{
    return forward<&FeatureTreeModel::getGenICamCallbackEnable>();
}

FeatureTreeItem *FeatureTreeProxyModel::getFeatureTreeItem(const QModelIndex &index) const
{
    return itemAt(index);
}

void FeatureTreeProxyModel::setHighlighter(FeatureTreeHighlighter *highlighter)
{
    forward<&FeatureTreeModel::setHighlighter>(highlighter);
}

FeatureTreeItem *FeatureTreeProxyModel::getSearchHelpItem() const
{
    return forward<&FeatureTreeModel::getSearchHelpItem>();
}

void FeatureTreeProxyModel::refreshSpecialItems()
{
    forward<&FeatureTreeModel::refreshSpecialItems>();
}

void FeatureTreeProxyModel::onNodeUpdated(int row, FeatureTreeINodeItem *nodeItem)
{
    forward<&FeatureTreeModel::onNodeUpdated>(row, nodeItem);
}

void FeatureTreeProxyModel::onTimerPoll()
{
    forward<&FeatureTreeModel::onTimerPoll>();
    reportPollingState();
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
