// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "threadbound.h"

#include <platform/genicam/genericexception.h>

#include <QMetaObject>
#include <QThread>

void requireItsThread(const QObject &object)
{
    if (object.thread() != QThread::currentThread()) {
        throw GenICam::LogicalErrorException(QStringLiteral("This belongs to another thread"));
    }
}

void releaseOnItsThread(QSharedPointer<QObject> object)
{
    const QThread *const thread = object ? object->thread() : nullptr;
    if (!thread || thread == QThread::currentThread() || thread->isFinished()) {
        return; // and with it goes the argument
    }
    QObject *const target = object.data();
    QMetaObject::invokeMethod(
        target, [object = std::move(object)] {}, Qt::QueuedConnection);
}
