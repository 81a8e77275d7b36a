// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace Cameras {

/*! Runs \a work, which must not throw, on a thread of its own. Nobody waits for it but the end of the
 * process, for a moment; work that hangs in a foreign library is left behind then. Returns whether a thread
 * was to be had. */
[[nodiscard]] bool runInBackground(std::function<void()> work);

/*! Returns whether the caller is such work. */
bool isInBackground();

} // namespace Cameras
