// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "wishsearch_p.h"

#include "aravis_p.h"
#include "engineanswer_p.h"
#include "formula_p.h"
#include "formulanode_p.h"
#include "simulatedregisters_p.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <time.h>

namespace Cameras {

namespace {

using LinkKind = Description::LinkKind;

// What is found must not depend on how busy the machine is: the time is the processor's, and for what nobody
// foresaw.
constexpr auto searchTime = std::chrono::seconds(2);
constexpr int evaluationsForAll = 20000;
constexpr int evaluationsPerNode = 30;
constexpr int mostEvaluationsInAll = 300000;
constexpr int mostEvaluationsPerWish = 3000;
constexpr int mostNodesPerWish = 2000;
constexpr int mostKnobs = 24;
constexpr int mostEntryChoices = 6; // the engine looks at all entries whenever one is chosen
constexpr int mostPairedKnobs = 10;
constexpr int mostChoices = 24;
constexpr int mostPairedChoices = 5;
constexpr quint64 longestLeaf = 16; // in bytes; longer registers hold no conditions

std::optional<qint64> integerValue(ArvGcNode *node)
{
    if (ARV_IS_GC_BOOLEAN(node)) {
        return asked(arv_gc_boolean_get_value, ARV_GC_BOOLEAN(node));
    }
    if (ARV_IS_GC_INTEGER(node)) {
        return asked(arv_gc_integer_get_value, ARV_GC_INTEGER(node));
    }
    const auto number =
        ARV_IS_GC_FLOAT(node) ? asked(arv_gc_float_get_value, ARV_GC_FLOAT(node)) : std::nullopt;
    return number ? Formula::truncated(*number) : std::nullopt;
}

// Returns where an enumeration without a register keeps its value, null for all others.
ArvGcPropertyNode *ownValue(ArvGcNode *node)
{
    if (!ARV_IS_GC_ENUMERATION(node)) {
        return nullptr;
    }
    for (ArvDomNode *child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child)) {
        if (ARV_IS_GC_PROPERTY_NODE(child)
            && arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(child))
                == ARV_GC_PROPERTY_NODE_TYPE_VALUE) {
            return ARV_GC_PROPERTY_NODE(child);
        }
    }
    return nullptr;
}

std::chrono::nanoseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

// Of a value that the engine holds; no register is there.
quint64 ownPlace(int node)
{
    return std::numeric_limits<quint64>::max() - quint64(node);
}

} // namespace

/*! \brief Walks from the nodes of a wish to the leaves. */
class WishSearch::Collector
{
public:
    explicit Collector(WishSearch &search)
        : m_search(search)
    {
    }

    Sources collected(int node)
    {
        const int last = m_search.lastOf(node);
        m_ownValue = m_search.isOwnValue(last) ? last : -1;
        visit(node, {}, true);
        return std::move(m_sources);
    }

private:
    void visit(int node, const QList<qint64> &hints, bool mayTurn)
    {
        ArvGcNode *engine = m_search.engineNode(node);
        if (!engine || m_visited.size() > mostNodesPerWish) {
            return;
        }
        const bool isRegister = ARV_IS_GC_REGISTER(engine) || ARV_IS_GC_STRUCT_ENTRY_NODE(engine);
        if (isRegister || m_search.isState(node) || node == m_ownValue) {
            visitLeaf(node, hints, mayTurn);
        }
        if (m_visited.contains(node)) {
            return;
        }
        m_visited.insert(node);
        const auto formulaNumbers = formulaHints(engine);
        for (const LinkKind kind : {LinkKind::Value, LinkKind::Evaluated}) {
            for (const int next : m_search.m_description.linked(node, kind)) {
                // What gives a register its address is better left alone.
                QList<qint64> numbers = formulaNumbers.value(m_search.m_description.name(next).toUtf8());
                if (kind == LinkKind::Value && hints.size() < mostChoices) {
                    numbers = hints + booleanNumbers(node) + numbers;
                }
                visit(next, numbers, mayTurn && !isRegister);
            }
        }
    }

    QList<qint64> booleanNumbers(int node) const
    {
        QList<qint64> numbers;
        for (const QString &element : {QStringLiteral("OnValue"), QStringLiteral("OffValue")}) {
            bool ok = false;
            const qint64 number = m_search.m_description.property(node, element).toLongLong(&ok, 0);
            if (ok) {
                numbers.append(number);
            }
        }
        return numbers;
    }

