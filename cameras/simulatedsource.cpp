// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedsource_p.h"

#include "description_p.h"
#include "simulatedregisters_p.h"

#include <platform/core/exception.h>

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace Cameras {

namespace {

template <typename Clock>
typename Clock::duration duration(double seconds)
{
    constexpr double most = 86400; // a day, beyond which nobody waits
    return std::chrono::duration_cast<typename Clock::duration>(
        std::chrono::duration<double>(std::min(seconds, most)));
}

} // namespace

SimulatedSource::SimulatedSource(Engine &engine, std::shared_ptr<const Description> description,
                                 std::shared_ptr<SimulatedRegisters> registers, FrameSink sink)
    : FrameSource(engine)
    , m_description(std::move(description))
    , m_registers(std::move(registers))
    , m_sink(std::move(sink))
{
}

SimulatedSource::~SimulatedSource()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_image.cancel();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void SimulatedSource::prepare()
{
    m_newSettings = readSettings(engine(), *m_description, *m_registers);
    m_framesLeft = m_newSettings->frames;
    m_clockStart = quint64(engine().integer(QStringLiteral("Timestamp")).value_or(0));
    m_thread = std::thread([this] { run(); });
}

void SimulatedSource::noteWrite(int node)
{
    const QString name = m_description->name(node);
    if (name == QLatin1String("AcquisitionStart")) {
        acquire(true);
        return;
    }
    if (name == QLatin1String("AcquisitionStop") || name == QLatin1String("AcquisitionAbort")) {
        acquire(false);
        return;
    }
    const SimulatedSettings settings = readSettings(engine(), *m_description, *m_registers);
    if (name == QLatin1String("TriggerSoftware")) {
        trigger(settings);
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_newSettings = settings;
    }
    m_changed.notify_all();
}

void SimulatedSource::acquire(bool isAcquiring)
{
    {
        const std::lock_guard lock(m_mutex);
        m_isAcquiring = isAcquiring;
        m_isTriggered = false;
        m_burstFramesLeft = 0;
    }
    m_changed.notify_all();
}

void SimulatedSource::trigger(const SimulatedSettings &settings)
{
    if (!settings.isSoftwareSource) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        if (settings.isBurstSelected) {
            m_burstFramesLeft = settings.burstFrames;
        } else {
            m_isTriggered = true;
        }
    }
    m_changed.notify_all();
}

void SimulatedSource::run()
{
    Lock lock(m_mutex);
    while (!m_isEnding) {
        if (m_newSettings) {
            useSettings(lock);
        } else if (!isFrameWanted()) {
            m_isExposing = false;
            m_changed.wait(lock);
        } else if (!m_isExposing) {
            beginExposure();
        } else if (Clock::now() < exposureEnd()) {
            m_changed.wait_until(lock, exposureEnd());
        } else {
            sendFrame(lock);
        }
    }
}

void SimulatedSource::useSettings(Lock &lock)
{
    m_settings = *std::exchange(m_newSettings, std::nullopt);
    lock.unlock();
    QString failure;
    try {
        m_image.setUp(m_settings);
    } catch (const Core::Exception::BaseException &exception) {
        failure = exception.getMessage();
    }
    lock.lock();
    if (!failure.isEmpty()) {
        stopAcquiring(failure);
    }
}

bool SimulatedSource::isFrameWanted() const
{
    return m_isAcquiring
        && (m_isExposing
            || ((!m_settings.isFrameTriggered || m_isTriggered)
                && (!m_settings.isBurstTriggered || m_burstFramesLeft > 0)));
}

// What is changed meanwhile lengthens or shortens the exposure, so that dragging a value starves nobody.
void SimulatedSource::beginExposure()
{
    const auto earliest = m_exposureStart + duration<Clock>(m_settings.interval);
    const auto delay = duration<Clock>(m_settings.isFrameTriggered ? m_settings.triggerDelay : 0);
    m_exposureStart = std::max(Clock::now() + delay, m_number > 0 ? earliest : Clock::time_point());
    m_isExposing = true;
    m_isTriggered = false;
    m_burstFramesLeft = std::max<qint64>(m_burstFramesLeft - 1, 0);
}

SimulatedSource::Clock::time_point SimulatedSource::exposureEnd() const
{
    return m_exposureStart + duration<Clock>(m_settings.exposure);
}

void SimulatedSource::sendFrame(Lock &lock)
{
    m_isExposing = false;
    const bool isLast = m_framesLeft > 0 && --m_framesLeft == 0;
    lock.unlock();
    Frame frame;
    frame.pixelFormat = m_settings.format;
    frame.number = ++m_number;
    frame.bytes = m_memory->take(m_image.size());
    m_image.paint(frame.number, frame.bytes);
    ReceivedFrame::setSize(frame, m_settings.width, m_settings.height);
    frame.cameraTime = m_clockStart + quint64(std::chrono::nanoseconds(Clock::now() - m_start).count());
    frame.arrival = QDateTime::currentDateTimeUtc();
    lock.lock();
    if (m_isEnding) {
        return; // it may be painted in part
    }
    m_sink.deliver(m_memory->shared(std::move(frame)));
    if (isLast) {
        stopAcquiring(framesSentWords());
    }
}

void SimulatedSource::stopAcquiring(const QString &reason)
{
    m_isAcquiring = false;
    m_sink.end(reason);
}

} // namespace Cameras
