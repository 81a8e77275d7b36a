// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "engine_p.h"

#include "aravis_p.h"
#include "enginefailure_p.h"
#include "formulanode_p.h"
#include "simulatedregisters_p.h"
#include "valuetext_p.h"

#include <platform/core/exception.h>
#include <platform/core/logging.h>
#include <platform/core/singleprecision.h>
#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/valuewords.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <utility>

using namespace ParameterCollection;

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.engine")

namespace {

ParameterType typeOf(ArvGcNode *node)
{
    if (ARV_IS_GC_CATEGORY(node)) {
        return ParameterType::Category;
    }
    if (ARV_IS_GC_ENUMERATION(node)) {
        return ParameterType::Enumeration;
    }
    if (ARV_IS_GC_BOOLEAN(node)) {
        return ParameterType::Boolean;
    }
    if (ARV_IS_GC_COMMAND(node)) {
        return ParameterType::Command;
    }
    if (ARV_IS_GC_STRING(node)) {
        return ParameterType::String;
    }
    if (ARV_IS_GC_FLOAT(node)) {
        return ParameterType::Float;
    }
    return ARV_IS_GC_INTEGER(node) ? ParameterType::Integer : ParameterType::Unknown;
}

GenApi::EVisibility visibilityOf(ArvGcNode *node)
{
    switch (arv_gc_feature_node_get_visibility(ARV_GC_FEATURE_NODE(node))) {
    case ARV_GC_VISIBILITY_EXPERT:
        return GenApi::Expert;
    case ARV_GC_VISIBILITY_GURU:
        return GenApi::Guru;
    case ARV_GC_VISIBILITY_INVISIBLE:
        return GenApi::Invisible;
    default:
        return GenApi::Beginner;
    }
}

GenApi::EDisplayNotation notationOf(const QString &text)
{
    if (text == QLatin1String("Fixed")) {
        return GenApi::fnFixed;
    }
    return text == QLatin1String("Scientific") ? GenApi::fnScientific : GenApi::fnAutomatic;
}

} // namespace

/*! \brief Receives the engine's error of one call and tells the engine when the device has gone. */
class Engine::Failure
{
public:
    explicit Failure(Engine *engine)
        : m_engine(engine)
    {
    }
    ~Failure() { take(); }
    Q_DISABLE_COPY_MOVE(Failure)

    operator GError **() { return &m_error; }

    /*! Returns whether there was an error, and forgets it. */
    bool take()
    {
        if (!m_error) {
            return false;
        }
        const QString reason = EngineFailure::words(*m_error);
        if (EngineFailure::isSilence(*m_error) && m_engine->m_lossReason.isEmpty()) {
            m_engine->m_lossReason = reason;
        }
        g_clear_error(&m_error);
        return true;
    }

    void throwIfAny(const QString &feature)
    {
        if (!m_error) {
            return;
        }
        const std::unique_ptr<GError, decltype(&g_error_free)> error(g_error_copy(m_error), g_error_free);
        take();
        EngineFailure::throwFor(*error, feature);
    }

private:
    Engine *m_engine;
    GError *m_error = nullptr;
};

Engine::Engine(DevicePtr device, std::shared_ptr<const Description> description,
               std::shared_ptr<SimulatedRegisters> registers)
    : m_device(std::move(device))
    , m_description(std::move(description))
    , m_registers(std::move(registers))
    , m_nodes(size_t(m_description->nodeCount()), nullptr)
    , m_types(size_t(m_description->nodeCount()), ParameterType::Unknown)
{
    ArvGc *genicam = arv_device_get_genicam(m_device.get());
    if (!genicam || !arv_gc_get_node(genicam, "Root")) {
        throw Core::Exception::BaseException(tr("the engine cannot read the description"));
    }
    guardFormulas(genicam, *m_description);
    for (const int node : m_description->published()) {
        ArvGcNode *found = engineNode(node);
        if (ARV_IS_GC_FEATURE_NODE(found)) {
            m_nodes[node] = found;
            m_types[node] = typeOf(found);
        }
    }
}

