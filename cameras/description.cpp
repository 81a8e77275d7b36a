// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "description_p.h"

#include <platform/core/exception.h>
#include <platform/core/logging.h>

#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.description")

namespace {

// Value chains beyond this length are no better than circles: the engine walks them by recursion.
constexpr int deepestChain = 500;
constexpr int deepestNesting = 32;
constexpr int mostRepeatedRows = 10000;

// Far beyond what cameras have, and what the engine can hold without taking all memory or hours.
constexpr int mostNodes = 100000;
constexpr int mostElements = 500000;
constexpr int deepestElement = 64;
constexpr int longestText = 1024 * 1024;
constexpr int mostEvaluations = 100000; // for one feature
constexpr int mostEvaluationsInAll = 2000000;
constexpr int lettersPerEvaluation = 1000; // of a formula: they take time, too

// What nobody asks for by name is not kept; it makes up most of a description.
bool isKept(QStringView tag)
{
    static const QStringView dropped[] = {
        u"Value",      u"Address",      u"LSB",          u"MSB",       u"Bit",        u"Sign", u"Endianess",
        u"Endianness", u"ValueIndexed", u"ValueDefault", u"Extension", u"AccessMode", u"Slope"};
    return std::find(std::begin(dropped), std::end(dropped), tag) == std::end(dropped);
}

// Returns where the edges lead to from the nodes, which come first.
std::vector<int> reached(std::vector<int> nodes, const std::vector<std::vector<int>> &edges)
{
    std::vector<bool> isReached(edges.size());
    for (const int node : nodes) {
        isReached[node] = true;
    }
    for (size_t i = 0; i < nodes.size(); ++i) {
        for (const int next : edges[nodes[i]]) {
            if (!isReached[next]) {
                isReached[next] = true;
                nodes.push_back(next);
            }
        }
    }
    return nodes;
}

// Conditions and limits, which are evaluated beside the value.
bool isBesideValue(Description::LinkKind kind)
{
    return kind >= Description::LinkKind::Implemented && kind <= Description::LinkKind::Related;
}

int sumUpToBound(qint64 first, qint64 second)
{
    return int(std::min<qint64>(first + second, mostEvaluations + 1));
}

} // namespace

/*! \brief Reads a description as far as it keeps within bounds. */
class Description::Reader : public QXmlStreamReader
{
public:
    using QXmlStreamReader::QXmlStreamReader;

    /*! Goes to the next start of an element here. Returns false at the end of the element around it. */
    bool nextStart()
    {
        while (next() != EndElement && !atEnd()) {
            if (isStartElement()) {
                return true;
            }
        }
        return false;
    }

    /*! Goes to the end of the element that has just begun. Returns the text in it but for that of elements
     * in it; valid until the next call. */
    QStringView text()
    {
        m_text.resize(0); // which keeps the memory
        for (const int depth = m_depth; m_depth >= depth && !atEnd();) {
            if (next() == Characters && m_depth == depth) {
                m_text += QXmlStreamReader::text();
            }
        }
        return QStringView(m_text).trimmed();
    }

    void skip()
    {
        for (const int depth = m_depth; m_depth >= depth && !atEnd();) {
            next();
        }
    }

    TokenType next()
    {
        const TokenType token = readNext();
        if (token == DTD) {
            raiseError(tr("document type declarations are not allowed"));
        } else if (token == Characters && QXmlStreamReader::text().size() > longestText) {
            raiseError(tr("a text is longer than %1 characters").arg(longestText));
        } else if (token == EndElement) {
            --m_depth;
        } else if (token == StartElement && ++m_depth > deepestElement) {
            raiseError(tr("elements nest more than %1 deep").arg(deepestElement));
        } else if (token == StartElement && ++m_elements > mostElements) {
            raiseError(tr("there are more than %1 elements").arg(mostElements));
        }
        return hasError() ? Invalid : token;
    }

private:
    QString m_text;
    int m_depth = 0;
    int m_elements = 0;
};

/*! \brief The formulas of one node, by name when they are parts of others. */
struct Description::Formulas
{
    QStringList texts;
    std::vector<std::pair<QString, QString>> parts;
};

