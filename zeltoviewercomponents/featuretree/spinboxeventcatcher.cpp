// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "spinboxeventcatcher_p.h"

#include <QEvent>

SpinBoxEventCatcher::SpinBoxEventCatcher(QObject *parent)
    : QObject(parent)
{
}

SpinBoxEventCatcher::~SpinBoxEventCatcher() = default;

bool SpinBoxEventCatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        emit focusEvent(event->type() == QEvent::FocusIn);
        return false;
    }
    return QObject::eventFilter(watched, event);
}
