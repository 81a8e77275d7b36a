// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsorigin.h"

#include <QDateTime>

FeatureSettings::Origin settingsOrigin(const Cameras::Camera &camera)
{
    const auto info = camera.info();
    return {info->vendorName(), info->modelName(), info->serialNumber(), QDateTime::currentDateTime()};
}

QList<SettingsNodeMap> settingsNodeMaps(const Cameras::Camera &camera)
{
    QList<SettingsNodeMap> found;
    const auto nodeMaps = camera.nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        found.append({nodeMap.name, nodeMap.collection});
    }
    return found;
}

bool isOfModel(const FeatureSettings &settings, const Cameras::Camera &camera)
{
    const QString model = settings.origin.model;
    return model.isEmpty() || model == camera.info()->modelName().simplified();
}
