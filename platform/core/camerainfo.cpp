// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camerainfo.h"

namespace Core::CameraPoolComponents {

ICameraInfo::~ICameraInfo() = default;

} // namespace Core::CameraPoolComponents
