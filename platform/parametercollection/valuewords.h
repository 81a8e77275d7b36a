// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QString>
#include <QStringList>

#include <optional>

/*! \file
 * \brief The words by which values, user levels and access modes travel as text. None of them is translated.
 */

namespace ParameterCollection {

/*! Returns the text of a boolean in snapshots: "true" or "false". */
ZELTO_PLATFORM_EXPORT QString booleanText(bool value);
/*! Returns the boolean that \a text stands for: "1" and "0", "true" and "false" in any case. */
ZELTO_PLATFORM_EXPORT std::optional<bool> booleanFrom(const QString &text);

/*! Returns the names of the levels from GenApi::Beginner to GenApi::Invisible, in the order of their numbers.
 */
ZELTO_PLATFORM_EXPORT const QStringList &visibilityNames();
/*! Returns the names of the access modes from GenApi::NI to GenApi::RW, in the order of their numbers. */
ZELTO_PLATFORM_EXPORT const QStringList &accessModeNames();

} // namespace ParameterCollection
