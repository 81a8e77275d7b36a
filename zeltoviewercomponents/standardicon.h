// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QIcon>
#include <QStyle>

/*! \brief Returns the application style's icon for \a kind, which is not looked for before it is painted.
 *
 * A style decodes an icon in all of its sizes, which takes about a millisecond, also for a menu that nobody
 * opens.
 */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QIcon standardIcon(QStyle::StandardPixmap kind);
