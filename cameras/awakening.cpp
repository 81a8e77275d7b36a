// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "awakening_p.h"

#include "aravis_p.h"
#include "description_p.h"
#include "engineanswer_p.h"
#include "formulanode_p.h"
#include "wishsearch_p.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace Cameras {

namespace {

using LinkKind = Description::LinkKind;

constexpr int mostRounds = 3; // what comes later may give what came before a second chance
constexpr int longestChain = 20;
constexpr int featureEffort = 200;
constexpr int entryEffort = 20;
constexpr int mostEntriesTried = 12;

bool hasRoom(ArvGcInteger *node)
{
    const auto minimum = asked(arv_gc_integer_get_min, node);
    const auto maximum = asked(arv_gc_integer_get_max, node);
    return minimum && maximum && *minimum < *maximum;
}

bool hasRoom(ArvGcFloat *node)
{
    const auto minimum = asked(arv_gc_float_get_min, node);
    const auto maximum = asked(arv_gc_float_get_max, node);
    return minimum && maximum && std::isfinite(*minimum) && std::isfinite(*maximum) && *minimum < *maximum;
}

bool hasIncrement(ArvGcInteger *node)
{
    const auto minimum = asked(arv_gc_integer_get_min, node);
    const auto maximum = asked(arv_gc_integer_get_max, node);
    const auto increment = asked(arv_gc_integer_get_inc, node);
    return minimum && maximum && increment && *increment >= 1
        && quint64(*increment) <= quint64(*maximum) - quint64(*minimum);
}

bool isWithinLimits(ArvGcInteger *node)
{
    const auto value = asked(arv_gc_integer_get_value, node);
    const qint64 minimum = asked(arv_gc_integer_get_min, node).value_or(G_MININT64);
    const qint64 increment = std::max<qint64>(asked(arv_gc_integer_get_inc, node).value_or(1), 1);
    return value && *value >= minimum && *value <= asked(arv_gc_integer_get_max, node).value_or(G_MAXINT64)
        && (quint64(*value) - quint64(minimum)) % quint64(increment) == 0;
}

bool isWithinLimits(ArvGcFloat *node)
{
    const auto value = asked(arv_gc_float_get_value, node);
    return value && *value >= asked(arv_gc_float_get_min, node).value_or(-DBL_MAX)
        && *value <= asked(arv_gc_float_get_max, node).value_or(DBL_MAX);
}

/*! \brief What a camera wishes for that has just got its registers. */
class Awakening
{
public:
    Awakening(ArvDevice *device, const Description &description, SimulatedRegisters &registers)
        : m_description(description)
        , m_search(device, description, registers)
    {
    }

    void run()
    {
        for (int round = 0, changes = -1; round < mostRounds && m_search.changeCount() != changes; ++round) {
            changes = m_search.changeCount();
            forEach([this](int node, ArvGcNode *) { wishForConditions(node); });
            forEach([this](int node, ArvGcNode *engine) { wishForEntries(node, engine); });
            forEach([this](int node, ArvGcNode *engine) { chooseEntry(node, engine); });
            forEach([this](int node, ArvGcNode *engine) { wishForNumber(node, engine); });
        }
    }

private:
    using Key = std::pair<int, LinkKind>;

    template <typename Function>
    void forEach(Function function)
    {
        for (const int node : m_description.published()) {
            if (ArvGcNode *engine = m_search.engineNode(node)) {
                function(node, engine);
            }
        }
    }

    /*! As WishSearch::grant(), but for what was granted before under the same \a key, or was refused and
     * would be so again. */
    void grant(const Key &key, const Wish &wish)
    {
        if (!isWorthwhile(key, wish.nodes)) {
            return;
        }
        if (m_search.grant(wish)) {
            m_granted.insert(key);
        } else {
            m_refused[key] = m_search.changeCount();
        }
    }

    bool isWorthwhile(const Key &key, const QList<int> &nodes)
    {
        const auto refused = m_refused.find(key);
        return !m_granted.contains(key)
            && (refused == m_refused.end() || m_search.isChangedSince(refused->second, nodes));
    }

    // A node and those that hold its value.
    QList<int> chain(int node) const
    {
        QList<int> nodes;
        for (; node >= 0 && nodes.size() < longestChain; node = m_description.valueNode(node)) {
            nodes.append(node);
        }
        return nodes;
    }

    void wishForConditions(int node)
    {
        for (const int part : chain(node)) {
            if (ArvGcNode *engine = m_search.engineNode(part)) {
                wishForConditions(part, engine, featureEffort);
            }
        }
    }

