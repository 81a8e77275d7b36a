// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreeview.h"

#include "accessibleeditors_p.h"
#include "accessibletree_p.h"
#include "editorfocus_p.h"
#include "editorintake_p.h"
#include "favoritesdata.h"
#include "featuretreedelegate.h"
#include "featuretreeinodeitem.h"
#include "featuretreemodel.h"
#include "featuretreenames.h"
#include "featuretreeproxymodel.h"
#include "inteditor.h"
#include "openeditors_p.h"

#include <platform/core/guard.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

ZELTO_LOG_CATEGORY("zelto.viewer.libs.zeltoViewerComponents.featureTreeView")

namespace {

bool isInRows(QModelIndex index, const QModelIndex &parent, int first, int last)
{
    while (index.isValid() && index.parent() != parent) {
        index = index.parent();
    }
    return index.isValid() && first <= index.row() && index.row() <= last;
}

bool isSameRow(const QModelIndex &a, const QModelIndex &b)
{
    return a.row() == b.row() && a.parent() == b.parent();
}

// Returns the colours in which a selected row looks like any other.
QPalette unselectedPalette(QPalette colors)
{
    QColor activeText = colors.color(QPalette::Active, QPalette::Text);
    activeText.setAlpha(128);
    colors.setBrush(QPalette::Active, QPalette::HighlightedText, activeText);
    for (const auto group : {QPalette::Disabled, QPalette::Inactive}) {
        colors.setBrush(group, QPalette::HighlightedText, colors.color(group, QPalette::Text));
    }
    for (const auto group : {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
        colors.setBrush(group, QPalette::Highlight, QColor(0, 0, 0, 0));
    }
    return colors;
}

// Without a pen, which on scaled screens is drawn half beside the row.
void frameRow(QPainter *painter, const QRect &row, const QColor &color, int width)
{
    painter->fillRect(QRect(row.left(), row.top(), row.width(), width), color);
    painter->fillRect(QRect(row.left(), row.bottom() - width + 1, row.width(), width), color);
    painter->fillRect(QRect(row.left(), row.top(), width, row.height()), color);
    painter->fillRect(QRect(row.right() - width + 1, row.top(), width, row.height()), color);
}

} // namespace

FeatureTreeView::FeatureTreeView(QWidget *parent)
    : QTreeView(parent)
    , m_editors(std::make_unique<OpenEditors>(
          this, [this](const QModelIndex &index) { return wantsEditor(itemAt(index)); }))
    , m_focus(std::make_unique<EditorFocus>(this, m_editors.get()))
{
    AccessibleEditors::install();
    keepBackgroundWhenDisabled();
    setUniformRowHeights(true);
    setFocusPolicy(Qt::TabFocus); // clicks on rows take it, those on a scroll bar leave it to what is typed
    createModel();
    connect(this, SIGNAL(expanded(const QModelIndex &)), this, SLOT(onSelfExpanded(const QModelIndex &)));
    connect(this, SIGNAL(collapsed(const QModelIndex &)), this, SLOT(onSelfCollapsed(const QModelIndex &)));
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(true);

    FavoritesData &favorites = getFeatureExtension()->GetFavorites();
    favorites.attach(QStringLiteral("Favorites"));
    connect(&favorites, SIGNAL(dataUpdated()), this, SLOT(onFavoriteDataUpdated()));
    connect(&favorites, SIGNAL(expanded(bool)), this, SLOT(onFavoriteDataExpanded(bool)));
    connect(m_focus.get(), SIGNAL(copyRequested()), this, SLOT(copyValue()));
    connect(m_focus.get(), SIGNAL(escaped(QWidget *)), this, SLOT(onEscaped(QWidget *)));
    // Later: what is chosen from a menu, which closes first, is about the row of the menu.
    connect(m_focus.get(), SIGNAL(returned()), this, SLOT(goBackToTyping()), Qt::QueuedConnection);
    connect(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)), this,
            SLOT(onFocusChanged(QWidget *, QWidget *)));
}

FeatureTreeView::~FeatureTreeView()
{
    if (IFeatureTreeModelExtension *const extension = getFeatureExtension()) {
        extension->GetFavorites().detach(this);
    }
}

void FeatureTreeView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        keepBackgroundWhenDisabled();
    } else if (event->type() == QEvent::LanguageChange) {
        m_editors->refresh();
        viewport()->update();
    }
}

void FeatureTreeView::keepBackgroundWhenDisabled()
{
    QPalette tuned = palette();
    const QBrush background = tuned.brush(QPalette::Active, QPalette::Base);
    if (tuned.brush(QPalette::Disabled, QPalette::Base) != background) {
        tuned.setBrush(QPalette::Disabled, QPalette::Base, background);
        setPalette(tuned);
    }
}

