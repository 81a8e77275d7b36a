// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsreport.h"

#include <QStringList>

#include <algorithm>

int SettingsReport::count(Result result) const
{
    return int(std::count_if(entries.cbegin(), entries.cend(),
                             [result](const Entry &entry) { return entry.result == result; }));
}

bool SettingsReport::isSuccess() const
{
    return !isLost && !isCancelled && count(Result::Set) + count(Result::Unchanged) == entries.size();
}

QString SettingsReport::summary() const
{
    QStringList parts{tr("%n set", nullptr, count(Result::Set)),
                      tr("%n unchanged", nullptr, count(Result::Unchanged))};
    if (const int refused = count(Result::Refused)) {
        parts.append(tr("%n refused", nullptr, refused));
    }
    if (const int missing = count(Result::Missing)) {
        parts.append(tr("%n missing", nullptr, missing));
    }
    if (const int different = count(Result::Different)) {
        parts.append(tr("%n read back differently", nullptr, different));
    }
    if (const int notTried = count(Result::NotTried)) {
        parts.append(tr("%n not tried", nullptr, notTried));
    }
    const QString counts = parts.join(QLatin1String(", "));
    if (isLost) {
        return tr("The camera was lost: %1.").arg(counts);
    }
    return isCancelled ? tr("Cancelled: %1.").arg(counts) : tr("Done: %1.").arg(counts);
}

QStringList SettingsReport::problems() const
{
    QStringList lines;
    for (const Entry &entry : entries) {
        const QString text = problem(entry);
        if (!text.isEmpty()) {
            lines.append(text);
        }
    }
    return lines;
}

QString SettingsReport::problem(const Entry &entry)
{
    if (entry.result == Result::Set || entry.result == Result::Unchanged) {
        return {};
    }
    QString text = tr("%1: %2").arg(entry.setting.title(), resultText(entry));
    // Values may have lines.
    text.replace(QLatin1Char('\n'), QLatin1String("\\n")).replace(QLatin1Char('\r'), QLatin1String("\\r"));
    return entry.setting.line > 0 ? tr("line %1: %2").arg(entry.setting.line).arg(text) : text;
}

QString SettingsReport::resultText(const Entry &entry)
{
    switch (entry.result) {
    case Result::Set:
        return tr("set");
    case Result::Unchanged:
        return tr("unchanged");
    case Result::Refused: {
        // The camera's own words name the feature, which stands there already.
        const QString name = entry.setting.name + QLatin1String(": ");
        return tr("refused: %1")
            .arg(entry.reason.startsWith(name) ? entry.reason.mid(name.size()) : entry.reason);
    }
    case Result::Missing:
        return tr("the camera has no such feature");
    case Result::Different:
        return tr("\"%1\" was written, \"%2\" is read back").arg(entry.setting.value, entry.after);
    case Result::NotTried:
        return tr("not tried");
    }
    return {};
}
