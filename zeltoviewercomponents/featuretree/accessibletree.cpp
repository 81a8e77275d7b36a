// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "accessibletree_p.h"

#include "accessibletexts_p.h"
#include "featuretreeinodeitem.h"
#include "featuretreenames.h"
#include "featuretreeview.h"
#include "ifeaturetreemodelextension.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>
#include <QWindow>

#include <utility>

namespace {

constexpr int headerRows = 1; // hidden or not: Qt numbers the cells so

/*! \brief What the cells of the header and those of the rows have in common. */
class CellBase : public QAccessibleInterface
{
public:
    explicit CellBase(FeatureTreeView *view)
        : m_view(view)
    {
    }

    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }

protected:
    QRect onScreen(const QWidget &widget, const QRect &rect) const
    {
        return {widget.mapToGlobal(rect.topLeft()), rect.size()};
    }

    QPointer<FeatureTreeView> m_view;
};

class HeaderCell final : public CellBase
{
public:
    HeaderCell(FeatureTreeView *view, int column)
        : CellBase(view)
        , m_column(column)
    {
    }

    bool isValid() const override { return m_view; }
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && m_view
            ? m_view->model()->headerData(m_column, Qt::Horizontal).toString()
            : QString();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_view || !m_view->header()->isVisible();
        return state;
    }
    QRect rect() const override
    {
        if (!m_view) {
            return {};
        }
        const QHeaderView &header = *m_view->header();
        const QRect section(header.sectionViewportPosition(m_column), 0, header.sectionSize(m_column),
                            header.height());
        return onScreen(*header.viewport(), section);
    }

private:
    int m_column;
};

class Cell final : public CellBase, public QAccessibleTableCellInterface, public QAccessibleActionInterface
{
public:
    Cell(FeatureTreeView *view, const QModelIndex &index)
        : CellBase(view)
        , m_index(index)
    {
    }

    const QPersistentModelIndex &index() const { return m_index; }

    bool isValid() const override { return m_view && m_index.isValid(); }
    QAccessible::Role role() const override { return isName() ? QAccessible::TreeItem : QAccessible::Cell; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;
    QRect rect() const override;
    QAccessibleInterface *child(int number) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int childCount() const override { return editor() ? 1 : 0; }
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return isValid() && m_view->selectionModel()->isSelected(m_index); }
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_index.column(); }
    int rowIndex() const override { return isValid() ? tree()->rowOf(m_index) : -1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    const AccessibleTree *tree() const { return static_cast<const AccessibleTree *>(parent()); }
    bool isName() const { return m_index.column() == FeatureTreeColumns::name; }
    FeatureTreeItem *item() const
    {
        return isValid() ? m_view->getFeatureExtension()->getFeatureTreeItem(m_index) : nullptr;
    }
    const FeatureTreeINodeItem *node() const { return qobject_cast<FeatureTreeINodeItem *>(item()); }
    bool canBeChanged() const
    {
        return !isName() && node() && node()->isEditable() && m_index.flags().testFlag(Qt::ItemIsEditable);
    }
    QWidget *editor() const
    {
        // That which is open: the view's own look-up would open one.
        return isValid() ? static_cast<QAbstractItemView &>(*m_view).indexWidget(m_index) : nullptr;
    }

    QPersistentModelIndex m_index;
};

QString Cell::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return m_index.data(Qt::AccessibleTextRole).toString();
    case QAccessible::Description:
        return m_index.data(Qt::AccessibleDescriptionRole).toString();
    case QAccessible::Value:
        return isName() ? QString() : m_index.data(Qt::AccessibleTextRole).toString();
    default:
        return {};
    }
}

// Writes the value. Commands have none: they are for doAction(), which asks where the user is to be asked.
void Cell::setText(QAccessible::Text kind, const QString &text)
{
    if ((kind != QAccessible::Value && kind != QAccessible::Name) || !canBeChanged()
        || item()->editorType() == FeatureTreeItem::Command) {
        return;
    }
    m_view->model()->setData(m_index, AccessibleTexts::valueNamed(*item(), text), Qt::EditRole);
}

