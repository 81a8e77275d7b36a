// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simplenode_p.h"

#include "simplecollection.h"
#include "valuetext.h"
#include "valuewords.h"

#include <platform/core/guard.h>
#include <platform/core/logging.h>
#include <platform/genicam/genericexception.h>

#include <algorithm>

ZELTO_LOG_CATEGORY("zelto.platform.parameterCollection.simpleCollection")

namespace ParameterCollection {

namespace {

[[noreturn]] void refuse(const SimpleNode &node, const QString &text, const QString &allowed)
{
    throw GenICam::InvalidArgumentException(
        SimpleCollection::tr("%1: \"%2\" is not allowed, expected %3").arg(node.shortName, text, allowed));
}

template <typename Data>
const Data &as(const QSharedPointer<ParameterData> &snapshot)
{
    return static_cast<const Data &>(*snapshot);
}

bool isOnGrid(qint64 value, const IntegerParameterData &limits)
{
    return limits.increment <= 1
        || (quint64(value) - quint64(limits.minimum)) % quint64(limits.increment) == 0;
}

// Devices take what lies between the steps of a number, such as a value that they had themselves.
bool isOnGrid(double /*value*/, const FloatParameterData & /*limits*/)
{
    return true;
}

template <typename Data, typename Value, typename Text>
void checkNumber(const SimpleNode &node, Value value, const QString &text, const Text &textOf)
{
    const auto &limits = as<Data>(node.snapshot);
    if (!(value >= limits.minimum && value <= limits.maximum)) {
        throw GenICam::OutOfRangeException(
            SimpleCollection::tr("%1: \"%2\" is out of range, allowed are %3 to %4")
                .arg(node.shortName, text, textOf(limits.minimum), textOf(limits.maximum)));
    }
    if (!isOnGrid(value, limits)) {
        throw GenICam::OutOfRangeException(
            SimpleCollection::tr("%1: \"%2\" is not allowed, expected %3 plus a multiple of %4")
                .arg(node.shortName, text, textOf(limits.minimum), textOf(limits.increment)));
    }
}

int indexIn(const QStringList &names, const SimpleNode &node, const QString &value)
{
    const auto index = names.indexOf(value);
    if (index < 0) {
        refuse(node, value, names.join(QLatin1String(", ")));
    }
    return int(index);
}

} // namespace

SimpleNode::~SimpleNode() = default;

void SimpleNode::enter(const char * /*operation*/) const { }

void SimpleNode::onWritten(const QString & /*text*/) { }

void SimpleNode::onExecuted() { }

ParameterDataPtr SimpleNode::shownSnapshot() const
{
    if (!snapshot || (!m_imposedVisibility && !m_imposedAccess)) {
        return snapshot;
    }
    const auto limited = snapshot->copy();
    if (m_imposedVisibility) {
        limited->visibility = std::max(limited->visibility, *m_imposedVisibility);
    }
    if (m_imposedAccess) {
        limited->isImplemented = limited->isImplemented && *m_imposedAccess != GenApi::NI;
        limited->isReadable = limited->isReadable && GenApi::isReadable(*m_imposedAccess);
        limited->isWritable = limited->isWritable && GenApi::isWritable(*m_imposedAccess);
    }
    return limited;
}

void SimpleNode::impose(const QString &property, const QString &value)
{
    enter("setProperty");
    if (property == QLatin1String("Visibility")) {
        m_imposedVisibility = GenApi::EVisibility(indexIn(visibilityNames(), *this, value));
    } else if (property == QLatin1String("AccessMode")) {
        m_imposedAccess = GenApi::EAccessMode(indexIn(accessModeNames(), *this, value));
    } else {
        refuse(*this, property, QStringLiteral("Visibility, AccessMode"));
    }
    properties.insert(property, value);
    publishLater();
}

QVariant SimpleNode::valueFrom(const QString &text) const
{
    switch (snapshot->type) {
    case ParameterType::Integer:
        if (const auto value =
                ValueText::toInteger(text, properties.value(QStringLiteral("Representation")))) {
            return *value;
        }
        refuse(*this, text, SimpleCollection::tr("an integer"));
    case ParameterType::Float:
        if (const auto value = ValueText::toFloat(text)) {
            return *value;
        }
        refuse(*this, text, SimpleCollection::tr("a number"));
    case ParameterType::Boolean:
        if (const auto value = booleanFrom(text)) {
            return *value;
        }
        refuse(*this, text, SimpleCollection::tr("true, false, 1 or 0"));
    case ParameterType::Enumeration:
    case ParameterType::String:
        return text;
    default:
        refuse(*this, text, SimpleCollection::tr("no text"));
    }
}

void SimpleNode::check(const QVariant &value, const QString &text) const
{
    const auto integerText = [this](qint64 number) {
        return ValueText::fromInteger(number, as<IntegerParameterData>(snapshot).representation);
    };
    const auto floatText = [](double number) { return ValueText::fromFloat(number); };
    switch (snapshot->type) {
    case ParameterType::Integer:
        return checkNumber<IntegerParameterData>(*this, value.value<qint64>(), text, integerText);
    case ParameterType::Float:
        return checkNumber<FloatParameterData>(*this, value.toDouble(), text, floatText);
    case ParameterType::Enumeration:
        static_cast<void>(indexIn(as<EnumParameterData>(snapshot).symbolicNames, *this, value.toString()));
        return;
    default:
        return;
    }
}

void SimpleNode::writeText(const QString &text)
{
    write(QVariant(), text);
}

void SimpleNode::writeValue(const QVariant &value)
{
    write(value, snapshotWith(value)->valueString);
}

// An invalid value is still to be read from the text.
void SimpleNode::write(const QVariant &value, const QString &text)
{
    if (!GenApi::isWritable(snapshot->accessMode())) {
        throw GenICam::AccessException(SimpleCollection::tr("%1 cannot be written now").arg(shortName));
    }
    const QVariant wanted = value.isValid() ? value : valueFrom(text);
    check(wanted, text);
    if (onWrite) {
        onWrite(wanted);
    }
    setSnapshot(snapshotWith(wanted));
    if (onRead) {
        read(false); // the device may have made another value of it
    }
    onWritten(text);
    publishLater();
}

void SimpleNode::execute(bool verify)
{
    if (verify && !GenApi::isWritable(shownSnapshot()->accessMode())) {
        throw GenICam::AccessException(SimpleCollection::tr("%1 cannot be executed now").arg(shortName));
    }
    if (onExecute) {
        onExecute();
    }
    onExecuted();
    publishLater();
}

QSharedPointer<ParameterData> SimpleNode::snapshotWith(const QVariant &value) const
{
    auto data = snapshot->copy();
    switch (data->type) {
    case ParameterType::Integer: {
        auto &number = static_cast<IntegerParameterData &>(*data);
        number.value = value.value<qint64>();
        number.valueString = ValueText::fromInteger(number.value, number.representation);
        break;
    }
    case ParameterType::Float: {
        auto &number = static_cast<FloatParameterData &>(*data);
        number.value = value.toDouble();
        number.valueString = ValueText::fromFloat(number.value, number.displayNotation);
        break;
    }
    case ParameterType::Boolean:
        static_cast<BooleanParameterData &>(*data).value = value.toBool();
        data->valueString = booleanText(value.toBool());
        break;
    case ParameterType::Command:
        static_cast<CommandParameterData &>(*data).isDone = value.toBool();
        break;
    default:
        data->valueString = value.toString();
        break;
    }
    return data;
}

void SimpleNode::read(bool force)
{
    const auto before = snapshot;
    m_sinceRead = 0;
    try {
        if (onRead) {
            const auto data = snapshotWith(onRead());
            data->isReadable = m_isUnread ? m_wasReadable : data->isReadable;
            m_isUnread = false;
            setSnapshot(data);
        }
    } catch (...) {
        if (!m_isUnread) { // told once until it can be read again
            Core::logCurrentException({logCategory(), "SimpleCollection::read"},
                                      QStringLiteral("%1 could not be read").arg(path));
            m_isUnread = true;
            m_wasReadable = snapshot->isReadable;
            auto data = snapshot->copy();
            data->isReadable = false;
            data->valueString.clear();
            setSnapshot(data);
        }
    }
    if (force || !snapshot->equals(*before)) {
        publishLater();
    }
}

void SimpleNode::poll(int elapsedMilliseconds)
{
    m_sinceRead += elapsedMilliseconds;
    if (onRead && pollingTime > 0 && m_sinceRead >= pollingTime) {
        read(false);
    }
}

void SimpleNode::show(const QVariant &value)
{
    try {
        check(value, snapshotWith(value)->valueString);
    } catch (...) {
        Core::logCurrentException({logCategory(), "SimpleCollection::setValue"},
                                  QStringLiteral("%1 shows a value that it could not be given").arg(path));
    }
    setSnapshot(snapshotWith(value));
    publishLater();
}

void SimpleNode::change(const std::function<void(ParameterData &)> &change)
{
    auto data = snapshot->copy();
    change(*data);
    setSnapshot(data);
    publishLater();
}

void SimpleNode::setSnapshot(const QSharedPointer<ParameterData> &data)
{
    snapshot = data;
    if (!m_selectors.isEmpty()) {
        m_snapshots.insert(selection(), data);
    }
    for (SimpleNode *const selected : std::as_const(m_selected)) {
        selected->followSelectors();
    }
}

void SimpleNode::followSelectors()
{
    const auto data = m_snapshots.value(selection(), m_firstSnapshot);
    if (data != snapshot) {
        setSnapshot(data);
        publishLater();
    }
}

QString SimpleNode::selection() const
{
    QStringList values;
    for (const SimpleNode *const selector : m_selectors) {
        values.append(selector->snapshot->valueString);
    }
    return values.join(QLatin1Char('\t'));
}

void SimpleNode::addSelector(SimpleNode *selector)
{
    QString &names = selector->properties[QStringLiteral("pSelected")];
    names += names.isEmpty() ? shortName : QLatin1Char('\t') + shortName;
    selector->m_selected.append(this);
    m_selectors.append(selector);
    m_firstSnapshot = snapshot;
    m_snapshots.clear();
}

void SimpleNode::isolate()
{
    m_selectors.clear();
    m_selected.clear();
}

} // namespace ParameterCollection
