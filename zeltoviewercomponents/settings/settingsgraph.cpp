// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsgraph_p.h"

#include <algorithm>

SettingsGraph::SettingsGraph(const QHash<QString, QStringList> &selected)
    : m_selected(selected)
{
    QStringList selectors = selected.keys();
    std::sort(selectors.begin(), selectors.end()); // the same nesting each time
    for (const QString &selector : std::as_const(selectors)) {
        const QStringList names = selected.value(selector);
        for (const QString &name : names) {
            m_selectors[name].append(selector);
        }
    }
}

bool SettingsGraph::isEmpty() const
{
    return m_selected.isEmpty();
}

bool SettingsGraph::isSelector(const QString &name) const
{
    return m_selected.contains(name);
}

QStringList SettingsGraph::selectedBy(const QString &selector) const
{
    return m_selected.value(selector);
}

QStringList SettingsGraph::selectorsOf(const QString &name) const
{
    QStringList found;
    if (!m_selectors.contains(name)) {
        return found;
    }
    QStringList path;
    collect(name, found, path);
    return found;
}

// Descriptions may well have circles.
void SettingsGraph::collect(const QString &name, QStringList &found, QStringList &path) const
{
    path.append(name);
    const QStringList selectors = m_selectors.value(name);
    for (const QString &selector : selectors) {
        if (path.contains(selector) || found.contains(selector)) {
            continue;
        }
        collect(selector, found, path);
        found.append(selector);
    }
    path.removeLast();
}
