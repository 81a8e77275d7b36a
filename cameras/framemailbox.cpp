// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framemailbox_p.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace Cameras {

namespace {

constexpr auto rateTime = 2s; // the rates are those of this time
constexpr quint64 longestGap = 10000; // frames that a camera may lose at once
constexpr size_t fewestArrivals = 2;
constexpr size_t mostArrivals = 1000;

double seconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

} // namespace

void FrameMailbox::setListener(QObject *listener)
{
    const std::lock_guard lock(m_mutex);
    m_listener = listener;
}

void FrameMailbox::begin(quint64 run)
{
    const std::lock_guard lock(m_mutex);
    m_run = run;
    m_isOpen = true;
    m_isStarted = false;
    m_isFrameTold = false;
    m_newest.reset();
    m_statistics = {};
    m_lastNumber = 0;
    m_arrivals.clear();
}

void FrameMailbox::close()
{
    const std::lock_guard lock(m_mutex);
    if (std::exchange(m_isOpen, false)) {
        m_end = Clock::now();
    }
}

bool FrameMailbox::isOpen(quint64 run) const
{
    const std::lock_guard lock(m_mutex);
    return m_isOpen && run == m_run;
}

void FrameMailbox::deliver(quint64 run, FramePointer frame)
{
    FramePointer missed; // ends after the lock
    const std::lock_guard lock(m_mutex);
    if (!m_isOpen || run != m_run) {
        return;
    }
    count(*frame);
    missed = std::exchange(m_newest, std::move(frame));
    m_statistics.dropped += missed ? 1 : 0;
    tellFrame();
}

// The first one may be here before the start is told.
void FrameMailbox::tellFrame()
{
    if (m_isStarted && m_newest && m_listener && !std::exchange(m_isFrameTold, true)) {
        QMetaObject::invokeMethod(m_listener, "reportFrame", Qt::QueuedConnection, Q_ARG(quint64, m_run));
    }
}

void FrameMailbox::count(const Frame &frame)
{
    ++(frame.isComplete() ? m_statistics.complete : m_statistics.incomplete);
    // Numbers begin again after the largest one, and may be anything.
    const quint64 step = frame.number - m_lastNumber;
    if (m_lastNumber > 0 && step > 1 && step < longestGap) {
        m_statistics.dropped += step - 1;
    }
    m_lastNumber = frame.number;
    const auto now = Clock::now();
    m_arrivals.push_back({now, frame.bytes.size()});
    while (m_arrivals.size() > mostArrivals
           || (m_arrivals.size() > fewestArrivals && now - m_arrivals.front().time > rateTime)) {
        m_arrivals.pop_front();
    }
}

FramePointer FrameMailbox::takeNewest()
{
    const std::lock_guard lock(m_mutex);
    m_isFrameTold = false;
    return std::exchange(m_newest, nullptr);
}

StreamStatistics FrameMailbox::statistics() const
{
    const std::lock_guard lock(m_mutex);
    StreamStatistics statistics = m_statistics;
    if (m_arrivals.size() < fewestArrivals) {
        return statistics;
    }
    const auto intervals = double(m_arrivals.size() - 1);
    const auto duration = m_arrivals.back().time - m_arrivals.front().time;
    // A camera that is late by more than a frame is getting slower.
    const auto silence = (m_isOpen ? Clock::now() : m_end) - m_arrivals.back().time;
    const bool isLate = silence > 2 * duration / intervals;
    const double time = std::max(seconds(duration + (isLate ? silence : Clock::duration::zero())), 1e-6);
    double bytes = 0;
    for (auto arrival = m_arrivals.begin() + 1; arrival != m_arrivals.end(); ++arrival) {
        bytes += double(arrival->size);
    }
    statistics.framesPerSecond = intervals / time;
    statistics.bytesPerSecond = bytes / time;
    return statistics;
}

void FrameMailbox::tellStart(quint64 run)
{
    const std::lock_guard lock(m_mutex);
    if (m_listener) {
        QMetaObject::invokeMethod(m_listener, "reportStart", Qt::QueuedConnection, Q_ARG(quint64, run));
    }
    if (run == m_run) {
        m_isStarted = true;
        tellFrame();
    }
}

void FrameMailbox::tellStop(quint64 run, const QString &reason)
{
    const std::lock_guard lock(m_mutex);
    if (run <= m_ended) {
        return;
    }
    m_ended = run;
    if (run == m_run && std::exchange(m_isOpen, false)) {
        m_end = Clock::now();
    }
    if (m_listener) {
        QMetaObject::invokeMethod(m_listener, "reportStop", Qt::QueuedConnection, Q_ARG(quint64, run),
                                  Q_ARG(QString, reason));
    }
}

void FrameMailbox::fail(const QString &reason)
{
    quint64 run = 0;
    bool isWanted = false;
    {
        const std::lock_guard lock(m_mutex);
        run = m_run;
        isWanted = m_isOpen;
    }
    tellStop(run, isWanted ? reason : QString());
}

} // namespace Cameras
