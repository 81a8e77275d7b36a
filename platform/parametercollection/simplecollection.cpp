// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simplecollection.h"

#include "simplenode_p.h"

#include <platform/genicam/genericexception.h>

#include <QHash>
#include <QList>
#include <QThread>

#include <algorithm>
#include <limits>

namespace ParameterCollection {

namespace {

template <typename Data, typename... Arguments>
QSharedPointer<Data> usableSnapshot(Arguments... arguments)
{
    auto data = QSharedPointer<Data>::create(arguments...);
    data->visibility = GenApi::Beginner;
    data->setAccessMode(GenApi::RW);
    return data;
}

template <typename Data, typename Value>
QSharedPointer<Data> numberSnapshot(Value minimum)
{
    auto data = usableSnapshot<Data>();
    data->minimum = minimum;
    data->maximum = std::numeric_limits<Value>::max();
    data->representation = QStringLiteral("PureNumber");
    return data;
}

QString rootName()
{
    return QStringLiteral("Root");
}

} // namespace

// Keeps the node while it is worked on: a callback may let go of its collection.
struct SimpleHandle::Node
{
    QSharedPointer<IParameter> parameter;
    SimpleNode *node;

    SimpleNode *operator->() const { return node; }
};

SimpleHandle::SimpleHandle(SimpleCollection *collection, const QSharedPointer<IParameter> &parameter,
                           SimpleNode *node)
    : m_collection(collection)
    , m_parameter(parameter)
    , m_node(node)
{
}

QString SimpleHandle::name() const
{
    return live()->shortName;
}

QSharedPointer<IParameter> SimpleHandle::parameter() const
{
    return m_parameter.toStrongRef();
}

SimpleCollection *SimpleHandle::collection() const
{
    static_cast<void>(node()); // the pointer is looked at on its thread alone
    if (!m_collection) {
        throw GenICam::LogicalErrorException(QStringLiteral("The collection of the feature has gone"));
    }
    return m_collection;
}

SimpleHandle::Node SimpleHandle::live() const
{
    Node live{m_parameter.toStrongRef(), m_node};
    if (!live.parameter) {
        throw GenICam::LogicalErrorException(QStringLiteral("The feature has gone with its collection"));
    }
    return live;
}

SimpleHandle::Node SimpleHandle::node() const
{
    Node own = live();
    if (own.parameter->thread() != QThread::currentThread()) {
        throw GenICam::LogicalErrorException(
            QStringLiteral("%1 belongs to another thread").arg(own->shortName));
    }
    return own;
}

void SimpleHandle::setText(const QString &property, const QString &text) const
{
    node()->properties.insert(property, text);
    node()->change([](ParameterData &) {});
}

void SimpleHandle::setVisibility(GenApi::EVisibility visibility) const
{
    node()->change([visibility](ParameterData &data) { data.visibility = visibility; });
}

void SimpleHandle::setAccess(GenApi::EAccessMode access) const
{
    node()->change([access](ParameterData &data) { data.setAccessMode(access); });
}

void SimpleHandle::setAlias(const QString &name) const
{
    collection()->setAliasOf(node()->shortName, name);
}

void SimpleHandle::setPollingTime(int milliseconds) const
{
    node()->pollingTime = milliseconds;
}

void SimpleHandle::select(const QStringList &features) const
{
    for (const QString &feature : features) {
        collection()->selectFeature(node()->shortName, feature);
    }
}

void SimpleHandle::setRepresentation(const QString &representation) const
{
    node()->properties.insert(QStringLiteral("Representation"), representation);
    node()->change([&representation](ParameterData &data) {
        if (data.type == ParameterType::Integer) {
            static_cast<IntegerParameterData &>(data).representation = representation;
        } else {
            static_cast<FloatParameterData &>(data).representation = representation;
        }
    });
    node()->show(shownValue()); // the text may be another one
}

void SimpleHandle::setNotation(GenApi::EDisplayNotation notation, int precision) const
{
    node()->change([notation, precision](ParameterData &data) {
        static_cast<FloatParameterData &>(data).displayNotation = notation;
        static_cast<FloatParameterData &>(data).displayPrecision = precision;
    });
}

void SimpleHandle::setIntegerLimits(qint64 minimum, qint64 maximum) const
{
    node()->change([minimum, maximum](ParameterData &data) {
        static_cast<IntegerParameterData &>(data).minimum = minimum;
        static_cast<IntegerParameterData &>(data).maximum = maximum;
    });
}

void SimpleHandle::setIntegerIncrement(qint64 increment) const
{
    node()->change([increment](ParameterData &data) {
        static_cast<IntegerParameterData &>(data).increment = increment;
    });
}

void SimpleHandle::setFloatLimits(double minimum, double maximum) const
{
    node()->change([minimum, maximum](ParameterData &data) {
        static_cast<FloatParameterData &>(data).minimum = minimum;
        static_cast<FloatParameterData &>(data).maximum = maximum;
    });
}

void SimpleHandle::setFloatIncrement(double increment) const
{
    node()->change(
        [increment](ParameterData &data) { static_cast<FloatParameterData &>(data).increment = increment; });
}

void SimpleHandle::setEntries(const QStringList &names, const QStringList &texts) const
{
    node()->change([&names, &texts](ParameterData &data) {
        auto &enumeration = static_cast<EnumParameterData &>(data);
        enumeration.symbolicNames = names;
        enumeration.displayTexts = texts.mid(0, names.size()) + names.mid(texts.size());
    });
}

QVariant SimpleHandle::shownValue() const
{
    const ParameterDataPtr snapshot = node()->snapshot;
    const ParameterData &data = *snapshot;
    switch (data.type) {
    case ParameterType::Integer:
        return static_cast<const IntegerParameterData &>(data).value;
    case ParameterType::Float:
        return static_cast<const FloatParameterData &>(data).value;
    case ParameterType::Boolean:
        return static_cast<const BooleanParameterData &>(data).value;
    default:
        return data.valueString;
    }
}

void SimpleHandle::show(const QVariant &value) const
{
    const Node target = live();
    if (target.parameter->thread() == QThread::currentThread()) {
        target->show(value);
        return;
    }
    QMetaObject::invokeMethod(
        target.parameter.data(), [target, value] { target->show(value); }, Qt::QueuedConnection);
}

void SimpleHandle::setReading(std::function<QVariant()> read) const
{
    node()->onRead = std::move(read);
    node()->read(false);
}

void SimpleHandle::setWriting(std::function<void(const QVariant &)> write) const
{
    node()->onWrite = std::move(write);
}

void SimpleHandle::setExecution(std::function<void()> execute) const
{
    node()->onExecute = std::move(execute);
}

SimpleInteger SimpleInteger::setRange(qint64 minimum, qint64 maximum) const
{
    setIntegerLimits(minimum, maximum);
    return *this;
}

SimpleInteger SimpleInteger::setIncrement(qint64 increment) const
{
    setIntegerIncrement(increment);
    return *this;
}

SimpleFloat SimpleFloat::setRange(double minimum, double maximum) const
{
    setFloatLimits(minimum, maximum);
    return *this;
}

SimpleFloat SimpleFloat::setIncrement(double increment) const
{
    setFloatIncrement(increment);
    return *this;
}

SimpleFloat SimpleFloat::setNotation(GenApi::EDisplayNotation notation, int precision) const
{
    SimpleHandle::setNotation(notation, precision);
    return *this;
}

SimpleFloat SimpleFloat::setAlias(const QString &integer) const
{
    SimpleHandle::setAlias(integer);
    return *this;
}

SimpleEnumeration SimpleEnumeration::setEntries(const QStringList &names, const QStringList &texts) const
{
    SimpleHandle::setEntries(names, texts);
    return *this;
}

SimpleCommand SimpleCommand::onExecute(std::function<void()> execute) const
{
    setExecution(std::move(execute));
    return *this;
}

SimpleCommand SimpleCommand::setDone(bool isDone) const
{
    show(isDone);
    return *this;
}

template <typename Handle, typename Parameter>
Handle SimpleCategory::add(const QString &name, const QSharedPointer<ParameterData> &snapshot) const
{
    collection()->requireNew(name);
    const auto added =
        QSharedPointer<Parameter>::create(name, collection()->name() + QLatin1Char('/') + name);
    added->snapshot = snapshot;
    added->properties.insert(QStringLiteral("DisplayName"), name);
    collection()->insert(this->name(), added, added.data());
    return Handle(collection(), added, added.data());
}

SimpleCategory SimpleCategory::addCategory(const QString &name) const
{
    auto data = usableSnapshot<ParameterData>(ParameterType::Category);
    data->isWritable = false;
    return add<SimpleCategory, SimplePlainParameter<SimpleNode>>(name, data);
}

SimpleInteger SimpleCategory::addInteger(const QString &name, qint64 value) const
{
    const auto data = numberSnapshot<IntegerParameterData>(std::numeric_limits<qint64>::min());
    return add<SimpleInteger, SimpleIntegerParameter<SimpleNode>>(name, data)
        .setRepresentation(data->representation)
        .setValue(value);
}

SimpleFloat SimpleCategory::addFloat(const QString &name, double value) const
{
    const auto data = numberSnapshot<FloatParameterData>(std::numeric_limits<double>::lowest());
    return add<SimpleFloat, SimpleFloatParameter<SimpleNode>>(name, data)
        .setRepresentation(data->representation)
        .setValue(value);
}

SimpleBoolean SimpleCategory::addBoolean(const QString &name, bool value) const
{
    return add<SimpleBoolean, SimpleBooleanParameter<SimpleNode>>(name,
                                                                  usableSnapshot<BooleanParameterData>())
        .setValue(value);
}

SimpleString SimpleCategory::addString(const QString &name, const QString &value) const
{
    return add<SimpleString, SimplePlainParameter<SimpleNode>>(
               name, usableSnapshot<ParameterData>(ParameterType::String))
        .setValue(value);
}

SimpleEnumeration SimpleCategory::addEnumeration(const QString &name, const QStringList &entries) const
{
    const auto data = usableSnapshot<EnumParameterData>();
    data->symbolicNames = entries;
    data->displayTexts = entries;
    data->valueString = entries.value(0);
    return add<SimpleEnumeration, SimpleEnumParameter<SimpleNode>>(name, data);
}

SimpleCommand SimpleCategory::addCommand(const QString &name) const
{
    auto data = usableSnapshot<CommandParameterData>();
    data->isReadable = false;
    return add<SimpleCommand, SimpleCommandParameter<SimpleNode>>(name, data);
}

struct SimpleCollection::Private
{
    struct Entry
    {
        QSharedPointer<IParameter> parameter;
        SimpleNode *node = nullptr;
    };

