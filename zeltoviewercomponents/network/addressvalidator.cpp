// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "addressvalidator.h"

#include <QHostAddress>
#include <QStringList>

#include <algorithm>

namespace {

bool isBlank(QChar c)
{
    return c.isSpace() || c.category() == QChar::Other_Format;
}

bool isSeparator(QChar c)
{
    return QStringLiteral(".:-/").contains(c);
}

bool isDecimal(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
}

} // namespace

AddressValidator::AddressValidator(QObject *parent)
    : QValidator(parent)
{
}

AddressValidator::~AddressValidator() = default;

QValidator::State AddressValidator::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    return judgeInput(input).state;
}

void AddressValidator::fixup(QString &input) const
{
    input = normalized(withoutBlanks(input));
}

QString AddressValidator::reason(const QString &input) const
{
    return judgeInput(input).reason;
}

QString AddressValidator::withoutBlanks(const QString &text)
{
    QString result;
    bool blankPending = false;
    for (const QChar c : text) {
        if (isBlank(c)) {
            blankPending = true;
            continue;
        }
        if (blankPending && !result.isEmpty() && !isSeparator(c) && !isSeparator(result.back())) {
            result += QLatin1Char(' ');
        }
        blankPending = false;
        result += c;
    }
    return result;
}

QString AddressValidator::normalized(const QString &text) const
{
    return text;
}

AddressValidator::Verdict AddressValidator::judgeInput(const QString &input) const
{
    const QString text = withoutBlanks(input);
    const Verdict verdict = judge(text);
    if (verdict.state == Acceptable && text != input) {
        return {Intermediate, tr("There are blanks in the address.")};
    }
    return verdict;
}

AddressValidator::Verdict AddressValidator::judgeDottedQuad(const QString &text, quint32 *value)
{
    constexpr int octetCount = 4;
    constexpr int octetDigits = 3;
    constexpr int largestOctet = 255;

    const QStringList octets = text.split(QLatin1Char('.'));
    if (octets.size() > octetCount) {
        return {Invalid, tr("There are more than four numbers.")};
    }
    for (const QString &octet : octets) {
        if (!isDecimal(octet)) {
            return {Invalid, tr("Only digits and dots are allowed.")};
        }
        if (octet.size() > 1 && octet.front() == QLatin1Char('0')) {
            return {Invalid, tr("Write %1 without leading zeros.").arg(octet)};
        }
        if (octet.size() > octetDigits || octet.toInt() > largestOctet) {
            return {Invalid, tr("%1 is larger than 255.").arg(octet)};
        }
    }
    if (octets.size() < octetCount || octets.contains(QString())) {
        return {Intermediate, tr("Enter four numbers with dots between them.")};
    }
    *value = QHostAddress(text).toIPv4Address();
    return {Acceptable, QString()};
}
