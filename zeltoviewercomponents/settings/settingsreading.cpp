// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsreading_p.h"

#include "settingsvalue_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace ParameterCollection;

namespace {

constexpr qint64 mostValues = 256; // of an integer selector; an index of more belongs to a table
constexpr qint64 mostCombinations = 4096; // of the entries of selectors that nest
constexpr int mostNotes = 1000;

bool isReadable(const BatchOutcome &outcome)
{
    return outcome.data && outcome.data->isReadable
        && (outcome.access == GenApi::RO || outcome.access == GenApi::RW);
}

} // namespace

/*! \brief Features that depend on the same selectors. */
struct SettingsReading::Group
{
    QStringList selectors; // outer ones first
    QStringList features;
    QList<qint64> combinations; // so far, at each selector
};

/*! \brief One selector on its way through its entries. */
struct SettingsReading::Loop
{
    GroupPtr group;
    int level = 0;
    QString selector;
    QString original;
    QString current;
};

SettingsReading::SettingsReading(const QString &nodeMap, SettingsPlan plan)
    : m_plan(std::move(plan))
{
    m_result.name = nodeMap;
}

SettingsReading::~SettingsReading() = default;

const FeatureSettings::NodeMap &SettingsReading::result() const
{
    return m_result;
}

const QStringList &SettingsReading::notes() const
{
    return m_notes;
}

void SettingsReading::note(const QString &text)
{
    if (m_notes.size() < mostNotes) {
        m_notes.append(text);
    }
}

// Steps lie on a stack, hence the last one first.
void SettingsReading::begin()
{
    const QList<GroupPtr> all = groups();
    for (auto group = all.crbegin(); group != all.crend(); ++group) {
        expect(int((*group)->features.size()));
        addStep([this, found = *group] { enter(found, 0); });
    }
}

// Each group stands where its first feature stands in the tree. A selector that is assigned for what it
// selects needs no assignment of its own.
QList<SettingsReading::GroupPtr> SettingsReading::groups() const
{
    QSet<QString> assigned;
    for (const SettingsPlan::Feature &feature : m_plan.features) {
        for (const QString &selector : feature.selectors) {
            assigned.insert(selector);
        }
    }
    QList<GroupPtr> found;
    QHash<QStringList, GroupPtr> bySelectors;
    for (const SettingsPlan::Feature &feature : m_plan.features) {
        if (assigned.contains(feature.name)) {
            continue;
        }
        GroupPtr group = feature.selectors.isEmpty() ? nullptr : bySelectors.value(feature.selectors);
        if (!group) {
            group = std::make_shared<Group>(Group{feature.selectors, {}, {}});
            found.append(group);
            if (!feature.selectors.isEmpty()) {
                bySelectors.insert(feature.selectors, group);
            }
        }
        group->features.append(feature.name);
    }
    return found;
}

void SettingsReading::enter(const GroupPtr &group, int level)
{
    if (level < group->selectors.size()) {
        read(group->selectors[level],
             [this, group, level](const Outcome &outcome) { beginLoop(group, level, outcome); });
        return;
    }
    for (auto feature = group->features.crbegin(); feature != group->features.crend(); ++feature) {
        addStep([this, name = *feature] { readFeature(name); });
    }
}

void SettingsReading::readFeature(const QString &name)
{
    noteProgress(name);
    readBriefly(name, [this, name](const Outcome &outcome) {
        if (isReadable(outcome) && (m_plan.knowsStreamable || outcome.access == GenApi::RW)) {
            m_result.assignments.append({name, outcome.data->valueString, 0});
        }
    });
}

void SettingsReading::beginLoop(const GroupPtr &group, int level, const Outcome &outcome)
{
    const QString selector = group->selectors[level];
    if (!isReadable(outcome)) {
        addStep([this, group, level] { enter(group, level + 1); }); // it does not matter now
        return;
    }
    const QString original = outcome.data->valueString;
    QStringList entries = entriesOf(selector, outcome);
    if (entries.isEmpty()) {
        return;
    }
    group->combinations.resize(level);
    const qint64 outer = level > 0 ? std::max<qint64>(group->combinations.constLast(), 1) : 1;
    if (outer * entries.size() > mostCombinations) {
        note(tr("%1 makes more than %2 combinations; only the present one is read")
                 .arg(selector)
                 .arg(mostCombinations));
        entries = QStringList{original};
    }
    group->combinations.append(outer * entries.size());
    m_result.selected.insert(selector, m_plan.selected.value(selector));
    const auto loop = std::make_shared<Loop>(Loop{group, level, selector, original, original});
    expect(int((entries.size() - 1) * loop->group->features.size()));
    addCleanup([this, loop] { leave(loop); });
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        addStep([this, loop, name = *entry] { choose(loop, name); });
    }
}

