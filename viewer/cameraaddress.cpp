// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameraaddress.h"

#include <cameras/camera.h>
#include <cameras/cameraopening.h>

std::unique_ptr<Cameras::Camera> cameraAt(const CameraAddress &address)
{
    if (!address.description.isEmpty()) {
        return Cameras::Camera::openDescription(address.description);
    }
    return address.isLive() ? Cameras::Camera::openLive(address.camera) : Cameras::Camera::openEmbedded();
}

std::unique_ptr<Cameras::CameraOpening> openingAt(const CameraAddress &address)
{
    if (!address.description.isEmpty()) {
        return Cameras::Camera::openDescriptionAsync(address.description);
    }
    return address.isLive() ? Cameras::Camera::openLiveAsync(address.camera)
                            : Cameras::Camera::openEmbeddedAsync();
}
