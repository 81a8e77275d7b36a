// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Cameras {

/*! \brief Where a live camera is, and whether it could be opened now. */
struct CameraStatus
{
    /*! \brief Whether it could be opened. */
    enum class State {
        Available,
        ReadOnly, //!< another program controls it; it can be looked at
        Exclusive, //!< another program holds it for itself
        OtherSubnet, //!< this computer has no address in the camera's subnet
        NoAnswer,
        Unknown, //!< it does not tell, as over USB
    };

    State state = State::Unknown; //!< when it was asked
    QString address; //!< empty where there is none
    QString controller; //!< address of the program that controls it, empty where the camera does not tell
};

} // namespace Cameras
