// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "formatdoublevalue.h"

#include <cmath>

namespace {

constexpr double largestFixed = 1e15;

QString withoutTrailingZeros(QString text, const QLocale &locale)
{
    const QString point = locale.decimalPoint();
    if (!text.contains(point)) {
        return text;
    }
    const QString zero = locale.zeroDigit();
    while (text.endsWith(zero)) {
        text.chop(zero.size());
    }
    if (text.endsWith(point)) {
        text.chop(point.size());
    }
    return text;
}

} // namespace

QString formatDoubleValue(double value, int decimals, bool compact, const QLocale &locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    if (!std::isfinite(value) || !compact) {
        return plain.toString(value, 'f', decimals);
    }
    const double magnitude = std::abs(value);
    const double smallestFixed = 0.5 * std::pow(10.0, -decimals);
    if (magnitude >= largestFixed || (magnitude != 0.0 && magnitude < smallestFixed)) {
        return plain.toString(value, 'g', QLocale::FloatingPointShortest);
    }
    return withoutTrailingZeros(plain.toString(value, 'f', decimals), plain);
}
