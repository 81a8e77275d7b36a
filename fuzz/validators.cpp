// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Validators and what they make of a text that they refuse.

#include "target.h"

#include <zeltoviewercomponents/featuretree/hexvalidator.h>
#include <zeltoviewercomponents/network/qipaddresswithnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qipnetmaskvalidator.h>
#include <zeltoviewercomponents/network/qmacaddressvalidator.h>

#include <QHostAddress>

#include <limits>

namespace {

QValidator::State stateOf(const QValidator &validator, QString text)
{
    int position = text.size();
    const QValidator::State state = validator.validate(text, position);
    Fuzz::require(position >= 0 && position <= text.size(), "the cursor stays in the text");
    return state;
}

void check(const AddressValidator &validator, const QString &text)
{
    const QValidator::State state = stateOf(validator, text);
    Fuzz::require((state == QValidator::Acceptable) == validator.reason(text).isEmpty(),
                  "whatever is not accepted is given a reason");
    QString tidied = text;
    validator.fixup(tidied);
    Fuzz::require(state != QValidator::Acceptable || stateOf(validator, tidied) == state,
                  "an accepted address is still accepted in its usual form");
    QString again = tidied;
    validator.fixup(again);
    Fuzz::require(again == tidied, "the usual form is the usual form of itself");
}

void run(const QByteArray &input)
{
    const QString text = QString::fromUtf8(input);
    check(QIpAddressValidator(), text);
    check(QIpNetmaskValidator(), text);
    check(QMacAddressValidator(), text);
    QIpAddressWithNetmaskValidator gateway(QIpAddressWithNetmaskValidator::Gateway);
    gateway.setNetmask(QHostAddress(QStringLiteral("255.255.255.0")));
    gateway.setDevice(QHostAddress(QStringLiteral("192.168.1.10")));
    check(gateway, text);

    const HexValidator all(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    const HexValidator few(-3, 17);
    Fuzz::require(stateOf(few, text) != QValidator::Acceptable
                      || stateOf(all, text) == QValidator::Acceptable,
                  "wider limits accept more");
}

const Fuzz::Target target(
    "validators", [] {}, run);

} // namespace
