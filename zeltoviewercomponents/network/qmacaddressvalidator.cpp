// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "qmacaddressvalidator.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int octetCount = 6;
constexpr int octetDigits = 2;
constexpr int digitCount = octetCount * octetDigits;
constexpr int hexadecimal = 16;

bool isHexadecimal(QChar c)
{
    const QChar lower = c.toLower();
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
        || (lower >= QLatin1Char('a') && lower <= QLatin1Char('f'));
}

} // namespace

QMacAddressValidator::QMacAddressValidator(QObject *parent)
    : AddressValidator(parent)
{
}

QMacAddressValidator::~QMacAddressValidator() = default;

AddressValidator::Verdict QMacAddressValidator::judge(const QString &text) const
{
    QString digits;
    const Verdict verdict = judgeForm(text, &digits);
    if (verdict.state != Acceptable) {
        return verdict;
    }
    const bool isGroup = (QStringView(digits).left(octetDigits).toUInt(nullptr, hexadecimal) & 1U) != 0;
    if (isGroup) {
        return {Intermediate, tr("This address is for a group of devices (multicast).")};
    }
    if (digits.count(QLatin1Char('0')) == digitCount) {
        return {Intermediate, tr("An address of nothing but zeros stands for no device.")};
    }
    return verdict;
}

QString QMacAddressValidator::normalized(const QString &text) const
{
    QString digits;
    if (judgeForm(text, &digits).state != Acceptable) {
        return text;
    }
    QStringList octets;
    for (int i = 0; i < digitCount; i += octetDigits) {
        octets.append(digits.mid(i, octetDigits).toUpper());
    }
    return octets.join(QLatin1Char(':'));
}

AddressValidator::Verdict QMacAddressValidator::judgeForm(const QString &text, QString *digits)
{
    const QChar separator = text.contains(QLatin1Char('-')) ? QLatin1Char('-') : QLatin1Char(':');
    const QStringList octets = text.split(separator);
    *digits = octets.join(QString());
    if (!std::all_of(digits->cbegin(), digits->cend(), isHexadecimal)) {
        return {Invalid, tr("Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.")};
    }
    const bool isSeparated = octets.size() > 1;
    const auto isTooLong = [](const QString &octet) { return octet.size() > octetDigits; };
    if (octets.size() > octetCount || digits->size() > digitCount
        || (isSeparated && std::any_of(octets.cbegin(), octets.cend(), isTooLong))) {
        return {Invalid, tr("There are more than six numbers of two digits.")};
    }
    if (digits->size() < digitCount) {
        return {Intermediate, tr("Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.")};
    }
    return {Acceptable, QString()};
}