    void wishForConditions(int node, ArvGcNode *engine, int effort)
    {
        ArvGcFeatureNode *feature = ARV_GC_FEATURE_NODE(engine);
        wishForCondition(
            node, LinkKind::Implemented,
            [feature] { return asked(arv_gc_feature_node_is_implemented, feature) == TRUE; }, effort);
        wishForCondition(
            node, LinkKind::Available,
            [feature] { return asked(arv_gc_feature_node_is_available, feature) == TRUE; }, effort);
        wishForCondition(
            node, LinkKind::Locked,
            [feature] { return asked(arv_gc_feature_node_is_locked, feature) == FALSE; }, effort);
    }

    void wishForCondition(int node, LinkKind kind, const std::function<bool()> &isTrue, int effort)
    {
        for (const int condition : m_description.linked(node, kind)) {
            const bool isLock = kind == LinkKind::Locked;
            grant({condition, isLock ? kind : LinkKind::Available},
                  {isTrue, {condition}, {isLock ? 0 : 1}, effort, true});
        }
    }

    // In the order of the description.
    QList<ArvGcNode *> entriesOf(ArvGcNode *engine) const
    {
        QList<ArvGcNode *> entries;
        for (const GSList *entry = arv_gc_enumeration_get_entries(ARV_GC_ENUMERATION(engine)); entry;
             entry = entry->next) {
            entries.prepend(ARV_GC_NODE(entry->data));
        }
        return entries;
    }

    void wishForEntries(int node, ArvGcNode *engine)
    {
        if (!ARV_IS_GC_ENUMERATION(engine)) {
            return;
        }
        const auto entries = entriesOf(engine);
        const QList<int> nodes = m_description.linked(node, LinkKind::Entry);
        for (qsizetype i = 0; i < std::min(entries.size(), nodes.size()); ++i) {
            wishForConditions(nodes[i], entries[i], entryEffort);
        }
    }

    bool isWritten(ArvGcNode *engine) const
    {
        return arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(engine))
            != ARV_GC_ACCESS_MODE_RO;
    }

    bool isAvailable(ArvGcNode *engine) const
    {
        ArvGcFeatureNode *feature = ARV_GC_FEATURE_NODE(engine);
        return asked(arv_gc_feature_node_is_implemented, feature) == TRUE
            && asked(arv_gc_feature_node_is_available, feature) == TRUE;
    }

    void chooseEntry(int node, ArvGcNode *engine)
    {
        const Key key{node, LinkKind::Entry};
        if (ARV_IS_GC_ENUMERATION(engine) && isAvailable(engine) && isWorthwhile(key, {node})
            && !hasChosenEntry(node, engine)) {
            m_refused[key] = m_search.changeCount();
        }
    }

    bool hasChosenEntry(int node, ArvGcNode *engine)
    {
        ArvGcEnumeration *enumeration = ARV_GC_ENUMERATION(engine);
        QList<qint64> values;
        for (ArvGcNode *entry : entriesOf(engine)) {
            const auto value = asked(arv_gc_enum_entry_get_value, ARV_GC_ENUM_ENTRY(entry));
            if (!value || !isAvailable(entry)) {
                continue;
            }
            values.append(*value);
            if (values.size() > mostEntriesTried) {
                break;
            }
            const auto isChosen = [enumeration, value] {
                return asked(arv_gc_enumeration_get_int_value, enumeration) == value;
            };
            const auto choose = [enumeration, value] {
                Unanswered failure;
                arv_gc_enumeration_set_int_value(enumeration, *value, failure);
            };
            if (isChosen() || m_search.tryWrite(node, choose, isChosen)) {
                return true;
            }
        }
        // What cannot be written is made up of something else.
        const auto isAnyChosen = [enumeration] {
            return asked(arv_gc_enumeration_get_string_value, enumeration).value_or(nullptr) != nullptr;
        };
        return m_search.grant({isAnyChosen, {node}, values});
    }

    QList<int> limits(int node, std::initializer_list<LinkKind> kinds) const
    {
        QList<int> found;
        for (const int part : chain(node)) {
            for (const LinkKind kind : kinds) {
                found += m_description.linked(part, kind);
            }
        }
        return found;
    }

    // So that a sensor, what can be used of it and an image fit together.
    std::optional<qint64> extent(int node) const
    {
        const QString name = m_description.name(node);
        if (name == QLatin1String("SensorWidth") || name == QLatin1String("WidthMax")) {
            return 4096;
        }
        return name == QLatin1String("SensorHeight") || name == QLatin1String("HeightMax")
            ? std::optional(3072)
            : std::nullopt;
    }

