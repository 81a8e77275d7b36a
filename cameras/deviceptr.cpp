// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "deviceptr_p.h"

#include "aravis_p.h"

namespace Cameras {

void DeviceRelease::operator()(ArvDevice *device) const
{
    g_object_unref(device);
}

} // namespace Cameras
