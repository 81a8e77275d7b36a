// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulateddevice_p.h"

#include "aravis_p.h"
#include "portdevice_p.h"
#include "simulatedregisters_p.h"

#include <utility>

namespace Cameras {

namespace {

class SimulatedPort : public DevicePort
{
public:
    explicit SimulatedPort(std::shared_ptr<SimulatedRegisters> registers)
        : m_registers(std::move(registers))
    {
    }

    bool read(quint64 address, quint32 size, void *buffer, GError **error) override
    {
        return m_registers->read(address, size, buffer) || refuse(address, size, error);
    }

    bool write(quint64 address, quint32 size, const void *buffer, GError **error) override
    {
        return m_registers->write(address, size, buffer) || refuse(address, size, error);
    }

private:
    static bool refuse(quint64 address, quint32 size, GError **error)
    {
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
                    "%u bytes at 0x%" G_GINT64_MODIFIER "x are no register", size, guint64(address));
        return false;
    }

    std::shared_ptr<SimulatedRegisters> m_registers;
};

} // namespace

DevicePtr newSimulatedDevice(const QByteArray &xml, const std::shared_ptr<SimulatedRegisters> &registers)
{
    return newPortDevice(xml, std::make_unique<SimulatedPort>(registers));
}

} // namespace Cameras
