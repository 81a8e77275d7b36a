// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingsplan_p.h"
#include "settingsscript_p.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

/*! \brief Reads the settings of one node map.
 *
 * \ingroup settings
 */
class SettingsReading : public SettingsScript
{
    Q_DECLARE_TR_FUNCTIONS(SettingsReading)

public:
    SettingsReading(const QString &nodeMap, SettingsPlan plan);
    ~SettingsReading() override;

    const FeatureSettings::NodeMap &result() const;
    const QStringList &notes() const;

protected:
    void begin() override;

private:
    struct Group;
    struct Loop;
    using GroupPtr = std::shared_ptr<Group>;
    using LoopPtr = std::shared_ptr<Loop>;

    QList<GroupPtr> groups() const;
    void readFeature(const QString &name);
    void enter(const GroupPtr &group, int level);
    void beginLoop(const GroupPtr &group, int level, const Outcome &selector);
    QStringList entriesOf(const QString &selector, const Outcome &outcome);
    void choose(const LoopPtr &loop, const QString &entry);
    void onChosen(const LoopPtr &loop, const QString &entry, const Outcome &outcome);
    void goDeeper(const LoopPtr &loop, const QString &entry);
    void leave(const LoopPtr &loop);
    void assignSelector(const QString &name, const QString &value);
    void note(const QString &text);

    SettingsPlan m_plan;
    FeatureSettings::NodeMap m_result;
    QStringList m_notes;
};
