// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "engineturn_p.h"

#include <platform/core/exception.h>

#include <QString>

#include <chrono>
#include <mutex>

using namespace std::chrono_literals;

namespace Cameras {

namespace {

constexpr auto lookTime = 20ms; // between looks whether the turn is wanted still

// Never destroyed: a thread that hangs may outlive everything.
std::timed_mutex &engineMutex()
{
    static auto *const mutex = new std::timed_mutex;
    return *mutex;
}

} // namespace

EngineTurn::EngineTurn()
{
    engineMutex().lock();
}

EngineTurn::EngineTurn(const Waiter &waiter)
{
    if (engineMutex().try_lock()) {
        return;
    }
    waiter.onWaiting(true);
    while (!engineMutex().try_lock_for(lookTime)) {
        if (!waiter.isWanted()) {
            throw Core::Exception::BaseException(QStringLiteral("no longer wanted"));
        }
    }
    waiter.onWaiting(false);
}

EngineTurn::~EngineTurn()
{
    engineMutex().unlock();
}

} // namespace Cameras
