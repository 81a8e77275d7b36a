// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "deviceptr_p.h"

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QtGlobal>

#include <memory>

using GError = struct _GError;

namespace Cameras {

/*! \brief The registers behind a device of our own. Both functions report a failure as the engine does. */
class ZELTO_CAMERAS_EXPORT DevicePort
{
public:
    virtual ~DevicePort();

    virtual bool read(quint64 address, quint32 size, void *buffer, GError **error) = 0;
    virtual bool write(quint64 address, quint32 size, const void *buffer, GError **error) = 0;

protected:
    DevicePort() = default;
    Q_DISABLE_COPY_MOVE(DevicePort)
};

/*! Returns a new device that serves the description \a xml from \a port. It has no genicam when the engine
 * cannot read the description. */
ZELTO_CAMERAS_EXPORT DevicePtr newPortDevice(const QByteArray &xml, std::unique_ptr<DevicePort> port);

} // namespace Cameras
