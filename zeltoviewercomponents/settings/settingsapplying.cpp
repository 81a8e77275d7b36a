// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsapplying_p.h"

#include "settingsvalue_p.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

using namespace ParameterCollection;
using Result = SettingsReport::Result;

namespace {

QString valueIn(const BatchOutcome &outcome)
{
    return outcome.data && outcome.data->isReadable ? outcome.data->valueString : QString();
}

bool isOfNoValue(const ParameterData &data)
{
    return data.type == ParameterType::Command || data.type == ParameterType::Category
        || data.type == ParameterType::Unknown;
}

} // namespace

SettingsApplying::SettingsApplying(const FeatureSettings::NodeMap &settings)
    : m_graph(settings.selected)
    , m_restoresSelectors(settings.restoresSelectors)
    , m_failures(std::numeric_limits<size_t>::max())
{
    FeatureSettings whole;
    whole.nodeMaps.append(settings);
    const auto all = whole.settings();
    for (const FeatureSettings::Setting &setting : all) {
        Item item;
        item.entry.setting = setting;
        item.isSelector = m_graph.isSelector(setting.name);
        if (!item.isSelector || !m_restoresSelectors) {
            m_items.push_back(item);
        }
    }
}

SettingsApplying::~SettingsApplying() = default;

QList<SettingsReport::Entry> SettingsApplying::result() const
{
    QList<SettingsReport::Entry> entries;
    for (const Item &item : m_items) {
        entries.append(item.entry);
    }
    return entries;
}

// Steps lie on a stack, hence the last one first.
void SettingsApplying::begin()
{
    addEnding();
    addStep([this] { afterPass(); });
    Items all;
    for (Item &item : m_items) {
        all.push_back(&item);
    }
    addPass(all, true);
    const QStringList selectors = unassignedSelectors();
    for (const QString &selector : selectors) {
        addStep([this, selector] { holdSelector(selector); });
    }
}

// What stands in front of the first assignment of its selector is about the entry that is chosen now.
QStringList SettingsApplying::unassignedSelectors() const
{
    QStringList found;
    for (const Item &item : m_items) {
        const auto &assigned = item.entry.setting.selectors;
        const QStringList selectors = m_graph.selectorsOf(item.entry.setting.name);
        if (!assigned.isEmpty() || selectors.isEmpty()) {
            continue;
        }
        for (const QString &selector : selectors) {
            if (!found.contains(selector)) {
                found.append(selector);
            }
        }
    }
    return found;
}

void SettingsApplying::holdSelector(const QString &name)
{
    readBriefly(name, [this, name](const Outcome &outcome) {
        if (!outcome.data || !outcome.data->isReadable) {
            return;
        }
        m_selectorValues.insert(name, outcome.data->valueString);
        for (Item &item : m_items) {
            auto &setting = item.entry.setting;
            const QStringList selectors = m_graph.selectorsOf(setting.name);
            if (selectors.contains(name) && (setting.selectors.isEmpty() || item.isHeld)) {
                item.isHeld = true;
                setting.selectors.append({name, outcome.data->valueString, 0});
                std::sort(setting.selectors.begin(), setting.selectors.end(),
                          [&selectors](const auto &left, const auto &right) {
                              return selectors.indexOf(left.name) < selectors.indexOf(right.name);
                          });
            }
        }
    });
}

void SettingsApplying::addPass(const Items &items, bool mayWrite)
{
    expect(int(items.size()));
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        addStep([this, item = *item, mayWrite] {
            noteProgress(item->entry.setting.name);
            reach(*item, 0, [this, item, mayWrite] { look(*item, mayWrite); });
        });
    }
}

SettingsApplying::Items SettingsApplying::failed()
{
    Items found;
    for (Item &item : m_items) {
        if (item.entry.result == Result::Refused || item.entry.result == Result::Different) {
            found.push_back(&item);
        }
    }
    return found;
}

void SettingsApplying::afterPass()
{
    const Items left = failed();
    if (!left.empty() && left.size() < m_failures) {
        m_failures = left.size();
        addStep([this] { afterPass(); });
        addPass(left, true);
    } else if (std::exchange(m_hasWritten, false)) {
        addStep([this] { afterCheck(); });
        Items written;
        for (Item &item : m_items) {
            const bool isFine = item.entry.result == Result::Set || item.entry.result == Result::Unchanged;
            if (isFine && !item.isSelector) { // they are still on their way
                written.push_back(&item);
            }
        }
        addPass(written, false);
    }
}

