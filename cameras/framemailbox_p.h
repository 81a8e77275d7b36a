// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "stream.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <deque>
#include <mutex>

namespace Cameras {

/*! \brief Where those who bring frames leave the newest one for the reader.
 *
 * Each start of a stream is a run with a number of its own; what still comes from an earlier one is refused.
 * May be used on any thread.
 */
class FrameMailbox
{
public:
    /*! Names the object whose slots are invoked: reportStart(quint64), reportFrame(quint64) and
     * reportStop(quint64, QString). */
    void setListener(QObject *listener);

    /*! Begins the run number \a run, with statistics at zero. */
    void begin(quint64 run);
    /*! Takes no more frames. */
    void close();
    /*! Returns whether frames of \a run are wanted still. */
    bool isOpen(quint64 run) const;

    void deliver(quint64 run, FramePointer frame);
    FramePointer takeNewest();
    StreamStatistics statistics() const;

    void tellStart(quint64 run);
    /*! Tells once for each run that it has ended, and takes no more frames of it. */
    void tellStop(quint64 run, const QString &reason);
    /*! As tellStop() for the run that is under way, if any. */
    void fail(const QString &reason);

private:
    using Clock = std::chrono::steady_clock;

    struct Arrival
    {
        Clock::time_point time;
        qsizetype size;
    };

    void count(const Frame &frame);
    void tellFrame();

    mutable std::mutex m_mutex;
    QObject *m_listener = nullptr;
    quint64 m_run = 0;
    quint64 m_ended = 0; //!< the latest run whose end was told
    bool m_isOpen = false;
    bool m_isStarted = false;
    bool m_isFrameTold = false;
    FramePointer m_newest;
    StreamStatistics m_statistics; //!< without the rates
    quint64 m_lastNumber = 0;
    std::deque<Arrival> m_arrivals; //!< those that the rates are made of
    Clock::time_point m_end; //!< when frames were refused from
};

} // namespace Cameras
