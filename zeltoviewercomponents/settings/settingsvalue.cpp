// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsvalue_p.h"

#include <QByteArray>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <optional>

using namespace ParameterCollection;

namespace SettingsValue {

namespace {

std::optional<qint64> integerFrom(const QString &text)
{
    bool ok = false;
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        const quint64 value = text.mid(2).toULongLong(&ok, 16);
        return ok ? std::optional(qint64(value)) : std::nullopt;
    }
    const qint64 value = text.toLongLong(&ok, 10);
    return ok ? std::optional(value) : std::nullopt;
}

std::optional<double> numberFrom(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

std::optional<bool> wordFrom(const QString &text)
{
    if (text == QLatin1String("true")) {
        return true;
    }
    return text == QLatin1String("false") ? std::optional(false) : std::nullopt;
}

std::optional<bool> booleanFrom(const QString &text)
{
    if (text == QLatin1String("1") || text == QLatin1String("0")) {
        return text == QLatin1String("1");
    }
    return wordFrom(text);
}

// Most texts are names of entries, of which nobody needs to know that they are no numbers.
bool mayBeNumber(const QString &text)
{
    if (text.isEmpty()) {
        return false;
    }
    const char16_t first = text.at(0).unicode();
    return first <= u'9' || first == u'i' || first == u'n'; // also "inf" and "nan"
}

bool isWithinSinglePrecision(double left, double right)
{
    return std::abs(left - right) <= std::max(std::abs(left), std::abs(right)) * FLT_EPSILON;
}

// Whether the number has the digits that a register of single precision adds to what was meant.
bool hasSinglePrecisionNoise(double value)
{
    constexpr double printed = 1e-10; // what is left of them where others print ten digits
    const bool isShort = QByteArray::number(value, 'g', FLT_DIG + 1).toDouble() == value;
    return !isShort && std::abs(value) < FLT_MAX
        && std::abs(value - double(float(value))) <= std::abs(value) * printed;
}

// A register of double precision tells numbers apart that one of single precision does not.
bool isSameNumber(double left, double right)
{
    return left == right
        || (isWithinSinglePrecision(left, right)
            && (hasSinglePrecisionNoise(left) || hasSinglePrecisionNoise(right)));
}

} // namespace

bool isSame(const ParameterData &data, const QString &text)
{
    if (data.valueString == text) {
        return true;
    }
    const QString trimmed = text.trimmed();
    switch (data.type) {
    case ParameterType::Integer: {
        const auto value = integerFrom(trimmed);
        // Addresses differ in the case of their letters at most.
        return value ? *value == static_cast<const IntegerParameterData &>(data).value
                     : data.valueString.compare(trimmed, Qt::CaseInsensitive) == 0;
    }
    case ParameterType::Float: {
        const auto &typed = static_cast<const FloatParameterData &>(data);
        const auto value = numberFrom(trimmed);
        return value
            && (isSameNumber(typed.value, *value) || std::abs(typed.value - *value) <= typed.increment / 2.0);
    }
    case ParameterType::Boolean: {
        const auto value = booleanFrom(trimmed);
        return value && *value == static_cast<const BooleanParameterData &>(data).value;
    }
    default:
        return false;
    }
}

bool isTaken(const ParameterData &data, const QString &text, double resolution)
{
    const bool isInteger = data.type == ParameterType::Integer;
    const bool isNumber = isInteger || data.type == ParameterType::Float;
    const auto wanted = isNumber ? numberFrom(text.trimmed()) : std::nullopt;
    if (isSame(data, text) || !wanted) {
        return isSame(data, text);
    }
    if (isInteger) {
        return std::abs(double(static_cast<const IntegerParameterData &>(data).value) - *wanted) < resolution;
    }
    const double value = static_cast<const FloatParameterData &>(data).value;
    return isWithinSinglePrecision(value, *wanted) || std::abs(value - *wanted) < resolution;
}

bool isSameText(const QString &left, const QString &right)
{
    if (left == right) {
        return true;
    }
    if (wordFrom(left) || wordFrom(right)) {
        return booleanFrom(left) && booleanFrom(left) == booleanFrom(right);
    }
    if (!mayBeNumber(left) || !mayBeNumber(right)) {
        return false;
    }
    const auto integer = integerFrom(left);
    const auto otherInteger = integerFrom(right);
    if (integer && otherInteger) {
        return *integer == *otherInteger;
    }
    const auto number = numberFrom(left);
    const auto otherNumber = numberFrom(right);
    return number && otherNumber && isSameNumber(*number, *otherNumber);
}

} // namespace SettingsValue
