// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulateddevice_p.h"

#include "aravis_p.h"
#include "simulatedregisters_p.h"

#include <QtEndian>

using Cameras::SimulatedRegisters;

namespace {

struct SimulatedDeviceState
{
    QByteArray xml;
    std::shared_ptr<SimulatedRegisters> registers;
    ArvGc *genicam = nullptr;
};

} // namespace

// The object system makes its own names of these, hence the other spelling.
struct ZeltoSimulatedDevice
{
    ArvDevice parent;
    SimulatedDeviceState *state;
};

struct ZeltoSimulatedDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(ZeltoSimulatedDevice, zelto_simulated_device, ARV_TYPE_DEVICE)

namespace {

SimulatedDeviceState *stateOf(void *device)
{
    return static_cast<ZeltoSimulatedDevice *>(device)->state;
}

gboolean refuse(guint64 address, guint32 size, GError **error)
{
    g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
                "%u bytes at 0x%" G_GINT64_MODIFIER "x are no register", size, address);
    return FALSE;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return stateOf(device)->registers->read(address, size, buffer) ? TRUE : refuse(address, size, error);
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return stateOf(device)->registers->write(address, size, buffer) ? TRUE : refuse(address, size, error);
}

gboolean readRegister(ArvDevice *device, guint64 address, guint32 *value, GError **error)
{
    guint32 bytes = 0;
    const gboolean ok = readMemory(device, address, sizeof(bytes), &bytes, error);
    *value = qFromBigEndian(bytes);
    return ok;
}

gboolean writeRegister(ArvDevice *device, guint64 address, guint32 value, GError **error)
{
    guint32 bytes = qToBigEndian(value);
    return writeMemory(device, address, sizeof(bytes), &bytes, error);
}

ArvGc *genicam(ArvDevice *device)
{
    return stateOf(device)->genicam;
}

const char *genicamXml(ArvDevice *device, size_t *size)
{
    *size = size_t(stateOf(device)->xml.size());
    return stateOf(device)->xml.constData();
}

void finalize(GObject *object)
{
    SimulatedDeviceState *state = stateOf(object);
    g_clear_object(&state->genicam);
    delete state;
    G_OBJECT_CLASS(zelto_simulated_device_parent_class)->finalize(object);
}

} // namespace

static void zelto_simulated_device_init(ZeltoSimulatedDevice *device)
{
    device->state = new SimulatedDeviceState;
}

static void zelto_simulated_device_class_init(ZeltoSimulatedDeviceClass *deviceClass)
{
    G_OBJECT_CLASS(deviceClass)->finalize = finalize;
    deviceClass->parent.get_genicam_xml = genicamXml;
    deviceClass->parent.get_genicam = genicam;
    deviceClass->parent.read_memory = readMemory;
    deviceClass->parent.write_memory = writeMemory;
    deviceClass->parent.read_register = readRegister;
    deviceClass->parent.write_register = writeRegister;
}

namespace Cameras {

DevicePtr newSimulatedDevice(const QByteArray &xml, const std::shared_ptr<SimulatedRegisters> &registers)
{
    DevicePtr device(static_cast<ArvDevice *>(g_object_new(zelto_simulated_device_get_type(), nullptr)));
    SimulatedDeviceState *state = stateOf(device.get());
    state->xml = xml;
    state->registers = registers;
    state->genicam = arv_gc_new(device.get(), state->xml.constData(), size_t(state->xml.size()));
    return device;
}

} // namespace Cameras
