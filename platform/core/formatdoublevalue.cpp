// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "formatdoublevalue.h"

#include "singleprecision_p.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace {

constexpr double largestFixed = 1e15;
constexpr double smallestFixed = 1e-6; // of features whose notation is automatic
constexpr int mostDecimals = 30; // nobody reads more

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

/*! \brief How a number is written. */
struct Form
{
    char format = 'f';
    int decimals = 0;
};

int decimalExponent(double value)
{
    return value == 0.0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
}

bool isScientific(double value, GenApi::EDisplayNotation notation)
{
    if (notation == GenApi::fnScientific) {
        return true;
    }
    const double magnitude = std::abs(value);
    if (magnitude == 0.0 || (magnitude >= smallestFixed && magnitude < largestFixed)) {
        return false;
    }
    return notation != GenApi::fnFixed || magnitude >= 1e22 || magnitude < 1e-15; // too long otherwise
}

Form formOf(double value, GenApi::EDisplayNotation notation, int precision)
{
    const char format = isScientific(value, notation) ? 'e' : 'f';
    if (notation == GenApi::fnFixed || notation == GenApi::fnScientific) {
        return {format, std::clamp(precision, 0, mostDecimals)};
    }
    const int behindFirst = std::max(precision, 1) - 1;
    return {format,
            std::clamp(format == 'e' ? behindFirst : behindFirst - decimalExponent(value), 0, mostDecimals)};
}

double roundedTo(const Form &form, double value)
{
    const double rounded = QByteArray::number(value, form.format, form.decimals).toDouble();
    return std::isfinite(rounded) && (rounded != 0.0) == (value != 0.0) ? rounded : value;
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
    const double smallestShown = 0.5 * std::pow(10.0, -decimals);
    if (magnitude >= largestFixed || (magnitude != 0.0 && magnitude < smallestShown)) {
        return plain.toString(value, 'g', QLocale::FloatingPointShortest);
    }
    return withoutTrailingZeros(plain.toString(value, 'f', decimals), plain);
}

QString formatFeatureValue(double value, GenApi::EDisplayNotation notation, int precision,
                           const QLocale &locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    if (!std::isfinite(value)) {
        return plain.toString(value);
    }
    const double meant = Core::withoutSinglePrecisionNoise(value);
    const Form form = formOf(meant, notation, precision);
    const bool isWhole = form.format == 'f' && meant == std::trunc(meant);
    return plain.toString(precision == allDigits || isWhole ? meant : roundedTo(form, meant), form.format,
                          QLocale::FloatingPointShortest);
}

double lastDigitOfFeatureValue(double value, GenApi::EDisplayNotation notation, int precision)
{
    if (value == 0.0) {
        return 1.0;
    }
    const QString text = formatFeatureValue(value, notation, precision, QLocale::c());
    const QString mantissa = text.section(QLatin1Char('e'), 0, 0);
    const int exponent = text.section(QLatin1Char('e'), 1).toInt();
    const auto decimals = mantissa.section(QLatin1Char('.'), 1).size();
    return std::pow(10.0, static_cast<double>(exponent - decimals));
}

double finestOfFeatureValue(double value, GenApi::EDisplayNotation notation, int precision)
{
    const Form form = formOf(value, notation, precision);
    return std::pow(10.0, (form.format == 'e' ? decimalExponent(value) : 0) - form.decimals);
}
