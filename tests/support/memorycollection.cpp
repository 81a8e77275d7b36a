// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "memorycollection.h"

#include <QLocale>

using namespace ParameterCollection;

namespace {

template <typename Data>
QSharedPointer<Data> usableSnapshot()
{
    auto data = QSharedPointer<Data>::create();
    data->visibility = GenApi::Beginner;
    data->isReadable = true;
    data->isWritable = true;
    data->isImplemented = true;
    return data;
}

QSharedPointer<ParameterData> plainSnapshot(ParameterType type, bool writable)
{
    auto data = QSharedPointer<ParameterData>::create(type);
    data->visibility = GenApi::Beginner;
    data->isReadable = true;
    data->isWritable = writable;
    data->isImplemented = true;
    return data;
}

[[noreturn]] void refuse(const MemoryNode &node, const QString &text, const QString &allowed)
{
    throw GenICam::InvalidArgumentException(
        QStringLiteral("%1: \"%2\" is not allowed, expected %3").arg(node.shortName, text, allowed));
}

void writeInteger(MemoryNode &node, const IntegerParameterData &old, const QString &text)
{
    bool ok = false;
    const qint64 value = text.trimmed().toLongLong(&ok, 0);
    if (!ok) {
        refuse(node, text, QStringLiteral("an integer"));
    }
    if (value < old.minimum || value > old.maximum) {
        throw GenICam::OutOfRangeException(
            QStringLiteral("%1: %2 is out of range").arg(node.shortName, text));
    }
    auto data = QSharedPointer<IntegerParameterData>::create(old);
    data->value = value;
    data->valueString = QString::number(value);
    node.snapshot = data;
}

void writeFloat(MemoryNode &node, const FloatParameterData &old, const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok) {
        refuse(node, text, QStringLiteral("a number"));
    }
    if (value < old.minimum || value > old.maximum) {
        throw GenICam::OutOfRangeException(
            QStringLiteral("%1: %2 is out of range").arg(node.shortName, text));
    }
    auto data = QSharedPointer<FloatParameterData>::create(old);
    data->value = value;
    data->valueString = QString::number(value, 'g', QLocale::FloatingPointShortest);
    node.snapshot = data;
}

void writeBoolean(MemoryNode &node, const BooleanParameterData &old, const QString &text)
{
    const bool on = text == QLatin1String("1") || text == QLatin1String("true");
    if (!on && text != QLatin1String("0") && text != QLatin1String("false")) {
        refuse(node, text, QStringLiteral("1 or 0"));
    }
    auto data = QSharedPointer<BooleanParameterData>::create(old);
    data->value = on;
    data->valueString = on ? QStringLiteral("true") : QStringLiteral("false");
    node.snapshot = data;
}

void writeEnum(MemoryNode &node, const EnumParameterData &old, const QString &text)
{
    if (!old.symbolicNames.contains(text)) {
        refuse(node, text, old.symbolicNames.join(QStringLiteral(", ")));
    }
    auto data = QSharedPointer<EnumParameterData>::create(old);
    data->valueString = text;
    node.snapshot = data;
}

} // namespace

void writeMemoryNode(MemoryNode &node, const QString &text)
{
    if (!node.snapshot->isImplemented || !node.snapshot->isWritable) {
        throw GenICam::AccessException(QStringLiteral("%1 cannot be written now").arg(node.shortName));
    }
    const QSharedPointer<ParameterData> old = node.snapshot;
    switch (old->type) {
    case ParameterType::Integer:
        writeInteger(node, static_cast<const IntegerParameterData &>(*old), text);
        break;
    case ParameterType::Float:
        writeFloat(node, static_cast<const FloatParameterData &>(*old), text);
        break;
    case ParameterType::Boolean:
        writeBoolean(node, static_cast<const BooleanParameterData &>(*old), text);
        break;
    case ParameterType::Enumeration:
        writeEnum(node, static_cast<const EnumParameterData &>(*old), text);
        break;
    case ParameterType::String: {
        auto data = QSharedPointer<ParameterData>::create(*old);
        data->valueString = text;
        node.snapshot = data;
        break;
    }
    default:
        refuse(node, text, QStringLiteral("no text"));
    }
    node.writes.append(text);
}

MemoryPropertyAccess::MemoryPropertyAccess(MemoryNode *node)
    : m_node(node)
{
}

QString MemoryPropertyAccess::property(const QString &name, const QString &defaultValue) const
{
    m_node->enter("property");
    return m_node->properties.value(name, defaultValue);
}

