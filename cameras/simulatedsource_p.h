// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "framesource_p.h"

#include <memory>

namespace Cameras {

class Description;
class SimulatedRegisters;
class SimulatedSensor;

/*! \brief The images of a simulated camera, painted on a thread of their own.
 *
 * A camera whose images take longer than their interval sends fewer. Nobody waits for an image that is being
 * painted when the source ends.
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
    std::shared_ptr<const Description> m_description;
    std::shared_ptr<SimulatedRegisters> m_registers;
    FrameSink m_sink;
    std::shared_ptr<SimulatedSensor> m_sensor;
};

} // namespace Cameras
