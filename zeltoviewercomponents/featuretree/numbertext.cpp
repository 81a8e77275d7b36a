// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "numbertext_p.h"

#include <QByteArray>
#include <QChar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Marks of the writing direction stand beside the signs of some languages.
bool isInvisible(QChar letter)
{
    return letter.category() == QChar::Other_Format;
}

bool isMinus(QChar letter)
{
    return letter == QLatin1Char('-') || letter == QChar(0x2212);
}

// Returns the text with the signs of C; what has none there is left as it is.
QString inSignsOfC(const QString &text, const QLocale &locale, const QString &decimalSign)
{
    QString exponential = locale.exponential();
    exponential.removeIf(isInvisible);
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        const auto standsHere = [&](const QString &sign) {
            return !sign.isEmpty() && QStringView(text).mid(i).startsWith(sign, Qt::CaseInsensitive);
        };
        if (isInvisible(letter)) {
            continue;
        }
        if (letter.isDigit()) {
            plain += QString::number(letter.digitValue());
        } else if (standsHere(decimalSign)) {
            plain += QLatin1Char('.');
            i += decimalSign.size() - 1;
        } else if (isMinus(letter)) {
            plain += QLatin1Char('-');
        } else if (standsHere(exponential)) {
            plain += QLatin1Char('e');
            i += exponential.size() - 1;
        } else {
            plain += letter == QLatin1Char('.') ? QLatin1Char('?') : letter.toLower();
        }
    }
    return plain;
}

// Only digits, signs, points and exponents: no words such as "inf".
std::optional<double> numberFrom(const QString &plain)
{
    const auto isOfNumbers = [](QChar letter) {
        return (letter >= QLatin1Char('0') && letter <= QLatin1Char('9'))
            || QStringLiteral("+-.e").contains(letter);
    };
    if (!std::all_of(plain.begin(), plain.end(), isOfNumbers)) {
        return std::nullopt;
    }
    bool ok = false;
    const double number = plain.toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

NumberText::NumberText(const QString &text, const QLocale &locale)
    : m_text(text.trimmed())
    , m_locale(locale)
    , m_number(numberFrom(inSignsOfC(m_text, locale, locale.decimalPoint())))
{
}

QString NumberText::problem() const
{
    const QString plain = inSignsOfC(m_text, m_locale, m_locale.decimalPoint());
    const bool mayBecomeOne = plain.isEmpty() || plain == QLatin1String("-") || plain == QLatin1String("+");
    return m_number || mayBecomeOne ? QString() : tr("\"%1\" is not a number: %2").arg(m_text, reason());
}

QString NumberText::reason() const
{
    for (const char16_t sign : {u'.', u',', u'\u066b'}) {
        if (numberFrom(inSignsOfC(m_text, m_locale, QString(QChar(sign))))) {
            const bool mayGroup = m_locale.groupSeparator() == QChar(sign)
                && m_text.size() - m_text.indexOf(QChar(sign)) == 4; // three digits
            return mayGroup ? groupHint() : decimalSignHint(m_locale);
        }
    }
    QString joined = m_text;
    joined.removeIf([](QChar letter) {
        return letter.isSpace() || QStringLiteral(".,'\u2019\u066b\u066c").contains(letter);
    });
    if (numberFrom(inSignsOfC(joined, m_locale, m_locale.decimalPoint()))) {
        return groupHint();
    }
    const QString plain = inSignsOfC(m_text, m_locale, m_locale.decimalPoint());
    if (plain.endsWith(QLatin1Char('e')) || plain.endsWith(QLatin1String("e-"))
        || plain.endsWith(QLatin1String("e+"))) {
        return tr("the exponent is missing");
    }
    bool ok = false;
    if (std::isinf(plain.toDouble(&ok)) && plain.contains(QLatin1Char('e'))) {
        return tr("it is too large");
    }
    const bool beginsAsNumber = plain.at(isMinus(plain.at(0)) && plain.size() > 1 ? 1 : 0).isDigit();
    const QChar last = plain.at(plain.size() - 1);
    if (beginsAsNumber && !last.isDigit() && !QStringLiteral("+-.").contains(last)) {
        return tr("leave out the unit");
    }
    return tr("use digits, a decimal sign and an exponent as in %1")
        .arg(QStringLiteral("-1%1e-3").arg(m_locale.decimalPoint() + QLatin1Char('5')));
}

QString NumberText::groupHint() const
{
    return tr("nothing may stand between thousands; %1").arg(decimalSignHint(m_locale));
}

QString NumberText::decimalSignHint(const QLocale &locale)
{
    return tr("use %1 as the decimal sign").arg(locale.decimalPoint());
}

QString NumberText::incompleteHint()
{
    return tr("The number is not complete.");
}

QString NumberText::limitHint(const QString &limit, bool isMaximum)
{
    return isMaximum ? tr("%1 is the maximum").arg(limit) : tr("%1 is the minimum").arg(limit);
}

QString NumberText::incrementHint(const QString &value, const QString &increment)
{
    return tr("%1 is the nearest value (increment: %2)").arg(value, increment);
}
