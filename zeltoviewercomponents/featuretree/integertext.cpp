// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "integertext_p.h"

#include <zeltoviewercomponents/network/addressvalidator.h>
#include <zeltoviewercomponents/network/qipnetmaskvalidator.h>

#include <QRegularExpression>

#include <limits>

namespace {

using Limits = std::numeric_limits<qint64>;

// Any four octets: features hold addresses of groups, of networks and of nobody, too.
class OctetsValidator : public AddressValidator
{
public:
    OctetsValidator()
        : AddressValidator(nullptr)
    {
    }

protected:
    Verdict judge(const QString &text) const override
    {
        quint32 address = 0;
        return judgeDottedQuad(text, &address);
    }
};

bool matches(const QString &text, const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

bool isHexadecimal(const QString &text)
{
    return matches(text, QStringLiteral("0[xX][0-9a-fA-F]+"));
}

} // namespace

IntegerText::Form IntegerText::formOf(const QString &representation, const QString &name)
{
    if (representation == QLatin1String("IPV4Address")) {
        return name.contains(QLatin1String("NetMask"), Qt::CaseInsensitive) ? Form::SubnetMask
                                                                            : Form::Address;
    }
    if (representation == QLatin1String("MACAddress")) {
        return Form::MacAddress;
    }
    if (representation == QLatin1String("HexNumber")) {
        return Form::Hexadecimal;
    }
    return representation == QLatin1String("Boolean") ? Form::Boolean : Form::Plain;
}

QString IntegerText::problem(const QString &text, Form form, const QLocale &locale)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return {};
    }
    switch (form) {
    case Form::Address:
    case Form::SubnetMask:
        if (!OctetsValidator().reason(trimmed).isEmpty()) {
            return tr(
                "Enter four numbers from 0 to 255 with dots between them and without leading zeros, such "
                "as 192.168.0.10.");
        }
        // All zeros stand for a mask that is not set.
        return form == Form::SubnetMask && trimmed != QLatin1String("0.0.0.0")
            ? QIpNetmaskValidator().reason(trimmed)
            : QString();
    case Form::MacAddress:
        return matches(trimmed, QStringLiteral("([0-9a-fA-F]{1,2}:){5}[0-9a-fA-F]{1,2}"))
            ? QString()
            : tr("Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.");
    default:
        return numberProblem(trimmed, form, locale);
    }
}

QString IntegerText::numberProblem(const QString &text, Form form, const QLocale &locale)
{
    if (number(text, locale)) {
        return {};
    }
    if (form != Form::Decimal && isHexadecimal(text)) {
        return {};
    }
    if (form == Form::Boolean && matches(text, QStringLiteral("true|false"))) {
        return {};
    }
    if (form == Form::Hexadecimal) {
        return tr("Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.");
    }
    if (matches(text, QStringLiteral("[+-]?[0-9]*[.,'\u2019\\s][0-9.,'\u2019\\s]*"))) {
        return tr("Enter a whole number, without decimals and without separators.");
    }
    return matches(text, QStringLiteral("[+-]?[0-9]+\\s*(?![eE][0-9+-])[^0-9xX\\s].*"))
        ? tr("Enter a whole number alone, without a unit.")
        : tr("Enter a whole number.");
}

QString IntegerText::limitsProblem()
{
    return tr("The limits of this feature contradict each other, so that no number fits.");
}

QString IntegerText::gridHint(const QString &value, const QString &step)
{
    return tr("%1 is the next value below, in steps of %2").arg(value, step);
}

QString IntegerText::refusal()
{
    return tr("This value was refused.");
}

QString IntegerText::handedOut(const QString &text, const QLocale &locale)
{
    bool isPlain = false;
    text.toLongLong(&isPlain);
    const auto value = isPlain ? std::nullopt : number(text, locale);
    return value && *value != Limits::min() && *value != Limits::max() ? QString::number(*value) : text;
}

// Marks of the writing direction stand beside the signs of some languages.
std::optional<qint64> IntegerText::number(const QString &text, const QLocale &locale)
{
    QLocale strict = locale;
    strict.setNumberOptions(QLocale::RejectGroupSeparator);
    QString trimmed = text.trimmed();
    trimmed.removeIf([](QChar letter) { return letter.category() == QChar::Other_Format; });
    bool ok = false;
    const qint64 value = strict.toLongLong(trimmed, &ok);
    if (ok) {
        return value;
    }
    if (!matches(trimmed, QStringLiteral("[+-]?[0-9]+"))) {
        return std::nullopt;
    }
    return trimmed.startsWith(QLatin1Char('-')) ? Limits::min() : Limits::max();
}
