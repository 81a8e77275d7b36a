// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "unansweredwrites_p.h"

#include <platform/parametercollection/valuewords.h>

#include <QLocale>
#include <QMetaType>

using namespace ParameterCollection;

namespace {

QString valueOf(const IParameter &parameter)
{
    const QSharedPointer<const ParameterData> snapshot = parameter.parameterData();
    return snapshot && snapshot->isReadable ? snapshot->valueString : QString();
}

} // namespace

bool isValueOf(const ParameterData &snapshot, const QVariant &value)
{
    const auto *const number = dynamic_cast<const FloatParameterData *>(&snapshot);
    if (number && value.typeId() == QMetaType::Double) {
        return value.toDouble() == number->value;
    }
    const QString text = value.toString();
    if (const auto *const boolean = dynamic_cast<const BooleanParameterData *>(&snapshot)) {
        return booleanFrom(text) == boolean->value;
    }
    if (snapshot.valueString == text) {
        return true;
    }
    bool isNumber = false;
    if (const auto *const integer = dynamic_cast<const IntegerParameterData *>(&snapshot)) {
        const bool isHex = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
        return text.toLongLong(&isNumber, isHex ? 16 : 10) == integer->value && isNumber;
    }
    return number && text.toDouble(&isNumber) == number->value && isNumber;
}

// What people read of a number may be rounded, and need not be a number that is taken back.
QString exactValueText(const ParameterData &snapshot)
{
    if (!snapshot.isReadable) {
        return {};
    }
    if (const auto *const boolean = dynamic_cast<const BooleanParameterData *>(&snapshot)) {
        return boolean->value ? QStringLiteral("1") : QStringLiteral("0");
    }
    bool isNumber = false;
    if (const auto *const number = dynamic_cast<const FloatParameterData *>(&snapshot)) {
        const bool isExact = snapshot.valueString.toDouble(&isNumber) == number->value && isNumber;
        return isExact ? snapshot.valueString
                       : QString::number(number->value, 'g', QLocale::FloatingPointShortest);
    }
    return snapshot.valueString.isNull() ? QStringLiteral("") : snapshot.valueString;
}

UnansweredWrites::UnansweredWrites(IParameter &parameter)
    : QObject(&parameter)
{
    connect(&parameter,
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData>)));
}

UnansweredWrites *UnansweredWrites::find(const IParameter &parameter)
{
    return parameter.findChild<UnansweredWrites *>(QString(), Qt::FindDirectChildrenOnly);
}

UnansweredWrites &UnansweredWrites::of(IParameter &parameter)
{
    UnansweredWrites *const writes = find(parameter);
    return writes ? *writes : *new UnansweredWrites(parameter);
}

QString UnansweredWrites::presentText(const IParameter &parameter)
{
    const UnansweredWrites *const writes = find(parameter);
    if (writes && writes->isWaiting() && writes->m_isCertain) {
        return writes->m_value.toString();
    }
    const QSharedPointer<const ParameterData> snapshot = parameter.parameterData();
    return snapshot ? exactValueText(*snapshot) : QString();
}

void UnansweredWrites::announce(IParameter &parameter, const QString &text)
{
    of(parameter).m_lastAttempt = {presentText(parameter), text};
}

void UnansweredWrites::write(IParameter &parameter, const QVariant &value)
{
    UnansweredWrites &writes = of(parameter);
    const QString before = writes.isWaiting() ? writes.m_before : valueOf(parameter);
    writes.m_isCertain = false; // should it fail: the camera may have taken it
    parameter.setValueFromString(value.toString());
    writes.m_before = before;
    writes.m_value = value;
    ++writes.m_count;
    writes.m_isCertain = true;
}

bool UnansweredWrites::isLast(const QVariant &value, const ParameterData &current) const
{
    return m_isCertain && value == m_value && (isValueOf(current, m_value) || isValueOf(current, m_before));
}

// Answers do not say what they answer: cameras round values, and drop an answer that another one follows.
void UnansweredWrites::onParameterDataChanged(QSharedPointer<const ParameterData> data)
{
    if (!data || !isWaiting()) {
        return;
    }
    m_isCertain = false;
    if (!data->isReadable || isValueOf(*data, m_value)) {
        m_count = 0;
    } else if (!isValueOf(*data, m_before)) {
        --m_count;
    }
    // Else it may have been read before the write: the value stays uncertain.
}
