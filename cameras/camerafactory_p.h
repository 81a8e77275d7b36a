// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <memory>

namespace Cameras {

class Camera;
class Session;

/*! \brief Gives open sessions their public face. */
class ZELTO_CAMERAS_EXPORT CameraFactory
{
public:
    /*! Returns the camera of \a session, which is open. The camera belongs to the calling thread. */
    static std::unique_ptr<Camera> camera(std::shared_ptr<Session> session);
};

} // namespace Cameras
