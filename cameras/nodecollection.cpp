// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nodecollection_p.h"

#include "nodeparameter_p.h"

using namespace ParameterCollection;

namespace Cameras {

NodeCollection::NodeCollection(std::shared_ptr<Session> session, int map)
    : m_session(std::move(session))
    , m_map(map)
    , m_description(m_session->description(map))
{
    for (const int node : m_description->published()) {
        m_parameters.insert(node, newNodeParameter({m_session, map, node}));
    }
    m_session->setListener(map, this);
}

NodeCollection::~NodeCollection()
{
    m_session->setListener(m_map, nullptr);
}

int NodeCollection::nodeOf(const QString &name) const
{
    const QString prefix = m_session->mapName(m_map) + QLatin1Char('/');
    const QLatin1String suffix("/Alias");
    QString shortName = name.startsWith(prefix) ? name.mid(prefix.size()) : name;
    const bool isAlias = shortName.endsWith(suffix);
    if (isAlias) {
        shortName.chop(suffix.size());
    }
    const int node = m_description->indexOf(shortName);
    return isAlias && node >= 0 ? m_description->alias(node) : node;
}

QSharedPointer<IParameter> NodeCollection::parameter(const QString &name) const
{
    return m_parameters.value(nodeOf(name));
}

bool NodeCollection::hasParameter(const QString &name) const
{
    return m_parameters.contains(nodeOf(name));
}

QStringList NodeCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    const int node = nodeOf(parent);
    if (node < 0) {
        return {};
    }
    const QString prefix = fullNames ? m_session->mapName(m_map) + QLatin1Char('/') : QString();
    QStringList names;
    QList<int> generation = m_description->children(node);
    for (int step = 0; step <= depth && !generation.isEmpty(); ++step) {
        QList<int> next;
        for (const int child : std::as_const(generation)) {
            names.append(prefix + m_description->name(child));
            next.append(m_description->children(child));
        }
        generation = next;
    }
    return names;
}

void NodeCollection::refresh()
{
    m_session->refresh(m_map);
}

void NodeCollection::poll(int elapsedMilliseconds)
{
    m_session->poll(m_map, elapsedMilliseconds);
}

QString NodeCollection::deviceClass() const
{
    return m_session->info()->deviceClass();
}

void NodeCollection::deliver()
{
    // One at a time, so that their order is kept even when a receiver runs an event loop.
    const auto published = m_session->takePublished(m_map);
    if (!published) {
        return;
    }
    // A receiver may drop the collection.
    if (const auto parameter = m_parameters.value(published->node)) {
        emit parameter->parameterDataChangedDecoupled(published->data);
    }
}

} // namespace Cameras