void FeatureTreeView::createModel()
{
    auto *const proxy = new FeatureTreeProxyModel(this);
    proxy->setSourceModel(new FeatureTreeModel(proxy));
    setModel(proxy);
    proxy->setDynamicSortFilter(false);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy->setFilterKeyColumn(1);
    static_cast<IFeatureTreeModelExtension *>(proxy)->setHighlighter(&m_highlighter);
    setItemDelegate(new FeatureTreeDelegate(this, proxy, &m_highlighter));

    // After the base's own connections, which schedule the new layout.
    connect(
        proxy,
        SIGNAL(layoutAboutToBeChanged(QList<QPersistentModelIndex>, QAbstractItemModel::LayoutChangeHint)),
        this, SLOT(onLayoutAboutToChange()));
    connect(proxy, SIGNAL(layoutChanged(QList<QPersistentModelIndex>, QAbstractItemModel::LayoutChangeHint)),
            this, SLOT(onLayoutChanged()));
    connect(proxy, SIGNAL(modelAboutToBeReset()), this, SLOT(onModelAboutToReset()));
    connect(proxy, SIGNAL(modelReset()), this, SLOT(onModelReset()));
}

IFeatureTreeModelExtension *FeatureTreeView::getFeatureExtension()
{
    // Asked for with every row that is looked at, and a cast takes longer than the rest.
    if (m_castModel != model()) {
        m_castModel = model();
        m_extension = dynamic_cast<IFeatureTreeModelExtension *>(model());
    }
    return m_castModel ? m_extension : nullptr;
}

const IFeatureTreeModelExtension *FeatureTreeView::getFeatureExtension() const
{
    return const_cast<FeatureTreeView *>(this)->getFeatureExtension();
}

FeatureTreeHighlighter *FeatureTreeView::getHightlighter()
{
    return &m_highlighter;
}

QString FeatureTreeView::getSettingsPath() const
{
    auto *const extension = const_cast<FeatureTreeView *>(this)->getFeatureExtension();
    return extension ? extension->GetFavorites().settingsGroup() : QString();
}

void FeatureTreeView::setSettingsPath(const QString &path)
{
    if (IFeatureTreeModelExtension *const extension = getFeatureExtension()) {
        extension->GetFavorites().setSettingsGroup(path);
    }
}

FeatureTreeItem *FeatureTreeView::itemAt(const QModelIndex &index) const
{
    const IFeatureTreeModelExtension *const extension = getFeatureExtension();
    return extension && index.isValid() ? extension->getFeatureTreeItem(index) : nullptr;
}

bool FeatureTreeView::isOpen(const QModelIndex &parent) const
{
    return !parent.isValid() || isExpanded(parent);
}

bool FeatureTreeView::wantsEditor(FeatureTreeItem *item) const
{
    return item && (item->usePersistentEditor() || hasOwnEditor(*item)) && item->ShowMe(m_visibility)
        && item->getVisibility() <= m_visibility && item->getAccessMode() > GenApi::NA;
}

// An editor of the application's own stays open whatever the type of its feature.
bool FeatureTreeView::hasOwnEditor(const FeatureTreeItem &item) const
{
    const auto *const delegate = qobject_cast<const FeatureTreeDelegate *>(itemDelegate());
    const auto *const nodeItem = delegate ? qobject_cast<const FeatureTreeINodeItem *>(&item) : nullptr;
    const auto parameter = nodeItem ? nodeItem->node() : nullptr;
    return parameter
        && Core::guarded({logCategory(), "FeatureTreeView::hasOwnEditor"},
                         QStringLiteral("Failed to look for an own editor"), false,
                         [delegate, &parameter] { return delegate->hasEditorFactory(*parameter); });
}

void FeatureTreeView::openPersistentEditor(const QModelIndex &index)
{
    FeatureTreeItem *const item = itemAt(index);
    if (item && getFeatureExtension()->indexForItem(item, index.column()).isValid() && wantsEditor(item)) {
        m_editors->open(index);
    }
}

void FeatureTreeView::openPersistentEditorsForChildren(const QModelIndex &parent)
{
    if (!isOpen(parent)) {
        return;
    }
    OpenEditors::Rows wanted;
    const int count = model()->rowCount(parent);
    for (int row = 0; row < count && wanted.size() <= OpenEditors::limit; ++row) {
        const QModelIndex index = model()->index(row, FeatureTreeColumns::value, parent);
        if (wantsEditor(itemAt(index))) {
            wanted.append(index);
        }
    }
    m_editors->equip(wanted, true);
}

QWidget *FeatureTreeView::indexWidget(const QModelIndex &index) const
{
    m_editors->equipViewport();
    QWidget *const widget = QTreeView::indexWidget(index);
    const bool isMissing = !widget && !m_wasShown && m_editors->isLimited()
        && index.column() == FeatureTreeColumns::value && m_editors->isReachable(index);
    if (isMissing) {
        const_cast<FeatureTreeView *>(this)->openPersistentEditor(index);
    }
    return isMissing ? QTreeView::indexWidget(index) : widget;
}

void FeatureTreeView::doItemsLayout()
{
    // The header forgets its widths with each layout and finds the same ones again. Told as news, they would
    // have the value column painted twice.
    const QSignalBlocker blocker(header());
    QTreeView::doItemsLayout();
    header()->sectionSize(FeatureTreeColumns::value);
}

