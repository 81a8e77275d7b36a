// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "description_p.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

using ArvDevice = struct _ArvDevice;
using ArvGcNode = struct _ArvGcNode;
using ArvGcPropertyNode = struct _ArvGcPropertyNode;

namespace Cameras {

class SimulatedRegisters;

/*! \brief Something that registers are to make true. */
struct Wish
{
    std::function<bool()> isTrue; //!< asks the engine
    QList<int> nodes; //!< on whose values it depends
    QList<qint64> values; //!< that are tried first
    int effort = 300; //!< how many tries it is worth
    bool mayTurnOwnValue = false; //!< one that a node keeps itself, without a register
};

/*! \brief Makes wishes true by trying what simulated registers might hold.
 *
 * What a register leads to is asked of the engine. Wishes that were granted stay true: what would break one
 * of them is taken back. The evaluations and the time of all searches are bounded.
 */
class WishSearch
{
public:
    WishSearch(ArvDevice *device, const Description &description, SimulatedRegisters &registers);
    ~WishSearch();
    Q_DISABLE_COPY_MOVE(WishSearch)

    /*! Returns the engine's node, null when \a node must not be evaluated. */
    ArvGcNode *engineNode(int node) const;

    /*! Makes \a wish true if that can be, and keeps it so. Returns whether it is true. */
    bool grant(const Wish &wish);
    /*! Lets \a write change the value of \a node and takes that back when \a isWanted is not true afterwards
     * or a granted wish is not any more. */
    bool tryWrite(int node, const std::function<void()> &write, const std::function<bool()> &isWanted);

    /*! Returns how often something was changed for good. */
    int changeCount() const;
    /*! Returns whether something that \a nodes depend on was changed after \a changeCount changes. */
    bool isChangedSince(int changeCount, const QList<int> &nodes);

private:
    /*! Bits of the register space, by the addresses of their bytes. */
    using Bits = QHash<quint64, quint8>;

    /*! A place that holds a value. */
    struct Leaf
    {
        ArvGcNode *engine = nullptr;
        ArvGcPropertyNode *ownValue = nullptr; //!< of an enumeration that has no register
        Bits bits;
        qint64 largest = 1;
        bool isRegister = false;
        bool isNumber = false; //!< when it was looked at first
    };

    struct Knob
    {
        int leaf;
        bool isOwnValue;
        QList<qint64> hints;
    };

    /*! What the values of some nodes come from. */
    struct Sources
    {
        std::vector<Knob> knobs; //!< leaves that may be turned
        QList<int> leaves; //!< all
    };

    struct Granted
    {
        std::function<bool()> isTrue;
        int cost;
    };

    /*! Which bits of a byte a granted wish depends on. */
    struct Reader
    {
        int granted;
        quint8 bits;
    };

    class Choices;
    class Collector;
    class Trial;
    struct Setting
    {
        int leaf;
        qint64 value;
    };

    void collectStates();
    void collectEntryValues();
    const Sources &sources(int node);
    Sources sources(const QList<int> &nodes);
    int lastOf(int node) const;
    bool isState(int node) const;
    bool isOwnValue(int node) const;
    const Leaf &leaf(int node);
    QList<qint64> candidates(const Knob &knob, const Wish &wish);
    bool search(const Wish &wish, const Sources &sources);
    bool trySettings(const Wish &wish, const std::vector<Setting> &settings);
    bool trySingles(Choices &choices, int first, int end);
    bool tryAllAlike(Choices &choices);
    bool tryPairs(Choices &choices);
    bool tryPair(Choices &choices, size_t one, size_t other);
    bool put(int leaf, qint64 value);
    bool set(int leaf, qint64 value);
    bool areGrantedTrue(const Bits &changed);
    Bits bitsOf(ArvGcNode *engine, std::optional<qint64> value);
    int cost(const QList<int> &nodes) const;
    bool spend(int cost);
    void keep(const Wish &wish, const Sources &sources);

    ArvDevice *m_device;
    const Description &m_description;
    SimulatedRegisters &m_registers;
    mutable std::vector<std::optional<ArvGcNode *>> m_engineNodes;
    QHash<int, Leaf> m_leaves;
    QHash<int, QList<qint64>> m_entryValues; //!< of enumerations, by the leaf that holds them
    QSet<int> m_states; //!< nodes whose value in the description is no constant
    std::vector<Granted> m_granted;
    QHash<int, Sources> m_sources;
    QHash<quint64, std::vector<Reader>> m_grantedAt; //!< by the bytes that they depend on
    QHash<quint64, int> m_changedAt; //!< number of the last change of a byte
    std::chrono::nanoseconds m_end; //!< of the thread's processor time
    int m_evaluations; //!< that all searches may still take
    int m_tries = 0; //!< that the present search may make
    int m_changes = 0;
};

} // namespace Cameras