// What a later assignment has changed again gets another chance, as long as that leads somewhere.
void SettingsApplying::afterCheck()
{
    const Items left = failed();
    if (left.empty() || left.size() >= m_failures) {
        return;
    }
    m_failures = left.size();
    addStep([this] { afterPass(); });
    addPass(left, true);
}

// Selectors were stepped to look at what they select. Where the settings do not say how they end, or there is
// no going on, they end as they were.
void SettingsApplying::addEnding()
{
    addCleanup([this] {
        if (!m_restoresSelectors && !isCleaningUp()) {
            return;
        }
        const auto originals = m_originals;
        for (const FeatureSettings::Setting &selector : originals) {
            addCleanup([this, selector] { putBack(selector); });
        }
    });
    for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
        if (item->isSelector) {
            addStep([this, found = &*item] { finishSelector(*found); });
        }
    }
}

void SettingsApplying::finishSelector(Item &item)
{
    const Result result = item.entry.result;
    if (result != Result::Set && result != Result::Unchanged) {
        return;
    }
    reach(item, 0, [this, &item] {
        readBriefly(item.entry.setting.name, [this, &item](const Outcome &outcome) {
            if (!outcome.data || !SettingsValue::isSame(*outcome.data, item.entry.setting.value)) {
                addStep([this, &item] { writeItem(item); });
            }
        });
    });
}

void SettingsApplying::putBack(const FeatureSettings::Setting &selector)
{
    for (const FeatureSettings::Assignment &outer : selector.selectors) {
        if (m_selectorValues.value(outer.name) != outer.value) {
            addCleanup([this, selector] { putBack(selector); });
            writeBriefly(outer.name, outer.value,
                         [this, outer](const Outcome &) { knowSelector(outer.name, outer.value); });
            return;
        }
    }
    writeBriefly(selector.name, selector.value,
                 [this, selector](const Outcome &) { knowSelector(selector.name, selector.value); });
}

// Whoever depends on the selector shows other values from now on, other selectors included.
void SettingsApplying::knowSelector(const QString &name, const QString &value)
{
    m_selectorValues.insert(name, value);
    const QStringList selected = m_graph.selectedBy(name);
    for (const QString &feature : selected) {
        m_selectorValues.remove(feature);
    }
}

// Brings the selectors that the feature depends on to where it is what the settings mean.
void SettingsApplying::reach(Item &item, qsizetype level, const Step &then)
{
    const auto &selectors = item.entry.setting.selectors;
    for (; level < selectors.size(); ++level) {
        const auto known = m_selectorValues.constFind(selectors[level].name);
        if (known == m_selectorValues.constEnd()
            || !SettingsValue::isSameText(*known, selectors[level].value)) {
            readBriefly(selectors[level].name, [this, &item, level, then](const Outcome &outcome) {
                onSelectorRead(item, level, then, outcome);
            });
            return;
        }
    }
    then();
}

void SettingsApplying::onSelectorRead(Item &item, qsizetype level, const Step &then, const Outcome &outcome)
{
    const FeatureSettings::Assignment selector = item.entry.setting.selectors[level];
    if (!outcome.data) {
        item.entry.result = Result::Missing;
        item.entry.reason = outcome.failure;
        return;
    }
    if (SettingsValue::isSame(*outcome.data, selector.value)) {
        knowSelector(selector.name, selector.value);
        addStep([this, &item, level, then] { reach(item, level + 1, then); });
        return;
    }
    FeatureSettings::Setting before{item.entry.setting.nodeMap, selector.name, {}, valueIn(outcome), 0};
    const QStringList outer = m_graph.selectorsOf(selector.name);
    std::copy_if(item.entry.setting.selectors.cbegin(), item.entry.setting.selectors.cend(),
                 std::back_inserter(before.selectors),
                 [&outer](const FeatureSettings::Assignment &known) { return outer.contains(known.name); });
    if (!original(before)) {
        m_originals.append(before);
    }
    addStep([this, &item, level, then, selector] {
        writeBriefly(selector.name, selector.value, [this, &item, level, then](const Outcome &written) {
            onSelectorWritten(item, level, then, written);
        });
    });
}

