// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featureselectors_p.h"

#include "unansweredwrites_p.h"

#include <QHash>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

using namespace ParameterCollection;

namespace {

constexpr int deepestCategory = 100;

QString nodeMapName(const QString &fullName)
{
    return fullName.section(QLatin1Char('/'), 0, 0);
}

// Of all features, tables too, which do not belong to a camera's settings and yet can be changed.
SettingsGraph graphOf(const IParameterCollection &collection)
{
    QHash<QString, QStringList> selected;
    const QStringList names = collection.childNames(QStringLiteral("Root"), deepestCategory, false);
    for (const QString &name : names) {
        const QSharedPointer<IParameter> parameter = collection.parameter(name);
        const auto properties = parameter ? parameter->propertyAccess() : nullptr;
        const QString features = properties ? properties->property(QStringLiteral("pSelected")) : QString();
        if (!features.isEmpty()) {
            selected.insert(name, features.split(QLatin1Char('\t'), Qt::SkipEmptyParts));
        }
    }
    return SettingsGraph(selected);
}

} // namespace

void FeatureSelectors::setNodeMaps(const QList<SettingsNodeMap> &nodeMaps)
{
    m_maps.clear();
    m_selectors.clear();
    for (const SettingsNodeMap &nodeMap : nodeMaps) {
        m_maps.append({nodeMap, SettingsGraph(), false});
    }
}

const FeatureSelectors::Map *FeatureSelectors::mapOf(const QString &fullName) const
{
    const QString name = nodeMapName(fullName);
    const auto map = std::find_if(m_maps.begin(), m_maps.end(),
                                  [&name](const Map &other) { return other.nodeMap.name == name; });
    if (map == m_maps.end()) {
        return nullptr;
    }
    if (!map->isRead) {
        map->isRead = true;
        map->graph = graphOf(*map->nodeMap.collection);
    }
    return &*map;
}

// Asked at each write of a user, and always about the same few features.
const FeatureSelectors::Selectors &FeatureSelectors::selectorsBefore(const QString &fullName) const
{
    const auto known = m_selectors.constFind(fullName);
    if (known != m_selectors.constEnd()) {
        return *known;
    }
    Selectors selectors;
    if (const Map *const map = mapOf(fullName)) {
        const QStringList names = map->graph.selectorsOf(fullName.section(QLatin1Char('/'), -1));
        for (const QString &name : names) {
            const auto selector =
                map->nodeMap.collection->parameter(map->nodeMap.name + QLatin1Char('/') + name);
            if (selector) {
                selectors.append(selector);
            }
        }
    }
    return *m_selectors.insert(fullName, selectors);
}

QSharedPointer<IParameter> FeatureSelectors::parameter(const QString &fullName) const
{
    const Map *const map = mapOf(fullName);
    return map ? map->nodeMap.collection->parameter(fullName) : nullptr;
}

FeatureSelectors::Assignments FeatureSelectors::selectorsOf(const QString &fullName) const
{
    Assignments present;
    for (const auto &selector : selectorsBefore(fullName)) {
        present.append({selector->name(), UnansweredWrites::presentText(*selector), 0});
    }
    return present;
}

bool FeatureSelectors::areSettled(const QString &fullName) const
{
    const Selectors &selectors = selectorsBefore(fullName);
    return std::none_of(selectors.cbegin(), selectors.cend(), [](const auto &selector) {
        const UnansweredWrites *const writes = UnansweredWrites::find(*selector);
        return writes && writes->isWaiting();
    });
}

void FeatureSelectors::write(IParameter &parameter, const Assignments &selectors, const QString &text) const
{
    QList<std::pair<QSharedPointer<IParameter>, QString>> moved; // selectors, and where they were
    const auto putBack = qScopeGuard([&moved] {
        for (auto selector = moved.crbegin(); selector != moved.crend(); ++selector) {
            try {
                UnansweredWrites::write(*selector->first, selector->second);
            } catch (const std::exception &) {
                // What matters has been written; where the selector is now can be seen.
            }
        }
    });
    for (const FeatureSettings::Assignment &wanted : selectors) {
        const auto selector =
            this->parameter(nodeMapName(parameter.fullName()) + QLatin1Char('/') + wanted.name);
        const QString present = selector ? UnansweredWrites::presentText(*selector) : wanted.value;
        if (present != wanted.value) {
            UnansweredWrites::write(*selector, wanted.value);
            moved.append({selector, present});
        }
    }
    UnansweredWrites::write(parameter, text);
}
