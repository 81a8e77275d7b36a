// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuresettings.h"

#include "settingsfile_p.h"
#include "settingsgraph_p.h"

#include <platform/core/exception.h>
#include <platform/core/savefile.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using Core::Exception::BaseException;

namespace {

// Files from elsewhere do not tell who selects whom. The standard's selectors bear the word in their names,
// and only what they select is assigned more than once.
SettingsGraph guessedGraph(const QList<FeatureSettings::Assignment> &assignments)
{
    QHash<QString, QStringList> selected;
    QHash<QString, int> times;
    for (const FeatureSettings::Assignment &assignment : assignments) {
        ++times[assignment.name];
    }
    QString selector;
    for (const FeatureSettings::Assignment &assignment : assignments) {
        if (assignment.name.endsWith(QLatin1String("Selector"))) {
            selector = assignment.name;
        } else if (times.value(assignment.name) > 1 && !selector.isEmpty()
                   && !selected.value(selector).contains(assignment.name)) {
            selected[selector].append(assignment.name);
        }
    }
    return SettingsGraph(selected);
}

QString keyOf(const FeatureSettings::Setting &setting)
{
    return setting.nodeMap + QLatin1Char('\n') + setting.title();
}

// The places are those of what was found, also in a part of the file about the same node map before.
void collectSettings(const FeatureSettings::NodeMap &nodeMap, QList<FeatureSettings::Setting> &found,
                     QHash<QString, qsizetype> &places)
{
    const SettingsGraph graph =
        nodeMap.selected.isEmpty() ? guessedGraph(nodeMap.assignments) : SettingsGraph(nodeMap.selected);
    QHash<QString, QStringList> selectorsOf;
    QHash<QString, QString> values; // of selectors, as assigned last
    for (const FeatureSettings::Assignment &assignment : nodeMap.assignments) {
        FeatureSettings::Setting setting{
            nodeMap.name, assignment.name, {}, assignment.value, assignment.line};
        auto selectors = selectorsOf.constFind(assignment.name);
        if (selectors == selectorsOf.constEnd()) {
            selectors = selectorsOf.insert(assignment.name, graph.selectorsOf(assignment.name));
        }
        for (const QString &selector : *selectors) {
            if (const auto value = values.constFind(selector); value != values.constEnd()) {
                setting.selectors.append({selector, *value, 0});
            }
        }
        if (graph.isSelector(assignment.name)) {
            values.insert(assignment.name, assignment.value);
        }
        const QString key = keyOf(setting);
        if (const auto place = places.constFind(key); place != places.constEnd()) {
            // A selector ends with the value that it gets last, after what it selects.
            found[*place].name.clear();
        }
        places.insert(key, found.size());
        found.append(setting);
    }
}

} // namespace

QString FeatureSettings::Setting::title() const
{
    if (selectors.isEmpty()) {
        return name;
    }
    QStringList words;
    for (const Assignment &selector : selectors) {
        words.append(selector.name + QLatin1Char('=') + selector.value);
    }
    return QStringLiteral("%1 [%2]").arg(name, words.join(QLatin1String(", ")));
}

bool FeatureSettings::Setting::isSameFeature(const Setting &other) const
{
    return name == other.name && nodeMap == other.nodeMap
        && std::equal(selectors.cbegin(), selectors.cend(), other.selectors.cbegin(), other.selectors.cend(),
                      [](const Assignment &left, const Assignment &right) {
                          return left.name == right.name && left.value == right.value;
                      });
}

bool FeatureSettings::isEmpty() const
{
    return std::all_of(nodeMaps.cbegin(), nodeMaps.cend(),
                       [](const NodeMap &nodeMap) { return nodeMap.assignments.isEmpty(); });
}

QList<FeatureSettings::Setting> FeatureSettings::settings() const
{
    QList<Setting> found;
    QHash<QString, qsizetype> places;
    for (const NodeMap &nodeMap : nodeMaps) {
        collectSettings(nodeMap, found, places);
    }
    found.removeIf([](const Setting &setting) { return setting.name.isEmpty(); });
    return found;
}

FeatureSettings FeatureSettings::of(const QList<Setting> &settings)
{
    FeatureSettings made;
    for (const Setting &setting : settings) {
        auto nodeMap = std::find_if(made.nodeMaps.begin(), made.nodeMaps.end(),
                                    [&](const NodeMap &known) { return known.name == setting.nodeMap; });
        if (nodeMap == made.nodeMaps.end()) {
            nodeMap = made.nodeMaps.insert(made.nodeMaps.end(), NodeMap{setting.nodeMap, {}, {}, true});
        }
        for (const Assignment &selector : setting.selectors) {
            nodeMap->assignments.append(selector);
            if (QStringList &names = nodeMap->selected[selector.name]; !names.contains(setting.name)) {
                names.append(setting.name);
            }
        }
        nodeMap->assignments.append({setting.name, setting.value, setting.line});
    }
    return made;
}

FeatureSettings FeatureSettings::read(QIODevice &device)
{
    return SettingsFile::read(device);
}

FeatureSettings FeatureSettings::load(const QString &fileName)
{
    const QFileInfo entry(fileName);
    if (entry.isDir()) {
        throw BaseException(tr("%1: it is a directory").arg(fileName));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw BaseException(tr("%1: %2").arg(fileName, file.errorString()));
    }
    try {
        return read(file);
    } catch (const BaseException &exception) {
        throw BaseException(tr("%1: %2").arg(fileName, exception.getMessage()));
    }
}

void FeatureSettings::write(QIODevice &device) const
{
    const QByteArray text = SettingsFile::textOf(*this);
    if (device.write(text) != text.size()) {
        throw BaseException(device.errorString());
    }
}

void FeatureSettings::save(const QString &fileName) const
{
    const QString failure = Core::saveFile(fileName, SettingsFile::textOf(*this));
    if (!failure.isEmpty()) {
        throw BaseException(tr("Cannot write %1: %2").arg(fileName, failure));
    }
}
