// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framegrabber.h"

#include <QEventLoop>
#include <QTimer>

using namespace Cameras;

FrameGrabber::FrameGrabber(Stream *stream)
    : m_stream(stream)
{
    connect(stream, SIGNAL(frameArrived()), this, SLOT(take()));
    connect(stream, SIGNAL(stopped(QString)), this, SLOT(onStopped(QString)));
    stream->start();
}

FrameGrabber::~FrameGrabber()
{
    m_stream->disconnect(this);
    m_stream->stop();
}

FramePointer FrameGrabber::next(int milliseconds)
{
    m_frame.reset();
    QEventLoop loop;
    connect(this, SIGNAL(woken()), &loop, SLOT(quit()));
    QTimer::singleShot(milliseconds, &loop, SLOT(quit()));
    if (!m_hasEnded) {
        loop.exec();
    }
    return m_frame;
}

StreamStatistics FrameGrabber::watch(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, SLOT(quit()));
    connect(this, &FrameGrabber::woken, &loop, [this, &loop] {
        if (m_hasEnded) {
            loop.quit();
        }
    });
    if (!m_hasEnded) {
        loop.exec();
    }
    return m_stream->statistics();
}

void FrameGrabber::take()
{
    const FramePointer frame = m_stream->takeNewest();
    if (frame && frame->isComplete()) {
        m_frame = frame;
        Q_EMIT woken();
    }
}

void FrameGrabber::onStopped(const QString &reason)
{
    if (m_stream->isRunning()) {
        return; // that was an earlier run
    }
    m_failure = reason;
    interrupt();
}

void FrameGrabber::interrupt()
{
    m_hasEnded = true;
    Q_EMIT woken();
}
