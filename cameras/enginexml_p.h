// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <QByteArray>

namespace Cameras {

/*! \brief Returns what the engine needs of the description \a xml, which is well-formed.
 *
 * The engine makes a node of every element and of every run of blanks between two; in a description that is
 * indented that takes most of the time of opening it. Left out are such blanks, unless they are all that an
 * element holds, and elements that are looked up in the Description alone. An encoding in which parts of
 * letters look like brackets is returned as it is.
 */
ZELTO_CAMERAS_EXPORT QByteArray engineXml(const QByteArray &xml);

} // namespace Cameras
