// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
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

/*! The precision that asks formatFeatureValue() for the digits that identify the value. */
constexpr int allDigits = QLocale::FloatingPointShortest;

/*! \brief Returns the \a value of a feature as text in \a locale, without group separators and without zeros
 * at the end.
 *
 * Automatic notation shows \a precision significant digits and changes to an exponent from 10^15 on and below
 * 10^-6; whole numbers below 10^15 are shown whole. Fixed and scientific notation show \a precision digits
 * after the point. A value other than 0 never becomes 0. What a single precision register adds to a number is
 * left out.
 */
ZELTO_PLATFORM_EXPORT QString formatFeatureValue(double value, GenApi::EDisplayNotation notation,
                                                 int precision, const QLocale &locale);

/*! Returns one unit of the last digit that formatFeatureValue() has for \a value; that of 1 for 0. */
ZELTO_PLATFORM_EXPORT double lastDigitOfFeatureValue(double value, GenApi::EDisplayNotation notation,
                                                     int precision);

/*! Returns the least difference from \a value that formatFeatureValue() can show. */
ZELTO_PLATFORM_EXPORT double finestOfFeatureValue(double value, GenApi::EDisplayNotation notation,
                                                  int precision);