QAccessible::State Cell::state() const
{
    QAccessible::State state;
    FeatureTreeItem *const row = item();
    if (!row) {
        state.invalid = true;
        return state;
    }
    state.disabled = !m_view->isEnabled() || (node() && row->getAccessMode() <= GenApi::NA);
    state.editable = canBeChanged() && row->editorType() != FeatureTreeItem::Command;
    state.readOnly = !isName() && node() && !row->isCategory() && !canBeChanged();
    state.offscreen = !m_view->viewport()->rect().intersects(m_view->visualRect(m_index));
    state.selectable = m_index.flags().testFlag(Qt::ItemIsSelectable);
    state.selected = isSelected();
    state.focusable = !state.disabled;
    state.focused = m_view->hasFocus() && m_view->currentIndex() == m_index;
    if (isName() && row->hasChildren()) {
        state.expandable = true;
        state.expanded = m_view->isExpanded(m_index);
        state.collapsed = !state.expanded;
    }
    return state;
}

QRect Cell::rect() const
{
    return isValid() ? onScreen(*m_view->viewport(), m_view->visualRect(m_index)) : QRect();
}

QAccessibleInterface *Cell::child(int number) const
{
    return number == 0 ? QAccessible::queryAccessibleInterface(editor()) : nullptr;
}

QAccessibleInterface *Cell::childAt(int x, int y) const
{
    QAccessibleInterface *const editor = child(0);
    return editor && editor->rect().contains(x, y) ? editor : nullptr;
}

QAccessibleInterface *Cell::focusChild() const
{
    QAccessibleInterface *const editor = child(0);
    return editor ? editor->focusChild() : nullptr;
}

int Cell::indexOfChild(const QAccessibleInterface *child) const
{
    return child && editor() && child->object() == editor() ? 0 : -1;
}

void *Cell::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TableCellInterface:
        return static_cast<QAccessibleTableCellInterface *>(this);
    case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface *>(this);
    default:
        return nullptr;
    }
}

QList<QAccessibleInterface *> Cell::columnHeaderCells() const
{
    return isValid() ? QList<QAccessibleInterface *>{tree()->child(m_index.column())}
                     : QList<QAccessibleInterface *>();
}

QStringList Cell::actionNames() const
{
    QStringList names;
    if (state().expandable) {
        names.append(toggleAction());
    }
    if (canBeChanged()) {
        names.append(pressAction());
    }
    names.append(setFocusAction());
    return names;
}

void Cell::doAction(const QString &name)
{
    if (!isValid() || !actionNames().contains(name)) {
        return;
    }
    if (name == toggleAction()) {
        m_view->setExpanded(m_index, !m_view->isExpanded(m_index));
        return;
    }
    m_view->setFocus();
    m_view->setCurrentIndex(m_index);
    if (name == pressAction()) {
        // What Return does to a row: an editor opens or gets the focus, a button is pressed.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(m_view, &press);
    }
}

} // namespace

AccessibleTree::AccessibleTree(FeatureTreeView *view)
    : QAccessibleWidget(view, QAccessible::Tree)
{
}

