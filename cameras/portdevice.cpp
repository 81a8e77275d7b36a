// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "portdevice_p.h"

#include "aravis_p.h"

#include <QtEndian>

#include <utility>

using Cameras::DevicePort;

namespace {

struct PortDeviceState
{
    QByteArray xml;
    std::unique_ptr<DevicePort> port;
    ArvGc *genicam = nullptr;
};

} // namespace

// The object system makes its own names of these, hence the other spelling.
struct ZeltoPortDevice
{
    ArvDevice parent;
    PortDeviceState *state;
};

struct ZeltoPortDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(ZeltoPortDevice, zelto_port_device, ARV_TYPE_DEVICE)

namespace {

PortDeviceState *stateOf(void *device)
{
    return static_cast<ZeltoPortDevice *>(device)->state;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return stateOf(device)->port->read(address, size, buffer, error) ? TRUE : FALSE;
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return stateOf(device)->port->write(address, size, buffer, error) ? TRUE : FALSE;
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
    PortDeviceState *state = stateOf(object);
    g_clear_object(&state->genicam);
    delete state;
    G_OBJECT_CLASS(zelto_port_device_parent_class)->finalize(object);
}

} // namespace

static void zelto_port_device_init(ZeltoPortDevice *device)
{
    device->state = new PortDeviceState;
}

static void zelto_port_device_class_init(ZeltoPortDeviceClass *deviceClass)
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

DevicePort::~DevicePort() = default;

DevicePtr newPortDevice(const QByteArray &xml, std::unique_ptr<DevicePort> port)
{
    DevicePtr device(static_cast<ArvDevice *>(g_object_new(zelto_port_device_get_type(), nullptr)));
    PortDeviceState *state = stateOf(device.get());
    state->xml = xml;
    state->port = std::move(port);
    state->genicam = arv_gc_new(device.get(), state->xml.constData(), size_t(state->xml.size()));
    return device;
}

} // namespace Cameras
