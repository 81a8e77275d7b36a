// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "parameterdata.h"

#include <cmath>
#include <typeinfo>

namespace ParameterCollection {

namespace {

// Two snapshots of a value that is not a number are the same snapshot.
bool sameDouble(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

ParameterData::ParameterData(ParameterType parameterType)
    : type(parameterType)
{
}

ParameterData::~ParameterData() = default;

bool ParameterData::equals(const ParameterData &other) const
{
    return typeid(*this) == typeid(other) && type == other.type && visibility == other.visibility
        && isReadable == other.isReadable && isWritable == other.isWritable
        && isImplemented == other.isImplemented && isCacheable == other.isCacheable
        && valueString == other.valueString;
}

IntegerParameterData::IntegerParameterData()
    : ParameterData(ParameterType::Integer)
    , representation(QStringLiteral("PureNumber"))
{
}

IntegerParameterData::~IntegerParameterData() = default;

bool IntegerParameterData::equals(const ParameterData &other) const
{
    if (!ParameterData::equals(other)) {
        return false;
    }
    const auto &typed = static_cast<const IntegerParameterData &>(other);
    return value == typed.value && minimum == typed.minimum && maximum == typed.maximum
        && increment == typed.increment && representation == typed.representation;
}

FloatParameterData::FloatParameterData()
    : ParameterData(ParameterType::Float)
    , representation(QStringLiteral("PureNumber"))
{
}

FloatParameterData::~FloatParameterData() = default;

bool FloatParameterData::equals(const ParameterData &other) const
{
    if (!ParameterData::equals(other)) {
        return false;
    }
    const auto &typed = static_cast<const FloatParameterData &>(other);
    return sameDouble(value, typed.value) && sameDouble(minimum, typed.minimum)
        && sameDouble(maximum, typed.maximum) && sameDouble(increment, typed.increment)
        && representation == typed.representation && displayNotation == typed.displayNotation
        && displayPrecision == typed.displayPrecision;
}

BooleanParameterData::BooleanParameterData()
    : ParameterData(ParameterType::Boolean)
{
}

BooleanParameterData::~BooleanParameterData() = default;

bool BooleanParameterData::equals(const ParameterData &other) const
{
    return ParameterData::equals(other) && value == static_cast<const BooleanParameterData &>(other).value;
}

CommandParameterData::CommandParameterData()
    : ParameterData(ParameterType::Command)
{
}

CommandParameterData::~CommandParameterData() = default;

bool CommandParameterData::equals(const ParameterData &other) const
{
    return ParameterData::equals(other) && isDone == static_cast<const CommandParameterData &>(other).isDone;
}

EnumParameterData::EnumParameterData()
    : ParameterData(ParameterType::Enumeration)
{
}

EnumParameterData::~EnumParameterData() = default;

bool EnumParameterData::equals(const ParameterData &other) const
{
    if (!ParameterData::equals(other)) {
        return false;
    }
    const auto &typed = static_cast<const EnumParameterData &>(other);
    return symbolicNames == typed.symbolicNames && displayTexts == typed.displayTexts;
}

} // namespace ParameterCollection
