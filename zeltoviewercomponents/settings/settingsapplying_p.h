// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingsgraph_p.h"
#include "settingsreport.h"
#include "settingsscript_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/*! \brief Brings one node map into the state that settings describe.
 *
 * One pass over all features, passes over those that do not have their value as long as each helps some of
 * them, and a last look at all once anything was written. Selectors are stepped along, and end as the
 * settings say.
 *
 * \ingroup settings
 */
class SettingsApplying : public SettingsScript
{
    Q_DECLARE_TR_FUNCTIONS(SettingsApplying)

public:
    explicit SettingsApplying(const FeatureSettings::NodeMap &settings);
    ~SettingsApplying() override;

    QList<SettingsReport::Entry> result() const;

protected:
    void begin() override;

private:
    struct Item
    {
        SettingsReport::Entry entry;
        bool isSelector = false;
        bool isHeld = false; // depends on selectors as they are at the start
        bool isSeen = false;
        bool isWritten = false;
        double resolution = 0.0;
    };

    using Items = std::vector<Item *>;

    QStringList unassignedSelectors() const;
    void holdSelector(const QString &name);
    void addPass(const Items &items, bool mayWrite);
    void afterPass();
    void afterCheck();
    Items failed();
    void addEnding();
    void reach(Item &item, qsizetype level, const Step &then);
    void onSelectorRead(Item &item, qsizetype level, const Step &then, const Outcome &outcome);
    void onSelectorWritten(Item &item, qsizetype level, const Step &then, const Outcome &outcome);
    void knowSelector(const QString &name, const QString &value);
    void look(Item &item, bool mayWrite);
    void judge(Item &item, bool mayWrite, const Outcome &outcome);
    void writeItem(Item &item);
    void onWritten(Item &item, const Outcome &outcome);
    void finishSelector(Item &item);
    void putBack(const FeatureSettings::Setting &selector);
    const FeatureSettings::Setting *original(const FeatureSettings::Setting &selector) const;

    SettingsGraph m_graph;
    bool m_restoresSelectors = false;
    std::vector<Item> m_items;
    QHash<QString, QString> m_selectorValues; // as far as they are known
    QList<FeatureSettings::Setting> m_originals; // of the selectors that were changed on the way
    size_t m_failures = 0; // after the pass before
    bool m_hasWritten = false; // since all was looked at
};
