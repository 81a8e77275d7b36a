// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nodeparameter_p.h"

#include <platform/genicam/genericexception.h>

#include <utility>

using namespace ParameterCollection;

namespace Cameras {

namespace {

// In the order of GenApi::EVisibility and GenApi::EAccessMode.
const QStringList &visibilityNames()
{
    static const QStringList names{QStringLiteral("Beginner"), QStringLiteral("Expert"),
                                   QStringLiteral("Guru"), QStringLiteral("Invisible")};
    return names;
}

const QStringList &accessModeNames()
{
    static const QStringList names{QStringLiteral("NI"), QStringLiteral("NA"), QStringLiteral("WO"),
                                   QStringLiteral("RO"), QStringLiteral("RW")};
    return names;
}

int indexOrThrow(const QStringList &names, const NodeHandle &handle, const QString &property,
                 const QString &value)
{
    const auto index = names.indexOf(value);
    if (index < 0) {
        const QString feature = handle.session->description(handle.map)->name(handle.node);
        throw GenICam::InvalidArgumentException(
            NodeProperties::tr("%1: \"%2\" is no %3, expected %4")
                .arg(feature, value, property, names.join(QLatin1String(", "))));
    }
    return int(index);
}

// What a snapshot allows, as an access mode.
GenApi::EAccessMode accessOf(const ParameterData &data)
{
    if (!data.isImplemented) {
        return GenApi::NI;
    }
    if (data.isReadable) {
        return data.isWritable ? GenApi::RW : GenApi::RO;
    }
    return data.isWritable ? GenApi::WO : GenApi::NA;
}

template <typename Interface, typename Value>
class WritableParameter : public NodeParameter<Interface>
{
public:
    using NodeParameter<Interface>::NodeParameter;
    void setValue(Value value) override { this->write(NodeValue(value)); }
};

class CommandParameter : public NodeParameter<ICommandParameter>
{
public:
    using NodeParameter::NodeParameter;
    void execute(bool verify) override { write(ExecuteCommand{verify}); }
};

} // namespace

NodeProperties::NodeProperties(NodeHandle handle)
    : m_handle(std::move(handle))
{
}

NodeProperties::~NodeProperties() = default;

QString NodeProperties::property(const QString &name, const QString &defaultValue) const
{
    const Description &description = *m_handle.session->description(m_handle.map);
    const QString nodeName = description.name(m_handle.node);
    if (name == QLatin1String("Name")) {
        return nodeName;
    }
    if (name == QLatin1String("DisplayName") && nodeName == QLatin1String("Root")) {
        return m_handle.session->mapTitle(m_handle.map); // the top of each node map has that name
    }
    if (name == QLatin1String("Visibility") || name == QLatin1String("AccessMode")) {
        const ParameterDataPtr data = m_handle.session->snapshot(m_handle.map, m_handle.node);
        return name == QLatin1String("Visibility") ? visibilityNames().value(data->visibility, defaultValue)
                                                   : accessModeNames().value(accessOf(*data), defaultValue);
    }
    if (name == QLatin1String("pSelected")) {
        const QStringList selected = description.selected(m_handle.node);
        return selected.isEmpty() ? defaultValue : selected.join(QLatin1Char('\t'));
    }
    const bool isInherited = name == QLatin1String("Representation") || name == QLatin1String("Unit");
    const QString element = name == QLatin1String("Tooltip") ? QStringLiteral("ToolTip") : name;
    QString text = isInherited ? description.inheritedProperty(m_handle.node, element)
                               : description.property(m_handle.node, element);
    if (!text.isEmpty()) {
        return text;
    }
    return name == QLatin1String("DisplayName") ? nodeName : defaultValue;
}

void NodeProperties::setProperty(const QString &name, const QString &value)
{
    if (name == QLatin1String("Visibility")) {
        const int index = indexOrThrow(visibilityNames(), m_handle, name, value);
        m_handle.session->imposeVisibility(m_handle.map, m_handle.node, GenApi::EVisibility(index));
    } else if (name == QLatin1String("AccessMode")) {
        const int index = indexOrThrow(accessModeNames(), m_handle, name, value);
        m_handle.session->imposeAccess(m_handle.map, m_handle.node, GenApi::EAccessMode(index));
    } else {
        const QString feature = m_handle.session->description(m_handle.map)->name(m_handle.node);
        throw GenICam::InvalidArgumentException(
            tr("%1: the property \"%2\" cannot be imposed, only Visibility and AccessMode can")
                .arg(feature, name));
    }
}

template <typename Interface>
NodeParameter<Interface>::NodeParameter(const NodeHandle &handle)
    : m_handle(handle)
    , m_properties(QSharedPointer<NodeProperties>::create(handle))
{
}

template <typename Interface>
NodeParameter<Interface>::~NodeParameter() = default;

template <typename Interface>
void NodeParameter<Interface>::write(const NodeValue &value)
{
    m_handle.session->write(m_handle.map, m_handle.node, value);
}

template <typename Interface>
void NodeParameter<Interface>::setValueFromString(const QString &text)
{
    write(text);
}

template <typename Interface>
bool NodeParameter<Interface>::isExcluded() const
{
    return !m_handle.session->description(m_handle.map)->isFeature(m_handle.node);
}

template <typename Interface>
bool NodeParameter<Interface>::isWritableNow() const
{
    return parameterData()->isWritable;
}

template <typename Interface>
GenApi::EVisibility NodeParameter<Interface>::visibility() const
{
    return parameterData()->visibility;
}

template <typename Interface>
ParameterType NodeParameter<Interface>::type() const
{
    return m_handle.session->type(m_handle.map, m_handle.node);
}

template <typename Interface>
QString NodeParameter<Interface>::fullName() const
{
    return m_handle.session->mapName(m_handle.map) + QLatin1Char('/') + name();
}

template <typename Interface>
QString NodeParameter<Interface>::name() const
{
    return m_handle.session->description(m_handle.map)->name(m_handle.node);
}

template <typename Interface>
QSharedPointer<NodePropertyAccess> NodeParameter<Interface>::propertyAccess() const
{
    return m_properties;
}

template <typename Interface>
ParameterDataPtr NodeParameter<Interface>::parameterData() const
{
    return m_handle.session->snapshot(m_handle.map, m_handle.node);
}

template <typename Interface>
void NodeParameter<Interface>::scheduleParameterDataChangedCheck(bool force)
{
    m_handle.session->requestRead(m_handle.map, m_handle.node, force);
}

// An alias is kept out of the tree, and yet may be locked together with its feature.
template <typename Interface>
bool NodeParameter<Interface>::isImposingAllowed() const
{
    return true;
}

template <typename Interface>
GenApi::EAccessMode NodeParameter<Interface>::nodeAccessMode() const
{
    return m_handle.session->nodeAccess(m_handle.map, m_handle.node);
}

QSharedPointer<IParameter> newNodeParameter(const NodeHandle &handle)
{
    switch (handle.session->type(handle.map, handle.node)) {
    case ParameterType::Integer:
        return QSharedPointer<WritableParameter<IIntegerParameter, qint64>>::create(handle);
    case ParameterType::Float:
        return QSharedPointer<WritableParameter<IFloatParameter, double>>::create(handle);
    case ParameterType::Boolean:
        return QSharedPointer<WritableParameter<IBooleanParameter, bool>>::create(handle);
    case ParameterType::Enumeration:
        return QSharedPointer<WritableParameter<IEnumParameter, const QString &>>::create(handle);
    case ParameterType::Command:
        return QSharedPointer<CommandParameter>::create(handle);
    default:
        return QSharedPointer<NodeParameter<IParameter>>::create(handle);
    }
}

} // namespace Cameras
