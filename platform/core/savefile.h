// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QByteArray>
#include <QString>

namespace Core {

/*! \brief Writes \a contents to a file, which is replaced only when all of it could be written.
 *
 * Devices and pipes are written to, never replaced. Returns why it failed, empty when it did not.
 */
ZELTO_PLATFORM_EXPORT QString saveFile(const QString &fileName, const QByteArray &contents);

} // namespace Core
