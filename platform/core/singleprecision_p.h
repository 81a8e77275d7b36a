// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

namespace Core {

/*! \brief Returns the number that was meant by what a single precision register holds: 0.1 for
 * 0.10000000149011612.
 *
 * Numbers that no such register holds, and those of few digits, are returned as they are.
 */
ZELTO_PLATFORM_EXPORT double withoutSinglePrecisionNoise(double value);

} // namespace Core
