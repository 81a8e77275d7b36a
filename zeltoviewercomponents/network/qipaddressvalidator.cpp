// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "qipaddressvalidator.h"

namespace {

constexpr quint32 limitedBroadcast = 0xffffffffU;
constexpr quint32 thisNetwork = 0;
constexpr quint32 loopbackNetwork = 127;
constexpr quint32 firstMulticast = 224;
constexpr quint32 firstReserved = 240;

} // namespace

QIpAddressValidator::QIpAddressValidator(QObject *parent)
    : AddressValidator(parent)
{
}

QIpAddressValidator::~QIpAddressValidator() = default;

AddressValidator::Verdict QIpAddressValidator::judge(const QString &text) const
{
    quint32 address = 0;
    const Verdict verdict = judgeDottedQuad(text, &address);
    if (verdict.state != Acceptable) {
        return verdict;
    }
    const quint32 firstOctet = address >> 24U;
    if (address == limitedBroadcast) {
        return {Intermediate, tr("This is the broadcast address, no device can have it.")};
    }
    if (firstOctet == thisNetwork) {
        return {Intermediate, tr("Addresses that begin with 0 stand for no device.")};
    }
    if (firstOctet == loopbackNetwork) {
        return {Intermediate, tr("Addresses that begin with 127 stay inside the computer.")};
    }
    if (firstOctet >= firstReserved) {
        return {Intermediate, tr("Addresses from 240.0.0.0 on are reserved.")};
    }
    if (firstOctet >= firstMulticast) {
        return {Intermediate, tr("Addresses from 224.0.0.0 on are for groups of devices (multicast).")};
    }
    return verdict;
}
