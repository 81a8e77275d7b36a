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
    const QString title = entry.setting.title();
    QString text;
    switch (entry.result) {
    case Result::Set:
    case Result::Unchanged:
        return {};
    case Result::Refused:
        // The camera's own words name the feature, which stands there already.
        text = tr("%1: refused: %2")
                   .arg(title,
                        entry.reason.startsWith(entry.setting.name + QLatin1String(": "))
                            ? entry.reason.mid(entry.setting.name.size() + 2)
                            : entry.reason);
        break;
    case Result::Missing:
        text = tr("%1: the camera has no such feature").arg(title);
        break;
    case Result::Different:
        text = tr("%1: \"%2\" was written, \"%3\" is read back").arg(title, entry.setting.value, entry.after);
        break;
    case Result::NotTried:
        text = tr("%1: not tried").arg(title);
        break;
    }
    return entry.setting.line > 0 ? tr("line %1: %2").arg(entry.setting.line).arg(text) : text;
}
