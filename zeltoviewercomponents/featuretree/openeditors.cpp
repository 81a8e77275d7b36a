// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "openeditors_p.h"

#include "featuretreenames.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>
#include <limits>
#include <map>
#include <utility>

namespace {

constexpr int idlePause = 30; // ms, longer than from one frame of scrolling to the next
constexpr int idleSlice = 4; // ms at once, so that whoever goes on working waits for no more than that
constexpr int openPages = 1;
constexpr int keptPages = 2; // who scrolls back and forth finds the editors still there
constexpr int closedAtOnce = 16;
constexpr int unlimited = std::numeric_limits<int>::max();

// Text that is yet to be entered, and what an editor is yet to hand out or to show when its time has come.
bool hasUnfinishedWork(const QWidget *editor)
{
    const auto *const self = qobject_cast<const QLineEdit *>(editor);
    const QList<QLineEdit *> lineEdits = editor->findChildren<QLineEdit *>();
    const QList<QTimer *> timers = editor->findChildren<QTimer *>();
    return (self && self->isModified())
        || std::any_of(lineEdits.cbegin(), lineEdits.cend(),
                       [](const QLineEdit *lineEdit) { return lineEdit->isModified(); })
        || std::any_of(timers.cbegin(), timers.cend(), [](const QTimer *timer) { return timer->isActive(); });
}

// Also behind a menu, a list or another window, which the focus comes back from.
bool isInUse(const QWidget *editor)
{
    const QWidget *const focus = editor->window()->focusWidget();
    const bool hasFocus = focus && (focus == editor || editor->isAncestorOf(focus));
    const QWidget *const popup = QApplication::activePopupWidget();
    const bool hasPopup = popup && (editor->isAncestorOf(popup) || popup->parentWidget() == editor);
    const bool isPressed = QGuiApplication::mouseButtons() != Qt::NoButton && editor->underMouse();
    return hasFocus || hasPopup || isPressed || hasUnfinishedWork(editor);
}

// Returns the rows on the way from the root, by which indexes sort from top to bottom.
QList<int> rowsTo(QModelIndex index)
{
    QList<int> rows;
    for (; index.isValid(); index = index.parent()) {
        rows.prepend(index.row());
    }
    return rows;
}

} // namespace

OpenEditors::OpenEditors(QTreeView *view, RowTest wantsEditor)
    : m_view(view)
    , m_wantsEditor(std::move(wantsEditor))
{
    m_idle.setSingleShot(true);
    connect(&m_idle, SIGNAL(timeout()), this, SLOT(workWhenIdle()));
    // When an editor's row is filtered out, the base releases the editor but keeps its address as that of a
    // permanent one; a later editor at the same address could never be closed.
    connect(this, SIGNAL(editorDestroyed(QObject *)), view, SLOT(editorDestroyed(QObject *)));
}

void OpenEditors::open(const QModelIndex &index)
{
    m_view->openPersistentEditor(index);
    QWidget *const editor = m_view->indexWidget(index);
    if (!editor) {
        return;
    }
    // The base selects the text of what it opens, as if all of them were about to be edited.
    const QList<QLineEdit *> lineEdits = editor->findChildren<QLineEdit *>();
    for (QLineEdit *const lineEdit : lineEdits) {
        lineEdit->deselect();
    }
    m_editors.append({index, editor});
    m_isTabOrderStale = true;
    connect(editor, SIGNAL(destroyed(QObject *)), this, SIGNAL(editorDestroyed(QObject *)));
}

void OpenEditors::equip(const Rows &rows, bool areFurther)
{
    forgetClosed();
    const auto isMissing = [this](const QPersistentModelIndex &row) { return !m_view->indexWidget(row); };
    if (!areFurther) {
        m_isLimited = rows.size() > limit;
    } else {
        makeRoom(std::count_if(rows.cbegin(), rows.cend(), isMissing));
    }
    noteMovement();
    if (m_isLimited) {
        m_view->viewport()->update();
        return;
    }
    for (const QPersistentModelIndex &row : rows) {
        if (row.isValid() && isMissing(row)) {
            open(row);
        }
    }
}

void OpenEditors::makeRoom(qsizetype count)
{
    if (m_isLimited || m_editors.size() + count <= limit) {
        return;
    }
    // Those of collapsed branches stay open, and are in nobody's way.
    const auto used = std::count_if(m_editors.cbegin(), m_editors.cend(),
                                    [this](const Editor &editor) { return isReachable(editor.index); });
    m_isLimited = used + count > limit;
}

void OpenEditors::noteMovement()
{
    if (!std::exchange(m_hasMoved, true)) {
        // Before the painting, which would have to paint once more what was opened meanwhile.
        QMetaObject::invokeMethod(this, "equipViewport", Qt::QueuedConnection);
    }
    if (m_isLimited) {
        m_idle.start(idlePause);
    }
}

void OpenEditors::equipViewport()
{
    if (m_isEquipping || !m_hasMoved || !m_view->isVisible()) {
        return;
    }
    m_hasMoved = false;
    forgetClosed();
    equipRows(rowsNearViewport(0), unlimited);
    if (m_isLimited && m_editors.size() > limit) {
        closeFar(); // who drags the scroll bar is never idle
    }
    if (m_isTabOrderStale) {
        orderTabs();
    }
}

