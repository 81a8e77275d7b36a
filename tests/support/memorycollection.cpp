// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "memorycollection.h"

using namespace ParameterCollection;

namespace {

template <typename Data, typename... Arguments>
QSharedPointer<Data> usableSnapshot(Arguments... arguments)
{
    auto data = QSharedPointer<Data>::create(arguments...);
    data->visibility = GenApi::Beginner;
    data->isReadable = true;
    data->isWritable = true;
    data->isImplemented = true;
    return data;
}

[[noreturn]] void refuse(const MemoryNode &node, const QString &text, const QString &allowed)
{
    throw GenICam::InvalidArgumentException(
        QStringLiteral("%1: \"%2\" is not allowed, expected %3").arg(node.shortName, text, allowed));
}

template <typename Data>
QSharedPointer<Data> copyOf(const QSharedPointer<ParameterData> &snapshot)
{
    return QSharedPointer<Data>::create(static_cast<const Data &>(*snapshot));
}

template <typename Data, typename Value>
QSharedPointer<Data> withNumber(const MemoryNode &node, const QString &text, Value value, bool isNumber)
{
    if (!isNumber) {
        refuse(node, text, QStringLiteral("a number"));
    }
    auto data = copyOf<Data>(node.snapshot);
    if (value < data->minimum || value > data->maximum) {
        throw GenICam::OutOfRangeException(
            QStringLiteral("%1: %2 is out of range").arg(node.shortName, text));
    }
    data->value = value;
    data->valueString = QVariant(value).toString();
    return data;
}

QSharedPointer<ParameterData> withBoolean(const MemoryNode &node, const QString &text)
{
    auto data = copyOf<BooleanParameterData>(node.snapshot);
    data->value = text == QLatin1String("1") || text == QLatin1String("true");
    if (!data->value && text != QLatin1String("0") && text != QLatin1String("false")) {
        refuse(node, text, QStringLiteral("1 or 0"));
    }
    data->valueString = QVariant(data->value).toString();
    return data;
}

QSharedPointer<ParameterData> withText(const MemoryNode &node, const QString &text)
{
    bool ok = false;
    switch (node.snapshot->type) {
    case ParameterType::Integer: {
        const qint64 value = text.trimmed().toLongLong(&ok, 0);
        return withNumber<IntegerParameterData>(node, text, value, ok);
    }
    case ParameterType::Float: {
        const double value = text.trimmed().toDouble(&ok);
        return withNumber<FloatParameterData>(node, text, value, ok);
    }
    case ParameterType::Boolean:
        return withBoolean(node, text);
    case ParameterType::Enumeration: {
        auto data = copyOf<EnumParameterData>(node.snapshot);
        if (!data->symbolicNames.contains(text)) {
            refuse(node, text, data->symbolicNames.join(QStringLiteral(", ")));
        }
        data->valueString = text;
        return data;
    }
    case ParameterType::String: {
        auto data = copyOf<ParameterData>(node.snapshot);
        data->valueString = text;
        return data;
    }
    default:
        refuse(node, text, QStringLiteral("no text"));
    }
}

} // namespace

void writeMemoryNode(MemoryNode &node, const QString &text)
{
    if (!node.snapshot->isImplemented || !node.snapshot->isWritable) {
        throw GenICam::AccessException(QStringLiteral("%1 cannot be written now").arg(node.shortName));
    }
    node.snapshot = withText(node, text);
    node.writes.append(text);
    if (node.written) {
        node.written();
    }
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
    data->valueString = QVariant(value).toString();
    auto added = add<Parameter>(name, parent, data);
    added->properties.insert(QStringLiteral("Representation"), representation);
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
    data->valueString = QVariant(value).toString();
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

void MemoryCollection::select(const QString &selector, const QString &feature)
{
    MemoryNode *const selecting = node(selector);
    MemoryNode *const selected = node(feature);
    QString &names = selecting->properties[QStringLiteral("pSelected")];
    names += names.isEmpty() ? feature : QLatin1Char('\t') + feature;
    using Snapshots = QHash<QString, QSharedPointer<ParameterData>>;
    const auto snapshots = QSharedPointer<Snapshots>::create();
    const auto first = selected->snapshot;
    selected->written = [=, before = selected->written] {
        if (before) {
            before();
        }
        snapshots->insert(selecting->snapshot->valueString, selected->snapshot);
    };
    selecting->written = [=, before = selecting->written] {
        if (before) {
            before();
        }
        selected->snapshot = snapshots->value(selecting->snapshot->valueString, first);
    };
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

MemoryNode *MemoryCollection::node(const QString &name) const
{
    return m_entries.value(shortName(name)).node;
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