Engine::~Engine() = default;

ArvGcNode *Engine::engineNode(int node) const
{
    return arv_gc_get_node(arv_device_get_genicam(m_device.get()),
                           m_description->name(node).toUtf8().constData());
}

ParameterType Engine::type(int node) const
{
    return m_types[node];
}

QString Engine::lossReason() const
{
    return m_lossReason;
}

void Engine::forgetLoss()
{
    m_lossReason.clear();
}

Engine::Reading Engine::read(int node, Extent extent)
{
    Reading reading{newParameterData(m_types[node]), GenApi::NI};
    ArvGcNode *found = m_nodes[node];
    if (!found) {
        return reading;
    }
    ParameterData &data = *reading.data;
    data.visibility = visibilityOf(found);
    data.isCacheable =
        m_description->inheritedProperty(node, QStringLiteral("Cachable")) != QLatin1String("NoCache");
    reading.access = isEvaluable(node) ? readAccess(node) : GenApi::NA;
    data.setAccessMode(reading.access);
    if (reading.access == GenApi::NI || reading.access == GenApi::NA) {
        return reading;
    }
    if (extent != Extent::Value) {
        readLimits(node, data);
    } else if (data.type == ParameterType::Integer) {
        static_cast<IntegerParameterData &>(data).representation = representation(node);
    }
    if (!m_lossReason.isEmpty()) {
        // Every further access would wait for an answer again.
        return reading;
    }
    if (data.type == ParameterType::Command) {
        static_cast<CommandParameterData &>(data).isDone = readCommandDone(node);
        data.isReadable = false;
        return reading;
    }
    if (data.isReadable && !readValue(node, data)) {
        data.isReadable = false;
        data.valueString.clear();
    }
    if (data.isReadable && data.type == ParameterType::Enumeration && extent == Extent::Whole) {
        addCurrentEntry(node, static_cast<EnumParameterData &>(data));
    }
    return reading;
}

bool Engine::isEvaluable(int node)
{
    const QList<int> &sized = m_description->sizedRegisters(node);
    return !m_description->isBroken(node)
        && std::all_of(sized.begin(), sized.end(), [this](int sizedNode) { return isLengthSane(sizedNode); });
}

// The length is the value of another node.
bool Engine::isLengthSane(int node)
{
    ArvGcNode *found = engineNode(node);
    if (!ARV_IS_GC_REGISTER(found)) {
        return true;
    }
    Failure failure(this);
    const auto length = qint64(arv_gc_register_get_length(ARV_GC_REGISTER(found), failure));
    if (failure.take() || !m_description->isPossibleLength(node, length)) {
        return false;
    }
    // The engine keeps what it has allocated.
    const qint64 more = std::max<qint64>(length - m_linkedLengths.value(node), 0);
    if (m_description->registerBytes() + m_linkedBytes + more > mostRegisterBytes) {
        Core::Logging::createLogEntry(Core::Logging::ELogLevel::Warning, logCategory(),
                                      tr("%1 is not read: the registers would take more than %2 MiB")
                                          .arg(m_description->name(node))
                                          .arg(mostRegisterBytes / 1024 / 1024));
        return false;
    }
    m_linkedBytes += more;
    m_linkedLengths[node] += more;
    return true;
}

GenApi::EAccessMode Engine::readAccess(int node)
{
    ArvGcFeatureNode *feature = ARV_GC_FEATURE_NODE(m_nodes[node]);
    Failure failure(this);
    const bool isImplemented = arv_gc_feature_node_is_implemented(feature, failure);
    if (failure.take()) {
        return GenApi::NA;
    }
    if (!isImplemented) {
        return GenApi::NI;
    }
    const bool isAvailable = arv_gc_feature_node_is_available(feature, failure);
    if (failure.take() || !isAvailable) {
        return GenApi::NA;
    }
    const bool isLocked = arv_gc_feature_node_is_locked(feature, failure);
    const bool isFixed = failure.take() || isLocked;
    if (m_types[node] == ParameterType::Category) {
        return GenApi::RO;
    }
    // A command is triggered; it has no value to be looked at.
    if (m_types[node] == ParameterType::Command) {
        return isFixed ? GenApi::NA : GenApi::WO;
    }
    switch (arv_gc_feature_node_get_actual_access_mode(feature)) {
    case ARV_GC_ACCESS_MODE_RO:
        return GenApi::RO;
    case ARV_GC_ACCESS_MODE_WO:
        return isFixed ? GenApi::NA : GenApi::WO;
    default:
        return isFixed ? GenApi::RO : GenApi::RW;
    }
}

