// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QLocale>
#include <QString>

/*! \brief Returns \a value as text in \a locale, without group separators.
 *
 * \param decimals at most this many digits after the decimal point
 * \param compact drops trailing zeros, and turns to exponent notation where fixed notation would need more
 * than 15 digits before the point or would show a value other than 0 as 0. When false, exactly \a decimals
 * digits follow the point.
 *
 * Values that are not finite give the texts of \a locale ("inf", "nan").
 */
ZELTO_PLATFORM_EXPORT QString formatDoubleValue(double value, int decimals, bool compact,
                                                const QLocale &locale);
