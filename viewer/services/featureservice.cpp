// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featureservice.h"

#include <platform/core/guard.h>
#include <viewer/settingsactions.h>

ZELTO_LOG_CATEGORY("zelto.viewer.services.features")

FeatureService::FeatureService(const SettingsActions *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
}

FeatureService::~FeatureService() = default;

QSharedPointer<ParameterCollection::IParameter> FeatureService::feature(const QString &fullName) const
{
    const auto find = [this, &fullName] {
        const auto nodeMaps = m_settings->nodeMaps();
        for (const SettingsNodeMap &nodeMap : nodeMaps) {
            if (fullName.startsWith(nodeMap.name + QLatin1Char('/'))) {
                return nodeMap.collection->parameter(fullName);
            }
        }
        return QSharedPointer<ParameterCollection::IParameter>();
    };
    return Core::guarded({logCategory(), "FeatureService::feature"},
                         QStringLiteral("Failed to look a feature up"),
                         QSharedPointer<ParameterCollection::IParameter>(), find);
}