void Engine::readLimits(int node, ParameterData &data)
{
    if (data.type == ParameterType::Integer) {
        readIntegerLimits(node, static_cast<IntegerParameterData &>(data));
    } else if (data.type == ParameterType::Float) {
        readFloatLimits(node, static_cast<FloatParameterData &>(data));
    } else if (data.type == ParameterType::Enumeration) {
        readEnumEntries(node, static_cast<EnumParameterData &>(data));
    }
}

QString Engine::representation(int node) const
{
    const QString text = m_description->inheritedProperty(node, QStringLiteral("Representation"));
    return text.isEmpty() ? QStringLiteral("PureNumber") : text;
}

void Engine::readIntegerLimits(int node, IntegerParameterData &data)
{
    ArvGcInteger *integer = ARV_GC_INTEGER(m_nodes[node]);
    Failure failure(this);
    data.minimum = arv_gc_integer_get_min(integer, failure);
    data.minimum = failure.take() ? std::numeric_limits<qint64>::min() : data.minimum;
    data.maximum = arv_gc_integer_get_max(integer, failure);
    data.maximum = failure.take() ? std::numeric_limits<qint64>::max() : data.maximum;
    data.increment = arv_gc_integer_get_inc(integer, failure);
    data.increment = failure.take() ? 1 : std::max<qint64>(data.increment, 1);
    data.representation = representation(node);
}

void Engine::readFloatLimits(int node, FloatParameterData &data)
{
    ArvGcFloat *number = ARV_GC_FLOAT(m_nodes[node]);
    Failure failure(this);
    data.minimum = arv_gc_float_get_min(number, failure);
    data.minimum = failure.take() ? std::numeric_limits<double>::lowest() : data.minimum;
    data.maximum = arv_gc_float_get_max(number, failure);
    data.maximum = failure.take() ? std::numeric_limits<double>::max() : data.maximum;
    data.increment = arv_gc_float_get_inc(number, failure);
    // The engine says "no increment" with the smallest number there is.
    data.increment = failure.take() || data.increment <= DBL_MIN ? 0.0 : data.increment;
    for (double *const limit : {&data.minimum, &data.maximum, &data.increment}) {
        *limit = Core::withoutSinglePrecisionNoise(*limit);
    }
    data.representation = representation(node);
    data.displayNotation =
        notationOf(m_description->inheritedProperty(node, QStringLiteral("DisplayNotation")));
    bool ok = false;
    const int precision =
        m_description->inheritedProperty(node, QStringLiteral("DisplayPrecision")).toInt(&ok);
    data.displayPrecision = ok ? precision : data.displayPrecision;
}

bool Engine::readValue(int node, ParameterData &data)
{
    Failure failure(this);
    switch (data.type) {
    case ParameterType::Integer:
        return readInteger(node, static_cast<IntegerParameterData &>(data));
    case ParameterType::Float:
        return readFloat(node, static_cast<FloatParameterData &>(data));
    case ParameterType::Enumeration:
        return readEnum(node, static_cast<EnumParameterData &>(data));
    case ParameterType::Boolean: {
        auto &typed = static_cast<BooleanParameterData &>(data);
        typed.value = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(m_nodes[node]), failure);
        typed.valueString = booleanText(typed.value);
        return !failure.take();
    }
    case ParameterType::String: {
        const char *text = arv_gc_string_get_value(ARV_GC_STRING(m_nodes[node]), failure);
        if (failure.take()) {
            // The engine hands out its buffer as it was, without an end.
            return false;
        }
        data.valueString = QString::fromUtf8(text);
        return true;
    }
    case ParameterType::Category:
        return true;
    default:
        return readRegister(node, &data.valueString);
    }
}

