// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "qipaddressvalidator.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QHostAddress>

/*! \brief Accepts the addresses that a device, or its gateway, can have in a subnet.
 *
 * Neither the network's own address nor its broadcast address is accepted. Subnets of 31 bits have neither
 * (RFC 3021), a subnet of 32 bits is one device. A gateway is another device of the same subnet, or 0.0.0.0
 * for none.
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QIpAddressWithNetmaskValidator : public QIpAddressValidator
{
    Q_OBJECT

public:
    /*! \brief Whose address it is. */
    enum ERole {
        Device,
        Gateway,
    };
    Q_ENUM(ERole)

    /*! Judges addresses of that role. */
    explicit QIpAddressWithNetmaskValidator(ERole role, QObject *parent = nullptr);
    ~QIpAddressWithNetmaskValidator() override;

    /*! Returns the subnet mask, null while it is unknown. */
    QHostAddress netmask() const;
    /*! Sets the subnet mask. With a null one, addresses are judged without regard to a subnet. */
    void setNetmask(const QHostAddress &netmask);

    /*! Returns the address of the device whose gateway is judged, null while it is unknown. */
    QHostAddress device() const;
    /*! Sets the address of the device whose gateway is judged. Of no effect for the role Device. */
    void setDevice(const QHostAddress &device);

protected:
    Verdict judge(const QString &text) const override;

private:
    Verdict judgeGateway(const QHostAddress &gateway) const;
    Verdict judgeInSubnet(const QHostAddress &address) const;

    ERole m_role;
    QHostAddress m_netmask;
    QHostAddress m_device;
};
