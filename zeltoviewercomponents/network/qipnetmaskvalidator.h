// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "addressvalidator.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QHostAddress>

/*! \brief Accepts IPv4 subnet masks: contiguous ones, as a dotted quad or as a prefix length ("/24").
 *
 * fixup() turns a prefix length into the mask.
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QIpNetmaskValidator : public AddressValidator
{
    Q_OBJECT

public:
    explicit QIpNetmaskValidator(QObject *parent = nullptr);
    ~QIpNetmaskValidator() override;

    /*! Returns the mask that is usual for the network of \a address, null when there is none. */
    static QHostAddress usualNetmask(const QHostAddress &address);
    /*! Returns the mask with \a prefixLength ones, from 0 to 32. */
    static QHostAddress netmask(int prefixLength);

protected:
    Verdict judge(const QString &text) const override;
    QString normalized(const QString &text) const override;

private:
    static Verdict judgePrefixLength(const QString &text, int *prefixLength);
};
