// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "qipnetmaskvalidator.h"

namespace {

constexpr int addressBits = 32;

bool isContiguous(quint32 mask)
{
    const quint32 hostPart = ~mask;
    return (hostPart & (hostPart + 1U)) == 0;
}

} // namespace

QIpNetmaskValidator::QIpNetmaskValidator(QObject *parent)
    : AddressValidator(parent)
{
}

QIpNetmaskValidator::~QIpNetmaskValidator() = default;

QHostAddress QIpNetmaskValidator::netmask(int prefixLength)
{
    return QHostAddress(static_cast<quint32>(0xffffffffULL << (addressBits - prefixLength)));
}

QHostAddress QIpNetmaskValidator::usualNetmask(const QHostAddress &address)
{
    constexpr quint32 firstMulticast = 224;

    const quint32 firstOctet = address.toIPv4Address() >> 24U;
    if (firstOctet == 0 || firstOctet >= firstMulticast) {
        return QHostAddress();
    }
    if (firstOctet == 10) { // the private network 10.0.0.0/8
        return netmask(8);
    }
    const bool isPrivate16 = address.isInSubnet(QHostAddress(QStringLiteral("172.16.0.0")), 12);
    return netmask(isPrivate16 || address.isLinkLocal() ? 16 : 24);
}

AddressValidator::Verdict QIpNetmaskValidator::judge(const QString &text) const
{
    if (text.startsWith(QLatin1Char('/'))) {
        int prefixLength = 0;
        return judgePrefixLength(text, &prefixLength);
    }
    quint32 mask = 0;
    const Verdict verdict = judgeDottedQuad(text, &mask);
    if (verdict.state != Acceptable) {
        return verdict;
    }
    if (mask == 0) {
        return {Intermediate, tr("The mask 0.0.0.0 tells no network from another.")};
    }
    if (!isContiguous(mask)) {
        return {Intermediate, tr("This is no mask: its ones must stand together, as in 255.255.255.0.")};
    }
    return verdict;
}

QString QIpNetmaskValidator::normalized(const QString &text) const
{
    int prefixLength = 0;
    const bool isPrefixLength =
        text.startsWith(QLatin1Char('/')) && judgePrefixLength(text, &prefixLength).state == Acceptable;
    return isPrefixLength ? netmask(prefixLength).toString() : text;
}

AddressValidator::Verdict QIpNetmaskValidator::judgePrefixLength(const QString &text, int *prefixLength)
{
    const QString digits = text.mid(1);
    if (digits.isEmpty() || digits == QLatin1String("0")) {
        return {Intermediate, tr("Enter a number from 1 to 32 after the slash.")};
    }
    bool isNumber = false;
    *prefixLength = digits.toInt(&isNumber);
    // Signs, blanks and leading zeros do not survive the way to the number and back.
    if (!isNumber || digits != QString::number(*prefixLength) || *prefixLength < 1
        || *prefixLength > addressBits) {
        return {Invalid, tr("Only a number from 1 to 32 can follow the slash.")};
    }
    return {Acceptable, QString()};
}
