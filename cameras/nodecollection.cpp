// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nodecollection_p.h"

#include "nodeparameter_p.h"

#include <utility>

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

QSharedPointer<IParameter> NodeCollection::parameter(const QString &name) const
{
    return m_parameters.value(m_session->nodeOf(m_map, name));
}

bool NodeCollection::hasParameter(const QString &name) const
{
    return m_parameters.contains(m_session->nodeOf(m_map, name));
}

QStringList NodeCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    const int node = m_session->nodeOf(m_map, parent);
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

void NodeCollection::runBatch(std::shared_ptr<IBatch> batch)
{
    m_session->runBatch(m_map, std::move(batch));
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
