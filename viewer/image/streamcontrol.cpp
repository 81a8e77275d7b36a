// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "streamcontrol.h"

#include <cameras/camera.h>
#include <cameras/stream.h>

#include <QLocale>

#include <utility>

using namespace Cameras;

namespace {

constexpr double bytesPerMegabyte = 1e6;

} // namespace

StreamControl::StreamControl(QObject *parent)
    : QObject(parent)
{
}

StreamControl::~StreamControl() = default;

void StreamControl::setCamera(Camera *camera)
{
    if (m_stream) {
        m_stream->disconnect(this);
    }
    m_camera = camera;
    m_stream = camera ? camera->stream() : nullptr;
    m_wantsOne = m_isPaused = m_wasInterrupted = m_hasStarted = false;
    if (m_stream) {
        connect(m_stream, SIGNAL(started()), this, SIGNAL(stateChanged()));
        connect(m_stream, SIGNAL(frameArrived()), this, SLOT(takeFrame()));
        connect(m_stream, SIGNAL(stopped(QString)), this, SLOT(onStopped(QString)));
    }
    Q_EMIT stateChanged();
}

Camera *StreamControl::camera() const
{
    return m_camera;
}

bool StreamControl::isPossible() const
{
    return m_stream && m_camera && !m_camera->isLost() && !m_camera->isReadOnly();
}

bool StreamControl::isRunning() const
{
    return m_stream && m_stream->isRunning();
}

QString StreamControl::summary() const
{
    if (!m_stream || !m_hasStarted) {
        return {};
    }
    const StreamStatistics statistics = m_stream->statistics();
    const QLocale locale;
    return tr("%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped")
        .arg(locale.toString(statistics.framesPerSecond, 'f', 1),
             locale.toString(statistics.bytesPerSecond / bytesPerMegabyte, 'f', 1),
             locale.toString(statistics.complete), locale.toString(statistics.incomplete),
             locale.toString(statistics.dropped));
}

void StreamControl::start()
{
    if (!isPossible() || isRunning()) {
        return;
    }
    m_wasInterrupted = false;
    m_isPaused = false;
    m_hasStarted = true;
    m_stream->start();
    Q_EMIT stateChanged();
}

void StreamControl::stop()
{
    m_wantsOne = false;
    const bool wasPaused = std::exchange(m_isPaused, false);
    if (isRunning() || wasPaused) {
        halt();
    }
}

void StreamControl::halt()
{
    if (m_stream) { // a window that ends has lost its camera before its panes
        m_stream->stop();
    }
    Q_EMIT stateChanged();
}

void StreamControl::toggle()
{
    isRunning() ? stop() : start();
}

void StreamControl::takeOne()
{
    if (!isRunning()) {
        start();
        m_wantsOne = isRunning();
    }
}

void StreamControl::pause()
{
    if (isRunning()) {
        m_isPaused = true;
        halt();
    }
}

void StreamControl::resume()
{
    if (std::exchange(m_isPaused, false)) {
        const bool wantedOne = m_wantsOne;
        start();
        m_wantsOne = wantedOne;
    }
}

void StreamControl::takeFrame()
{
    const FramePointer frame = m_stream->takeNewest();
    if (!frame || !isRunning()) {
        return;
    }
    if (m_wantsOne) {
        stop();
    }
    Q_EMIT frameArrived(frame);
}

// Of a loss the camera itself tells.
void StreamControl::onStopped(const QString &reason)
{
    const bool isLost = m_camera && m_camera->isLost();
    m_wasInterrupted = isLost && !m_wantsOne && !reason.isEmpty();
    if (!reason.isEmpty()) {
        m_wantsOne = false;
        if (!isLost) {
            Q_EMIT failed(reason);
        }
    }
    Q_EMIT stateChanged();
}
