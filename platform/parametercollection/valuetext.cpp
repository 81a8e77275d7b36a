// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "valuetext.h"

#include "valuewords.h"

#include <platform/core/formatdoublevalue.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace ParameterCollection::ValueText {

namespace {

QString joinedBytes(quint64 value, int count, int base, int width, QChar separator)
{
    QStringList parts;
    for (int i = count - 1; i >= 0; --i) {
        parts.append(QStringLiteral("%1").arg((value >> (8 * i)) & 0xff, width, base, QLatin1Char('0')));
    }
    return parts.join(separator);
}

bool isDigits(const QString &text, int base)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [base](QChar digit) {
        const bool isDecimal = digit >= QLatin1Char('0') && digit <= QLatin1Char('9');
        const QChar lower = digit.toLower();
        return isDecimal || (base == 16 && lower >= QLatin1Char('a') && lower <= QLatin1Char('f'));
    });
}

std::optional<qint64> fromBytes(const QString &text, QChar separator, int count, int base)
{
    const QStringList parts = text.split(separator);
    if (parts.size() != count) {
        return std::nullopt;
    }
    const int longest = base == 16 ? 2 : 3;
    quint64 value = 0;
    for (const QString &part : parts) {
        const uint byte = part.toUInt(nullptr, base);
        if (!isDigits(part, base) || part.size() > longest || byte > 0xff) {
            return std::nullopt;
        }
        value = (value << 8) | byte;
    }
    return qint64(value);
}

} // namespace

QString fromInteger(qint64 value, const QString &representation)
{
    if (representation == QLatin1String("HexNumber")) {
        return QStringLiteral("0x") + QString::number(quint64(value), 16);
    }
    if (representation == QLatin1String("IPV4Address")) {
        return joinedBytes(quint64(value), 4, 10, 0, QLatin1Char('.'));
    }
    if (representation == QLatin1String("MACAddress")) {
        return joinedBytes(quint64(value), 6, 16, 2, QLatin1Char(':')).toUpper();
    }
    return QString::number(value);
}

QString fromFloat(double value, GenApi::EDisplayNotation notation)
{
    return formatFeatureValue(value, notation, allDigits, QLocale::c());
}

std::optional<qint64> toInteger(const QString &text, const QString &representation)
{
    const QString trimmed = text.trimmed();
    bool ok = false;
    if (trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        const QString digits = trimmed.mid(2);
        const quint64 value = digits.toULongLong(&ok, 16);
        return ok && isDigits(digits, 16) ? std::optional(qint64(value)) : std::nullopt;
    }
    if (representation == QLatin1String("IPV4Address") && trimmed.contains(QLatin1Char('.'))) {
        return fromBytes(trimmed, QLatin1Char('.'), 4, 10);
    }
    if (representation == QLatin1String("MACAddress") && trimmed.contains(QLatin1Char(':'))) {
        return fromBytes(trimmed, QLatin1Char(':'), 6, 16);
    }
    if (const auto word = representation == QLatin1String("Boolean") ? booleanFrom(trimmed) : std::nullopt) {
        return *word ? 1 : 0;
    }
    const qint64 value = trimmed.toLongLong(&ok, 10);
    return ok ? std::optional(value) : std::nullopt;
}

bool isTooLong(const QString &text)
{
    QString digits = text.trimmed();
    const int base = digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? 16 : 10;
    digits.remove(0, base == 16 ? 2 : digits.startsWith(QLatin1Char('-')) ? 1 : 0);
    return digits.size() > 15 && isDigits(digits, base);
}

bool isSubnetMask(qint64 address)
{
    const quint32 hostPart = ~quint32(address);
    return (hostPart & (hostPart + 1U)) == 0;
}

std::optional<double> toFloat(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace ParameterCollection::ValueText