void FeatureTreeView::updateGeometries()
{
    m_focus->takeFromUnseenRow();
    QTreeView::updateGeometries();
    noteMovement();
}

void FeatureTreeView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    noteMovement();
}

void FeatureTreeView::noteMovement()
{
    m_editors->noteMovement();
    if (m_batches == 0) {
        m_editors->equipViewport();
    }
}

void FeatureTreeView::showEvent(QShowEvent *event)
{
    m_wasShown = true;
    QTreeView::showEvent(event);
    m_editors->noteMovement();
    m_editors->equipViewport(); // at once, as what is shown is painted at once
}

void FeatureTreeView::updateRows(const QModelIndex &parent)
{
    if (!model() || !isOpen(parent)) {
        return;
    }
    if (m_batches > 0) {
        m_areRowsStale = true;
        return;
    }
    OpenEditors::Rows wanted;
    updateRowsBelow(parent, wanted);
    m_editors->equip(wanted, parent.isValid());
}

// Appends the rows that want an editor, and no more of them than tell whether there are too many.
void FeatureTreeView::updateRowsBelow(const QModelIndex &parent, QList<QPersistentModelIndex> &wanted)
{
    const int count = model()->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model()->index(row, FeatureTreeColumns::name, parent);
        FeatureTreeItem *const item = itemAt(index);
        if (!item) {
            continue;
        }
        updateRow(index, parent, item);
        if (wanted.size() <= OpenEditors::limit && wantsEditor(item)) {
            wanted.append(index.siblingAtColumn(FeatureTreeColumns::value));
        }
        if (item->hasChildren() && isExpanded(index)) {
            updateRowsBelow(index, wanted);
        }
    }
}

void FeatureTreeView::updateRow(const QModelIndex &index, const QModelIndex &parent,
                                const FeatureTreeItem *item)
{
    const bool mayBeFullRow = item->isCategory() || !qobject_cast<const FeatureTreeINodeItem *>(item);
    if (mayBeFullRow) {
        spanRow(index, parent);
    }
    showRow(index.row(), parent, item->ShowMe(m_visibility));
}

void FeatureTreeView::showRow(int row, const QModelIndex &parent, bool isShown)
{
    if (isRowHidden(row, parent) != isShown) {
        return;
    }
    QModelIndex branch = currentIndex(); // the row itself, when it is the current one or above it
    while (branch.isValid() && (branch.row() != row || branch.parent() != parent)) {
        branch = branch.parent();
    }
    const bool isCurrentLost = branch.isValid() && !isShown;
    if (isCurrentLost) {
        dropEditor();
    }
    setRowHidden(row, parent, !isShown);
    if (isCurrentLost) {
        setCurrentIndex(QModelIndex());
    }
}

void FeatureTreeView::spanRow(const QModelIndex &index, const QModelIndex &parent)
{
    const bool isFullRow =
        index.siblingAtColumn(FeatureTreeColumns::name).data(FeatureTreeItem::IsFullRowItem).toBool();
    if (isFirstColumnSpanned(index.row(), parent) == isFullRow) {
        return;
    }
    if (m_batches > 0) {
        m_areRowsStale = true; // to span a row lays out all of them, if that is due
        return;
    }
    setFirstColumnSpanned(index.row(), parent, isFullRow);
}

void FeatureTreeView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    if (m_batches > 0 && !QAccessible::isActive()) {
        m_areRowsStale = true; // the base would lay out all rows, and move all editors, for each of them
        return;
    }
    QTreeView::rowsInserted(parent, start, end);
    if (!isOpen(parent)) {
        return;
    }
    if (m_batches > 0) {
        m_areRowsStale = true;
        return;
    }
    OpenEditors::Rows wanted;
    for (int row = start; row <= end; ++row) {
        const QModelIndex index = model()->index(row, FeatureTreeColumns::name, parent);
        if (FeatureTreeItem *const item = itemAt(index)) {
            updateRow(index, parent, item);
            if (wantsEditor(item)) {
                wanted.append(index.siblingAtColumn(FeatureTreeColumns::value));
            }
        }
    }
    m_editors->equip(wanted, true);
}

void FeatureTreeView::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    if (isInRows(currentIndex(), parent, start, end)) {
        // The base would make the next row the current one, and open its editor.
        dropEditor();
        setCurrentIndex(QModelIndex());
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void FeatureTreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QList<int> &roles)
{
    dropLockedEditor();
    AccessibleTree::tellChange(this, topLeft);
    const bool isAsBefore = topLeft == bottomRight && isNameAsBefore(topLeft);
    if (topLeft == bottomRight && topLeft.isValid()) {
        Core::guardedRun({logCategory(), "FeatureTreeView::dataChanged"},
                         QStringLiteral("Failed to access the node"), [this, &topLeft] {
                             if (topLeft.column() == FeatureTreeColumns::name) {
                                 spanRow(topLeft, topLeft.parent());
                             }
                             updateCell(topLeft);
                         });
    }
    if (m_batches > 0) {
        showInEditor(topLeft);
        m_isLayoutStale = true; // which paints all rows
        return;
    }
    executeDelayedItemsLayout();
    if (!isAsBefore) {
        QTreeView::dataChanged(topLeft, bottomRight, roles);
    }
}

