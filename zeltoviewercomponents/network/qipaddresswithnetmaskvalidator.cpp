// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "qipaddresswithnetmaskvalidator.h"

QIpAddressWithNetmaskValidator::QIpAddressWithNetmaskValidator(ERole role, QObject *parent)
    : QIpAddressValidator(parent)
    , m_role(role)
{
}

QIpAddressWithNetmaskValidator::~QIpAddressWithNetmaskValidator() = default;

QHostAddress QIpAddressWithNetmaskValidator::netmask() const
{
    return m_netmask;
}

void QIpAddressWithNetmaskValidator::setNetmask(const QHostAddress &netmask)
{
    if (netmask != m_netmask) {
        m_netmask = netmask;
        emit changed();
    }
}

QHostAddress QIpAddressWithNetmaskValidator::device() const
{
    return m_device;
}

void QIpAddressWithNetmaskValidator::setDevice(const QHostAddress &device)
{
    if (device != m_device) {
        m_device = device;
        emit changed();
    }
}

AddressValidator::Verdict QIpAddressWithNetmaskValidator::judge(const QString &text) const
{
    if (m_role == Gateway && text == QLatin1String("0.0.0.0")) {
        return {Acceptable, QString()};
    }
    const Verdict verdict = QIpAddressValidator::judge(text);
    if (verdict.state != Acceptable) {
        return verdict;
    }
    const QHostAddress address(text);
    if (m_role == Gateway && !m_device.isNull()) {
        const Verdict asGateway = judgeGateway(address);
        if (asGateway.state != Acceptable) {
            return asGateway;
        }
    }
    return judgeInSubnet(address);
}

AddressValidator::Verdict QIpAddressWithNetmaskValidator::judgeGateway(const QHostAddress &gateway) const
{
    if (gateway == m_device) {
        return {Intermediate, tr("The gateway cannot be the device itself. Enter 0.0.0.0 for none.")};
    }
    const quint32 difference = gateway.toIPv4Address() ^ m_device.toIPv4Address();
    if ((difference & m_netmask.toIPv4Address()) != 0) {
        return {Intermediate, tr("The gateway is not in the device's subnet. Enter 0.0.0.0 for none.")};
    }
    return {Acceptable, QString()};
}

AddressValidator::Verdict QIpAddressWithNetmaskValidator::judgeInSubnet(const QHostAddress &address) const
{
    const quint32 hostMask = ~m_netmask.toIPv4Address();
    const bool hasOwnAddresses = !m_netmask.isNull() && hostMask > 1;
    const quint32 host = address.toIPv4Address() & hostMask;
    if (hasOwnAddresses && host == 0) {
        return {Intermediate, tr("With this mask, this is the address of the network itself.")};
    }
    if (hasOwnAddresses && host == hostMask) {
        return {Intermediate, tr("With this mask, this is the broadcast address of the network.")};
    }
    return {Acceptable, QString()};
}
