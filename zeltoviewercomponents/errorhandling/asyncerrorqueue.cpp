// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "asyncerrorqueue.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>

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
    return append(severity, message, details, parent);
}

bool AsyncErrorQueue::append(ErrorSeverity severity, const QString &message, const QString &details,
                             QWidget *parent)
{
    {
        const QMutexLocker locker(&m_mutex);
        m_entries.append({severity, message, details, parent});
    }
    QMetaObject::invokeMethod(this, "asyncSignaler", Qt::QueuedConnection);
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

namespace {

/*! \brief The one queue, on the application's thread.
 *
 * As long as there is no application it is on no thread: one that made it might end, and only an object
 * without a thread lets itself be fetched. What is reported meanwhile waits with it.
 */
struct GlobalQueue
{
    GlobalQueue()
    {
        const QMutexLocker locker(&s_mutex);
        queue.moveToThread(s_applicationThread);
        s_queue = &queue;
    }

    ~GlobalQueue()
    {
        const QMutexLocker locker(&s_mutex);
        s_queue = nullptr;
    }

    AsyncErrorQueue queue;

    static QBasicMutex s_mutex; // for these two; a worker may make the queue while the application starts
    static QThread *s_applicationThread;
    static AsyncErrorQueue *s_queue;
};

QBasicMutex GlobalQueue::s_mutex;
QThread *GlobalQueue::s_applicationThread = nullptr;
AsyncErrorQueue *GlobalQueue::s_queue = nullptr;

void fetchGlobalQueue()
{
    const QMutexLocker locker(&GlobalQueue::s_mutex);
    GlobalQueue::s_applicationThread = QCoreApplication::instance()->thread();
    if (GlobalQueue::s_queue) {
        GlobalQueue::s_queue->moveToThread(GlobalQueue::s_applicationThread);
    }
}

Q_COREAPP_STARTUP_FUNCTION(fetchGlobalQueue)

} // namespace

AsyncErrorQueue *GetTheGlobalAsyncErrorQueue()
{
    static GlobalQueue global;
    return &global.queue;
}
