// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

using ArvDevice = struct _ArvDevice;

namespace Cameras {

class Description;
class SimulatedRegisters;

/*! Sets \a registers, from which \a device serves \a description, so that the camera is all there: features
 * are implemented, available and not locked, with the features that come first in the tree served first;
 * enumerations are at their first available entry; limits leave room, and values are within them.
 *
 * Found by trying, in bounded time; what is not found stays as it was. */
ZELTO_CAMERAS_EXPORT void awaken(ArvDevice *device, const Description &description,
                                 SimulatedRegisters &registers);

} // namespace Cameras