    void visitLeaf(int node, const QList<qint64> &hints, bool mayTurn)
    {
        if (!m_sources.leaves.contains(node)) {
            m_sources.leaves.append(node);
            if (mayTurn && int(m_sources.knobs.size()) < mostKnobs && m_search.leaf(node).isNumber) {
                m_knobs.insert(node, m_sources.knobs.size());
                m_sources.knobs.push_back({node, node == m_ownValue, {}});
            }
        }
        const auto knob = m_knobs.constFind(node);
        if (knob != m_knobs.constEnd()) {
            m_sources.knobs[*knob].hints += hints;
        }
    }

    WishSearch &m_search;
    Sources m_sources;
    QHash<int, size_t> m_knobs;
    QSet<int> m_visited;
    int m_ownValue = -1;
};

/*! \brief Takes back what is done to some leaves, unless it is kept. */
class WishSearch::Trial
{
public:
    Trial(WishSearch &search, const QList<int> &leaves)
        : m_search(search)
    {
        for (const int node : leaves) {
            if (!search.leaf(node).isRegister) {
                m_before.append({node, integerValue(search.leaf(node).engine).value_or(0)});
            }
        }
        search.m_registers.beginTrial();
    }
    ~Trial()
    {
        m_search.m_registers.endTrial(m_isKept);
        for (const Setting &before : std::as_const(m_before)) {
            if (!m_isKept) {
                m_search.put(before.leaf, before.value);
            }
        }
    }
    Q_DISABLE_COPY_MOVE(Trial)

    void keep()
    {
        m_isKept = true;
        ++m_search.m_changes;
        for (const auto &[byte, bits] : m_changed.asKeyValueRange()) {
            if (bits != 0) {
                m_search.m_changedAt[byte] = m_search.m_changes;
            }
        }
    }

    /*! Returns whether all that was granted before is still true. */
    bool isHarmless()
    {
        m_changed = m_search.m_registers.changedInTrial();
        for (const Setting &before : std::as_const(m_before)) {
            if (integerValue(m_search.leaf(before.leaf).engine) != before.value) {
                m_changed[ownPlace(before.leaf)] = 0xff;
            }
        }
        return m_search.areGrantedTrue(m_changed);
    }

private:
    WishSearch &m_search;
    QList<Setting> m_before; // the engine itself holds these
    Bits m_changed;
    bool m_isKept = false;
};

/*! \brief What the knobs of a wish are turned to; found out when it is first asked for, since most wishes are
 * granted by the first knob. */
class WishSearch::Choices
{
public:
    Choices(WishSearch &search, const Wish &wish, const std::vector<Knob> &knobs)
        : m_search(search)
        , m_wish(wish)
        , m_knobs(knobs)
        , m_values(knobs.size())
    {
    }

    const Wish &wish() const { return m_wish; }
    size_t knobCount() const { return m_knobs.size(); }

    /*! Returns the setting of \a knob to what is the likeliest but for \a place others, if there is one. */
    std::optional<Setting> setting(size_t knob, int place)
    {
        const QList<qint64> &values = this->values(knob);
        return place < values.size() ? std::optional(Setting{m_knobs[knob].leaf, values[place]})
                                     : std::nullopt;
    }

private:
    const QList<qint64> &values(size_t knob)
    {
        auto &values = m_values[knob];
        if (!values) {
            values = m_search.candidates(m_knobs[knob], m_wish);
        }
        return *values;
    }

    WishSearch &m_search;
    const Wish &m_wish;
    const std::vector<Knob> &m_knobs;
    std::vector<std::optional<QList<qint64>>> m_values;
};

WishSearch::WishSearch(ArvDevice *device, const Description &description, SimulatedRegisters &registers)
    : m_device(device)
    , m_description(description)
    , m_registers(registers)
    , m_engineNodes(size_t(description.nodeCount()))
    , m_end(processorTime() + searchTime)
    , m_evaluations(
          std::min(evaluationsForAll + evaluationsPerNode * description.nodeCount(), mostEvaluationsInAll))
{
    collectStates();
    collectEntryValues();
}

WishSearch::~WishSearch() = default;

// Returns the node that holds the value of the node in the end.
int WishSearch::lastOf(int node) const
{
    for (int next = node; next >= 0 && engineNode(next); next = m_description.valueNode(next)) {
        node = next;
    }
    return node;
}

