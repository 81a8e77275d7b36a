// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "framesource_p.h"
#include "receivedframe_p.h"
#include "simulatedimage_p.h"
#include "simulatedsettings_p.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace Cameras {

class Description;
class SimulatedRegisters;

/*! \brief The images of a simulated camera, painted on a thread of their own.
 *
 * A camera whose images take longer than their interval sends fewer.
 */
class SimulatedSource : public FrameSource
{
public:
    SimulatedSource(Engine &engine, std::shared_ptr<const Description> description,
                    std::shared_ptr<SimulatedRegisters> registers, FrameSink sink);
    ~SimulatedSource() override;

    void noteWrite(int node) override;

protected:
    void prepare() override;

private:
    using Clock = std::chrono::steady_clock;
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void useSettings(Lock &lock);
    bool isFrameWanted() const;
    void beginExposure();
    Clock::time_point exposureEnd() const;
    void sendFrame(Lock &lock);
    void stopAcquiring(const QString &reason);
    void acquire(bool isAcquiring);
    void trigger(const SimulatedSettings &settings);

    std::shared_ptr<const Description> m_description;
    std::shared_ptr<SimulatedRegisters> m_registers;
    FrameSink m_sink;
    std::shared_ptr<FrameMemory> m_memory = std::make_shared<FrameMemory>();
    quint64 m_clockStart = 0; //!< of the camera, nanoseconds
    Clock::time_point m_start = Clock::now();
    std::thread m_thread;

    // The thread's alone.
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
    qint64 m_framesLeft = -1; //!< before the camera stops by itself, less than 0 where it goes on
};

} // namespace Cameras
