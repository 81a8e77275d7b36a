// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedsource_p.h"

#include "backgroundthreads_p.h"
#include "description_p.h"
#include "receivedframe_p.h"
#include "session_p.h"
#include "simulatedimage_p.h"
#include "simulatedregisters_p.h"
#include "simulatedsettings_p.h"

#include <platform/core/exception.h>

#include <QDateTime>
#include <QString>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
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

/*! \brief The part of a simulated camera that exposes, on its own thread. The others are usable anywhere. */
class SimulatedSensor
{
public:
    SimulatedSensor(FrameSink sink, const SimulatedSettings &settings, quint64 clockStart)
        : m_sink(std::move(sink))
        , m_clockStart(clockStart)
        , m_newSettings(settings)
        , m_framesLeft(settings.frames)
    {
    }

    /*! Sends frames until end() is called. */
    void run();
    void end();
    void change(const SimulatedSettings &settings);
    void acquire(bool isAcquiring);
    void trigger(const SimulatedSettings &settings);

private:
    using Clock = std::chrono::steady_clock;
    using Lock = std::unique_lock<std::mutex>;

    void useSettings(Lock &lock);
    bool isFrameWanted() const;
    void beginExposure();
    Clock::time_point exposureEnd() const;
    void sendFrame(Lock &lock);
    void stopAcquiring(const QString &reason);

    const FrameSink m_sink;
    const quint64 m_clockStart; //!< of the camera, nanoseconds
    const Clock::time_point m_start = Clock::now();

    // The thread's alone.
    std::shared_ptr<FrameMemory> m_memory = std::make_shared<FrameMemory>(FrameMemory::Contents::Any);
    SimulatedImage m_image;
    SimulatedSettings m_settings;
    quint64 m_number = 0;
    bool m_isExposing = false;
    Clock::time_point m_exposureStart;

    std::mutex m_mutex; // for what follows
    std::condition_variable m_changed;
    std::optional<SimulatedSettings> m_newSettings;
    bool m_isAcquiring = true;
    bool m_isEnding = false;
    bool m_isTriggered = false;
    qint64 m_burstFramesLeft = 0;
    qint64 m_framesLeft; //!< before the camera stops by itself, less than 0 where it goes on
};

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
    if (m_sensor) {
        m_sensor->end();
    }
}

void SimulatedSource::prepare()
{
    const auto now = quint64(engine().integer(QStringLiteral("Timestamp")).value_or(0));
    m_sensor =
        std::make_shared<SimulatedSensor>(m_sink, readSettings(engine(), *m_description, *m_registers), now);
    if (!runInBackground([sensor = m_sensor] { sensor->run(); })) {
        throw Core::Exception::BaseException(Session::tr("the system has no thread left"));
    }
}

void SimulatedSource::noteWrite(int node)
{
    const QString name = m_description->name(node);
    if (name == QLatin1String("AcquisitionStart")) {
        m_sensor->acquire(true);
        return;
    }
    if (name == QLatin1String("AcquisitionStop") || name == QLatin1String("AcquisitionAbort")) {
        m_sensor->acquire(false);
        return;
    }
    const SimulatedSettings settings = readSettings(engine(), *m_description, *m_registers);
    if (name == QLatin1String("TriggerSoftware")) {
        m_sensor->trigger(settings);
    } else {
        m_sensor->change(settings);
    }
}

void SimulatedSensor::end()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_image.cancel();
}

void SimulatedSensor::change(const SimulatedSettings &settings)
{
    {
        const std::lock_guard lock(m_mutex);
        m_newSettings = settings;
    }
    m_changed.notify_all();
}

void SimulatedSensor::acquire(bool isAcquiring)
{
    {
        const std::lock_guard lock(m_mutex);
        m_isAcquiring = isAcquiring;
        m_isTriggered = false;
        m_burstFramesLeft = 0;
    }
    m_changed.notify_all();
}

void SimulatedSensor::trigger(const SimulatedSettings &settings)
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

void SimulatedSensor::run()
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

void SimulatedSensor::useSettings(Lock &lock)
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

bool SimulatedSensor::isFrameWanted() const
{
    return m_isAcquiring
        && (m_isExposing
            || ((!m_settings.isFrameTriggered || m_isTriggered)
                && (!m_settings.isBurstTriggered || m_burstFramesLeft > 0)));
}

// What is changed meanwhile lengthens or shortens the exposure, so that dragging a value starves nobody.
void SimulatedSensor::beginExposure()
{
    const auto earliest = m_exposureStart + duration<Clock>(m_settings.interval);
    const auto delay = duration<Clock>(m_settings.isFrameTriggered ? m_settings.triggerDelay : 0);
    m_exposureStart = std::max(Clock::now() + delay, m_number > 0 ? earliest : Clock::time_point());
    m_isExposing = true;
    m_isTriggered = false;
    m_burstFramesLeft = std::max<qint64>(m_burstFramesLeft - 1, 0);
}

SimulatedSensor::Clock::time_point SimulatedSensor::exposureEnd() const
{
    return m_exposureStart + duration<Clock>(m_settings.exposure);
}

void SimulatedSensor::sendFrame(Lock &lock)
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
        stopAcquiring(FrameSource::framesSentWords());
    }
}

void SimulatedSensor::stopAcquiring(const QString &reason)
{
    m_isAcquiring = false;
    m_sink.end(reason);
}

} // namespace Cameras
