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

QSharedPointer<ParameterData> ParameterData::copy() const
{
    return QSharedPointer<ParameterData>::create(*this);
}

GenApi::EAccessMode ParameterData::accessMode() const
{
    if (!isImplemented) {
        return GenApi::NI;
    }
    if (isReadable) {
        return isWritable ? GenApi::RW : GenApi::RO;
    }
    return isWritable ? GenApi::WO : GenApi::NA;
}

void ParameterData::setAccessMode(GenApi::EAccessMode mode)
{
    isImplemented = mode != GenApi::NI;
    isReadable = GenApi::isReadable(mode);
    isWritable = GenApi::isWritable(mode);
}

IntegerParameterData::IntegerParameterData()
    : ParameterData(ParameterType::Integer)
    , representation(QStringLiteral("PureNumber"))
{
}

IntegerParameterData::~IntegerParameterData() = default;

QSharedPointer<ParameterData> IntegerParameterData::copy() const
{
    return QSharedPointer<IntegerParameterData>::create(*this);
}

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

QSharedPointer<ParameterData> FloatParameterData::copy() const
{
    return QSharedPointer<FloatParameterData>::create(*this);
}

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

QSharedPointer<ParameterData> BooleanParameterData::copy() const
{
    return QSharedPointer<BooleanParameterData>::create(*this);
}

bool BooleanParameterData::equals(const ParameterData &other) const
{
    return ParameterData::equals(other) && value == static_cast<const BooleanParameterData &>(other).value;
}

CommandParameterData::CommandParameterData()
    : ParameterData(ParameterType::Command)
{
}

CommandParameterData::~CommandParameterData() = default;

QSharedPointer<ParameterData> CommandParameterData::copy() const
{
    return QSharedPointer<CommandParameterData>::create(*this);
}

bool CommandParameterData::equals(const ParameterData &other) const
{
    return ParameterData::equals(other) && isDone == static_cast<const CommandParameterData &>(other).isDone;
}

EnumParameterData::EnumParameterData()
    : ParameterData(ParameterType::Enumeration)
{
}

EnumParameterData::~EnumParameterData() = default;

QSharedPointer<ParameterData> EnumParameterData::copy() const
{
    return QSharedPointer<EnumParameterData>::create(*this);
}

bool EnumParameterData::equals(const ParameterData &other) const
{
    if (!ParameterData::equals(other)) {
        return false;
    }
    const auto &typed = static_cast<const EnumParameterData &>(other);
    return symbolicNames == typed.symbolicNames && displayTexts == typed.displayTexts;
}

QSharedPointer<ParameterData> newParameterData(ParameterType type)
{
    switch (type) {
    case ParameterType::Integer:
        return QSharedPointer<IntegerParameterData>::create();
    case ParameterType::Float:
        return QSharedPointer<FloatParameterData>::create();
    case ParameterType::Boolean:
        return QSharedPointer<BooleanParameterData>::create();
    case ParameterType::Command:
        return QSharedPointer<CommandParameterData>::create();
    case ParameterType::Enumeration:
        return QSharedPointer<EnumParameterData>::create();
    default:
        return QSharedPointer<ParameterData>::create(type);
    }
}

} // namespace ParameterCollection
