// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace Cameras {

/*! In bytes; no camera has one of that size. */
constexpr qint64 largestRegister = qint64(16) * 1024 * 1024;
/*! In bytes, what all registers that are read may take together. */
constexpr qint64 mostRegisterBytes = qint64(64) * 1024 * 1024;

/*! \brief The static side of a GenICam description: text properties and the graph of links between nodes.
 *
 * It complements the engine, which evaluates values, formulas and access modes but hands out neither all
 * properties nor the links. Nodes are named by their index. Immutable once parsed.
 */
class ZELTO_CAMERAS_EXPORT Description
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::Description)

public:
    /*! Parses \a xml. Throws Core::Exception::BaseException telling what is wrong and where. */
    explicit Description(const QByteArray &xml);

    /*! Returns the vendor's name as the description gives it. */
    QString vendorName() const;
    /*! Returns the model's name as the description gives it. */
    QString modelName() const;
    /*! Returns the standard name space, such as "GEV"; empty when there is none. */
    QString standardNameSpace() const;

    /*! Returns the number of nodes, those without a definition included. */
    int nodeCount() const;
    /*! Returns the node called \a name, -1 when there is none. */
    int indexOf(const QString &name) const;
    /*! Returns the name of \a node. */
    QString name(int node) const;

    /*! Returns the text of the node's element \a name, null when it has none. */
    QString property(int node, const QString &name) const;
    /*! As property(), but also looks at the node that gives \a node its value, if need be. */
    QString inheritedProperty(int node, const QString &name) const;

    /*! Returns the nodes that can be reached from "Root", which is the first, and their aliases. */
    const QList<int> &published() const;
    /*! Returns whether \a node can be reached from "Root". */
    bool isFeature(int node) const;
    /*! Returns what the category \a node lists, in its order. Links that would make the tree endless, too
     * deep or, by repeating categories, far larger than the description are left out. */
    QList<int> children(int node) const;
    /*! Returns the integer that mirrors the floating-point feature \a node, -1 when there is none. */
    int alias(int node) const;
    /*! Returns the node that holds the value of \a node, -1 when there is none. */
    int valueNode(int node) const;

    /*! Returns the names of the nodes that the selector \a node selects. */
    QStringList selected(int node) const;
    /*! Returns the published nodes that can change when \a node is written, without \a node. */
    QList<int> dependents(int node) const;
    /*! Returns the milliseconds after which \a node is due again, 0 when it is not polled. */
    int pollingTime(int node) const;
    /*! Returns the registers behind \a node whose length is the value of another node. */
    const QList<int> &sizedRegisters(int node) const;
    /*! Returns whether evaluating \a node leads into a circle of links, to a node that is missing or to a
     * register of an impossible length, or takes far too many steps. */
    bool isBroken(int node) const;
    /*! Returns whether the register \a node can be \a length bytes long at some time. */
    bool isPossibleLength(int node, qint64 length) const;
    /*! Returns the bytes of all registers that are read and have their length stated. */
    qint64 registerBytes() const;
    /*! Returns the nodes that have a formula with a division. */
    const QList<int> &dividing() const;

private:
    enum class LinkKind { Value, Evaluated, Related, Entry, Invalidator, Selected, Feature, Alias, Ignored };
    enum class RegisterKind { None, Integer, Float, Text, Other };

    struct Link
    {
        LinkKind kind = LinkKind::Related;
        int target = -1;
    };

    struct Node
    {
        QString name;
        std::vector<std::pair<QString, QString>> properties;
        std::vector<Link> links;
        RegisterKind registerKind = RegisterKind::None;
        int evaluations = 1; //!< that reading its value causes, counted up to a bound
        bool isDefined = false;
        bool hasLinkedLength = false;
    };

    class Reader;
    struct Formulas;
    struct Placing;

    static LinkKind linkKind(QStringView tag);
    static RegisterKind registerKind(QStringView tag);
    int intern(const QString &name);
    void readDocument(Reader &xml);
    void readNodes(Reader &xml, int depth);
    void readNode(Reader &xml, const QString &name, int owner);
    void readNodeElement(Reader &xml, int node, Formulas &formulas);
    void noteFormulas(int node, const Formulas &formulas);
    void collectFeatures();
    void place(int category, int depth, Placing &placing);
    bool placeBelow(int category, int node, int depth, Placing &placing);
    void reportLeftOut(const Placing &placing) const;
    void collectDependencies();
    std::vector<std::vector<int>> evaluators() const;
    bool hasBadLength(int node) const;
    void collectBroken();
    void collectCostly();
    int readingCost(int node, std::vector<int> &costs) const;
    bool isRead(int node) const;
    void countRegisterBytes();
    void collectPollingTimes();
    bool findCircle(int node, std::vector<char> &state, int depth);
    QList<int> closure(std::vector<int> changed, int without) const;

    QString m_vendorName;
    QString m_modelName;
    QString m_standardNameSpace;
    std::vector<Node> m_nodes;
    QHash<QString, int> m_indices;
    QList<int> m_published;
    QList<int> m_dividing;
    qint64 m_registerBytes = 0;
    std::vector<bool> m_isPublished;
    std::vector<bool> m_isFeature;
    std::vector<bool> m_isBroken;
    std::vector<QList<int>> m_sizedRegisters;
    std::vector<int> m_pollingTimes;
    std::vector<std::vector<int>> m_readers; //!< of each node, those that are affected by it
};

} // namespace Cameras
