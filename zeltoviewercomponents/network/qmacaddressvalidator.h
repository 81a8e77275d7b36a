// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "addressvalidator.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

/*! \brief Accepts the MAC addresses (EUI-48) that a single device can have.
 *
 * Written as six octets of two hexadecimal digits with ":" or "-" between them, or as twelve digits; fixup()
 * makes it upper-case with colons. Group addresses are not accepted.
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QMacAddressValidator : public AddressValidator
{
    Q_OBJECT

public:
    explicit QMacAddressValidator(QObject *parent = nullptr);
    ~QMacAddressValidator() override;

protected:
    Verdict judge(const QString &text) const override;
    QString normalized(const QString &text) const override;

private:
    static Verdict judgeForm(const QString &text, QString *digits);
};
