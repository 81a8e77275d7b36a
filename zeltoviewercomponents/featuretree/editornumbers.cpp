// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editornumbers_p.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>

namespace EditorNumbers {

namespace {

int wrapped(quint32 bits)
{
    return static_cast<int>(bits);
}

} // namespace

int saturated(qint64 value)
{
    return static_cast<int>(
        std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

int saturated(double value)
{
    return static_cast<int>(
        std::clamp<double>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

int wrappingDifference(int a, int b)
{
    return wrapped(static_cast<quint32>(a) - static_cast<quint32>(b));
}

int pageStep(int minimum, int maximum, int increment)
{
    const int difference = wrappingDifference(maximum, minimum);
    const int distance = difference < 0 ? wrappingDifference(0, difference) : difference;
    return std::max(distance / 20, wrapped(2U * static_cast<quint32>(increment)));
}

int trimmedToGrid(int value, int minimum, int increment)
{
    if (increment == 0) {
        return value;
    }
    return saturated(value - (qint64(value) - minimum) % increment);
}

double snappedToGrid(double value, double minimum, double maximum, double increment)
{
    const double limited = std::clamp(value, minimum, maximum);
    const double steps = std::round((limited - minimum) / increment);
    // Beyond 2^53 steps neighbouring grid points cannot be told apart.
    if (!(increment > 0.0) || !(steps < 9007199254740992.0)) {
        return limited;
    }
    const auto point = [=](double step) { return sumWithoutNoise(minimum, step * increment); };
    const double nearest = point(steps);
    return std::max(nearest <= maximum ? nearest : point(steps - 1.0), minimum);
}

double withoutNoise(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::digits10).toDouble();
}

double sumWithoutNoise(double a, double b)
{
    const double larger = std::max(std::abs(a), std::abs(b));
    const double decimals = std::numeric_limits<double>::digits10 - 1 - std::floor(std::log10(larger));
    return decimals > 0.0 && decimals <= std::numeric_limits<double>::max_exponent10
        ? QString::number(a + b, 'f', static_cast<int>(decimals)).toDouble()
        : withoutNoise(a + b);
}

bool FloatLimits::isBounded() const
{
    // Descriptions name the farthest number of either precision where there is no limit.
    constexpr double farthest = std::numeric_limits<float>::max();
    return minimum > -farthest && maximum < farthest;
}

FloatLimits usableLimits(const ParameterCollection::FloatParameterData &data)
{
    FloatLimits limits;
    if (!(data.minimum > data.maximum)) {
        limits.minimum = std::isfinite(data.minimum) ? data.minimum : limits.minimum;
        limits.maximum = std::isfinite(data.maximum) ? data.maximum : limits.maximum;
    }
    limits.increment = std::isfinite(data.increment) && data.increment > 0.0 ? data.increment : 0.0;
    return limits;
}

bool hasNumber(const ParameterCollection::FloatParameterData &data)
{
    return data.isReadable && std::isfinite(data.value);
}

bool canStep(const ParameterCollection::FloatParameterData &data)
{
    return hasNumber(data) && !(data.minimum > data.maximum);
}

} // namespace EditorNumbers
