// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "memorycollection.h"

#include <platform/parametercollection/valuewords.h>

using namespace ParameterCollection;

namespace {

template <typename Data, typename... Arguments>
QSharedPointer<Data> usableSnapshot(Arguments... arguments)
{
    auto data = QSharedPointer<Data>::create(arguments...);
    data->visibility = GenApi::Beginner;
    data->setAccessMode(GenApi::RW);
    return data;
}

} // namespace

void MemoryNode::enter(const char *operation) const
{
    if (before) {
        before(QString::fromLatin1(operation));
    }
}

void MemoryNode::onWritten(const QString &text)
{
    writes.append(text);
    if (written) {
        written();
    }
}

MemoryCollection::MemoryCollection(const QString &name, const QString &deviceClassWord)
    : SimpleCollection(name, Without::Root)
{
    setDeviceClass(deviceClassWord);
    addCategory(QStringLiteral("Root"), QString());
}

QSharedPointer<MemoryCollection> MemoryCollection::createSample(const QString &name)
{
    auto sample = QSharedPointer<MemoryCollection>::create(name);
    const QString image = QStringLiteral("ImageFormatControl");
    sample->addCategory(image);
    sample->addInteger(QStringLiteral("Width"), image, 640, 16, 1920, 16, QStringLiteral("Linear"));
    sample->addInteger(QStringLiteral("OffsetX"), image, 0, 0, 1280, 1);
    sample->addEnum(QStringLiteral("PixelFormat"), image, {QStringLiteral("Mono8"), QStringLiteral("Mono12")},
                    QStringLiteral("Mono8"));
    sample->addBoolean(QStringLiteral("ReverseX"), image);
    const QString acquisition = QStringLiteral("AcquisitionControl");
    sample->addCategory(acquisition);
    auto exposure = sample->addFloat(QStringLiteral("ExposureTime"), acquisition, 5000.0, 10.0, 1e6, 0.0,
                                     QStringLiteral("Logarithmic"));
    exposure->properties.insert(QStringLiteral("Unit"), QStringLiteral("us"));
    exposure->properties.insert(QStringLiteral("DisplayName"), QStringLiteral("Exposure Time"));
    exposure->properties.insert(QStringLiteral("Tooltip"), QStringLiteral("Duration of the exposure"));
    sample->addFloat(QStringLiteral("Gain"), acquisition, 1.5, 0.0, 24.0, 0.1);
    sample->addCommand(QStringLiteral("TriggerSoftware"), acquisition);
    const QString device = QStringLiteral("DeviceControl");
    sample->addCategory(device);
    sample->addString(QStringLiteral("DeviceUserID"), device, QStringLiteral("left"));
    return sample;
}

template <typename Parameter>
QSharedPointer<Parameter> MemoryCollection::add(const QString &name, const QString &parent,
                                                const QSharedPointer<ParameterData> &snapshot)
{
    auto added = QSharedPointer<Parameter>::create(name, this->name() + QLatin1Char('/') + name);
    added->snapshot = snapshot;
    added->properties.insert(QStringLiteral("DisplayName"), name);
    insert(parent, added, added.data());
    return added;
}

QSharedPointer<MemoryPlain> MemoryCollection::addCategory(const QString &name, const QString &parent)
{
    auto data = usableSnapshot<ParameterData>(ParameterType::Category);
    data->isWritable = false;
    return add<MemoryPlain>(name, parent, data);
}

template <typename Parameter, typename Value>
QSharedPointer<Parameter> MemoryCollection::addNumber(const QString &name, const QString &parent, Value value,
                                                      Value minimum, Value maximum, Value increment,
                                                      const QString &representation)
{
    auto data = usableSnapshot<typename Parameter::Data>();
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->increment = increment;
    data->representation = representation;
    auto added = add<Parameter>(name, parent, data);
    added->properties.insert(QStringLiteral("Representation"), representation);
    added->show(QVariant::fromValue(value));
    return added;
}

QSharedPointer<MemoryInteger> MemoryCollection::addInteger(const QString &name, const QString &parent,
                                                           qint64 value, qint64 minimum, qint64 maximum,
                                                           qint64 increment, const QString &representation)
{
    return addNumber<MemoryInteger>(name, parent, value, minimum, maximum, increment, representation);
}

QSharedPointer<MemoryFloat> MemoryCollection::addFloat(const QString &name, const QString &parent,
                                                       double value, double minimum, double maximum,
                                                       double increment, const QString &representation)
{
    return addNumber<MemoryFloat>(name, parent, value, minimum, maximum, increment, representation);
}

QSharedPointer<MemoryEnum> MemoryCollection::addEnum(const QString &name, const QString &parent,
                                                     const QStringList &entries, const QString &value)
{
    auto data = usableSnapshot<EnumParameterData>();
    data->symbolicNames = entries;
    data->displayTexts = entries;
    data->valueString = value;
    return add<MemoryEnum>(name, parent, data);
}

QSharedPointer<MemoryBoolean> MemoryCollection::addBoolean(const QString &name, const QString &parent,
                                                           bool value)
{
    auto data = usableSnapshot<BooleanParameterData>();
    data->value = value;
    data->valueString = booleanText(value);
    return add<MemoryBoolean>(name, parent, data);
}

QSharedPointer<MemoryCommand> MemoryCollection::addCommand(const QString &name, const QString &parent)
{
    auto data = usableSnapshot<CommandParameterData>();
    data->isReadable = false;
    return add<MemoryCommand>(name, parent, data);
}

QSharedPointer<MemoryPlain> MemoryCollection::addString(const QString &name, const QString &parent,
                                                        const QString &value)
{
    auto data = usableSnapshot<ParameterData>(ParameterType::String);
    data->valueString = value;
    return add<MemoryPlain>(name, parent, data);
}

void MemoryCollection::enter(const char *operation) const
{
    if (before) {
        before(QString::fromLatin1(operation));
    }
}

MemoryNode *MemoryCollection::node(const QString &name) const
{
    return dynamic_cast<MemoryNode *>(findNode(name));
}

QSharedPointer<IParameter> MemoryCollection::parameter(const QString &name) const
{
    enter("parameter");
    return SimpleCollection::parameter(name);
}

bool MemoryCollection::hasParameter(const QString &name) const
{
    enter("hasParameter");
    return SimpleCollection::hasParameter(name);
}

QStringList MemoryCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    enter("childNames");
    return SimpleCollection::childNames(parent, depth, fullNames);
}

void MemoryCollection::refresh()
{
    enter("refresh");
    ++refreshes;
}

void MemoryCollection::poll(int elapsedMilliseconds)
{
    enter("poll");
    polls.append(elapsedMilliseconds);
}

QString MemoryCollection::deviceClass() const
{
    enter("deviceClass");
    return SimpleCollection::deviceClass();
}
