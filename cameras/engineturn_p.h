// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

namespace Cameras {

/*! \brief The right to use the engine's list of cameras and to open one.
 *
 * The engine guards these with a lock that it holds while a camera hangs. Whoever waits here instead of there
 * knows that he waits, and can stop. Not recursive; usable on any thread.
 */
class EngineTurn
{
public:
    /*! \brief Who waits for a turn. */
    struct Waiter
    {
        std::function<bool()> isWanted; //!< whether the turn is wanted still
        std::function<void(bool)> onWaiting; //!< told when the waiting begins and ends
    };

    /*! Waits as long as it takes. */
    EngineTurn();
    /*! Throws Core::Exception::BaseException when \a waiter wants the turn no more. */
    explicit EngineTurn(const Waiter &waiter);
    ~EngineTurn();
    Q_DISABLE_COPY_MOVE(EngineTurn)
};

} // namespace Cameras