void SettingsApplying::onSelectorWritten(Item &item, qsizetype level, const Step &then,
                                         const Outcome &outcome)
{
    const FeatureSettings::Assignment &selector = item.entry.setting.selectors[level];
    if (!outcome.failure.isEmpty()) {
        m_selectorValues.remove(selector.name);
        item.entry.result = Result::Refused;
        item.entry.reason = outcome.failure;
        return;
    }
    knowSelector(selector.name, selector.value);
    addStep([this, &item, level, then] { reach(item, level + 1, then); });
}

const FeatureSettings::Setting *SettingsApplying::original(const FeatureSettings::Setting &selector) const
{
    const auto found =
        std::find_if(m_originals.cbegin(), m_originals.cend(),
                     [&](const FeatureSettings::Setting &known) { return known.isSameFeature(selector); });
    return found == m_originals.cend() ? nullptr : &*found;
}

void SettingsApplying::look(Item &item, bool mayWrite)
{
    const QString name = item.entry.setting.name;
    readBriefly(name, [this, &item, name, mayWrite](const Outcome &outcome) {
        const bool hasResolution = outcome.data && outcome.data->type == ParameterType::Float;
        if (!hasResolution || SettingsValue::isSame(*outcome.data, item.entry.setting.value)) {
            judge(item, mayWrite, outcome);
            return;
        }
        // What the register can tell apart is among the limits.
        addStep([this, &item, name, mayWrite] {
            read(name, [this, &item, mayWrite](const Outcome &whole) { judge(item, mayWrite, whole); });
        });
    });
}

void SettingsApplying::judge(Item &item, bool mayWrite, const Outcome &outcome)
{
    SettingsReport::Entry &entry = item.entry;
    if (!outcome.data) {
        entry.result = Result::Missing;
        return;
    }
    if (isOfNoValue(*outcome.data)) {
        entry.result = Result::Refused;
        entry.reason = tr("%1 is no feature that has a value").arg(entry.setting.name);
        return;
    }
    const QString value = valueIn(outcome);
    if (!std::exchange(item.isSeen, true)) {
        const FeatureSettings::Setting *const first = item.isSelector ? original(entry.setting) : nullptr;
        entry.before = first ? first->value : value;
    }
    entry.after = value;
    if (item.isSelector) {
        knowSelector(entry.setting.name, value);
    }
    const bool isWanted = mayWrite
        ? SettingsValue::isSame(*outcome.data, entry.setting.value)
        : SettingsValue::isTaken(*outcome.data, entry.setting.value, item.resolution);
    if (outcome.data->isReadable && isWanted) {
        // A selector that was only stepped along has its value again.
        const bool isChanged =
            item.isWritten && !SettingsValue::isSameText(entry.before, entry.setting.value);
        entry.result = isChanged ? Result::Set : Result::Unchanged;
        entry.reason.clear();
    } else if (mayWrite) {
        addStep([this, &item] { writeItem(item); });
    } else if (outcome.data->isReadable) {
        entry.result = Result::Different;
    }
}

void SettingsApplying::writeItem(Item &item)
{
    write(item.entry.setting.name, item.entry.setting.value, [this, &item](const Outcome &outcome) {
        const bool hasResolution = outcome.data && outcome.data->type == ParameterType::Float;
        item.resolution = outcome.resolution;
        if (!hasResolution || !outcome.failure.isEmpty()) {
            onWritten(item, outcome);
            return;
        }
        addStep([this, &item] {
            read(item.entry.setting.name, [this, &item](const Outcome &whole) { onWritten(item, whole); });
        });
    });
}

void SettingsApplying::onWritten(Item &item, const Outcome &outcome)
{
    SettingsReport::Entry &entry = item.entry;
    entry.after = valueIn(outcome);
    if (item.isSelector) {
        knowSelector(entry.setting.name, entry.after);
    }
    if (!outcome.failure.isEmpty()) {
        entry.result = Result::Refused;
        entry.reason = outcome.failure;
        return;
    }
    item.isWritten = true;
    entry.reason.clear();
    const bool isReadable = outcome.data && outcome.data->isReadable;
    if (isReadable && !SettingsValue::isTaken(*outcome.data, entry.setting.value, item.resolution)) {
        entry.result = Result::Different;
        return;
    }
    const bool isSteppedBack =
        item.isSelector && SettingsValue::isSameText(entry.before, entry.setting.value);
    entry.result = isSteppedBack ? Result::Unchanged : Result::Set;
    m_hasWritten = m_hasWritten || !isSteppedBack;
}
