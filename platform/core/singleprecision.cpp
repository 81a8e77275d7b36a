// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "singleprecision_p.h"

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>

namespace Core {

namespace {

// More than numbers have that people enter, less than a register adds to them.
constexpr int intendedDigits = 12;

} // namespace

double withoutSinglePrecisionNoise(double value)
{
    if (!std::isfinite(value) || value == std::trunc(value)) {
        return value;
    }
    const auto single = static_cast<float>(value); // a fraction is within its range
    if (static_cast<double>(single) != value
        || QByteArray::number(value, 'g', intendedDigits).toDouble() == value) {
        return value;
    }
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), single);
    return error == std::errc() ? QByteArray(text.data(), end - text.data()).toDouble() : value;
}

} // namespace Core