void WishSearch::collectStates()
{
    for (const int published : m_description.published()) {
        ArvGcNode *engine = engineNode(published);
        if (!engine || ARV_IS_GC_CATEGORY(engine) || ARV_IS_GC_COMMAND(engine)
            || arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(engine))
                == ARV_GC_ACCESS_MODE_RO) {
            continue;
        }
        m_states.insert(lastOf(published));
    }
}

// A register behind an enumeration should hold nothing else.
void WishSearch::collectEntryValues()
{
    for (const int published : m_description.published()) {
        ArvGcNode *engine = engineNode(published);
        if (!ARV_IS_GC_ENUMERATION(engine)) {
            continue;
        }
        QList<qint64> values;
        for (const GSList *entry = arv_gc_enumeration_get_entries(ARV_GC_ENUMERATION(engine)); entry;
             entry = entry->next) {
            Unanswered failure;
            const qint64 value = arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry->data), failure);
            if (!failure.isSet()) {
                values.prepend(value);
            }
        }
        m_entryValues[lastOf(published)] += values;
    }
}

ArvGcNode *WishSearch::engineNode(int node) const
{
    auto &found = m_engineNodes[size_t(node)];
    if (!found) {
        const bool isEvaluable =
            !m_description.isBroken(node) && m_description.sizedRegisters(node).isEmpty();
        ArvGcNode *engine = isEvaluable
            ? arv_gc_get_node(arv_device_get_genicam(m_device), m_description.name(node).toUtf8().constData())
            : nullptr;
        found = ARV_IS_GC_FEATURE_NODE(engine) ? engine : nullptr;
    }
    return *found;
}

bool WishSearch::isState(int node) const
{
    return m_states.contains(node) && m_description.valueNode(node) < 0;
}

// Registers may overlap in part, and share their bytes.
WishSearch::Bits WishSearch::bitsOf(ArvGcNode *engine, std::optional<qint64> value)
{
    if (ARV_IS_GC_MASKED_INT_REG_NODE(engine) || ARV_IS_GC_STRUCT_ENTRY_NODE(engine)) {
        m_registers.beginTrial();
        Unanswered failure;
        arv_gc_integer_set_value(ARV_GC_INTEGER(engine), -1, failure);
        Bits bits = m_registers.changedInTrial();
        if (value != 0) {
            arv_gc_integer_set_value(ARV_GC_INTEGER(engine), 0, Unanswered());
            for (const auto &[address, changed] : m_registers.changedInTrial().asKeyValueRange()) {
                bits[address] |= changed;
            }
        }
        m_registers.endTrial(false);
        return bits;
    }
    Unanswered failure;
    const quint64 address = arv_gc_register_get_address(ARV_GC_REGISTER(engine), failure);
    const quint64 length = failure.isSet() ? 0 : arv_gc_register_get_length(ARV_GC_REGISTER(engine), failure);
    Bits bits;
    for (quint64 i = 0; !failure.isSet() && i < std::min(length, longestLeaf); ++i) {
        bits[address + i] = 0xff;
    }
    return bits;
}

// A value that the description keeps is a constant only where it says that it cannot be written.
bool WishSearch::isOwnValue(int node) const
{
    ArvGcNode *engine = engineNode(node);
    return m_description.valueNode(node) < 0 && !isState(node)
        && (ARV_IS_GC_INTEGER_NODE(engine) || ARV_IS_GC_BOOLEAN(engine))
        && arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(engine)) != ARV_GC_ACCESS_MODE_RO;
}

const WishSearch::Leaf &WishSearch::leaf(int node)
{
    auto found = m_leaves.find(node);
    if (found != m_leaves.end()) {
        return *found;
    }
    Leaf leaf;
    leaf.engine = engineNode(node);
    leaf.isRegister = ARV_IS_GC_REGISTER(leaf.engine) || ARV_IS_GC_STRUCT_ENTRY_NODE(leaf.engine);
    const auto value = integerValue(leaf.engine);
    leaf.isNumber = value.has_value();
    leaf.ownValue = ownValue(leaf.engine);
    leaf.bits = leaf.isRegister ? bitsOf(leaf.engine, value) : Bits{{ownPlace(node), 0xff}};
    Unanswered failure;
    if (ARV_IS_GC_INTEGER(leaf.engine)) {
        // Of eight bytes without a sign it may be no number any more.
        const qint64 largest = arv_gc_integer_get_max(ARV_GC_INTEGER(leaf.engine), failure);
        leaf.largest = largest > 0 ? largest : std::numeric_limits<qint64>::max();
    } else if (ARV_IS_GC_FLOAT(leaf.engine)) {
        leaf.largest = std::numeric_limits<qint32>::max();
    }
    return *m_leaves.insert(node, leaf);
}

