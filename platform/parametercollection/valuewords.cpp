// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "valuewords.h"

namespace ParameterCollection {

QString booleanText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

std::optional<bool> booleanFrom(const QString &text)
{
    if (text == QLatin1String("1") || text.compare(booleanText(true), Qt::CaseInsensitive) == 0) {
        return true;
    }
    if (text == QLatin1String("0") || text.compare(booleanText(false), Qt::CaseInsensitive) == 0) {
        return false;
    }
    return std::nullopt;
}

const QStringList &visibilityNames()
{
    static const QStringList names{QStringLiteral("Beginner"), QStringLiteral("Expert"),
                                   QStringLiteral("Guru"), QStringLiteral("Invisible")};
    return names;
}

const QStringList &accessModeNames()
{
    static const QStringList names{QStringLiteral("NI"), QStringLiteral("NA"), QStringLiteral("WO"),
                                   QStringLiteral("RO"), QStringLiteral("RW")};
    return names;
}

} // namespace ParameterCollection