    void wishForNumber(int node, ArvGcNode *engine)
    {
        if (!isAvailable(engine) || ARV_IS_GC_ENUMERATION(engine)) {
            return;
        }
        if (ARV_IS_GC_INTEGER(engine)) {
            wishForInteger(node, ARV_GC_INTEGER(engine));
        } else if (ARV_IS_GC_FLOAT(engine)) {
            wishForFloat(node, ARV_GC_FLOAT(engine));
        }
    }

    void wishForInteger(int node, ArvGcInteger *engine)
    {
        grant({node, LinkKind::Evaluated},
              {[engine] { return asked(arv_gc_integer_get_value, engine).has_value(); },
               {node},
               {1, 100, 1000, 65536}});
        if (const auto wanted = extent(node)) {
            grant({node, LinkKind::Value},
                  {[engine] { return asked(arv_gc_integer_get_value, engine).value_or(0) >= 16; },
                   {node},
                   {*wanted, 255}});
        }
        const QList<int> ends = limits(node, {LinkKind::Maximum, LinkKind::Minimum});
        if (!ends.isEmpty()) {
            grant({node, LinkKind::Maximum},
                  {[engine] { return hasRoom(engine); }, ends, {65535, 4095, 1000000, 255, 100, 15}});
        }
        const QList<int> increments = limits(node, {LinkKind::Increment});
        if (!increments.isEmpty()) {
            grant({node, LinkKind::Increment}, {[engine] { return hasIncrement(engine); }, increments, {1}});
        }
        if (isWritten(ARV_GC_NODE(engine))) {
            putWithinLimits(node, engine);
        }
    }

    void putWithinLimits(int node, ArvGcInteger *engine)
    {
        const auto minimum = asked(arv_gc_integer_get_min, engine);
        const auto maximum = asked(arv_gc_integer_get_max, engine);
        if (!minimum || !maximum || *minimum > *maximum) {
            return;
        }
        const QString name = m_description.name(node);
        const bool isExtent = name == QLatin1String("Width") || name == QLatin1String("Height");
        if (isWithinLimits(engine) && !(isExtent && asked(arv_gc_integer_get_value, engine) == *minimum)) {
            return;
        }
        const quint64 increment =
            quint64(std::max<qint64>(asked(arv_gc_integer_get_inc, engine).value_or(1), 1));
        const quint64 steps = (quint64(*maximum) - quint64(*minimum)) / increment;
        const auto at = [minimum, increment](quint64 step) {
            return qint64(quint64(*minimum) + step * increment);
        };
        // The offsets of an image need room as well.
        const QList<qint64> values =
            isExtent ? QList<qint64>{at(steps / 2)} : QList<qint64>{at(0), at(steps), at(steps / 2)};
        for (const qint64 value : values) {
            const auto put = [engine, value] {
                Unanswered failure;
                arv_gc_integer_set_value(engine, value, failure);
            };
            if (m_search.tryWrite(node, put, [engine] { return isWithinLimits(engine); })) {
                return;
            }
        }
    }

    void wishForFloat(int node, ArvGcFloat *engine)
    {
        grant({node, LinkKind::Evaluated},
              {[engine] { return std::isfinite(asked(arv_gc_float_get_value, engine).value_or(NAN)); },
               {node},
               {1, 100, 1000, 65536}});
        const QList<int> ends = limits(node, {LinkKind::Maximum, LinkKind::Minimum});
        if (!ends.isEmpty()) {
            grant({node, LinkKind::Maximum},
                  {[engine] { return hasRoom(engine); }, ends, {1000, 1000000, 100, 255, 15}});
        }
        const auto minimum = asked(arv_gc_float_get_min, engine);
        if (!minimum || isWithinLimits(engine) || !isWritten(ARV_GC_NODE(engine))) {
            return;
        }
        const auto put = [engine, minimum] {
            Unanswered failure;
            arv_gc_float_set_value(engine, *minimum, failure);
        };
        m_search.tryWrite(node, put, [engine] { return isWithinLimits(engine); });
    }

    const Description &m_description;
    WishSearch m_search;
    std::set<Key> m_granted;
    std::map<Key, int> m_refused; //!< with the changes that there had been
};

} // namespace

void awaken(ArvDevice *device, const Description &description, SimulatedRegisters &registers)
{
    if (ArvGc *genicam = arv_device_get_genicam(device)) {
        guardFormulas(genicam, description);
        Awakening(device, description, registers).run();
    }
}

} // namespace Cameras
