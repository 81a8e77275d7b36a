// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QRecursiveMutex>
#include <QString>
#include <QWidget>

#ifdef __SANITIZE_THREAD__
#include <mutex>
#endif

/*! \brief The process-wide queue of messages for the user.
 *
 * Any thread may report; the queue hands the messages on one at a time, in order, from the event loop of the
 * thread that it belongs to, through displayError(). It shows nothing itself: the application connects the
 * signal to what does.
 *
 * \ingroup errors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT AsyncErrorQueue : public QObject
{
    Q_OBJECT

public:
    /*! \brief How bad it is, the worst first. */
    enum ErrorSeverity : quint32 {
        Critical = 10,
        Error = 20,
        Warning = 30,
    };
    Q_ENUM(ErrorSeverity)

    /*! Makes a queue of its own; the library itself uses the global one. */
    explicit AsyncErrorQueue(QObject *parent = nullptr);
    ~AsyncErrorQueue() override;

    /*! Appends a message and schedules its delivery. Always returns true. */
    bool reportErrorAsync(ErrorSeverity severity, const QString &message, const QString &details,
                          QWidget *parent);

    /*! Does the same as reportErrorAsync(). */
    bool append(ErrorSeverity severity, const QString &message, const QString &details, QWidget *parent);

    /*! Removes all pending messages. */
    void clear();

    /*! Returns the number of pending messages. */
    size_t count() const;

Q_SIGNALS:
    /*! Emitted once per message. \a parent is null when there was none or it has died meanwhile. */
    void displayError(AsyncErrorQueue::ErrorSeverity severity, QString message, QString details,
                      QWidget *parent);

protected Q_SLOTS:
    void asyncSignaler();

private:
    struct Entry
    {
        ErrorSeverity severity = Critical;
        QString message;
        QString details;
        QPointer<QWidget> parent;
    };

#ifdef __SANITIZE_THREAD__
    mutable std::recursive_mutex m_mutex; // the sanitizer does not see what locks inside Qt
#else
    mutable QRecursiveMutex m_mutex;
#endif
    QList<Entry> m_entries;
};

/*! Returns the one queue of the process. It belongs to the application's thread, whoever calls first; what is
 * reported before there is an application waits for it. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT AsyncErrorQueue *GetTheGlobalAsyncErrorQueue();
