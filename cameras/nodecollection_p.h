// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "session_p.h"

#include <platform/parametercollection/ibatchrunner.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QHash>

#include <memory>

namespace Cameras {

/*! \brief One node map of an open camera as a parameter collection.
 *
 * Changes that the worker reports are emitted here, on the thread of the collection.
 */
class NodeCollection : public ParameterCollection::IParameterCollection,
                       public ParameterCollection::IBatchRunner
{
    Q_OBJECT
    Q_INTERFACES(ParameterCollection::IBatchRunner)

public:
    NodeCollection(std::shared_ptr<Session> session, int map);
    ~NodeCollection() override;

    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &name) const override;
    bool hasParameter(const QString &name) const override;
    QStringList childNames(const QString &parent, int depth, bool fullNames) const override;
    void refresh() override;
    void poll(int elapsedMilliseconds) override;
    QString deviceClass() const override;
    void runBatch(std::shared_ptr<ParameterCollection::IBatch> batch) override;

private slots:
    void deliver();

private:
    std::shared_ptr<Session> m_session;
    int m_map;
    std::shared_ptr<const Description> m_description;
    QHash<int, QSharedPointer<ParameterCollection::IParameter>> m_parameters;
};

} // namespace Cameras
