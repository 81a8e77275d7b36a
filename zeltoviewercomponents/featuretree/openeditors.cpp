// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "openeditors_p.h"

#include "featuretreenames.h"

#include <QApplication>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>
#include <map>

namespace {

constexpr qsizetype editorBudget = 200;
constexpr int rowsBeyondViewport = 4;

bool isInUse(const QWidget *editor)
{
    const QWidget *const focus = QApplication::focusWidget();
    const bool hasFocus = focus && (focus == editor || editor->isAncestorOf(focus));
    const QWidget *const popup = QApplication::activePopupWidget();
    return hasFocus || (popup && (editor->isAncestorOf(popup) || popup->parentWidget() == editor));
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

OpenEditors::OpenEditors(QTreeView *view)
    : m_view(view)
{
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

void OpenEditors::ensureNearViewport(const std::function<bool(const QModelIndex &)> &wantsEditor)
{
    if (m_isEnsuring || !m_view->isVisible()) {
        return;
    }
    const QScopedValueRollback<bool> ensuring(m_isEnsuring, true); // what opens may lay out the view
    forgetClosed();
    const QModelIndexList near = rowsNearViewport();
    for (const QModelIndex &index : near) {
        if (!m_view->indexWidget(index) && wantsEditor(index)) {
            open(index);
        }
    }
    if (m_editors.size() > editorBudget) {
        closeFar(near);
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
}

bool OpenEditors::hasRoomFor(const QModelIndex &index) const
{
    return !isBudgetSpent() || isNearViewport(index);
}

bool OpenEditors::isBudgetSpent() const
{
    return m_view->isVisible() && m_editors.size() >= editorBudget;
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

bool OpenEditors::isNearViewport(const QModelIndex &index) const
{
    const QRect row = m_view->visualRect(index);
    const int margin = rowsBeyondViewport * row.height();
    return row.isValid() && m_view->viewport()->rect().adjusted(0, -margin, 0, margin).intersects(row);
}

QModelIndexList OpenEditors::rowsNearViewport() const
{
    QModelIndexList rows;
    QModelIndex index = m_view->indexAt(QPoint(0, 0));
    for (int i = 0; i < rowsBeyondViewport && m_view->indexAbove(index).isValid(); ++i) {
        index = m_view->indexAbove(index);
    }
    int below = 0;
    while (index.isValid() && below <= rowsBeyondViewport) {
        rows.append(index.siblingAtColumn(FeatureTreeColumns::value));
        below += m_view->visualRect(index).top() > m_view->viewport()->height() ? 1 : 0;
        index = m_view->indexBelow(index);
    }
    return rows;
}

void OpenEditors::closeFar(const QModelIndexList &near)
{
    for (qsizetype i = m_editors.size() - 1; i >= 0 && m_editors.size() > editorBudget; --i) {
        const Editor editor = m_editors[i];
        if (!near.contains(editor.index) && !isInUse(editor.widget)) {
            m_editors.removeAt(i);
            m_view->closePersistentEditor(editor.index);
        }
    }
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
