// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorkeys_p.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace EditorKeys {

bool isFocusLent(const QEvent &event)
{
    if (event.type() != QEvent::FocusOut) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason
        || reason == Qt::ActiveWindowFocusReason || (reason == Qt::MouseFocusReason && isFocusForMenu());
}

bool isFocusForMenu()
{
    const QWidget *const focus = QApplication::focusWidget();
    return QGuiApplication::mouseButtons() == Qt::RightButton && !qobject_cast<const QLineEdit *>(focus)
        && !qobject_cast<const QAbstractSpinBox *>(focus);
}

bool isBeingTyped(const QWidget &owner, const QLineEdit &lineEdit)
{
    const QWidget *focused = &owner;
    while (focused->focusProxy()) {
        focused = focused->focusProxy();
    }
    const QWidget *const focus = owner.window()->focusWidget();
    return lineEdit.isModified()
        && (owner.hasFocus() || focus == focused || qobject_cast<const QMenuBar *>(focus));
}

void finishKeyPress(QKeyEvent *event, const QLineEdit &lineEdit,
                    const std::function<void(QKeyEvent *)> &press)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        return;
    }
    event->accept();
    // A line edit undoes typing and deleting one by one; the user wants back what was there before both.
    // Where the desktop undoes with another key, nothing changes.
    QString text;
    do {
        text = lineEdit.text();
        QKeyEvent undo(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, QString(), false, 1);
        press(&undo);
    } while (lineEdit.isUndoAvailable() && lineEdit.text() != text);
}

SelectedText::SelectedText(QLineEdit *lineEdit)
    : m_lineEdit(lineEdit)
    , m_text(lineEdit->text())
    , m_selected(lineEdit->selectedText())
{
}

SelectedText::~SelectedText()
{
    if (m_selected.isEmpty() || m_lineEdit->text() == m_text) {
        return;
    }
    if (m_selected == m_text) {
        m_lineEdit->selectAll();
    } else {
        m_lineEdit->deselect();
    }
}

TypedText::TypedText(QLineEdit *lineEdit)
    : m_lineEdit(lineEdit)
    , m_text(lineEdit->text())
    , m_cursor(lineEdit->cursorPosition())
    , m_selectionStart(lineEdit->selectionStart())
    , m_selectionLength(lineEdit->selectionLength())
{
}

TypedText::~TypedText()
{
    if (m_lineEdit->text() != m_text) {
        m_lineEdit->setText(m_text);
    }
    if (m_selectionStart >= 0) {
        const bool isCursorInFront = m_cursor == m_selectionStart;
        m_lineEdit->setSelection(m_selectionStart + (isCursorInFront ? m_selectionLength : 0),
                                 isCursorInFront ? -m_selectionLength : m_selectionLength);
    } else if (m_lineEdit->cursorPosition() != m_cursor) {
        m_lineEdit->setCursorPosition(m_cursor);
    }
    m_lineEdit->setModified(true);
}

} // namespace EditorKeys
