// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "parameters.h"

#include "conversion.h"
#include "gil.h"

#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/nodepropertyaccess.h>
#include <platform/parametercollection/parameterdata.h>

#include <QMetaType>

#include <utility>

using namespace ParameterCollection;

namespace {

template <typename Data>
const Data &as(const ParameterDataPtr &data)
{
    return static_cast<const Data &>(*data);
}

PyObject *none()
{
    Py_INCREF(Py_None);
    return Py_None;
}

template <typename Interface, typename Value>
void write(const QSharedPointer<IParameter> &parameter, const Value &value)
{
    const WithoutGil free;
    qSharedPointerObjectCast<Interface>(parameter)->setValue(value);
}

} // namespace

PythonParameter::PythonParameter(const QSharedPointer<IParameter> &parameter)
    : m_parameter(parameter)
{
    if (!parameter) {
        throw GenICam::LogicalErrorException(QStringLiteral("The parameter has gone"));
    }
}

QSharedPointer<IParameter> PythonParameter::shared() const
{
    return m_parameter.get();
}

QString PythonParameter::name() const
{
    return shared()->name();
}

QString PythonParameter::fullName() const
{
    return shared()->fullName();
}

QString PythonParameter::type() const
{
    switch (shared()->type()) {
    case ParameterType::Integer:
        return QStringLiteral("Integer");
    case ParameterType::Boolean:
        return QStringLiteral("Boolean");
    case ParameterType::Float:
        return QStringLiteral("Float");
    case ParameterType::Command:
        return QStringLiteral("Command");
    case ParameterType::String:
        return QStringLiteral("String");
    case ParameterType::Enumeration:
        return QStringLiteral("Enumeration");
    case ParameterType::Category:
        return QStringLiteral("Category");
    default:
        return QStringLiteral("Unknown");
    }
}

QString PythonParameter::property(const QString &name) const
{
    return shared()->propertyAccess()->property(name);
}

bool PythonParameter::isReadable() const
{
    return shared()->parameterData()->isReadable;
}

bool PythonParameter::isWritable() const
{
    return shared()->isWritableNow();
}

PyObject *PythonParameter::value() const
{
    const ParameterDataPtr data = shared()->parameterData();
    if (!data->isReadable) {
        return none();
    }
    switch (data->type) {
    case ParameterType::Integer:
        return toPython(as<IntegerParameterData>(data).value);
    case ParameterType::Float:
        return toPython(as<FloatParameterData>(data).value);
    case ParameterType::Boolean:
        return toPython(as<BooleanParameterData>(data).value);
    case ParameterType::Enumeration:
    case ParameterType::String:
        return toPython(data->valueString);
    default:
        return none();
    }
}

QString PythonParameter::text() const
{
    return shared()->parameterData()->valueString;
}

template <typename Choose>
PyObject *PythonParameter::limit(Choose choose) const
{
    const ParameterDataPtr data = shared()->parameterData();
    switch (data->type) {
    case ParameterType::Integer:
        return toPython(choose(as<IntegerParameterData>(data)));
    case ParameterType::Float:
        return toPython(choose(as<FloatParameterData>(data)));
    default:
        return none();
    }
}

PyObject *PythonParameter::minimum() const
{
    return limit([](const auto &data) { return data.minimum; });
}

PyObject *PythonParameter::maximum() const
{
    return limit([](const auto &data) { return data.maximum; });
}

PyObject *PythonParameter::increment() const
{
    return limit([](const auto &data) { return data.increment; });
}

QStringList PythonParameter::entries() const
{
    const ParameterDataPtr data = shared()->parameterData();
    return data->type == ParameterType::Enumeration ? as<EnumParameterData>(data).symbolicNames
                                                    : QStringList();
}

void PythonParameter::setValue(PyObject *value) const
{
    const QSharedPointer<IParameter> parameter = shared();
    if (PyUnicode_Check(value)) {
        const QString text = fromPython<QString>(value);
        const WithoutGil free;
        parameter->setValueFromString(text);
        return;
    }
    switch (parameter->type()) {
    case ParameterType::Integer:
        return write<IIntegerParameter>(parameter, fromPython<qint64>(value));
    case ParameterType::Float:
        return write<IFloatParameter>(parameter, fromPython<double>(value));
    case ParameterType::Boolean:
        return write<IBooleanParameter>(parameter, fromPython<bool>(value));
    default:
        static_cast<void>(fromPython<QString>(value)); // which it is not
    }
}

void PythonParameter::setText(const QString &text) const
{
    const QSharedPointer<IParameter> parameter = shared();
    parameter->setValueFromString(text);
}

void PythonParameter::execute() const
{
    const auto command = qSharedPointerObjectCast<ICommandParameter>(shared());
    if (!command) {
        throw GenICam::DynamicCastException(QStringLiteral("%1 is no command").arg(name()));
    }
    command->execute(true);
}

PythonCollection::PythonCollection(const QSharedPointer<IParameterCollection> &collection)
    : m_collection(collection)
{
}

QSharedPointer<IParameterCollection> PythonCollection::shared() const
{
    return m_collection.get();
}

PythonParameter PythonCollection::parameter(const QString &name) const
{
    const auto found = shared()->parameter(name);
    if (!found) {
        throw GenICam::InvalidArgumentException(
            QStringLiteral("There is no parameter called \"%1\"").arg(name));
    }
    return PythonParameter(found);
}

bool PythonCollection::hasParameter(const QString &name) const
{
    return shared()->hasParameter(name);
}

QStringList PythonCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    return shared()->childNames(parent, depth, fullNames);
}

void PythonCollection::refresh() const
{
    const auto collection = shared();
    collection->refresh();
}

void PythonCollection::poll(int elapsedMilliseconds) const
{
    const auto collection = shared();
    collection->poll(elapsedMilliseconds);
}

QString PythonCollection::deviceClass() const
{
    return shared()->deviceClass();
}

PythonNodeMap::PythonNodeMap(const QString &name, const PythonCollection &collection, const QString &title,
                             bool usesUtf8)
    : m_name(name)
    , m_collection(collection)
    , m_title(title)
    , m_usesUtf8(usesUtf8)
{
}

void initialiseMetaTypes()
{
    qRegisterMetaType<QSharedPointer<IParameter>>();
    qRegisterMetaType<QSharedPointer<QMenu>>();
}

PyObject *menuToPython(const QSharedPointer<QMenu> &menu, PyObject *wrapper)
{
    if (!wrapper) {
        return nullptr;
    }
    auto *const owner = new ThreadBound<QMenu>(menu);
    PyObject *const capsule = PyCapsule_New(owner, nullptr, [](PyObject *dying) {
        delete static_cast<ThreadBound<QMenu> *>(PyCapsule_GetPointer(dying, nullptr));
    });
    PyObject_SetAttrString(wrapper, "_menu", capsule);
    Py_XDECREF(capsule);
    return wrapper;
}
