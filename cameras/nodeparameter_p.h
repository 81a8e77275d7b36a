// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "session_p.h"

#include <platform/parametercollection/iparameter.h>

#include <QCoreApplication>

#include <memory>

namespace Cameras {

/*! \brief Names one node of an open camera. */
struct NodeHandle
{
    std::shared_ptr<Session> session;
    int map;
    int node;
};

/*! \brief The static properties of a node, and what is imposed on it. */
class NodeProperties : public ParameterCollection::NodePropertyAccess
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::NodeProperties)

public:
    explicit NodeProperties(NodeHandle handle);
    ~NodeProperties() override;

    using NodePropertyAccess::property;
    QString property(const QString &name, const QString &defaultValue) const override;
    void setProperty(const QString &name, const QString &value) override;

private:
    NodeHandle m_handle;
};

/*! \brief A node of an open camera as a parameter; \a Interface is the face of its type. */
template <typename Interface>
class NodeParameter : public Interface
{
public:
    explicit NodeParameter(const NodeHandle &handle);
    ~NodeParameter() override;

    void setValueFromString(const QString &text) override;
    bool isExcluded() const override;
    bool isWritableNow() const override;
    GenApi::EVisibility visibility() const override;
    ParameterCollection::ParameterType type() const override;
    QString fullName() const override;
    QString name() const override;
    QSharedPointer<ParameterCollection::NodePropertyAccess> propertyAccess() const override;
    QSharedPointer<const ParameterCollection::ParameterData> parameterData() const override;
    void scheduleParameterDataChangedCheck(bool force) override;
    bool isImposingAllowed() const override;
    GenApi::EAccessMode nodeAccessMode() const override;

protected:
    void write(const NodeValue &value);

private:
    NodeHandle m_handle;
    QSharedPointer<NodeProperties> m_properties;
};

/*! Returns a new parameter for the node, with the face of its type. */
QSharedPointer<ParameterCollection::IParameter> newNodeParameter(const NodeHandle &handle);

} // namespace Cameras