AccessibleTree::~AccessibleTree()
{
    for (const QAccessible::Id id : std::as_const(m_cells)) {
        QAccessible::deleteAccessibleInterface(id);
    }
    for (const QAccessible::Id id : std::as_const(m_headerCells)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

AccessibleTree *AccessibleTree::find(FeatureTreeView *view)
{
    return QAccessible::isActive()
        ? dynamic_cast<AccessibleTree *>(QAccessible::queryAccessibleInterface(view))
        : nullptr;
}

void AccessibleTree::tellChange(FeatureTreeView *view, const QModelIndex &index)
{
    const AccessibleTree *const tree = find(view);
    if (tree && tree->m_cells.contains(index)) {
        QAccessibleEvent event(tree->cell(index), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleTree::tellExpanded(FeatureTreeView *view, const QModelIndex &index)
{
    const AccessibleTree *const tree = find(view);
    if (!tree || !tree->m_cells.contains(index)) {
        return;
    }
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(tree->cell(index), changed);
    QAccessible::updateAccessibility(&event);
}

void AccessibleTree::tellRows(FeatureTreeView *view)
{
    if (find(view)) {
        QAccessibleTableModelChangeEvent event(view, QAccessibleTableModelChangeEvent::ModelReset);
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleTree::tellFocus(FeatureTreeView *view, const QModelIndex &index)
{
    const AccessibleTree *const tree = find(view);
    if (QAccessibleInterface *const cell = tree ? tree->cell(index) : nullptr) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessibleInterface *AccessibleTree::cellAround(const QWidget *editor)
{
    const QWidget *const viewport = editor->parentWidget();
    auto *const view = viewport ? qobject_cast<FeatureTreeView *>(viewport->parentWidget()) : nullptr;
    if (!view) {
        return nullptr;
    }
    const auto *const tree = dynamic_cast<AccessibleTree *>(QAccessible::queryAccessibleInterface(view));
    const QModelIndex index = view->indexAt(editor->geometry().center());
    return tree ? tree->cell(index.siblingAtColumn(FeatureTreeColumns::value)) : nullptr;
}

FeatureTreeView *AccessibleTree::view() const
{
    return static_cast<FeatureTreeView *>(widget());
}

bool AccessibleTree::isValid() const
{
    return QAccessibleWidget::isValid() && view()->model();
}

QAccessibleInterface *AccessibleTree::cell(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return nullptr;
    }
    QAccessible::Id &id = m_cells[index];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(new Cell(view(), index));
    }
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *AccessibleTree::headerCell(int column) const
{
    QAccessible::Id &id = m_headerCells[column];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(new HeaderCell(view(), column));
    }
    return QAccessible::accessibleInterface(id);
}

// All rows are of one height, so where a row lies tells its number.
int AccessibleTree::rowOf(const QModelIndex &index) const
{
    const QRect rect = view()->visualRect(index);
    if (rect.height() <= 0) {
        return -1;
    }
    const int scrolled = view()->verticalScrollBar()->value();
    return view()->verticalScrollMode() == QAbstractItemView::ScrollPerItem
        ? scrolled + rect.top() / rect.height()
        : (scrolled + rect.top()) / rect.height();
}

QModelIndex AccessibleTree::indexOf(int row, int column) const
{
    if (row < 0 || column < 0 || column >= columnCount()) {
        return {};
    }
    const int height = view()->visualRect(lastRow()).height();
    const int scrolled = view()->verticalScrollBar()->value();
    const int top = view()->verticalScrollMode() == QAbstractItemView::ScrollPerItem
        ? (row - scrolled) * height
        : row * height - scrolled;
    const int left = view()->header()->sectionViewportPosition(FeatureTreeColumns::name);
    return view()->indexAt({left, top}).siblingAtColumn(column);
}

QModelIndex AccessibleTree::lastRow() const
{
    const QAbstractItemModel &model = *view()->model();
    QModelIndex last;
    QModelIndex parent;
    do {
        int row = model.rowCount(parent) - 1;
        while (row >= 0 && view()->isRowHidden(row, parent)) {
            --row;
        }
        parent = row >= 0 ? model.index(row, FeatureTreeColumns::name, parent) : QModelIndex();
        last = parent.isValid() ? parent : last;
    } while (parent.isValid() && view()->isExpanded(parent));
    return last;
}

int AccessibleTree::childCount() const
{
    return isValid() ? (headerRows + rowCount()) * columnCount() : 0;
}

int AccessibleTree::indexOfChild(const QAccessibleInterface *child) const
{
    for (auto header = m_headerCells.cbegin(); header != m_headerCells.cend(); ++header) {
        if (QAccessible::accessibleInterface(header.value()) == child) {
            return header.key();
        }
    }
    const auto *const cell = dynamic_cast<const Cell *>(child);
    const int row = cell && cell->isValid() ? rowOf(cell->index()) : -1;
    return row >= 0 ? (headerRows + row) * columnCount() + cell->index().column() : -1;
}

QAccessibleInterface *AccessibleTree::child(int index) const
{
    if (index < 0 || !isValid()) {
        return nullptr;
    }
    const int column = index % columnCount();
    const int row = index / columnCount() - headerRows;
    return row < 0 ? headerCell(column) : cell(indexOf(row, column));
}

QAccessibleInterface *AccessibleTree::childAt(int x, int y) const
{
    return isValid() ? cell(view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)))) : nullptr;
}

QAccessibleInterface *AccessibleTree::focusChild() const
{
    if (!isValid()) {
        return nullptr;
    }
    QWidget *const focus = QApplication::focusWidget();
    if (focus == view()) {
        return cell(view()->currentIndex());
    }
    return view()->isAncestorOf(focus) ? QAccessible::queryAccessibleInterface(focus) : nullptr;
}

void *AccessibleTree::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *AccessibleTree::caption() const
{
    return nullptr;
}

QAccessibleInterface *AccessibleTree::summary() const
{
    return nullptr;
}

QAccessibleInterface *AccessibleTree::cellAt(int row, int column) const
{
    return isValid() ? cell(indexOf(row, column)) : nullptr;
}

int AccessibleTree::selectedCellCount() const
{
    return static_cast<int>(selectedCells().size());
}

QList<QAccessibleInterface *> AccessibleTree::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    const QModelIndexList selected = view()->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected) {
        cells.append(cell(index));
    }
    return cells;
}

QString AccessibleTree::columnDescription(int column) const
{
    return view()->model()->headerData(column, Qt::Horizontal).toString();
}

QString AccessibleTree::rowDescription(int) const
{
    return {};
}

int AccessibleTree::selectedColumnCount() const
{
    return 0;
}

int AccessibleTree::selectedRowCount() const
{
    return static_cast<int>(selectedRows().size());
}

int AccessibleTree::columnCount() const
{
    return FeatureTreeColumns::count;
}

int AccessibleTree::rowCount() const
{
    const QModelIndex last = lastRow();
    return last.isValid() ? rowOf(last) + 1 : 0;
}

QList<int> AccessibleTree::selectedColumns() const
{
    return {};
}

QList<int> AccessibleTree::selectedRows() const
{
    QList<int> rows;
    const QModelIndexList selected = view()->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        rows.append(rowOf(index));
    }
    return rows;
}

bool AccessibleTree::isColumnSelected(int) const
{
    return false;
}

bool AccessibleTree::isRowSelected(int row) const
{
    return view()->selectionModel()->isSelected(indexOf(row, FeatureTreeColumns::name));
}

bool AccessibleTree::selectRow(int row)
{
    const QModelIndex index = indexOf(row, FeatureTreeColumns::name);
    if (!index.flags().testFlag(Qt::ItemIsSelectable)) {
        return false;
    }
    view()->setCurrentIndex(index);
    return true;
}

bool AccessibleTree::selectColumn(int)
{
    return false;
}

bool AccessibleTree::unselectRow(int)
{
    return false; // one row is selected at any time
}

bool AccessibleTree::unselectColumn(int)
{
    return false;
}

void AccessibleTree::modelChange(QAccessibleTableModelChangeEvent *event)
{
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::DataChanged) {
        return;
    }
    m_cells.removeIf([](const auto &entry) {
        const QAccessibleInterface *const cell = QAccessible::accessibleInterface(entry.value());
        const bool isGone = !cell || !cell->isValid();
        if (cell && isGone) {
            QAccessible::deleteAccessibleInterface(entry.value());
        }
        return isGone;
    });
}
