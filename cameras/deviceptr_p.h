// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <memory>

using ArvDevice = struct _ArvDevice;

namespace Cameras {

/*! \brief Gives back a device of the engine; a live one is released with that. */
struct ZELTO_CAMERAS_EXPORT DeviceRelease
{
    void operator()(ArvDevice *device) const;
};

using DevicePtr = std::unique_ptr<ArvDevice, DeviceRelease>;

} // namespace Cameras