// Values come by the thousand, and the base would paint the name of each again.
bool FeatureTreeView::isNameAsBefore(const QModelIndex &index) const
{
    const auto *const item = index.column() == FeatureTreeColumns::name
        ? qobject_cast<const FeatureTreeINodeItem *>(itemAt(index))
        : nullptr;
    return item && item->isValueAloneNew();
}

void FeatureTreeView::showInEditor(const QModelIndex &index)
{
    if (QWidget *const editor = QTreeView::indexWidget(index)) {
        itemDelegate()->setEditorData(editor, index);
    }
}

// The rows were made anew.
void FeatureTreeView::showInEditorsBelow(const QModelIndex &parent)
{
    const int count = parent.isValid() ? model()->rowCount(parent) : 0;
    for (int row = 0; row < count; ++row) {
        const QModelIndex value = model()->index(row, FeatureTreeColumns::value, parent);
        if (QTreeView::indexWidget(value)) {
            updateCell(value);
            showInEditor(value);
        }
    }
}

void FeatureTreeView::updateCell(const QModelIndex &index)
{
    FeatureTreeItem *const item = itemAt(index);
    if (!item) {
        return;
    }
    if (index.column() != FeatureTreeColumns::value) {
        if (item->getFullName() == FeatureTreeNames::dummy && m_batches == 0) {
            setFirstColumnSpanned(0, index.parent(), true);
        }
        return;
    }
    const bool wasHidden = isRowHidden(index.row(), index.parent());
    const bool isShown = item->ShowMe(m_visibility);
    showRow(index.row(), index.parent(), isShown);
    updateEditor(index, item, wasHidden && !isShown);
}

