// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsapplier.h"

#include "settingsapplying_p.h"
#include "settingsplan_p.h"
#include "settingsreading_p.h"

#include <algorithm>
#include <utility>

namespace {

bool has(const SettingsNodeMap &nodeMap, const QString &name)
{
    try {
        return nodeMap.collection->hasParameter(name);
    } catch (...) {
        return false; // what cannot be asked for is reported as missing
    }
}

// Names may be full, and the node map of a file may be called otherwise on this camera.
int placeOf(const QList<SettingsNodeMap> &nodeMaps, const QString &section, const QString &name)
{
    int found = -1;
    for (int i = 0; i < nodeMaps.size(); ++i) {
        const bool isNamed =
            nodeMaps[i].name == section || name.startsWith(nodeMaps[i].name + QLatin1Char('/'));
        if ((found < 0 || isNamed) && has(nodeMaps[i], name)) {
            found = i;
        }
    }
    return std::max(found, 0);
}

QString shortName(const SettingsNodeMap &nodeMap, const QString &name)
{
    const QString prefix = nodeMap.name + QLatin1Char('/');
    return name.startsWith(prefix) ? name.mid(prefix.size()) : name;
}

/*! Returns \a settings with each assignment in the node map of the camera that has the feature. */
QList<FeatureSettings::NodeMap> placed(const FeatureSettings &settings,
                                       const QList<SettingsNodeMap> &nodeMaps)
{
    QList<FeatureSettings::NodeMap> found;
    for (const SettingsNodeMap &nodeMap : nodeMaps) {
        found.append({nodeMap.name, {}, SettingsPlan::of(nodeMap.collection).selected, false});
    }
    for (const FeatureSettings::NodeMap &section : settings.nodeMaps) {
        for (FeatureSettings::Assignment assignment : section.assignments) {
            const int place = placeOf(nodeMaps, section.name, assignment.name);
            assignment.name = shortName(nodeMaps[place], assignment.name);
            found[place].assignments.append(assignment);
            found[place].restoresSelectors = section.restoresSelectors;
        }
    }
    return found;
}

} // namespace

SettingsApplier::SettingsApplier(FeatureSettings settings, const QList<SettingsNodeMap> &nodeMaps,
                                 Before before, QObject *parent)
    : SettingsTask(nodeMaps, parent)
    , m_settings(std::move(settings))
    , m_nextToKeep(before == Before::Keep ? 0 : int(nodeMaps.size()))
{
}

SettingsApplier::~SettingsApplier() = default;

const FeatureSettings &SettingsApplier::settings() const
{
    return m_settings;
}

const FeatureSettings &SettingsApplier::former() const
{
    return m_former;
}

const SettingsReport &SettingsApplier::report() const
{
    return m_report;
}

std::unique_ptr<SettingsApplier> SettingsApplier::putBack() const
{
    return std::make_unique<SettingsApplier>(m_former, nodeMaps(), Before::Forget);
}

std::shared_ptr<SettingsScript> SettingsApplier::nextScript(int *nodeMap)
{
    if (m_nextToKeep < nodeMaps().size() && !isCancelled() && !isLost()) {
        *nodeMap = m_nextToKeep++;
        const SettingsNodeMap &place = nodeMaps()[*nodeMap];
        return std::make_shared<SettingsReading>(place.name, SettingsPlan::of(place.collection));
    }
    if (!m_isPlaced && !nodeMaps().isEmpty()) {
        m_isPlaced = true;
        m_placed = placed(m_settings, nodeMaps());
    }
    while (m_next < m_placed.size()) {
        const FeatureSettings::NodeMap &settings = m_placed[ *nodeMap = m_next++];
        if (!settings.assignments.isEmpty()) {
            return std::make_shared<SettingsApplying>(settings);
        }
    }
    return nullptr;
}

void SettingsApplier::take(SettingsScript &script)
{
    if (const auto *const reading = dynamic_cast<SettingsReading *>(&script)) {
        m_former.nodeMaps.append(reading->result());
    } else {
        m_report.entries.append(static_cast<SettingsApplying &>(script).result());
    }
    m_report.isCancelled = isCancelled();
    m_report.isLost = isLost();
}