int WishSearch::changeCount() const
{
    return m_changes;
}

const WishSearch::Sources &WishSearch::sources(int node)
{
    auto found = m_sources.find(node);
    if (found == m_sources.end()) {
        found = m_sources.insert(node, Collector(*this).collected(node));
    }
    return *found;
}

WishSearch::Sources WishSearch::sources(const QList<int> &nodes)
{
    Sources all;
    for (const int node : nodes) {
        const Sources &some = sources(node);
        for (const int leaf : some.leaves) {
            if (!all.leaves.contains(leaf)) {
                all.leaves.append(leaf);
            }
        }
        for (const Knob &knob : some.knobs) {
            const bool isNew = std::none_of(all.knobs.begin(), all.knobs.end(),
                                            [&knob](const Knob &other) { return other.leaf == knob.leaf; });
            if (isNew && all.knobs.size() < mostKnobs) {
                all.knobs.push_back(knob);
            }
        }
    }
    return all;
}

int WishSearch::cost(const QList<int> &nodes) const
{
    int cost = 1;
    for (const int node : nodes) {
        cost += m_description.evaluations(node);
    }
    return cost;
}

bool WishSearch::spend(int cost)
{
    m_evaluations -= cost;
    return m_evaluations > 0 && processorTime() < m_end;
}

bool WishSearch::isChangedSince(int changeCount, const QList<int> &nodes)
{
    const QList<int> leaves = sources(nodes).leaves;
    return std::any_of(leaves.cbegin(), leaves.cend(), [this, changeCount](int node) {
        const Bits &bits = leaf(node).bits;
        return std::any_of(bits.keyBegin(), bits.keyEnd(), [this, changeCount](quint64 byte) {
            return m_changedAt.value(byte) > changeCount;
        });
    });
}

bool WishSearch::grant(const Wish &wish)
{
    m_tries = std::min(wish.effort, mostEvaluationsPerWish / cost(wish.nodes));
    if (!spend(cost(wish.nodes))) {
        return false;
    }
    const Sources found = sources(wish.nodes);
    if (!wish.isTrue() && !search(wish, found)) {
        return false;
    }
    keep(wish, found);
    return true;
}

void WishSearch::keep(const Wish &wish, const Sources &sources)
{
    const int granted = int(m_granted.size());
    m_granted.push_back({wish.isTrue, cost(wish.nodes)});
    for (const int node : sources.leaves) {
        for (const auto &[byte, bits] : leaf(node).bits.asKeyValueRange()) {
            m_grantedAt[byte].push_back({granted, bits});
        }
    }
}

bool WishSearch::search(const Wish &wish, const Sources &sources)
{
    Choices choices(*this, wish, sources.knobs);
    // What is likely comes first.
    return trySingles(choices, 0, mostPairedChoices) || tryAllAlike(choices) || tryPairs(choices)
        || trySingles(choices, mostPairedChoices, mostChoices);
}

QList<qint64> WishSearch::candidates(const Knob &knob, const Wish &wish)
{
    const Leaf &place = leaf(knob.leaf);
    QList<qint64> wanted = wish.values + knob.hints;
    for (const qint64 hint : knob.hints) {
        wanted += {qint64(quint64(hint) + 1), qint64(quint64(hint) - 1)};
    }
    wanted += {1, 0, place.largest, 2, 3, 4};
    for (int bit = 3; bit < 16; ++bit) {
        wanted.append(qint64(1) << bit);
    }
    const auto entries = m_entryValues.constFind(knob.leaf);
    if (entries != m_entryValues.constEnd()) {
        wanted += *entries;
    }
    QList<qint64> chosen;
    const auto now = integerValue(place.engine);
    const int most = entries != m_entryValues.constEnd() ? mostEntryChoices : mostChoices;
    for (const qint64 value : std::as_const(wanted)) {
        const bool isPossible = knob.isOwnValue && !wish.mayTurnOwnValue ? false
            : entries != m_entryValues.constEnd()                        ? entries->contains(value)
                                                                         : value <= place.largest;
        if (isPossible && value != now && !chosen.contains(value) && chosen.size() < most) {
            chosen.append(value);
        }
    }
    return chosen;
}

bool WishSearch::trySingles(Choices &choices, int first, int end)
{
    for (int place = first; place < end; ++place) {
        for (size_t knob = 0; knob < choices.knobCount(); ++knob) {
            const auto setting = choices.setting(knob, place);
            if (setting && trySettings(choices.wish(), {*setting})) {
                return true;
            }
        }
    }
    return false;
}

