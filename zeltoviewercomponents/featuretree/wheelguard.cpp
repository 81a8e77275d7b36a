// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "wheelguard_p.h"

#include "editorkeys_p.h"

#include <QFocusEvent>
#include <QList>
#include <QWidget>

#include <algorithm>

WheelGuard::WheelGuard(QWidget *editor, QWidget *control)
    : QObject(control)
    , m_editor(editor)
    , m_control(control)
{
    control->installEventFilter(this);
    const QList<QWidget *> parts = control->findChildren<QWidget *>();
    for (QWidget *const part : parts) {
        part->installEventFilter(this); // gets clicks in the place of the control
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    noteFocus(watched, event);
    if (event->type() != QEvent::Wheel || watched != m_control || isEditorEntered()) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}

bool WheelGuard::isEditorEntered() const
{
    const QList<WheelGuard *> guards = m_editor->findChildren<WheelGuard *>();
    return std::any_of(guards.cbegin(), guards.cend(), [](const WheelGuard *guard) {
        return guard->m_isEntered && guard->m_control->hasFocus();
    });
}

void WheelGuard::noteFocus(QObject *watched, const QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && m_control->isEnabled()) {
        m_isEntered = true; // the focus may have been there before
    } else if (watched == m_control && event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
        m_isEntered = m_isEntered || reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason
            || reason == Qt::BacktabFocusReason;
    } else if (watched == m_control && event->type() == QEvent::FocusOut) {
        m_isEntered = m_isEntered && EditorKeys::isFocusLent(*event);
    }
}