bool Engine::readInteger(int node, IntegerParameterData &data)
{
    Failure failure(this);
    data.value = arv_gc_integer_get_value(ARV_GC_INTEGER(m_nodes[node]), failure);
    data.valueString = ValueText::fromInteger(data.value, data.representation);
    return !failure.take();
}

bool Engine::readFloat(int node, FloatParameterData &data)
{
    Failure failure(this);
    data.value =
        Core::withoutSinglePrecisionNoise(arv_gc_float_get_value(ARV_GC_FLOAT(m_nodes[node]), failure));
    data.valueString = ValueText::fromFloat(data.value, data.displayNotation);
    return !failure.take() && std::isfinite(data.value);
}

bool Engine::readEnum(int node, EnumParameterData &data)
{
    Failure failure(this);
    const char *name = arv_gc_enumeration_get_string_value(ARV_GC_ENUMERATION(m_nodes[node]), failure);
    data.valueString = QString::fromUtf8(name);
    return !failure.take() && name;
}

void Engine::readEnumEntries(int node, EnumParameterData &data)
{
    ArvGcEnumeration *enumeration = ARV_GC_ENUMERATION(m_nodes[node]);
    Failure failure(this);
    guint nameCount = 0;
    const char **names = arv_gc_enumeration_dup_available_string_values(enumeration, &nameCount, failure);
    const bool hasNames = !failure.take();
    guint textCount = 0;
    const char **texts = arv_gc_enumeration_dup_available_display_names(enumeration, &textCount, failure);
    const bool hasTexts = !failure.take() && textCount == nameCount;
    for (guint i = 0; hasNames && names && i < nameCount; ++i) {
        data.symbolicNames.append(QString::fromUtf8(names[i]));
        const QString text = hasTexts && texts ? QString::fromUtf8(texts[i]) : QString();
        data.displayTexts.append(text.isEmpty() ? data.symbolicNames.constLast() : text);
    }
    g_free(names);
    g_free(texts);
}

// An entry may be the current one without being available; an editor could not show it otherwise.
void Engine::addCurrentEntry(int node, EnumParameterData &data)
{
    if (data.symbolicNames.contains(data.valueString)) {
        return;
    }
    qsizetype place = data.symbolicNames.size(); // the engine lists the last entry first
    const GSList *entry = arv_gc_enumeration_get_entries(ARV_GC_ENUMERATION(m_nodes[node]));
    for (; entry; entry = entry->next) {
        auto *feature = static_cast<ArvGcFeatureNode *>(entry->data);
        const QString name = QString::fromUtf8(arv_gc_feature_node_get_name(feature));
        if (name == data.valueString) {
            const QString text = QString::fromUtf8(arv_gc_feature_node_get_display_name(feature));
            data.symbolicNames.insert(place, name);
            data.displayTexts.insert(place, tr("%1 (not available)").arg(text.isEmpty() ? name : text));
            return;
        }
        place -= place > 0 && data.symbolicNames[place - 1] == name ? 1 : 0;
    }
}

// A command is done when its register no longer holds the command.
bool Engine::readCommandDone(int node)
{
    const int valueNode = m_description->valueNode(node);
    bool hasCommandValue = false;
    const qint64 command =
        m_description->property(node, QStringLiteral("CommandValue")).toLongLong(&hasCommandValue, 0);
    if (valueNode < 0 || !hasCommandValue || m_description->isBroken(node)) {
        return true;
    }
    ArvGcNode *found = engineNode(valueNode);
    if (!ARV_IS_GC_INTEGER(found)
        || arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(found)) != ARV_GC_ACCESS_MODE_RW) {
        return true;
    }
    Failure failure(this);
    const qint64 value = arv_gc_integer_get_value(ARV_GC_INTEGER(found), failure);
    return failure.take() || value != command;
}