void FeatureTreeView::updateEditor(const QModelIndex &index, FeatureTreeItem *item, bool wasHidden)
{
    const bool isHidden = isRowHidden(index.row(), index.parent());
    const bool isAvailable = item->getAccessMode() > GenApi::NA;
    const auto *const nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
    QWidget *const editor = QTreeView::indexWidget(index);
    if (!editor) {
        if (!isHidden && isAvailable && item->usePersistentEditor() && m_editors->hasRoomFor(index)) {
            openPersistentEditor(index);
        }
    } else if (wasHidden) {
        return;
    } else if (!item->usePersistentEditor()) {
        if (!nodeItem || !nodeItem->isEditable() || isHidden) {
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    } else if (!isAvailable || isHidden) {
        if (m_focus->editor() == editor) {
            dropEditor();
        }
        closePersistentEditor(index);
    }
}

// The editor with the focus gives it to the tree and does not commit.
void FeatureTreeView::dropEditor()
{
    QWidget *const editor = m_focus->dropEditor();
    if (editor && !m_editors->contains(editor)) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

// Before the editor is disabled: then, the focus would wander on to another one, or be lost.
void FeatureTreeView::dropLockedEditor()
{
    const QModelIndex index = m_focus->editor() ? m_focus->row(currentIndex()) : QModelIndex();
    const auto *const item = qobject_cast<FeatureTreeINodeItem *>(itemAt(index));
    const auto snapshot = item ? item->getParameterData() : nullptr;
    if (snapshot && !EditorIntake::canBeChanged(*snapshot)) {
        dropEditor();
    }
}

void FeatureTreeView::onModelAboutToReset()
{
    m_focus->abandonEditor();
}

void FeatureTreeView::onLayoutAboutToChange()
{
    m_hadCurrent = currentIndex().isValid();
}

void FeatureTreeView::onLayoutChanged()
{
    m_focus->takeFromLostRow();
    m_editors->forgetClosed();
    // Rows that were hidden come back shown, and rows that came need all that rows need.
    updateRows(QModelIndex());
    AccessibleTree::tellRows(this);
    if (m_hadCurrent && !currentIndex().isValid()) {
        emit onCurrentChanged(QModelIndex()); // filtered out, of which the base tells nobody
    }
}

void FeatureTreeView::onModelReset()
{
    m_editors->forgetAll();
    emit onCurrentChanged(QModelIndex());
    updateRows(QModelIndex());
}

bool FeatureTreeView::mayHaveOpenRows(const QModelIndex &branch) const
{
    const auto *const proxy = qobject_cast<const FeatureTreeProxyModel *>(model());
    return model()->hasChildren(branch) && (!proxy || proxy->isUnfolded(branch));
}

QModelIndexList FeatureTreeView::branchesBelow(const QModelIndex &parent) const
{
    QModelIndexList branches;
    const int count = model()->rowCount(parent); // which loads them
    const FeatureTreeItem *const item = itemAt(parent);
    if (!item) {
        for (int row = 0; row < count; ++row) {
            const QModelIndex index = model()->index(row, FeatureTreeColumns::name, parent);
            if (model()->hasChildren(index)) {
                branches.append(index);
            }
        }
        return branches;
    }
    auto *const extension = const_cast<FeatureTreeView *>(this)->getFeatureExtension();
    for (int row = 0; row < item->existingChildCount(); ++row) {
        FeatureTreeItem *const child = item->child(row);
        const QModelIndex index =
            child->hasChildren() ? extension->indexForItem(child, FeatureTreeColumns::name) : QModelIndex();
        if (index.isValid()) { // not filtered out
            branches.append(index);
        }
    }
    return branches;
}

void FeatureTreeView::expandToDepth(int depth)
{
    expandBranches([depth](const QModelIndex &, int level) { return level <= depth; });
}

void FeatureTreeView::expandEverything()
{
    expandBranches([](const QModelIndex &, int) { return true; });
}

void FeatureTreeView::setExpandedRows(const std::function<bool(const QModelIndex &)> &isExpanded)
{
    expandBranches([&isExpanded](const QModelIndex &index, int) { return isExpanded(index); });
}

void FeatureTreeView::setExpandedRows(const QModelIndex &top,
                                      const std::function<bool(const QModelIndex &)> &isExpanded)
{
    const Batch batch(this);
    const QScopedValueRollback<bool> expanding(m_isExpandingMany, true);
    scheduleDelayedItemsLayout(); // so that expanding merely stores the state
    expandBranch(top, 0, [&isExpanded](const QModelIndex &index, int) { return isExpanded(index); });
}

void FeatureTreeView::expandBranches(const ExpansionRule &isExpanded)
{
    const Batch batch(this);
    const QScopedValueRollback<bool> expanding(m_isExpandingMany, true);
    scheduleDelayedItemsLayout();
    const QModelIndexList branches = branchesBelow(QModelIndex());
    for (const QModelIndex &branch : branches) {
        expandBranch(branch, 0, isExpanded);
    }
}

void FeatureTreeView::expandBranch(const QModelIndex &index, int depth, const ExpansionRule &isExpanded)
{
    if (!model()->hasChildren(index)) {
        return;
    }
    const bool expand = isExpanded(index, depth);
    if (expand != this->isExpanded(index)) {
        setExpanded(index, expand);
        m_areRowsStale = m_areRowsStale || expand;
    }
    if (!expand && !mayHaveOpenRows(index)) {
        return; // nothing to close, and nothing to create for it
    }
    const QModelIndexList branches = branchesBelow(index);
    for (const QModelIndex &branch : branches) {
        expandBranch(branch, depth + 1, isExpanded);
    }
}

void FeatureTreeView::onSelfExpanded(const QModelIndex &index)
{
    AccessibleTree::tellExpanded(this, index);
    if (m_isExpandingMany) {
        return;
    }
    updateRows(index);
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    if (extension && index == extension->GetFavoritesRootIndex()) {
        extension->GetFavorites().setExpanded(true);
    }
    openPersistentEditorsForChildren(index);
}

void FeatureTreeView::onSelfCollapsed(const QModelIndex &index)
{
    AccessibleTree::tellExpanded(this, index);
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    if (!m_isExpandingMany && extension && index == extension->GetFavoritesRootIndex()) {
        extension->GetFavorites().setExpanded(false);
    }
}

void FeatureTreeView::onFavoriteDataExpanded(bool expanded)
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex root = extension ? extension->GetFavoritesRootIndex() : QModelIndex();
    if (root.isValid() && isExpanded(root) != expanded) {
        setExpanded(root, expanded);
    }
}

void FeatureTreeView::onFavoriteDataUpdated()
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    if (!extension) {
        return;
    }
    const QScopedValueRollback<bool> keepsFocus(m_keepsFocus, true);
    const QModelIndex branch = extension->GetFavoritesRootIndex();
    const QModelIndex current = currentIndex();
    // Rows outside the branch stay as they are; a name would find a feature in the first of its categories.
    const bool isFavorite = branch.isValid() && current.parent() == branch;
    const int row = current.row();
    const QString currentName = current.data(FeatureTreeItem::FullNodeNameRole).toString();
    const QStringList selectedNames = selectedFavorites(branch);
    const Batch batch(this);
    if (!isFavorite && !m_topRow.isValid() && isVisible() && verticalScrollBar()->value() > 0) {
        m_topRow = indexAt(QPoint(0, 0)); // rows that come and go above do not move what is looked at
    }

    m_areRowsStale = true;
    extension->rebuildFavoriteItems();
    if (m_highlighter.text().isEmpty() || !branch.isValid()) { // a search has its own expansion
        onFavoriteDataExpanded(extension->GetFavorites().isExpanded());
    }
    showInEditorsBelow(extension->GetFavoritesRootIndex());
    for (const QString &name : selectedNames) {
        const QModelIndex index = favoriteNamed(name);
        selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    if (isFavorite) {
        restoreFavorite(currentName, row);
    }
}

QStringList FeatureTreeView::selectedFavorites(const QModelIndex &branch) const
{
    QStringList fullNames;
    const QModelIndexList selected = selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        if (branch.isValid() && index.parent() == branch) {
            fullNames.append(index.data(FeatureTreeItem::FullNodeNameRole).toString());
        }
    }
    return fullNames;
}

