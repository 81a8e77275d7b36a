// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

class QSettings;

namespace Core {

/*! \brief Removes the lock that a killed program has left on the file of \a settings, if there is one.
 *
 * For who is about to store settings: QSettings knows at once that a program is dead whose name is in the
 * lock. Where it was killed before it wrote its name, QSettings waits for half a minute. Whoever lives keeps
 * the lock and is waited for, a moment.
 */
ZELTO_PLATFORM_EXPORT void removeLeftLock(const QSettings &settings);

} // namespace Core
