// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingscomparison.h"

#include "settingsvalue_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Selected = QHash<QString, QStringList>;

QString keyOf(const FeatureSettings::Setting &setting)
{
    return setting.nodeMap + QLatin1Char('\n') + setting.title();
}

// Of two settings, one may know who selects whom, and the other, from elsewhere, not.
Selected selectedIn(const FeatureSettings &settings, const QString &nodeMap)
{
    Selected found;
    for (const FeatureSettings::NodeMap &known : settings.nodeMaps) {
        if (known.name == nodeMap || nodeMap.isEmpty()) {
            found.insert(known.selected);
        }
    }
    return found;
}

QString onlyNodeMap(const FeatureSettings &settings)
{
    return settings.nodeMaps.isEmpty() ? QString() : settings.nodeMaps.constFirst().name;
}

QList<FeatureSettings::Setting> alike(FeatureSettings settings, const FeatureSettings &other)
{
    for (FeatureSettings::NodeMap &nodeMap : settings.nodeMaps) {
        nodeMap.name = nodeMap.name.isEmpty() ? onlyNodeMap(other) : nodeMap.name;
        if (nodeMap.selected.isEmpty()) {
            nodeMap.selected = selectedIn(other, nodeMap.name);
        }
    }
    return settings.settings();
}

} // namespace

QList<SettingsDifference> compare(const FeatureSettings &here, const FeatureSettings &there)
{
    const QList<FeatureSettings::Setting> left = alike(here, there);
    const QList<FeatureSettings::Setting> right = alike(there, here);
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < right.size(); ++i) {
        places.insert(keyOf(right[i]), i);
    }
    QList<SettingsDifference> found;
    QSet<QString> common;
    for (const FeatureSettings::Setting &setting : left) {
        const QString key = keyOf(setting);
        const auto place = places.constFind(key);
        if (place == places.constEnd()) {
            found.append({SettingsDifference::Kind::OnlyHere, setting, {}});
            continue;
        }
        common.insert(key);
        if (!SettingsValue::isSameText(setting.value, right[*place].value)) {
            found.append({SettingsDifference::Kind::Different, setting, right[*place]});
        }
    }
    for (const FeatureSettings::Setting &setting : right) {
        if (!common.contains(keyOf(setting))) {
            found.append({SettingsDifference::Kind::OnlyThere, {}, setting});
        }
    }
    return found;
}
