// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "addressvalidator.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

/*! \brief Accepts the IPv4 addresses that a single device can have, as dotted quads.
 *
 * Addresses with a meaning of their own are not accepted: "this network", loopback, multicast, reserved and
 * broadcast addresses (RFC 1122, RFC 5771).
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QIpAddressValidator : public AddressValidator
{
    Q_OBJECT

public:
    explicit QIpAddressValidator(QObject *parent = nullptr);
    ~QIpAddressValidator() override;

protected:
    Verdict judge(const QString &text) const override;
};
