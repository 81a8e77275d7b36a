// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "asyncerrorqueue.h"

#include <QCoreApplication>
#include <QMutexLocker>

AsyncErrorQueue::AsyncErrorQueue(QObject *parent)
    : QObject(parent)
{
    static const int id = qRegisterMetaType<AsyncErrorQueue::ErrorSeverity>("AsyncErrorQueue::ErrorSeverity");
    Q_UNUSED(id)
}

AsyncErrorQueue::~AsyncErrorQueue() = default;

bool AsyncErrorQueue::reportErrorAsync(ErrorSeverity severity, const QString &message, const QString &details,
                                       QWidget *parent)
{
    append(severity, message, details, parent);
    QMetaObject::invokeMethod(this, "asyncSignaler", Qt::QueuedConnection);
    return true;
}

bool AsyncErrorQueue::append(ErrorSeverity severity, const QString &message, const QString &details,
                             QWidget *parent)
{
    const QMutexLocker locker(&m_mutex);
    m_entries.append({severity, message, details, parent});
    return true;
}

void AsyncErrorQueue::clear()
{
    const QMutexLocker locker(&m_mutex);
    m_entries.clear();
}

size_t AsyncErrorQueue::count() const
{
    const QMutexLocker locker(&m_mutex);
    return static_cast<size_t>(m_entries.size());
}

void AsyncErrorQueue::asyncSignaler()
{
    Entry entry;
    {
        const QMutexLocker locker(&m_mutex);
        if (m_entries.isEmpty()) {
            return;
        }
        entry = m_entries.takeFirst();
    }
    emit displayError(entry.severity, entry.message, entry.details, entry.parent.data());
}

AsyncErrorQueue *GetTheGlobalAsyncErrorQueue()
{
    struct GlobalQueue
    {
        GlobalQueue()
        {
            if (QCoreApplication *const application = QCoreApplication::instance()) {
                queue.moveToThread(application->thread());
            }
        }

        AsyncErrorQueue queue;
    };
    static GlobalQueue global;
    return &global.queue;
}
