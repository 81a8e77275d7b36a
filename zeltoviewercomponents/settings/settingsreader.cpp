// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsreader.h"

#include "settingsplan_p.h"
#include "settingsreading_p.h"

SettingsReader::SettingsReader(const QList<SettingsNodeMap> &nodeMaps, QObject *parent)
    : SettingsTask(nodeMaps, parent)
{
}

SettingsReader::~SettingsReader() = default;

const FeatureSettings &SettingsReader::settings() const
{
    return m_settings;
}

const QStringList &SettingsReader::notes() const
{
    return m_notes;
}

std::shared_ptr<SettingsScript> SettingsReader::nextScript(int *nodeMap)
{
    if (isCancelled() || isLost() || m_next == nodeMaps().size()) {
        return nullptr;
    }
    *nodeMap = m_next++;
    const SettingsNodeMap &place = nodeMaps()[*nodeMap];
    return std::make_shared<SettingsReading>(place.name, SettingsPlan::of(place.collection));
}

void SettingsReader::take(SettingsScript &script)
{
    const auto &reading = static_cast<SettingsReading &>(script);
    if (!reading.result().assignments.isEmpty()) {
        m_settings.nodeMaps.append(reading.result());
    }
    m_notes.append(reading.notes());
}