bool Engine::readRegister(int node, QString *text)
{
    if (!ARV_IS_GC_REGISTER(m_nodes[node])) {
        return false;
    }
    ArvGcRegister *registerNode = ARV_GC_REGISTER(m_nodes[node]);
    Failure failure(this);
    const guint64 length = arv_gc_register_get_length(registerNode, failure);
    if (failure.take() || length == 0 || length > longestShownRegister) {
        return false;
    }
    QByteArray bytes(qsizetype(length), '\0');
    arv_gc_register_get(registerNode, bytes.data(), length, failure);
    *text = QLatin1String("0x") + QString::fromLatin1(bytes.toHex());
    return !failure.take();
}

// Those that reading a feature evaluates; of one that cannot be read, what tells so.
std::vector<int> Engine::touchedNodes()
{
    using LinkKind = Description::LinkKind;
    static constexpr LinkKind conditions[] = {LinkKind::Implemented, LinkKind::Available, LinkKind::Locked};
    static constexpr LinkKind others[] = {LinkKind::Value,   LinkKind::Evaluated, LinkKind::Maximum,
                                          LinkKind::Minimum, LinkKind::Increment, LinkKind::Related,
                                          LinkKind::Entry};
    std::vector<int> touched;
    std::vector<bool> isTouched(size_t(m_description->nodeCount()), false);
    const auto touch = [&](int node) {
        if (!isTouched[size_t(node)] && !m_description->isBroken(node)) {
            isTouched[size_t(node)] = true;
            touched.push_back(node);
        }
    };
    const auto follow = [&](int node, const auto &kinds) {
        for (const LinkKind kind : kinds) {
            for (const int next : m_description->linked(node, kind)) {
                touch(next);
            }
        }
    };
    for (const int node : m_description->published()) {
        if (isEvaluable(node) && read(node).data->isReadable) {
            touch(node);
        } else {
            follow(node, conditions);
        }
    }
    for (size_t i = 0; i < touched.size(); ++i) {
        follow(touched[i], conditions);
        follow(touched[i], others);
    }
    return touched;
}

RegisterImage::Contents Engine::registerContents()
{
    RegisterImage::Contents contents;
    for (const int node : touchedNodes()) {
        ArvGcNode *found = engineNode(node);
        if (ARV_IS_GC_STRUCT_ENTRY_NODE(found)) {
            found = ARV_GC_NODE(arv_dom_node_get_parent_node(ARV_DOM_NODE(found)));
        }
        if (!ARV_IS_GC_REGISTER(found) || !isEvaluable(node) || !m_lossReason.isEmpty()) {
            continue;
        }
        ArvGcRegister *place = ARV_GC_REGISTER(found);
        Failure failure(this);
        const guint64 length = arv_gc_register_get_length(place, failure);
        const guint64 address = failure.take() ? 0 : arv_gc_register_get_address(place, failure);
        if (failure.take() || !m_description->isPossibleLength(node, qint64(length))) {
            continue;
        }
        QByteArray bytes(qsizetype(length), '\0');
        arv_gc_register_get(place, bytes.data(), length, failure);
        if (!failure.take() && bytes.size() >= contents.value(address).size()) {
            contents.insert(address, bytes);
        }
    }
    return contents;
}

void Engine::refuse(int node, const QString &text, const QString &allowed) const
{
    throw GenICam::InvalidArgumentException(
        tr("%1: \"%2\" is not allowed, expected %3").arg(m_description->name(node), text, allowed));
}