QModelIndex FeatureTreeView::favoriteNamed(const QString &fullName)
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    FeatureTreeItem *const branch = itemAt(extension->GetFavoritesRootIndex());
    return branch ? extension->findItemByFullName(fullName, branch, FeatureTreeColumns::name) : QModelIndex();
}

// Makes the favorite of that name the current row, or else what took its place.
void FeatureTreeView::restoreFavorite(const QString &fullName, int row)
{
    IFeatureTreeModelExtension *const extension = getFeatureExtension();
    const QModelIndex branch = extension->GetFavoritesRootIndex();
    QModelIndex index = favoriteNamed(fullName);
    if (!index.isValid()) {
        const int last = model()->rowCount(branch) - 1;
        index = model()->index(std::min(row, last), FeatureTreeColumns::name, branch);
    }
    const FeatureTreeItem *const item = itemAt(index);
    const bool isUsable = index.flags().testFlag(Qt::ItemIsSelectable) && item && item->ShowMe(m_visibility);
    m_keptInSight = isUsable ? index : branch;
    if (!isSameRow(currentIndex(), m_keptInSight)) {
        setCurrentIndex(m_keptInSight);
    }
}

void FeatureTreeView::setVisibility(GenApi::EVisibility level)
{
    // Shared by all views: another view's call makes the next one of this view do the full work again.
    static QPointer<QAbstractItemModel> recordedModel;
    if (level == m_visibility && model() == recordedModel) {
        return;
    }
    m_visibility = level;
    recordedModel = model();
    if (IFeatureTreeModelExtension *const extension = getFeatureExtension()) {
        onFavoriteDataUpdated();
        extension->refresh();
    }
}

FeatureTreeView::Batch::Batch(FeatureTreeView *view)
    : m_view(view)
{
    ++view->m_batches;
}

FeatureTreeView::Batch::~Batch()
{
    if (m_view && --m_view->m_batches == 0) {
        m_view->finishBatch();
    }
}

void FeatureTreeView::finishBatch()
{
    const bool areRowsStale = std::exchange(m_areRowsStale, false);
    if (areRowsStale || std::exchange(m_isLayoutStale, false)) {
        m_isLayoutStale = false;
        scheduleDelayedItemsLayout();
    }
    if (areRowsStale) {
        updateRows(QModelIndex());
    }
    if (const QModelIndex top = std::exchange(m_topRow, {}); top.isValid()) {
        scrollTo(top, PositionAtTop);
    }
    if (const QModelIndex row = std::exchange(m_keptInSight, {}); row.isValid()) {
        scrollTo(row);
    }
}

void FeatureTreeView::paintEvent(QPaintEvent *event)
{
    executeDelayedItemsLayout();
    m_editors->equipViewport();
    {
        const QScopedValueRollback<QRegion> painted(m_painted, event->region());
        QTreeView::paintEvent(event);
    }
    if (model() && model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Active, QPalette::Text));
        painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop, tr("No search results found."));
    }
}

