// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsplan_p.h"

#include <platform/core/guard.h>
#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/nodepropertyaccess.h>

#include <QSet>

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

// Tables and files are contents of a camera, not settings; they are known by the standard's names.
bool isContents(const QString &name)
{
    static const QSet<QString> contents{
        QStringLiteral("LUTIndex"),         QStringLiteral("LUTValue"),
        QStringLiteral("LUTValueAll"),      QStringLiteral("FileSelector"),
        QStringLiteral("FileOpenMode"),     QStringLiteral("FileOperationSelector"),
        QStringLiteral("FileAccessBuffer"), QStringLiteral("FileAccessOffset"),
        QStringLiteral("FileAccessLength")};
    return contents.contains(name);
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
        if (m_seen.contains(name)) {
            return;
        }
        m_seen.insert(name);
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
        const QString yes = QStringLiteral("Yes");
        facts.append({name, properties && properties->property(QStringLiteral("Streamable")) == yes,
                      isOfValue(parameter.type()) && !isContents(name)});
        const QString names = properties ? properties->property(QStringLiteral("pSelected")) : QString();
        if (!names.isEmpty() && !isContents(name)) {
            selected.insert(name, names.split(QLatin1Char('\t'), Qt::SkipEmptyParts));
        }
    }

    const IParameterCollection &m_collection;
    QSet<QString> m_seen;
};

} // namespace

SettingsPlan SettingsPlan::of(const IParameterCollection &collection)
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
        plan.features.append({facts.name, graph.selectorsOf(facts.name),
                              facts.hasText && (facts.isStreamable || !plan.knowsStreamable)});
    }
    return plan;
}
