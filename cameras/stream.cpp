// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "stream.h"

#include "framemailbox_p.h"
#include "session_p.h"

#include <utility>

namespace Cameras {

Stream::Stream(std::shared_ptr<Session> session)
    : m_session(std::move(session))
    , m_mailbox(std::make_shared<FrameMailbox>())
{
    m_mailbox->setListener(this);
}

Stream::~Stream()
{
    m_mailbox->setListener(nullptr);
    stop();
}

bool Stream::isRunning() const
{
    return m_isRunning;
}

StreamStatistics Stream::statistics() const
{
    return m_mailbox->statistics();
}

FramePointer Stream::takeNewest()
{
    return m_mailbox->takeNewest();
}

void Stream::start()
{
    if (m_isRunning) {
        return;
    }
    m_isRunning = true;
    m_mailbox->begin(++m_run);
    m_session->startStream(m_mailbox, m_run);
}

void Stream::stop()
{
    if (!m_isRunning) {
        return;
    }
    m_isRunning = false;
    m_mailbox->close();
    m_session->stopStream(m_run);
}

void Stream::reportStart(quint64 run)
{
    if (m_isRunning && run == m_run) {
        Q_EMIT started();
    }
}

void Stream::reportFrame(quint64 run)
{
    if (m_isRunning && run == m_run) {
        Q_EMIT frameArrived();
    }
}

void Stream::reportStop(quint64 run, const QString &reason)
{
    if (run == m_run) {
        m_isRunning = false;
    }
    Q_EMIT stopped(reason);
}

} // namespace Cameras
