// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "presentsettings.h"

#include "settingsgraph_p.h"
#include "settingsplan_p.h"
#include "unansweredwrites_p.h"

#include <platform/core/guard.h>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.settings.presentSettings")

namespace {

QString valueOf(const IParameterCollection &collection, const QString &name)
{
    const QSharedPointer<IParameter> parameter = collection.parameter(name);
    return parameter ? UnansweredWrites::presentText(*parameter) : QString();
}

bool canBeSet(const IParameterCollection &collection, const QString &name)
{
    const QSharedPointer<IParameter> parameter = collection.parameter(name);
    const ParameterDataPtr data = parameter ? parameter->parameterData() : nullptr;
    return data && data->isReadable && data->isWritable;
}

void addPresent(QList<FeatureSettings::Setting> &settings, const SettingsNodeMap &nodeMap)
{
    const IParameterCollection &collection = *nodeMap.collection;
    const SettingsPlan plan = SettingsPlan::of(nodeMap.collection);
    const SettingsGraph graph(plan.selected);
    for (const SettingsPlan::Feature &feature : plan.features) {
        if (graph.isSelector(feature.name) || !canBeSet(collection, feature.name)) {
            continue;
        }
        FeatureSettings::Setting setting;
        setting.nodeMap = nodeMap.name;
        setting.name = feature.name;
        setting.value = valueOf(collection, feature.name);
        for (const QString &selector : feature.selectors) {
            setting.selectors.append({selector, valueOf(collection, selector), 0});
        }
        settings.append(setting);
    }
}

} // namespace

FeatureSettings presentSettings(const QList<SettingsNodeMap> &nodeMaps)
{
    QList<FeatureSettings::Setting> settings;
    for (const SettingsNodeMap &nodeMap : nodeMaps) {
        Core::guardedRun({logCategory(), "presentSettings"},
                         QStringLiteral("Failed to take the present settings"),
                         [&settings, &nodeMap] { addPresent(settings, nodeMap); });
    }
    return FeatureSettings::of(settings);
}