void MemoryPropertyAccess::setProperty(const QString &name, const QString &value)
{
    m_node->enter("setProperty");
    m_node->properties.insert(name, value);
}

void MemoryInteger::setValue(qint64 value)
{
    enter("setValue");
    writeMemoryNode(*this, QString::number(value));
    publishLater();
}

void MemoryFloat::setValue(double value)
{
    enter("setValue");
    writeMemoryNode(*this, QString::number(value, 'g', QLocale::FloatingPointShortest));
    publishLater();
}

void MemoryEnum::setValue(const QString &name)
{
    enter("setValue");
    writeMemoryNode(*this, name);
    publishLater();
}

void MemoryBoolean::setValue(bool value)
{
    enter("setValue");
    writeMemoryNode(*this, value ? QStringLiteral("1") : QStringLiteral("0"));
    publishLater();
}

void MemoryCommand::execute(bool verify)
{
    enter("execute");
    if (verify && !isWritableNow()) {
        throw GenICam::AccessException(QStringLiteral("%1 cannot be executed now").arg(shortName));
    }
    ++executions;
    publishLater();
}

MemoryCollection::MemoryCollection(const QString &name, const QString &deviceClassWord)
    : m_name(name)
    , m_deviceClass(deviceClassWord)
{
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
    auto added = QSharedPointer<Parameter>::create(name, m_name + QLatin1Char('/') + name);
    added->snapshot = snapshot;
    added->properties.insert(QStringLiteral("DisplayName"), name);
    m_entries.insert(name, {added, added.data()});
    if (const auto above = m_entries.find(parent); above != m_entries.end()) {
        above->node->children.append(name);
    }
    return added;
}

QSharedPointer<MemoryPlain> MemoryCollection::addCategory(const QString &name, const QString &parent)
{
    return add<MemoryPlain>(name, parent, plainSnapshot(ParameterType::Category, false));
}

QSharedPointer<MemoryInteger> MemoryCollection::addInteger(const QString &name, const QString &parent,
                                                           qint64 value, qint64 minimum, qint64 maximum,
                                                           qint64 increment, const QString &representation)
{
    auto data = usableSnapshot<IntegerParameterData>();
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->increment = increment;
    data->representation = representation;
    data->valueString = QString::number(value);
    auto added = add<MemoryInteger>(name, parent, data);
    added->properties.insert(QStringLiteral("Representation"), representation);
    return added;
}

QSharedPointer<MemoryFloat> MemoryCollection::addFloat(const QString &name, const QString &parent,
                                                       double value, double minimum, double maximum,
                                                       double increment, const QString &representation)
{
    auto data = usableSnapshot<FloatParameterData>();
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->increment = increment;
    data->representation = representation;
    data->valueString = QString::number(value, 'g', QLocale::FloatingPointShortest);
    auto added = add<MemoryFloat>(name, parent, data);
    added->properties.insert(QStringLiteral("Representation"), representation);
    return added;
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
    data->valueString = value ? QStringLiteral("true") : QStringLiteral("false");
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
    auto data = plainSnapshot(ParameterType::String, true);
    data->valueString = value;
    return add<MemoryPlain>(name, parent, data);
}

void MemoryCollection::setAlias(const QString &name, const QString &alias)
{
    m_aliases.insert(name, alias);
}

QString MemoryCollection::shortName(const QString &name) const
{
    const QString prefix = m_name + QLatin1Char('/');
    const QString local = name.startsWith(prefix) ? name.mid(prefix.size()) : name;
    const QLatin1String suffix("/Alias");
    return local.endsWith(suffix) ? m_aliases.value(local.chopped(suffix.size())) : local;
}

void MemoryCollection::enter(const char *operation) const
{
    if (before) {
        before(QString::fromLatin1(operation));
    }
}

QSharedPointer<IParameter> MemoryCollection::parameter(const QString &name) const
{
    enter("parameter");
    return m_entries.value(shortName(name)).parameter;
}

bool MemoryCollection::hasParameter(const QString &name) const
{
    enter("hasParameter");
    return m_entries.contains(shortName(name));
}

QStringList MemoryCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    enter("childNames");
    const auto entry = m_entries.constFind(shortName(parent));
    if (entry == m_entries.constEnd()) {
        return {};
    }
    QStringList names;
    for (const QString &child : std::as_const(entry->node->children)) {
        names.append(fullNames ? m_name + QLatin1Char('/') + child : child);
    }
    if (depth > 0) {
        for (const QString &child : std::as_const(entry->node->children)) {
            names.append(childNames(child, depth - 1, fullNames));
        }
    }
    return names;
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
    return m_deviceClass;
}
