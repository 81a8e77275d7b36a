// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsplan_p.h"

#include <platform/core/guard.h>
#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/nodepropertyaccess.h>

#include <QSet>
#include <QWeakPointer>

#include <algorithm>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.settings")

namespace {

/*! \brief What the collection says about one feature. */
struct Facts
{
    QString name;
    bool isStreamable = false;
    bool hasText = false;
};

bool isOfValue(ParameterType type)
{
    switch (type) {
    case ParameterType::Integer:
    case ParameterType::Boolean:
    case ParameterType::Float:
    case ParameterType::String:
    case ParameterType::Enumeration:
        return true;
    default:
        return false;
    }
}

bool isOfEntries(ParameterType type)
{
    return type == ParameterType::Integer || type == ParameterType::Enumeration
        || type == ParameterType::Boolean;
}

// Tables and files are contents of a camera, not settings; they are known by the standard's names.
bool isContents(const QString &name)
{
    static const QSet<QString> contents{
        QStringLiteral("LUTIndex"),         QStringLiteral("LUTValue"),
        QStringLiteral("LUTValueAll"),      QStringLiteral("FileSelector"),
        QStringLiteral("FileOpenMode"),     QStringLiteral("FileOperationSelector"),
        QStringLiteral("FileAccessBuffer"), QStringLiteral("FileAccessOffset"),
        QStringLiteral("FileAccessLength")};
    const bool isCandidate = name.startsWith(QLatin1String("LUT")) || name.startsWith(QLatin1String("File"));
    return isCandidate && contents.contains(name);
}

class Collector
{
public:
    explicit Collector(const IParameterCollection &collection)
        : m_collection(collection)
    {
    }

    void visit(const QString &name)
    {
        const auto known = m_seen.size();
        m_seen.insert(name);
        if (m_seen.size() == known) {
            return;
        }
        const auto parameter = m_collection.parameter(name);
        if (!parameter || parameter->type() == ParameterType::Category || name == QLatin1String("Root")) {
            const QStringList children = m_collection.childNames(name, 0, false);
            for (const QString &child : children) {
                visit(child);
            }
            return;
        }
        note(name, *parameter);
    }

    QList<Facts> facts;
    QHash<QString, QStringList> selected;

private:
    void note(const QString &name, const IParameter &parameter)
    {
        const auto properties = parameter.propertyAccess();
        const bool isSetting = isOfValue(parameter.type()) && !isContents(name);
        const bool isStreamable = isSetting && properties
            && properties->property(QStringLiteral("Streamable")) == QLatin1String("Yes");
        facts.append({name, isStreamable, isSetting});
        const bool maySelect = properties && isOfEntries(parameter.type());
        const QString names = maySelect ? properties->property(QStringLiteral("pSelected")) : QString();
        if (!names.isEmpty() && !isContents(name)) {
            selected.insert(name, names.split(QLatin1Char('\t'), Qt::SkipEmptyParts));
        }
    }

    const IParameterCollection &m_collection;
    QSet<QString> m_seen;
};

SettingsPlan planOf(const IParameterCollection &collection)
{
    Collector collector(collection);
    Core::guardedRun({logCategory(), "SettingsPlan::of"},
                     QStringLiteral("Failed to look at the features of a node map"),
                     [&] { collector.visit(QStringLiteral("Root")); });
    SettingsPlan plan;
    plan.selected = collector.selected;
    plan.knowsStreamable = std::any_of(collector.facts.cbegin(), collector.facts.cend(),
                                       [](const Facts &facts) { return facts.isStreamable; });
    const SettingsGraph graph(plan.selected);
    for (const Facts &facts : std::as_const(collector.facts)) {
        if (facts.hasText && (facts.isStreamable || !plan.knowsStreamable)) {
            plan.features.append({facts.name, graph.selectorsOf(facts.name)});
        }
    }
    return plan;
}

} // namespace

SettingsPlan SettingsPlan::of(const CollectionPtr &collection)
{
    struct Known
    {
        QWeakPointer<IParameterCollection> collection;
        SettingsPlan plan;
    };
    static QHash<const IParameterCollection *, Known> plans;
    const auto found = plans.constFind(collection.data());
    if (found != plans.constEnd() && found->collection == collection) {
        return found->plan;
    }
    plans.removeIf([](const auto &entry) { return entry.value().collection.isNull(); });
    return plans.insert(collection.data(), {collection, planOf(*collection)})->plan;
}