bool WishSearch::tryAllAlike(Choices &choices)
{
    for (int place = 0; place < mostPairedChoices; ++place) {
        std::vector<Setting> settings;
        for (size_t knob = 0; knob < choices.knobCount(); ++knob) {
            if (const auto setting = choices.setting(knob, place)) {
                settings.push_back(*setting);
            }
        }
        if (settings.size() >= 2 && trySettings(choices.wish(), settings)) {
            return true;
        }
    }
    return false;
}

bool WishSearch::tryPairs(Choices &choices)
{
    const size_t count = std::min<size_t>(choices.knobCount(), mostPairedKnobs);
    for (size_t one = 0; one < count; ++one) {
        for (size_t other = one + 1; other < count; ++other) {
            if (tryPair(choices, one, other)) {
                return true;
            }
        }
    }
    return false;
}

bool WishSearch::tryPair(Choices &choices, size_t one, size_t other)
{
    for (int place = 0; place < mostPairedChoices; ++place) {
        const auto first = choices.setting(one, place);
        for (int otherPlace = 0; first && otherPlace < mostPairedChoices; ++otherPlace) {
            const auto second = choices.setting(other, otherPlace);
            if (second && trySettings(choices.wish(), {*first, *second})) {
                return true;
            }
        }
    }
    return false;
}

bool WishSearch::trySettings(const Wish &wish, const std::vector<Setting> &settings)
{
    if (--m_tries < 0 || !spend(cost(wish.nodes))) {
        return false;
    }
    QList<int> leaves;
    for (const Setting &setting : settings) {
        leaves.append(setting.leaf);
    }
    Trial trial(*this, leaves);
    const auto put = [this](const Setting &setting) { return this->put(setting.leaf, setting.value); };
    const auto isAccepted = [this](const Setting &setting) {
        return !leaf(setting.leaf).ownValue || set(setting.leaf, setting.value);
    };
    if (!std::all_of(settings.cbegin(), settings.cend(), put) || !wish.isTrue()
        || !std::all_of(settings.cbegin(), settings.cend(), isAccepted) || !trial.isHarmless()) {
        return false;
    }
    trial.keep();
    return true;
}

bool WishSearch::tryWrite(int node, const std::function<void()> &write, const std::function<bool()> &isWanted)
{
    if (!spend(cost({node}))) {
        return false;
    }
    Trial trial(*this, sources(node).leaves);
    write();
    if (!isWanted() || !trial.isHarmless()) {
        return false;
    }
    trial.keep();
    return true;
}

// The engine asks for all entries before it sets one, which is too much for values that are mostly taken
// back.
bool WishSearch::put(int node, qint64 value)
{
    ArvGcPropertyNode *ownValue = leaf(node).ownValue;
    if (!ownValue) {
        return set(node, value);
    }
    Unanswered failure;
    arv_gc_property_node_set_int64(ownValue, value, failure);
    return !failure.isSet();
}

bool WishSearch::set(int node, qint64 value)
{
    ArvGcNode *engine = leaf(node).engine;
    Unanswered failure;
    if (ARV_IS_GC_BOOLEAN(engine)) {
        arv_gc_boolean_set_value(ARV_GC_BOOLEAN(engine), value != 0, failure);
    } else if (ARV_IS_GC_INTEGER(engine)) {
        arv_gc_integer_set_value(ARV_GC_INTEGER(engine), value, failure);
    } else if (ARV_IS_GC_FLOAT(engine)) {
        arv_gc_float_set_value(ARV_GC_FLOAT(engine), double(value), failure);
    } else {
        return false;
    }
    return !failure.isSet();
}

bool WishSearch::areGrantedTrue(const Bits &changed)
{
    QSet<int> affected;
    for (const auto &[byte, bits] : changed.asKeyValueRange()) {
        const auto readers = m_grantedAt.constFind(byte);
        for (size_t i = 0; readers != m_grantedAt.constEnd() && i < readers->size(); ++i) {
            if (((*readers)[i].bits & bits) != 0) {
                affected.insert((*readers)[i].granted);
            }
        }
    }
    return std::all_of(affected.cbegin(), affected.cend(), [this](int granted) {
        const Granted &wish = m_granted[size_t(granted)];
        return spend(wish.cost) && wish.isTrue();
    });
}

} // namespace Cameras
