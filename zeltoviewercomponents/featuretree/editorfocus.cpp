// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorfocus_p.h"

#include "editorkeys_p.h"
#include "openeditors_p.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTreeView>

namespace {

// A list or a menu is a window of its own, but belongs to its editor.
void closePopupOf(const QWidget *editor)
{
    QWidget *const popup = QApplication::activePopupWidget();
    for (const QWidget *widget = popup; widget; widget = widget->parentWidget()) {
        if (widget == editor) {
            popup->close();
            return;
        }
    }
}

const QLineEdit *lineEditIn(const QWidget *input)
{
    const auto *const lineEdit = qobject_cast<const QLineEdit *>(input);
    return lineEdit ? lineEdit : input->findChild<QLineEdit *>();
}

bool isTypedInto(const QWidget *input)
{
    const QLineEdit *const lineEdit = lineEditIn(input);
    return lineEdit && lineEdit->isModified();
}

} // namespace

EditorFocus::EditorFocus(QTreeView *view, const OpenEditors *editors)
    : m_view(view)
    , m_editors(editors)
{
}

QWidget *EditorFocus::focusWidget() const
{
    return m_view->window()->focusWidget();
}

QWidget *EditorFocus::editor() const
{
    return editorAround(focusWidget());
}

QWidget *EditorFocus::editorAround(QWidget *widget) const
{
    if (!widget || !m_view->viewport()->isAncestorOf(widget)) {
        return nullptr;
    }
    while (widget->parentWidget() != m_view->viewport()) {
        widget = widget->parentWidget();
    }
    return widget;
}

bool EditorFocus::isTyping() const
{
    return editor() && isTypedInto(focusWidget());
}

QModelIndex EditorFocus::row(const QModelIndex &current) const
{
    const QModelIndex permanent = m_editors->rowOf(focusWidget());
    return permanent.isValid() ? permanent : current;
}

void EditorFocus::takeFrom(const QWidget *widget)
{
    const QWidget *const focus = focusWidget();
    if (focus && (focus == widget || widget->isAncestorOf(focus))) {
        m_view->setFocus();
    }
}

void EditorFocus::takeFromUnseenRow()
{
    const QModelIndex index = editor() ? row(m_view->currentIndex()) : QModelIndex();
    if (index.isValid() && !m_view->visualRect(index).isValid()) {
        m_view->setFocus();
    }
}

void EditorFocus::takeFromLostRow()
{
    const QWidget *const focused = editor();
    // An editor that is not permanent belongs to the current row.
    const QModelIndex index =
        m_editors->contains(focused) ? m_editors->rowOf(focused) : m_view->currentIndex();
    if (!index.isValid()) {
        abandonEditor();
    }
}

QWidget *EditorFocus::dropEditor()
{
    QWidget *const focused = editor();
    if (!focused) {
        return nullptr;
    }
    closePopupOf(focused);
    const QSignalBlocker blocker(focused); // losing the focus would enter what was typed
    m_view->setFocus();
    return focused;
}

void EditorFocus::abandonEditor()
{
    if (QWidget *const focused = editor()) {
        focused->removeEventFilter(m_view->itemDelegate());
        focused->blockSignals(true);
        dropEditor();
    }
}

void EditorFocus::follow(QWidget *old, QWidget *now)
{
    if (now && editorAround(old) && isTypedInto(old) && EditorKeys::isFocusForMenu()) {
        old->setFocus();
        return;
    }
    if (old) {
        old->removeEventFilter(this);
    }
    if (now && now == focusWidget() && editor()) {
        now->installEventFilter(this);
    }
}

// A line edit claims the keys of undoing and redoing even when there is nothing of its own to undo; then they
// are about the values that were written.
bool EditorFocus::isForHost(const QKeyEvent &key, QObject *input)
{
    return (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))
        && !isTypedInto(static_cast<QWidget *>(input));
}

bool EditorFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn
        && static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason) {
        emit returned();
    }
    if (event->type() == QEvent::ShortcutOverride && isForHost(*static_cast<QKeyEvent *>(event), watched)) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto *const key = static_cast<QKeyEvent *>(event);
    const QLineEdit *const lineEdit = lineEditIn(static_cast<QWidget *>(watched));
    if (key->matches(QKeySequence::Copy) && !(lineEdit && lineEdit->hasSelectedText())) {
        emit copyRequested();
        return true;
    }
    if (key->key() == Qt::Key_Escape && m_editors->contains(editor())) {
        escape(watched, event);
        return true;
    }
    return false;
}

// The editor sees the key first, takes back what was typed and lets go of what is pressed. Its parents do not
// see it: they count the ones that clear a search.
void EditorFocus::escape(QObject *input, QEvent *event)
{
    input->event(event);
    event->accept();
    if (QWidget *const left = dropEditor()) {
        emit escaped(left);
    }
}

void EditorFocus::leaveEditors(bool forward)
{
    QWidget *const target = forward ? nextOutsideView() : m_view;
    target->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

QWidget *EditorFocus::nextOutsideView() const
{
    const auto takesFocus = [this](const QWidget *widget) {
        return !m_view->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
    };
    QWidget *widget = m_view->nextInFocusChain();
    while (widget != m_view && !takesFocus(widget)) {
        widget = widget->nextInFocusChain();
    }
    return widget;
}
