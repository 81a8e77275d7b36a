// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "change.h"

#include "settingsvalue_p.h"

#include <platform/core/formatdoublevalue.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>

using namespace ParameterCollection;

QString Change::shown(const QString &value) const
{
    if (value.isNull() || kind != Kind::Value) {
        return value;
    }
    if (type == ParameterType::Boolean) {
        return isSameValueText(type, value, QStringLiteral("1")) ? QStringLiteral("true")
                                                                 : QStringLiteral("false");
    }
    bool isNumber = false;
    const double number = type == ParameterType::Float ? value.toDouble(&isNumber) : 0.0;
    return isNumber ? formatFeatureValue(number, GenApi::fnAutomatic, allDigits, QLocale::c()) : value;
}

QString Change::title() const
{
    QString title = name.section(QLatin1Char('/'), -1);
    QStringList parts;
    for (const FeatureSettings::Assignment &selector : selectors) {
        parts.append(selector.name + QLatin1Char('=') + selector.value);
    }
    return parts.isEmpty() ? title : title + QStringLiteral(" [%1]").arg(parts.join(QLatin1String(", ")));
}

bool Change::isSameFeature(const Change &other) const
{
    return name == other.name
        && std::equal(selectors.cbegin(), selectors.cend(), other.selectors.cbegin(), other.selectors.cend(),
                      [](const auto &left, const auto &right) {
                          return left.name == right.name && left.value == right.value;
                      });
}

bool isSameValueText(ParameterType type, const QString &left, const QString &right)
{
    if (left == right) {
        return true;
    }
    if (type == ParameterType::Boolean) {
        const auto isTrue = [](const QString &text) {
            return text == QLatin1String("1")
                || text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
        };
        return isTrue(left) == isTrue(right);
    }
    bool isLeft = false;
    bool isRight = false;
    if (type == ParameterType::Integer) {
        const qint64 a = left.toLongLong(&isLeft, 0);
        const qint64 b = right.toLongLong(&isRight, 0);
        return isLeft && isRight && a == b;
    }
    if (type == ParameterType::Float) {
        const double a = left.toDouble(&isLeft);
        const double b = right.toDouble(&isRight);
        return isLeft && isRight && a == b;
    }
    return type == ParameterType::Unknown && SettingsValue::isSameText(left, right);
}