// Returns whether the time sufficed.
bool OpenEditors::equipRows(const QModelIndexList &rows, int milliseconds)
{
    const QScopedValueRollback<bool> equipping(m_isEquipping, true); // what opens may lay out the view
    QElapsedTimer clock;
    clock.start();
    for (const QModelIndex &index : rows) {
        if (m_view->indexWidget(index) || !m_wantsEditor(index)) {
            continue;
        }
        open(index);
        if (clock.elapsed() >= milliseconds) {
            return false; // after one at least, however slow the machine is
        }
    }
    return true;
}

void OpenEditors::workWhenIdle()
{
    if (!m_isLimited || !m_view->isVisible()) {
        return;
    }
    equipViewport();
    forgetClosed();
    if (!equipRows(rowsNearViewport(openPages), idleSlice) || !closeFar()) {
        m_idle.start(0);
        return;
    }
    if (m_isTabOrderStale) {
        orderTabs();
    }
}

void OpenEditors::forgetClosed()
{
    m_editors.removeIf([this](const Editor &editor) {
        return !editor.index.isValid() || !editor.widget
            || m_view->indexWidget(editor.index) != editor.widget;
    });
}

void OpenEditors::forgetAll()
{
    m_editors.clear();
    m_isLimited = false;
}

bool OpenEditors::hasRoomFor(const QModelIndex &index)
{
    forgetClosed();
    makeRoom(1);
    return !m_isLimited || (m_view->isVisible() && isNearViewport(index, openPages));
}

bool OpenEditors::contains(const QWidget *editor) const
{
    return std::any_of(m_editors.cbegin(), m_editors.cend(),
                       [editor](const Editor &entry) { return entry.widget == editor; });
}

QModelIndex OpenEditors::rowOf(const QWidget *widget) const
{
    if (!widget || !m_view->viewport()->isAncestorOf(widget)) {
        return {};
    }
    for (const Editor &editor : m_editors) {
        if (editor.widget && (editor.widget == widget || editor.widget->isAncestorOf(widget))) {
            return editor.index;
        }
    }
    return {};
}

void OpenEditors::refresh()
{
    const QList<Editor> editors = m_editors;
    for (const Editor &editor : editors) {
        if (editor.widget && editor.index.isValid()) {
            m_view->itemDelegate()->setEditorData(editor.widget, editor.index);
        }
    }
}

bool OpenEditors::isNearViewport(const QModelIndex &index, int pages) const
{
    const QRect row = m_view->visualRect(index);
    const QRect viewport = m_view->viewport()->rect();
    const int margin = pages * viewport.height();
    return row.isValid() && viewport.adjusted(0, -margin, 0, margin).intersects(row);
}

QModelIndexList OpenEditors::rowsNearViewport(int pages) const
{
    QModelIndexList rows;
    const int height = m_view->viewport()->height();
    QModelIndex index = m_view->indexAt(QPoint(0, 0));
    const int top = m_view->visualRect(index).top() - pages * height;
    for (QModelIndex above = m_view->indexAbove(index);
         above.isValid() && m_view->visualRect(above).bottom() >= top; above = m_view->indexAbove(above)) {
        index = above;
    }
    for (; index.isValid() && m_view->visualRect(index).top() < (1 + pages) * height;
         index = m_view->indexBelow(index)) {
        rows.append(index.siblingAtColumn(FeatureTreeColumns::value));
    }
    return rows;
}

// Returns whether those that could be closed are closed: many at once would be felt.
bool OpenEditors::closeFar()
{
    const QModelIndexList near = rowsNearViewport(keptPages);
    const QList<Editor> editors = m_editors;
    int closed = 0;
    for (const Editor &editor : editors) {
        if (near.contains(editor.index) || isInUse(editor.widget)) {
            continue;
        }
        if (closed == closedAtOnce) {
            break;
        }
        m_view->closePersistentEditor(editor.index);
        ++closed;
    }
    forgetClosed();
    return closed < closedAtOnce;
}

bool OpenEditors::isReachable(const QModelIndex &index) const
{
    for (QModelIndex row = index; row.isValid(); row = row.parent()) {
        const QModelIndex parent = row.parent();
        if (m_view->isRowHidden(row.row(), parent) || (parent.isValid() && !m_view->isExpanded(parent))) {
            return false;
        }
    }
    return index.isValid();
}

// The focus walks from top to bottom; the base leaves editors in the order in which they were opened.
void OpenEditors::orderTabs()
{
    m_isTabOrderStale = false;
    std::map<QList<int>, QWidget *> sorted;
    for (const Editor &editor : std::as_const(m_editors)) {
        if (editor.widget && editor.widget->focusPolicy() != Qt::NoFocus) {
            sorted.emplace(rowsTo(editor.index), editor.widget);
        }
    }
    QWidget *previous = m_view;
    for (const auto &[rows, editor] : sorted) {
        QWidget::setTabOrder(previous, editor);
        previous = editor;
    }
}
