// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <platform/platform_export.h>

#include <QString>

#include <optional>

/*! \brief How values are written as text and read from it, the same in every locale. */
namespace ParameterCollection::ValueText {

/*! Returns \a value in the form of the GenICam \a representation. */
ZELTO_PLATFORM_EXPORT QString fromInteger(qint64 value, const QString &representation);
/*! Returns the shortest text in \a notation that gives \a value again. */
ZELTO_PLATFORM_EXPORT QString fromFloat(double value,
                                        GenApi::EDisplayNotation notation = GenApi::fnAutomatic);

/*! Returns the number that \a text stands for: decimal, hexadecimal with "0x" or the form of \a
 * representation. */
ZELTO_PLATFORM_EXPORT std::optional<qint64> toInteger(const QString &text, const QString &representation);
/*! Returns whether \a text, which is no number of 64 bits, has just too many digits for one. */
ZELTO_PLATFORM_EXPORT bool isTooLong(const QString &text);
/*! Returns whether \a address can be a subnet mask: its ones come before its zeros. */
ZELTO_PLATFORM_EXPORT bool isSubnetMask(qint64 address);
/*! Returns the finite number that \a text stands for, with a decimal point. */
ZELTO_PLATFORM_EXPORT std::optional<double> toFloat(const QString &text);

} // namespace ParameterCollection::ValueText