void FeatureTreeView::drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                              const QModelIndex &index) const
{
    QItemSelectionModel *const selection = selectionModel();
    const bool isSelected = selection->isSelected(index);
    // The base has all cells of a row painted for a value that is new; the delegate leaves out what is
    // clipped.
    const QRegion painted = m_painted.intersected(options.rect);
    const bool isPart = !painted.isEmpty() && painted != QRegion(options.rect);
    if (isPart) {
        painter->setClipRegion(painted);
    }
    {
        const QSignalBlocker blocker(selection);
        if (isSelected) {
            selection->select(index, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
        }
        QTreeView::drawRow(painter, options, index);
        if (isSelected) {
            selection->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    if (isPart) {
        painter->setClipping(false);
    }
    if (isSameRow(currentIndex(), index)) {
        // Where keys go that reach no editor is seen by the width.
        frameRow(painter, options.rect, palette().color(QPalette::Active, QPalette::Highlight),
                 hasFocus() ? 2 : 1);
    }
}

void FeatureTreeView::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTreeView::initViewItemOption(option);
    // Kept until the palette changes: styles cache what they draw by the palette, and a new one at each
    // painting would fill the cache of pixmaps with copies of the same arrows.
    if (!m_rowPalette || m_rowPaletteSource != option->palette.cacheKey()) {
        m_rowPaletteSource = option->palette.cacheKey();
        m_rowPalette = unselectedPalette(option->palette);
    }
    option->palette = *m_rowPalette;
}

void FeatureTreeView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    // Who is told may clear the tree.
    const QPersistentModelIndex newRow(current);
    const QPersistentModelIndex oldRow(previous);
    emit onCurrentChanged(current);
    if (!m_keepsFocus && newRow.isValid() && !isSameRow(m_focus->row(oldRow), newRow)) {
        m_focus->takeFrom(viewport());
    }
    // The base would close the editor of the row that is left.
    QTreeView::currentChanged(newRow, m_keepsEditor ? QModelIndex() : QModelIndex(oldRow));
    // The base repaints the cells; the frame goes around the whole row, with its indentation.
    for (const QModelIndex &index : {QModelIndex(newRow), QModelIndex(oldRow)}) {
        const QRect cell = visualRect(index);
        viewport()->update(0, cell.y(), viewport()->width(), cell.height());
    }
}

// The same in every column and editor: the value; of rows without one, the name.
void FeatureTreeView::copyValue()
{
    const QModelIndex name = currentIndex().siblingAtColumn(FeatureTreeColumns::name);
    const auto *const item = qobject_cast<FeatureTreeINodeItem *>(itemAt(name));
    const bool isSpecial = name.data(FeatureTreeItem::IsSpecialNode).toBool(); // with markup in its text
    const QString text = item && !item->isCategory()
        ? item->valueText()
        : name.data(isSpecial ? Qt::AccessibleTextRole : Qt::DisplayRole).toString();
    if (!text.isEmpty()) {
        QApplication::clipboard()->setText(text);
    }
}

void FeatureTreeView::onEscaped(QWidget *editor)
{
    if (const QModelIndex index = m_editors->rowOf(editor); index.isValid()) {
        itemDelegate()->setEditorData(editor, index);
    }
}

void FeatureTreeView::keyboardSearch(const QString &search)
{
    m_searchClock.start();
    QTreeView::keyboardSearch(search);
}

// Returns whether a name is being typed, whose next letter must not go into the editor of the row found so
// far.
bool FeatureTreeView::isSearching() const
{
    return m_searchClock.isValid() && m_searchClock.elapsed() < QApplication::keyboardInputInterval();
}

void FeatureTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copyValue();
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Space && isSearching()) {
        keyboardSearch(event->text());
        event->accept();
        return;
    }
    const QScopedValueRollback<bool> keepsFocus(m_keepsFocus, true);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && state() != EditingState && edit(currentIndex(), EditKeyPressed, event)) {
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

// A right click is for the menu of a row; what is being typed, there or elsewhere, waits until that is
// closed.
void FeatureTreeView::mousePressEvent(QMouseEvent *event)
{
    m_typingRow = QModelIndex();
    if (event->button() != Qt::RightButton || !m_focus->isTyping()) {
        setFocus();
        QTreeView::mousePressEvent(event);
        return;
    }
    const QModelIndex clicked = indexAt(event->position().toPoint());
    const QModelIndex typing = m_focus->row(currentIndex());
    if (clicked.isValid() && !isSameRow(clicked, typing)) {
        m_typingRow = typing;
        goToRowBesideEditor(clicked);
    }
}

// The current row changes, and what is being typed in another one goes on.
void FeatureTreeView::goToRowBesideEditor(const QModelIndex &index)
{
    const QScopedValueRollback<bool> keepsFocus(m_keepsFocus, true);
    const QScopedValueRollback<bool> keepsEditor(m_keepsEditor, true);
    setCurrentIndex(index);
}

void FeatureTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_typingRow.isValid()) {
        // The menu may be yet to come.
        QMetaObject::invokeMethod(this, "goBackToTyping", Qt::QueuedConnection);
        return;
    }
    QTreeView::mouseReleaseEvent(event);
}

void FeatureTreeView::goBackToTyping()
{
    if (!m_typingRow.isValid() || QApplication::activePopupWidget()) {
        return;
    }
    if (m_focus->isTyping()) {
        goToRowBesideEditor(m_typingRow);
    }
    m_typingRow = QModelIndex();
}

bool FeatureTreeView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (trigger == AnyKeyPressed && m_isForwardingKey) {
        // The editor has no use for the key; the names are searched for it.
        m_isForwardingKey = false;
        setCurrentIndex(index.siblingAtColumn(FeatureTreeColumns::name));
        return false;
    }
    if (trigger == AnyKeyPressed && isSearching()) {
        return false;
    }
    if (trigger == CurrentChanged && m_keepsFocus) {
        return false; // keys walk over editors
    }
    if (trigger != EditKeyPressed && trigger != AnyKeyPressed) {
        const QWidget *const editor = indexWidget(index);
        // The base would take a click for an edit, and not go to the row.
        return (!editor || editor->isEnabled()) && QTreeView::edit(index, trigger, event);
    }
    const QModelIndex value = index.siblingAtColumn(FeatureTreeColumns::value);
    if (!visualRect(value).isValid()) {
        return false; // the current row may be in a collapsed branch, where nobody sees what is typed
    }
    return indexWidget(value) ? activateEditor(value, trigger, event)
                              : QTreeView::edit(value, trigger, event);
}

