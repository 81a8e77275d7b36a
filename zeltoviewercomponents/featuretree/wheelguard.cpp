// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "wheelguard.h"

#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QWidget *editor, QWidget *control)
    : QObject(control)
    , m_editor(editor)
    , m_control(control)
{
    control->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || m_editor->hasFocus() || m_control->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}
