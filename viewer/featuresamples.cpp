// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuresamples.h"

#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparameter.h>

#include <limits>
#include <utility>

using namespace ParameterCollection;

namespace {

const QString root = QStringLiteral("Root");

bool hasEditor(const QSharedPointer<IParameter> &parameter)
{
    return parameter && !parameter->isExcluded() && parameter->nodeAccessMode() >= GenApi::WO
        && isFeatureType(parameter->type());
}

QString kindOf(const IParameter &parameter)
{
    return QStringLiteral("%1 %2").arg(
        QString::number(static_cast<quint32>(parameter.type())),
        parameter.propertyAccess()->property(QStringLiteral("Representation")));
}

} // namespace

FeatureSamples::FeatureSamples(CollectionPtr nodeMap, QSet<QString> &kinds)
    : m_nodeMap(std::move(nodeMap))
{
    const QStringList names = m_nodeMap->childNames(root, std::numeric_limits<int>::max(), true);
    for (const auto lowest : {GenApi::RW, GenApi::WO}) { // rather one that can be changed
        for (const QString &name : names) {
            take(m_nodeMap->parameter(name), lowest, kinds);
        }
    }
}

void FeatureSamples::take(const QSharedPointer<IParameter> &parameter, GenApi::EAccessMode lowest,
                          QSet<QString> &kinds)
{
    if (!hasEditor(parameter) || parameter->nodeAccessMode() < lowest) {
        return;
    }
    const QString kind = kindOf(*parameter);
    if (!kinds.contains(kind)) {
        kinds.insert(kind);
        m_samples.append(parameter);
    }
}

FeatureSamples::~FeatureSamples() = default;

bool FeatureSamples::isEmpty() const
{
    return m_samples.isEmpty();
}

QSharedPointer<IParameter> FeatureSamples::parameter(const QString &name) const
{
    return m_nodeMap->parameter(name);
}

bool FeatureSamples::hasParameter(const QString &name) const
{
    return m_nodeMap->hasParameter(name);
}

QStringList FeatureSamples::childNames(const QString &parent, int depth, bool fullNames) const
{
    Q_UNUSED(depth)
    QStringList names;
    if (parent.section(QLatin1Char('/'), -1) == root) {
        for (const auto &sample : m_samples) {
            names.append(fullNames ? sample->fullName() : sample->name());
        }
    }
    return names;
}

void FeatureSamples::refresh()
{
    m_nodeMap->refresh();
}

void FeatureSamples::poll(int elapsedMilliseconds)
{
    m_nodeMap->poll(elapsedMilliseconds);
}

QString FeatureSamples::deviceClass() const
{
    return m_nodeMap->deviceClass();
}