QStringList SettingsReading::entriesOf(const QString &selector, const Outcome &outcome)
{
    const ParameterData &data = *outcome.data;
    if (outcome.access != GenApi::RW) {
        return {data.valueString};
    }
    if (data.type == ParameterType::Enumeration) {
        // What cannot be chosen now could not be put back.
        const QStringList &names = static_cast<const EnumParameterData &>(data).symbolicNames;
        return names.contains(data.valueString) ? names : QStringList{data.valueString};
    }
    if (data.type == ParameterType::Boolean) {
        return {QStringLiteral("false"), QStringLiteral("true")};
    }
    if (data.type != ParameterType::Integer) {
        return {data.valueString};
    }
    const auto &number = static_cast<const IntegerParameterData &>(data);
    const quint64 increment = quint64(std::max<qint64>(number.increment, 1));
    const quint64 steps = (quint64(number.maximum) - quint64(number.minimum)) / increment;
    const bool isOpen = number.maximum < number.minimum || steps >= quint64(mostValues);
    if (isOpen && selector.endsWith(QLatin1String("Selector"))) {
        note(tr("%1 selects among more than %2 values; only the present one is read")
                 .arg(selector)
                 .arg(mostValues));
        return {data.valueString};
    }
    if (isOpen) {
        note(tr("%1 selects among more than %2 values; what it selects is left out")
                 .arg(selector)
                 .arg(mostValues));
        return {};
    }
    if (number.value < number.minimum || number.value > number.maximum
        || (quint64(number.value) - quint64(number.minimum)) % increment != 0) {
        return {data.valueString};
    }
    QStringList values;
    for (quint64 step = 0; step <= steps; ++step) {
        values.append(QString::number(number.minimum + qint64(step * increment)));
    }
    return values;
}

void SettingsReading::choose(const LoopPtr &loop, const QString &entry)
{
    if (SettingsValue::isSameText(entry, loop->current)) {
        goDeeper(loop, entry);
        return;
    }
    writeBriefly(loop->selector, entry,
                 [this, loop, entry](const Outcome &outcome) { onChosen(loop, entry, outcome); });
}

void SettingsReading::onChosen(const LoopPtr &loop, const QString &entry, const Outcome &outcome)
{
    if (outcome.failure.isEmpty()) {
        loop->current = entry;
        goDeeper(loop, entry);
        return;
    }
    note(tr("%1=%2 cannot be chosen: %3").arg(loop->selector, entry, outcome.failure));
    if (outcome.data) {
        loop->current = outcome.data->valueString;
    }
}

void SettingsReading::goDeeper(const LoopPtr &loop, const QString &entry)
{
    assignSelector(loop->selector, entry);
    addStep([this, loop] { enter(loop->group, loop->level + 1); });
}

void SettingsReading::leave(const LoopPtr &loop)
{
    if (!isCleaningUp()) {
        assignSelector(loop->selector, loop->original);
    }
    if (SettingsValue::isSameText(loop->current, loop->original)) {
        return;
    }
    writeBriefly(loop->selector, loop->original, [this, loop](const Outcome &outcome) {
        if (!outcome.failure.isEmpty()) {
            note(tr("%1 cannot be put back to %2: %3").arg(loop->selector, loop->original, outcome.failure));
        }
    });
}

// An assignment that another of the same selector follows has nothing to say.
void SettingsReading::assignSelector(const QString &name, const QString &value)
{
    auto &assignments = m_result.assignments;
    if (!assignments.isEmpty() && assignments.constLast().name == name) {
        assignments.removeLast();
    }
    assignments.append({name, value, 0});
}