// A row's editor is where the focus is, also when that is a part of the editor.
void FeatureTreeView::onFocusChanged(QWidget *old, QWidget *now)
{
    m_focus->follow(old, now);
    if (now == this && QAccessible::isActive()) {
        // After Qt has told that the whole tree has it.
        QMetaObject::invokeMethod(
            this, [this] { AccessibleTree::tellFocus(this, currentIndex()); }, Qt::QueuedConnection);
    }
    const QModelIndex index = m_editors->rowOf(now == QApplication::focusWidget() ? now : nullptr);
    const QModelIndex current = currentIndex();
    if (index.isValid() && !isSameRow(index, current)) {
        const QScopedValueRollback<bool> keepsFocus(m_keepsFocus, true);
        setCurrentIndex(index);
    }
}

bool FeatureTreeView::focusNextPrevChild(bool next)
{
    const QModelIndex row = m_editors->rowOf(QApplication::focusWidget());
    if (row.isValid()) {
        goToNeighbour(row, next);
        return true;
    }
    // From the tree itself into the editors where the current row is, not up to the first one.
    const QModelIndex above = next && hasFocus() ? indexAbove(currentIndex()) : QModelIndex();
    if (above.isValid()) {
        goToNeighbour(above, true);
        return true;
    }
    return QTreeView::focusNextPrevChild(next);
}

// An editor's keys take effect a little later, when it may have lost its row.
void FeatureTreeView::commitData(QWidget *editor)
{
    if (editor && !editor->signalsBlocked()) {
        QTreeView::commitData(editor);
    }
}

void FeatureTreeView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor->signalsBlocked()) {
        return;
    }
    const auto *const integerEditor = qobject_cast<const IntEditor *>(editor);
    if (integerEditor && integerEditor->isRefused() && hint == QAbstractItemDelegate::SubmitModelCache) {
        return; // what was entered with Return stays for correction
    }
    const bool below = hint == QAbstractItemDelegate::EditNextItem;
    if (!below && hint != QAbstractItemDelegate::EditPreviousItem) {
        QTreeView::closeEditor(editor, hint);
        return;
    }
    // The base would go on in the column that happens to be the current one.
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    goToNeighbour(currentIndex(), below);
}

// The focus goes from the first editor back to the tree and from the last one to what comes after the tree.
void FeatureTreeView::goToNeighbour(const QModelIndex &from, bool below)
{
    if (!editNeighbour(from, below)) {
        m_focus->leaveEditors(below);
    }
}

// Goes to the nearest row below, or above, with something to edit. Returns whether there is one.
bool FeatureTreeView::editNeighbour(const QModelIndex &from, bool below)
{
    const auto neighbour = [this, below](const QModelIndex &index) {
        const QModelIndex name = index.siblingAtColumn(FeatureTreeColumns::name);
        return below ? indexBelow(name) : indexAbove(name);
    };
    const QScopedValueRollback<bool> keepsFocus(m_keepsFocus, true);
    for (QModelIndex row = neighbour(from); row.isValid(); row = neighbour(row)) {
        const QModelIndex value = row.siblingAtColumn(FeatureTreeColumns::value);
        const FeatureTreeItem *const item = itemAt(value);
        if (!item || item->isCategory() || !value.flags().testFlag(Qt::ItemIsEditable)) {
            continue;
        }
        scrollTo(value); // beyond the budget, its editor opens now
        QWidget *const editor = indexWidget(value);
        if (editor && (!editor->isEnabled() || editor->focusPolicy() == Qt::NoFocus)) {
            continue;
        }
        setCurrentIndex(value);
        if (!editor) {
            return QTreeView::edit(value, EditKeyPressed, nullptr);
        }
        editor->setFocus(below ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

bool FeatureTreeView::activateEditor(const QModelIndex &value, EditTrigger trigger, QEvent *event)
{
    QWidget *const editor = indexWidget(value);
    if (!editor->isEnabled() || !editor->isVisible()) {
        return false;
    }
    const auto *const key = dynamic_cast<QKeyEvent *>(event);
    auto *const button = qobject_cast<QAbstractButton *>(editor);
    const bool takesFocus = editor->focusPolicy() != Qt::NoFocus;
    if (button && (trigger == EditKeyPressed || (!takesFocus && key && key->key() == Qt::Key_Space))) {
        if (!key || !key->isAutoRepeat()) {
            button->click();
        }
        return true;
    }
    const bool isLetter = key && !key->text().trimmed().isEmpty();
    if (!takesFocus || (trigger == AnyKeyPressed && isLetter && qobject_cast<QComboBox *>(editor))) {
        return false; // a list would take the first letter of a name for an entry, and write that
    }
    editor->setFocus(Qt::ShortcutFocusReason); // selects as Tab does, which is for those who tab
    if (trigger == AnyKeyPressed && event && m_focus->editor() == editor) {
        // What the editor ignores comes back here, where the row is searched for by it.
        m_isForwardingKey = true;
        QCoreApplication::sendEvent(QApplication::focusWidget(), event);
        if (!m_isForwardingKey) {
            setFocus();
        }
        m_isForwardingKey = false;
    }
    return true;
}