void Engine::write(int node, const NodeValue &value)
{
    const QString name = m_description->name(node);
    const auto *command = std::get_if<ExecuteCommand>(&value);
    const GenApi::EAccessMode access = m_nodes[node] && isEvaluable(node) ? readAccess(node) : GenApi::NI;
    if (!m_lossReason.isEmpty()) {
        throw GenICam::TimeoutException(name + QLatin1String(": ") + m_lossReason);
    }
    const bool isOpen = access == GenApi::WO || access == GenApi::RW;
    if (access == GenApi::NI || (!isOpen && (!command || command->verify))) {
        throw GenICam::AccessException(tr("%1 cannot be written now").arg(name));
    }
    if (command) {
        execute(node);
    } else if (const auto *text = std::get_if<QString>(&value)) {
        writeText(node, *text);
    } else if (const auto *integer = std::get_if<qint64>(&value)) {
        writeInteger(node, *integer, QString::number(*integer));
    } else if (const auto *number = std::get_if<double>(&value)) {
        writeFloat(node, *number, ValueText::fromFloat(*number));
    } else {
        writeBoolean(node, std::get<bool>(value));
    }
}

void Engine::writeText(int node, const QString &text)
{
    switch (m_types[node]) {
    case ParameterType::Integer:
        if (const auto value = ValueText::toInteger(text, representation(node))) {
            return writeInteger(node, *value, text);
        }
        refuse(node, text,
               ValueText::isTooLong(text) ? tr("an integer of at most 64 bits") : integerForm(node));
    case ParameterType::Float:
        if (const auto value = ValueText::toFloat(text)) {
            return writeFloat(node, *value, text);
        }
        refuse(node, text, tr("a number"));
    case ParameterType::Boolean:
        if (const auto value = booleanFrom(text)) {
            return writeBoolean(node, *value);
        }
        refuse(node, text, tr("true, false, 1 or 0"));
    case ParameterType::Enumeration:
        return writeEnum(node, text);
    case ParameterType::String:
        return writeString(node, text);
    default:
        refuse(node, text, tr("no text"));
    }
}

void Engine::writeInteger(int node, qint64 value, const QString &text)
{
    IntegerParameterData limits;
    readLimits(node, limits);
    const auto shown = [&limits](qint64 number) {
        return ValueText::fromInteger(number, limits.representation);
    };
    if (value < limits.minimum || value > limits.maximum) {
        throw GenICam::OutOfRangeException(
            tr("%1: \"%2\" is out of range, allowed are %3 to %4")
                .arg(m_description->name(node), text, shown(limits.minimum), shown(limits.maximum)));
    }
    // Unsigned, since the distance of two 64-bit numbers may need 64 bits.
    if ((quint64(value) - quint64(limits.minimum)) % quint64(limits.increment) != 0) {
        throw GenICam::OutOfRangeException(tr("%1: \"%2\" is not allowed, expected %3 plus a multiple of %4")
                                               .arg(m_description->name(node), text, shown(limits.minimum))
                                               .arg(limits.increment));
    }
    // The standard's names of the features that hold masks all contain the word.
    if (limits.representation == QLatin1String("IPV4Address")
        && m_description->name(node).contains(QLatin1String("SubnetMask"))
        && !ValueText::isSubnetMask(value)) {
        refuse(node, text, tr("a subnet mask, whose ones stand together, such as 255.255.255.0"));
    }
    Failure failure(this);
    arv_gc_integer_set_value(ARV_GC_INTEGER(m_nodes[node]), value, failure);
    failure.throwIfAny(m_description->name(node));
}

// Returns how the values of an integer are written, as words.
QString Engine::integerForm(int node) const
{
    const QString form = representation(node);
    if (form == QLatin1String("IPV4Address")) {
        return tr("four numbers from 0 to 255, such as 192.168.0.10");
    }
    if (form == QLatin1String("MACAddress")) {
        return tr("six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F");
    }
    return form == QLatin1String("HexNumber") ? tr("an integer, such as 0x1f") : tr("an integer");
}

void Engine::writeFloat(int node, double value, const QString &text)
{
    FloatParameterData limits;
    readLimits(node, limits);
    if (!(value >= limits.minimum && value <= limits.maximum)) {
        throw GenICam::OutOfRangeException(tr("%1: \"%2\" is out of range, allowed are %3 to %4")
                                               .arg(m_description->name(node), text,
                                                    ValueText::fromFloat(limits.minimum),
                                                    ValueText::fromFloat(limits.maximum)));
    }
    Failure failure(this);
    arv_gc_float_set_value(ARV_GC_FLOAT(m_nodes[node]), value, failure);
    failure.throwIfAny(m_description->name(node));
}