Description::Description(const QByteArray &xml)
{
    m_nodes.reserve(std::min<qsizetype>(xml.size() / 250, mostNodes));
    Reader reader(xml);
    readDocument(reader);
    if (reader.hasError()) {
        throw Core::Exception::BaseException(
            tr("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
    }
    collectFeatures();
    collectDependencies();
    collectBroken();
    collectCostly();
    countRegisterBytes();
    collectPollingTimes();
}

Description::LinkKind Description::linkKind(QStringView tag)
{
    struct Entry
    {
        QStringView tag;
        LinkKind kind;
    };
    static constexpr Entry table[] = {
        {u"pInvalidator", LinkKind::Invalidator},
        {u"pVariable", LinkKind::Evaluated},
        {u"pAddress", LinkKind::Evaluated},
        {u"pPort", LinkKind::Ignored},
        {u"pIsImplemented", LinkKind::Implemented},
        {u"pIsAvailable", LinkKind::Available},
        {u"pIsLocked", LinkKind::Locked},
        {u"pFeature", LinkKind::Feature},
        {u"pValue", LinkKind::Value},
        {u"pSelected", LinkKind::Selected},
        {u"pMax", LinkKind::Maximum},
        {u"pMin", LinkKind::Minimum},
        {u"pInc", LinkKind::Increment},
        {u"pAlias", LinkKind::Alias},
        {u"pCastAlias", LinkKind::Alias},
        {u"pIndex", LinkKind::Evaluated},
        {u"pLength", LinkKind::Evaluated},
        {u"pValueIndexed", LinkKind::Value},
        {u"pValueDefault", LinkKind::Value},
        {u"pValueCopy", LinkKind::Value},
        {u"pCommandValue", LinkKind::Related},
        {u"pTerminal", LinkKind::Ignored},
        {u"pDependent", LinkKind::Ignored},
        {u"pSelecting", LinkKind::Ignored},
        {u"pError", LinkKind::Ignored},
        {u"pBlockPolling", LinkKind::Ignored},
        {u"pVisibility", LinkKind::Ignored},
    };
    const auto *found = std::find_if(std::begin(table), std::end(table),
                                     [tag](const Entry &entry) { return entry.tag == tag; });
    return found == std::end(table) ? LinkKind::Related : found->kind;
}

Description::RegisterKind Description::registerKind(QStringView tag)
{
    if (tag == QLatin1String("IntReg") || tag == QLatin1String("MaskedIntReg")
        || tag == QLatin1String("StructReg")) {
        return RegisterKind::Integer;
    }
    if (tag == QLatin1String("FloatReg")) {
        return RegisterKind::Float;
    }
    if (tag == QLatin1String("StringReg")) {
        return RegisterKind::Text;
    }
    return tag == QLatin1String("Register") ? RegisterKind::Other : RegisterKind::None;
}

int Description::intern(QStringView name)
{
    const auto found = m_indices.constFind(name);
    if (found != m_indices.constEnd()) {
        return *found;
    }
    const int index = int(m_nodes.size());
    m_nodes.emplace_back().name = name.toString();
    m_indices.insert(m_nodes.back().name, index);
    return index;
}

void Description::readDocument(Reader &xml)
{
    while (!xml.atEnd() && !xml.isStartElement()) {
        xml.next();
    }
    if (xml.hasError()) {
        return;
    }
    if (xml.name() != QLatin1String("RegisterDescription")) {
        xml.raiseError(tr("this is no camera description"));
        return;
    }
    const QXmlStreamAttributes attributes = xml.attributes();
    m_vendorName = attributes.value(QLatin1String("VendorName")).toString();
    m_modelName = attributes.value(QLatin1String("ModelName")).toString();
    m_standardNameSpace = attributes.value(QLatin1String("StandardNameSpace")).toString();
    if (m_standardNameSpace == QLatin1String("None")) {
        m_standardNameSpace.clear();
    }
    readNodes(xml, 0);
    while (!xml.atEnd()) {
        xml.next();
    }
}

// Reads the nodes below the description itself or below one of its groups.
void Description::readNodes(Reader &xml, int depth)
{
    while (xml.nextStart()) {
        if (xml.name() == QLatin1String("Group") && depth < deepestNesting) {
            readNodes(xml, depth + 1);
            continue;
        }
        QString name = xml.attributes().value(QLatin1String("Name")).toString();
        if (name.isEmpty() && xml.name() == QLatin1String("StructReg")) {
            // Only the entries of such a register have names.
            name = QStringLiteral("/StructReg%1").arg(m_nodes.size());
        }
        if (name.isEmpty()) {
            xml.skip();
        } else {
            readNode(xml, name, -1);
        }
        if (m_nodes.size() > mostNodes) {
            xml.raiseError(tr("there are more than %1 nodes").arg(mostNodes));
        }
    }
}

void Description::readNode(Reader &xml, const QString &name, int owner)
{
    const int node = intern(name);
    m_nodes[node].isDefined = true;
    m_nodes[node].registerKind = registerKind(xml.name());
    if (owner >= 0 && xml.name() == QLatin1String("StructEntry")) {
        // An entry is a part of its register: address, access and invalidators are the register's.
        m_nodes[node].links.push_back({LinkKind::Evaluated, owner});
    } else if (owner >= 0) {
        m_nodes[owner].links.push_back({LinkKind::Entry, node});
    }
    Formulas formulas;
    while (xml.nextStart()) {
        const bool isEntry =
            xml.name() == QLatin1String("EnumEntry") || xml.name() == QLatin1String("StructEntry");
        if (isEntry && owner >= 0) {
            // Entries have no entries.
            xml.skip();
        } else {
            readNodeElement(xml, node, formulas);
        }
    }
    noteFormulas(node, formulas);
}

void Description::noteFormulas(int node, const Formulas &formulas)
{
    qint64 letters = 0;
    for (const QString &text : formulas.texts) {
        letters += text.size();
        for (const auto &[name, part] : formulas.parts) {
            letters += name.isEmpty() ? 0 : text.count(name) * part.size();
        }
    }
    m_nodes[node].evaluations = sumUpToBound(1, letters / lettersPerEvaluation);
    if (!formulas.texts.isEmpty()) {
        m_formulas.append(node);
    }
}

void Description::readNodeElement(Reader &xml, int node, Formulas &formulas)
{
    const QStringView tag = xml.name();
    if (tag == QLatin1String("EnumEntry") || tag == QLatin1String("StructEntry")) {
        const QString entry = xml.attributes().value(QLatin1String("Name")).toString();
        // Entries of different enumerations share their names.
        readNode(xml,
                 tag == QLatin1String("EnumEntry") ? m_nodes[node].name + QLatin1Char('/') + entry : entry,
                 node);
        return;
    }
    const bool isLink = tag.size() > 1 && tag[0] == QLatin1Char('p') && tag[1].isUpper();
    if (isLink) {
        const LinkKind kind = linkKind(tag);
        const QXmlStreamAttributes attributes = xml.attributes();
        if (const QStringView offset = attributes.value(QLatin1String("pOffset")); !offset.isEmpty()) {
            m_nodes[node].links.push_back({LinkKind::Evaluated, intern(offset)});
        }
        if (kind == LinkKind::Ignored) {
            xml.skip();
            return;
        }
        m_nodes[node].hasLinkedLength = m_nodes[node].hasLinkedLength || tag == QLatin1String("pLength");
        const int target = intern(xml.text());
        m_nodes[node].links.push_back({kind, target});
        return;
    }
    if (tag == QLatin1String("Expression") || tag == QLatin1String("Constant")) {
        const QString name = xml.attributes().value(QLatin1String("Name")).toString();
        formulas.parts.emplace_back(name, xml.text().toString());
        return;
    }
    if (tag.startsWith(QLatin1String("Formula"))) {
        formulas.texts.append(xml.text().toString());
        return;
    }
    if (!isKept(tag)) {
        xml.skip();
        return;
    }
    const QString key = tag.toString();
    m_nodes[node].properties.emplace_back(key, xml.text().toString());
}

/*! \brief The state of the walk that gives each category its first place in the tree. */
struct Description::Placing
{
    explicit Placing(size_t nodeCount)
        : isOnPath(nodeCount)
        , rows(nodeCount, 0)
        , height(nodeCount, 0)
    {
    }

    std::vector<bool> isOnPath;
    std::vector<int> rows; //!< below each node, those of repeated categories included
    std::vector<int> height; //!< levels below each node
    int repeatedRows = 0; //!< below the further places of categories
    QStringList leftOut;
};

void Description::collectFeatures()
{
    const int root = indexOf(QStringLiteral("Root"));
    if (root < 0) {
        throw Core::Exception::BaseException(tr("the description has no category \"Root\""));
    }
    m_isFeature.assign(m_nodes.size(), false);
    Placing placing(m_nodes.size());
    place(root, 0, placing);
    reportLeftOut(placing);
    m_isPublished = m_isFeature;
    for (int i = 0; i < m_published.size(); ++i) {
        const int mirrored = alias(m_published[i]);
        if (mirrored >= 0 && !m_isPublished[mirrored]) {
            m_isPublished[mirrored] = true;
            m_published.append(mirrored);
        }
    }
}

void Description::place(int category, int depth, Placing &placing)
{
    m_isFeature[category] = true;
    m_published.append(category);
    placing.isOnPath[category] = true;
    std::vector<Link> kept;
    for (const Link &link : std::exchange(m_nodes[category].links, {})) {
        if (link.kind != LinkKind::Feature || placeBelow(category, link.target, depth + 1, placing)) {
            kept.push_back(link);
        }
    }
    m_nodes[category].links = std::move(kept);
    placing.isOnPath[category] = false;
}

// Returns false when the node must not stand below the category. A category may stand in several places with
// all that is below it, but places that nest into each other multiply.
bool Description::placeBelow(int category, int node, int depth, Placing &placing)
{
    if (!m_nodes[node].isDefined) {
        return false;
    }
    const int repeatedRows =
        m_isFeature[node] ? placing.repeatedRows + placing.rows[node] : placing.repeatedRows;
    if (placing.isOnPath[node] || depth + placing.height[node] > deepestNesting
        || repeatedRows > mostRepeatedRows) {
        placing.leftOut.append(m_nodes[category].name + QLatin1Char('/') + m_nodes[node].name);
        return false;
    }
    placing.repeatedRows = repeatedRows;
    if (!m_isFeature[node]) {
        place(node, depth, placing);
    }
    placing.rows[category] += 1 + placing.rows[node];
    placing.height[category] = std::max(placing.height[category], 1 + placing.height[node]);
    return true;
}

void Description::reportLeftOut(const Placing &placing) const
{
    if (placing.leftOut.isEmpty()) {
        return;
    }
    Core::Logging::createLogEntry(
        Core::Logging::ELogLevel::Warning, logCategory(),
        QStringLiteral(
            "%1 entries of categories are left out of the tree of %2: they lead back up, nest more "
            "than %3 deep or repeat more than %4 rows (%5)")
            .arg(placing.leftOut.size())
            .arg(m_modelName)
            .arg(deepestNesting)
            .arg(mostRepeatedRows)
            .arg(placing.leftOut.first()));
}

void Description::collectDependencies()
{
    m_readers.resize(m_nodes.size());
    for (int node = 0; node < nodeCount(); ++node) {
        for (const Link &link : m_nodes[node].links) {
            if (link.kind == LinkKind::Selected) {
                m_readers[node].push_back(link.target);
            } else if (link.kind != LinkKind::Feature) {
                m_readers[link.target].push_back(node);
            }
            if (link.kind == LinkKind::Alias) {
                m_readers[node].push_back(link.target);
            }
        }
    }
}

// Who evaluates a node comes to grief with it, be it for a limit or an access mode alone.
std::vector<std::vector<int>> Description::evaluators() const
{
    std::vector<std::vector<int>> found(m_nodes.size());
    for (int node = 0; node < nodeCount(); ++node) {
        for (const Link &link : m_nodes[node].links) {
            if (link.kind == LinkKind::Value || link.kind == LinkKind::Evaluated || isBesideValue(link.kind)
                || link.kind == LinkKind::Entry) {
                found[link.target].push_back(node);
            }
        }
    }
    return found;
}

void Description::collectBroken()
{
    const auto edges = evaluators();
    m_sizedRegisters.resize(m_nodes.size());
    for (int node = 0; node < nodeCount(); ++node) {
        if (m_nodes[node].hasLinkedLength) {
            for (const int reader : reached({node}, edges)) {
                m_sizedRegisters[reader].append(node);
            }
        }
    }
    m_isBroken.assign(m_nodes.size(), false);
    std::vector<char> state(m_nodes.size(), 0);
    std::vector<int> broken;
    for (int node = 0; node < nodeCount(); ++node) {
        if (findCircle(node, state, 0)) {
            broken.push_back(node);
        }
    }
    for (const int node : reached(std::move(broken), edges)) {
        m_isBroken[node] = true;
    }
}

// The engine allocates what a length says, ends the program when it cannot, and takes what lies behind the
// register for a number that is longer.
bool Description::isPossibleLength(int node, qint64 length) const
{
    switch (m_nodes[node].registerKind) {
    case RegisterKind::Integer:
        return length >= 1 && length <= 8;
    case RegisterKind::Float:
        return length == 4 || length == 8;
    default:
        return length >= 0 && length <= largestRegister;
    }
}

bool Description::hasBadLength(int node) const
{
    for (const auto &[key, text] : m_nodes[node].properties) {
        bool ok = true;
        const qint64 length = key == QLatin1String("Length") ? text.toLongLong(&ok, 0) : 0;
        if (!ok || (key == QLatin1String("Length") && (length == 0 || !isPossibleLength(node, length)))) {
            return true;
        }
    }
    // Nobody could tell which of two lengths to look at first.
    return m_nodes[node].hasLinkedLength && m_sizedRegisters[node].size() > 1;
}

bool Description::findCircle(int node, std::vector<char> &state, int depth)
{
    enum { Unseen, OnPath, Done };
    if (state[node] == Done) {
        return m_isBroken[node];
    }
    if (state[node] == OnPath || depth > deepestChain) {
        return true;
    }
    state[node] = OnPath;
    bool found = hasBadLength(node);
    for (const Link &link : m_nodes[node].links) {
        const bool isEvaluated = link.kind == LinkKind::Value || link.kind == LinkKind::Evaluated;
        if (!isEvaluated) {
            continue;
        }
        if (!m_nodes[link.target].isDefined || findCircle(link.target, state, depth + 1)) {
            found = true;
        }
        m_nodes[node].evaluations = sumUpToBound(m_nodes[node].evaluations, m_nodes[link.target].evaluations);
    }
    m_isBroken[node] = found;
    state[node] = Done;
    return found;
}

// Formulas that use others several times multiply; it is the paths that take the time.
void Description::collectCostly()
{
    std::vector<int> costs(m_nodes.size(), 0);
    QStringList costly;
    int inAll = 0;
    for (const int node : std::as_const(m_published)) {
        const int cost = readingCost(node, costs);
        if (cost > mostEvaluations || inAll + cost > mostEvaluationsInAll) {
            m_isBroken[node] = true;
            costly.append(m_nodes[node].name);
        } else {
            inAll += cost;
        }
    }
    if (!costly.isEmpty()) {
        Core::Logging::createLogEntry(
            Core::Logging::ELogLevel::Warning, logCategory(),
            tr("%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)", nullptr,
               int(costly.size()))
                .arg(m_modelName)
                .arg(mostEvaluations)
                .arg(mostEvaluationsInAll)
                .arg(costly.first()));
    }
}

// Values of links are read; of what holds the value and of entries, their limits and conditions, too.
int Description::readingCost(int node, std::vector<int> &costs) const
{
    if (m_isBroken[node]) {
        return 0;
    }
    if (costs[node] == 0) {
        int cost = m_nodes[node].evaluations;
        costs[node] = cost; // an entry may lead back here
        for (const Link &link : m_nodes[node].links) {
            if (link.kind == LinkKind::Value || link.kind == LinkKind::Entry) {
                cost = sumUpToBound(cost, readingCost(link.target, costs));
            } else if (isBesideValue(link.kind)) {
                cost = sumUpToBound(cost, m_nodes[link.target].evaluations);
            }
        }
        costs[node] = cost;
    }
    return costs[node];
}

// Of a plain register no more than some bytes are shown, others are left alone.
bool Description::isRead(int node) const
{
    const RegisterKind kind = m_nodes[node].registerKind;
    return kind != RegisterKind::None && !m_isBroken[node]
        && (kind != RegisterKind::Other
            || property(node, QStringLiteral("Length")).toLongLong(nullptr, 0) <= longestShownRegister);
}

void Description::countRegisterBytes()
{
    std::vector<std::vector<int>> edges(m_nodes.size());
    for (int node = 0; node < nodeCount(); ++node) {
        for (const Link &link : m_nodes[node].links) {
            if (link.kind != LinkKind::Invalidator && link.kind != LinkKind::Selected) {
                edges[node].push_back(link.target);
            }
        }
    }
    for (const int node : reached({m_published.cbegin(), m_published.cend()}, edges)) {
        if (isRead(node)) {
            m_registerBytes += property(node, QStringLiteral("Length")).toLongLong(nullptr, 0);
        }
    }
    if (m_registerBytes > mostRegisterBytes) {
        throw Core::Exception::BaseException(
            tr("the registers take more than %1 MiB").arg(mostRegisterBytes / 1024 / 1024));
    }
}

void Description::collectPollingTimes()
{
    m_pollingTimes.assign(m_nodes.size(), 0);
    for (int node = 0; node < nodeCount(); ++node) {
        const int time = property(node, QStringLiteral("PollingTime")).toInt();
        if (time <= 0) {
            continue;
        }
        QList<int> polled = closure({node}, node);
        polled.append(node);
        for (const int due : std::as_const(polled)) {
            int &shortest = m_pollingTimes[due];
            shortest = shortest == 0 ? time : std::min(shortest, time);
        }
    }
}

QString Description::vendorName() const
{
    return m_vendorName;
}

QString Description::modelName() const
{
    return m_modelName;
}

QString Description::standardNameSpace() const
{
    return m_standardNameSpace;
}

int Description::nodeCount() const
{
    return int(m_nodes.size());
}

int Description::indexOf(const QString &name) const
{
    const int node = m_indices.value(name, -1);
    return node >= 0 && m_nodes[node].isDefined ? node : -1;
}

QString Description::name(int node) const
{
    return m_nodes[node].name;
}

QString Description::property(int node, const QString &name) const
{
    for (const auto &[key, text] : m_nodes[node].properties) {
        if (key == name) {
            return text;
        }
    }
    return {};
}

QString Description::inheritedProperty(int node, const QString &name) const
{
    for (int steps = 0; node >= 0 && steps < deepestChain; ++steps) {
        QString text = property(node, name);
        if (!text.isEmpty()) {
            return text;
        }
        node = valueNode(node);
    }
    return {};
}

const QList<int> &Description::published() const
{
    return m_published;
}

bool Description::isFeature(int node) const
{
    return m_isFeature[node];
}

QList<int> Description::children(int node) const
{
    QList<int> found;
    for (const Link &link : m_nodes[node].links) {
        if (link.kind == LinkKind::Feature && m_isFeature[link.target]) {
            found.append(link.target);
        }
    }
    return found;
}

int Description::alias(int node) const
{
    for (const Link &link : m_nodes[node].links) {
        if (link.kind == LinkKind::Alias && m_nodes[link.target].isDefined) {
            return link.target;
        }
    }
    return -1;
}

int Description::valueNode(int node) const
{
    for (const Link &link : m_nodes[node].links) {
        if (link.kind == LinkKind::Value) {
            return link.target;
        }
    }
    return -1;
}

QList<int> Description::linked(int node, LinkKind kind) const
{
    QList<int> found;
    for (const Link &link : m_nodes[node].links) {
        if (link.kind == kind) {
            found.append(link.target);
        }
    }
    return found;
}

QStringList Description::selected(int node) const
{
    QStringList names;
    for (const Link &link : m_nodes[node].links) {
        if (link.kind == LinkKind::Selected) {
            names.append(m_nodes[link.target].name);
        }
    }
    return names;
}

QList<int> Description::dependents(int node) const
{
    // A write goes down to the nodes that hold the value; whoever reads one of those is affected.
    std::vector<int> written{node};
    std::vector<bool> isWritten(m_nodes.size());
    isWritten[node] = true;
    for (size_t i = 0; i < written.size(); ++i) {
        for (const Link &link : m_nodes[written[i]].links) {
            if (link.kind == LinkKind::Value && !isWritten[link.target]) {
                isWritten[link.target] = true;
                written.push_back(link.target);
            }
        }
    }
    return closure(std::move(written), node);
}

QList<int> Description::closure(std::vector<int> changed, int without) const
{
    QList<int> found;
    for (const int node : reached(std::move(changed), m_readers)) {
        if (node != without && m_isPublished[node]) {
            found.append(node);
        }
    }
    return found;
}

int Description::pollingTime(int node) const
{
    return m_pollingTimes[node];
}

const QList<int> &Description::sizedRegisters(int node) const
{
    return m_sizedRegisters[node];
}

bool Description::isBroken(int node) const
{
    return m_isBroken[node];
}

int Description::evaluations(int node) const
{
    return m_nodes[node].evaluations;
}

qint64 Description::registerBytes() const
{
    return m_registerBytes;
}

const QList<int> &Description::formulas() const
{
    return m_formulas;
}

} // namespace Cameras
