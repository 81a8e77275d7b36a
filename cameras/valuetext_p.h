// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>

#include <QString>

#include <optional>

/*! \brief How values are written as text and read from it, the same in every locale. */
namespace Cameras::ValueText {

/*! Returns \a value in the form of the GenICam \a representation. */
QString fromInteger(qint64 value, const QString &representation);
/*! Returns the shortest text in \a notation that gives \a value again. */
QString fromFloat(double value, GenApi::EDisplayNotation notation = GenApi::fnAutomatic);

/*! Returns the number that \a text stands for: decimal, hexadecimal with "0x" or the form of \a
 * representation. */
std::optional<qint64> toInteger(const QString &text, const QString &representation);
/*! Returns whether \a text, which is no number of 64 bits, has just too many digits for one. */
bool isTooLong(const QString &text);
/*! Returns whether \a address can be a subnet mask: its ones come before its zeros. */
bool isSubnetMask(qint64 address);
std::optional<double> toFloat(const QString &text);

} // namespace Cameras::ValueText
