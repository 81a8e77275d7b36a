// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "deviceptr_p.h"

#include <cameras/cameras_export.h>

#include <QByteArray>

#include <memory>

namespace Cameras {

class SimulatedRegisters;

/*! Returns a new device that serves the description \a xml from \a registers. It has no genicam when the
 * engine cannot read the description. */
ZELTO_CAMERAS_EXPORT DevicePtr newSimulatedDevice(const QByteArray &xml,
                                                  const std::shared_ptr<SimulatedRegisters> &registers);

} // namespace Cameras
