// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSharedPointer>

#include <utility>

/*! Throws GenICam::LogicalErrorException unless \a object belongs to the calling thread. */
void requireItsThread(const QObject &object);

/*! Lets go of \a object on the thread that it belongs to: Python destroys things on any. */
void releaseOnItsThread(QSharedPointer<QObject> object);

/*! \brief An object that Python threads share and that one thread alone may use and destroy. */
template <typename Object>
class ThreadBound
{
public:
    explicit ThreadBound(QSharedPointer<Object> object)
        : m_object(std::move(object))
    {
    }
    ~ThreadBound() { releaseOnItsThread(std::move(m_object)); }
    ThreadBound(const ThreadBound &) = default;
    ThreadBound &operator=(const ThreadBound &) = default;

    /*! Returns the object. Throws on other threads than its own. */
    const QSharedPointer<Object> &get() const
    {
        requireItsThread(*m_object);
        return m_object;
    }

private:
    QSharedPointer<Object> m_object;
};