void Engine::writeEnum(int node, const QString &text)
{
    EnumParameterData entries;
    readEnumEntries(node, entries);
    if (!entries.symbolicNames.contains(text)) {
        refuse(node, text, entries.symbolicNames.join(QLatin1String(", ")));
    }
    Failure failure(this);
    arv_gc_enumeration_set_string_value(ARV_GC_ENUMERATION(m_nodes[node]), text.toUtf8().constData(),
                                        failure);
    failure.throwIfAny(m_description->name(node));
}

void Engine::writeString(int node, const QString &text)
{
    ArvGcString *string = ARV_GC_STRING(m_nodes[node]);
    const QByteArray bytes = text.toUtf8();
    if (bytes.contains('\0')) {
        // It would end the text, and the message, too.
        refuse(node, QString(text).replace(QChar(0), QChar(0x2400)), tr("no null characters"));
    }
    Failure failure(this);
    const gint64 longest = arv_gc_string_get_max_length(string, failure);
    if (!failure.take() && longest > 0 && bytes.size() > longest) {
        refuse(node, text, tr("at most %1 bytes").arg(longest));
    }
    arv_gc_string_set_value(string, bytes.constData(), failure);
    failure.throwIfAny(m_description->name(node));
}

void Engine::writeBoolean(int node, bool value)
{
    Failure failure(this);
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(m_nodes[node]), value, failure);
    failure.throwIfAny(m_description->name(node));
}

void Engine::execute(int node)
{
    Failure failure(this);
    arv_gc_command_execute(ARV_GC_COMMAND(m_nodes[node]), failure);
    failure.throwIfAny(m_description->name(node));
    if (m_registers) {
        finishCommand(node);
    }
}

// Nobody stands behind simulated registers to carry a command out, unless they are told to be busy.
void Engine::finishCommand(int node)
{
    const int valueNode = m_description->valueNode(node);
    if (valueNode < 0 || readCommandDone(node)) {
        return;
    }
    ArvGcNode *found = engineNode(valueNode);
    Failure failure(this);
    if (ARV_IS_GC_REGISTER(found)
        && m_registers->isLiving(arv_gc_register_get_address(ARV_GC_REGISTER(found), failure))) {
        return;
    }
    arv_gc_integer_set_value(ARV_GC_INTEGER(found), 0, failure);
}

// Null where there is none that can be evaluated without harm.
ArvGcNode *Engine::evaluableNode(const QString &name) const
{
    const int node = m_description->indexOf(name);
    return node < 0 || m_description->isBroken(node) ? nullptr : engineNode(node);
}

std::optional<qint64> Engine::integer(const QString &name)
{
    ArvGcNode *found = evaluableNode(name);
    if (!ARV_IS_GC_INTEGER(found)) {
        return std::nullopt;
    }
    Failure failure(this);
    const qint64 value = arv_gc_integer_get_value(ARV_GC_INTEGER(found), failure);
    return failure.take() ? std::nullopt : std::optional(value);
}

void Engine::setInteger(const QString &name, qint64 value)
{
    ArvGcNode *found = evaluableNode(name);
    if (!ARV_IS_GC_INTEGER(found)) {
        return;
    }
    Failure failure(this);
    arv_gc_integer_set_value(ARV_GC_INTEGER(found), value, failure);
    failure.throwIfAny(name);
}

void Engine::executeNamed(const QString &name)
{
    ArvGcNode *found = evaluableNode(name);
    if (!ARV_IS_GC_COMMAND(found)) {
        return;
    }
    const int node = m_description->indexOf(name);
    if (m_nodes[size_t(node)]) {
        execute(node);
        return;
    }
    Failure failure(this);
    arv_gc_command_execute(ARV_GC_COMMAND(found), failure);
    failure.throwIfAny(name);
}

} // namespace Cameras
