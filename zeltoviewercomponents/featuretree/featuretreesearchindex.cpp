// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreesearchindex_p.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"

#include <algorithm>
#include <utility>

namespace {

// No text holds the byte that ends each, so nothing matches across two of them.
constexpr char textEnd = '\xff';

constexpr quint8 beyondLevels = GenApi::Invisible + 1;

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.unicode() < 0x80; });
}

QString foldedCase(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            const char32_t folded = QChar::toCaseFolded(QChar::surrogateToUcs4(character, text.at(i + 1)));
            text[i] = QChar(QChar::highSurrogate(folded));
            text[++i] = QChar(QChar::lowSurrogate(folded));
        } else {
            text[i] = character.toCaseFolded();
        }
    }
    return text;
}

// Nearly all names are ASCII, and all of them go through here before the first key shows.
void appendFolded(QByteArray &to, const QString &text)
{
    if (!isAscii(text)) {
        to += foldedCase(text).toUtf8();
        return;
    }
    const qsizetype begin = to.size();
    to.resize(begin + text.size());
    std::transform(text.cbegin(), text.cend(), to.data() + begin, [](QChar character) {
        const char16_t letter = character.unicode();
        return static_cast<char>(letter >= u'A' && letter <= u'Z' ? letter - u'A' + u'a' : letter);
    });
}

} // namespace

FeatureTreeSearchIndex::State FeatureTreeSearchIndex::State::of(FeatureTreeItem &item)
{
    const GenApi::EVisibility visibility = item.getVisibility();
    const bool isLevel = visibility >= GenApi::Beginner && visibility <= GenApi::Invisible;
    const unsigned code = isLevel ? static_cast<unsigned>(visibility) : beyondLevels;
    return {static_cast<quint8>((code << 1U) | (item.ShowMe(GenApi::Guru) ? 1U : 0U))};
}

GenApi::EVisibility FeatureTreeSearchIndex::State::visibility() const
{
    const unsigned code = static_cast<unsigned>(value) >> 1U;
    return code < beyondLevels ? static_cast<GenApi::EVisibility>(code) : GenApi::UndefinedVisibility;
}

QByteArray FeatureTreeSearchIndex::folded(const QString &text)
{
    QByteArray result;
    appendFolded(result, text);
    return result;
}

void FeatureTreeSearchIndex::build(FeatureTreeItem &root, const Loader &load)
{
    const int lastCount = rowCount();
    *this = FeatureTreeSearchIndex();
    Numbers numbers;
    numbers.reserve(lastCount);
    addBelow(root, none, none, load, numbers);
    m_text.squeeze();
    m_textEnds.shrink_to_fit();
    m_names.shrink_to_fit();
    m_states.shrink_to_fit();
    m_treeRevision = FeatureTreeItem::treeRevision();
    m_stateRevision = FeatureTreeItem::stateRevision();
}

bool FeatureTreeSearchIndex::isCurrent() const
{
    return m_treeRevision == FeatureTreeItem::treeRevision();
}

void FeatureTreeSearchIndex::updateStates()
{
    if (m_stateRevision == FeatureTreeItem::stateRevision()) {
        return;
    }
    m_stateRevision = FeatureTreeItem::stateRevision();
    for (const Branch &branch : m_branches) {
        for (int i = 0; i < branch.count; ++i) {
            m_states[static_cast<size_t>(branch.first + i)] = State::of(*branch.item->child(i)).value;
        }
    }
}

const FeatureTreeSearchIndex::Branch *FeatureTreeSearchIndex::branchOf(const FeatureTreeItem *item) const
{
    const auto found = m_branchOf.constFind(item);
    return found == m_branchOf.cend() ? nullptr : &m_branches[static_cast<size_t>(*found)];
}

int FeatureTreeSearchIndex::firstRowOf(const FeatureTreeItem *parent) const
{
    const Branch *const branch = branchOf(parent);
    return branch ? branch->first : none;
}

void FeatureTreeSearchIndex::addBelow(FeatureTreeItem &parent, int row, int above, const Loader &load,
                                      Numbers &numbers)
{
    const int branch = static_cast<int>(m_branches.size());
    const int first = rowCount();
    const int count = parent.existingChildCount();
    m_branches.push_back({&parent, first, count, row, above});
    m_branchOf.insert(&parent, branch);
    QList<int> categories;
    for (int i = 0; i < count; ++i) {
        FeatureTreeItem &child = *parent.child(i);
        add(child, numbers);
        if (child.hasChildren()) {
            categories.append(i);
        }
    }
    m_branches[static_cast<size_t>(branch)].hasCategories = !categories.isEmpty();
    for (const int i : std::as_const(categories)) {
        FeatureTreeItem &child = *parent.child(i);
        load(child);
        if (child.existingChildCount() > 0) {
            addBelow(child, first + i, branch, load, numbers);
        }
    }
}

void FeatureTreeSearchIndex::add(FeatureTreeItem &item, Numbers &numbers)
{
    const QString name = item.nodeName();
    int number = none;
    // The search row shows counts and is no row to be found.
    const bool isSearchRow = name == FeatureTreeNames::search && item.getFullName() == name;
    if (!item.isCategory() && name != FeatureTreeNames::root && !isSearchRow) {
        const QString shown = item.displayText();
        appendFolded(m_text, shown);
        m_text += textEnd;
        if (name != shown) {
            appendFolded(m_text, name);
            m_text += textEnd;
        }
        // Hints and placeholders are no features.
        if (qobject_cast<const FeatureTreeINodeItem *>(&item)) {
            number = numberOf(name, numbers);
        }
    }
    m_names.push_back(number);
    m_textEnds.push_back(static_cast<quint32>(m_text.size()));
    m_states.push_back(State::of(item).value);
}

int FeatureTreeSearchIndex::numberOf(const QString &name, Numbers &numbers)
{
    const qsizetype known = numbers.size();
    int &number = numbers[name];
    if (numbers.size() > known) {
        number = m_nameCount++;
    }
    return number;
}