    QString shortName(const QString &fullName) const;

    QString name;
    QString deviceClass;
    QHash<QString, Entry> entries;
    QList<SimpleNode *> nodes; // in the order in which they were added
    QHash<QString, QString> aliases;
};

QString SimpleCollection::Private::shortName(const QString &fullName) const
{
    const QString prefix = name + QLatin1Char('/');
    const QString local = fullName.startsWith(prefix) ? fullName.mid(prefix.size()) : fullName;
    const QLatin1String suffix("/Alias");
    return local.endsWith(suffix) ? aliases.value(local.chopped(suffix.size())) : local;
}

SimpleCollection::SimpleCollection(const QString &name, Without /*root*/)
    : d(std::make_unique<Private>())
{
    d->name = name;
}

SimpleCollection::SimpleCollection(const QString &name, QObject *parent)
    : SimpleCollection(name, Without::Root)
{
    setParent(parent);
    auto data = usableSnapshot<ParameterData>(ParameterType::Category);
    data->isWritable = false;
    const auto root = QSharedPointer<SimplePlainParameter<SimpleNode>>::create(
        rootName(), name + QLatin1Char('/') + rootName());
    root->snapshot = data;
    root->properties.insert(QStringLiteral("DisplayName"), rootName());
    insert(QString(), root, root.data());
}

SimpleCollection::~SimpleCollection()
{
    for (SimpleNode *const node : std::as_const(d->nodes)) {
        node->isolate(); // parameters may outlive the collection
    }
    d->nodes.clear();
    // What the callbacks hold goes with them and may look at the collection, which is empty then.
    const QHash<QString, Private::Entry> entries = std::exchange(d->entries, {});
}

QString SimpleCollection::name() const
{
    return d->name;
}

SimpleCategory SimpleCollection::root() const
{
    const Private::Entry root = d->entries.value(rootName());
    return SimpleCategory(const_cast<SimpleCollection *>(this), root.parameter, root.node);
}

SimpleCategory SimpleCollection::addCategory(const QString &name) const
{
    return root().addCategory(name);
}

void SimpleCollection::setDeviceClass(const QString &word)
{
    d->deviceClass = word;
}

void SimpleCollection::requireNew(const QString &name) const
{
    const QLatin1String reserved("/*\t");
    const bool isUsable = !name.isEmpty()
        && std::none_of(name.begin(), name.end(), [&reserved](QChar c) { return reserved.contains(c); });
    if (!isUsable || d->entries.contains(name)) {
        throw GenICam::InvalidArgumentException(
            isUsable ? tr("%1: there is a parameter called \"%2\" already").arg(d->name, name)
                     : tr("%1: \"%2\" is no name for a parameter").arg(d->name, name));
    }
}

void SimpleCollection::insert(const QString &parent, const QSharedPointer<IParameter> &parameter,
                              SimpleNode *node)
{
    const QString &name = node->shortName;
    if (const auto former = d->entries.constFind(name); former != d->entries.constEnd()) {
        d->nodes.removeOne(former->node);
    }
    d->entries.insert(name, {parameter, node});
    d->nodes.append(node);
    if (SimpleNode *const above = findNode(parent)) {
        above->children.append(name);
    }
}

SimpleNode *SimpleCollection::findNode(const QString &name) const
{
    return d->entries.value(d->shortName(name)).node;
}

void SimpleCollection::selectFeature(const QString &selector, const QString &feature)
{
    SimpleNode *const selected = findNode(feature);
    SimpleNode *const selecting = findNode(selector);
    if (!selected || !selecting || selected == selecting) {
        throw GenICam::InvalidArgumentException(
            tr("%1: \"%2\" is no feature that can be selected").arg(selector, feature));
    }
    selected->addSelector(selecting);
}

void SimpleCollection::setAliasOf(const QString &name, const QString &alias)
{
    d->aliases.insert(name, alias);
}

QSharedPointer<IParameter> SimpleCollection::parameter(const QString &name) const
{
    return d->entries.value(d->shortName(name)).parameter;
}

bool SimpleCollection::hasParameter(const QString &name) const
{
    return d->entries.contains(d->shortName(name));
}

QStringList SimpleCollection::childNames(const QString &parent, int depth, bool fullNames) const
{
    const SimpleNode *const above = findNode(parent);
    if (!above) {
        return {};
    }
    QStringList names;
    for (const QString &child : above->children) {
        names.append(fullNames ? d->name + QLatin1Char('/') + child : child);
    }
    if (depth > 0) {
        for (const QString &child : above->children) {
            names.append(childNames(child, depth - 1, fullNames));
        }
    }
    return names;
}

void SimpleCollection::refresh()
{
    const QList<SimpleNode *> nodes = d->nodes; // a callback may add parameters
    for (SimpleNode *const node : nodes) {
        node->read(false);
    }
}

void SimpleCollection::poll(int elapsedMilliseconds)
{
    const QList<SimpleNode *> nodes = d->nodes;
    for (SimpleNode *const node : nodes) {
        node->poll(elapsedMilliseconds);
    }
}

QString SimpleCollection::deviceClass() const
{
    return d->deviceClass;
}

} // namespace ParameterCollection
