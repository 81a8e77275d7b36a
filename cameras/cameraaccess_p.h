// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Cameras {

/*! \brief What can be done with an open camera. */
struct CameraAccess
{
    bool isAnswering = true;
    bool isReadOnly = false;
    bool isFree = false; //!< read-only, and nobody controls it
    QString controller; //!< address of the program that does, empty where the camera does not tell

    friend bool operator==(const CameraAccess &, const CameraAccess &) = default;
};

} // namespace Cameras
