// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreesearchindex_p.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"

#include <algorithm>

namespace {

// No text holds the byte that ends each, so nothing matches across two of them.
constexpr char textEnd = '\xff';

constexpr quint8 beyondLevels = GenApi::Invisible + 1;

bool isSearchable(const FeatureTreeItem &item)
{
    // The search row shows counts and is no row to be found.
    return !item.isCategory() && item.getFullName() != FeatureTreeNames::search
        && item.nodeName() != FeatureTreeNames::root;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character.unicode() < 0x80; });
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
    if (isAscii(text)) {
        return text.toLatin1().toLower();
    }
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const QChar character = result.at(i);
        if (character.isHighSurrogate() && i + 1 < result.size() && result.at(i + 1).isLowSurrogate()) {
            const char32_t folded = QChar::toCaseFolded(QChar::surrogateToUcs4(character, result.at(i + 1)));
            result[i] = QChar(QChar::highSurrogate(folded));
            result[++i] = QChar(QChar::lowSurrogate(folded));
        } else {
            result[i] = character.toCaseFolded();
        }
    }
    return result.toUtf8();
}

void FeatureTreeSearchIndex::build(FeatureTreeItem &root)
{
    *this = FeatureTreeSearchIndex();
    QHash<QString, int> numbers;
    addBelow(root, none, none, numbers);
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

void FeatureTreeSearchIndex::addBelow(FeatureTreeItem &parent, int row, int above,
                                      QHash<QString, int> &numbers)
{
    const int branch = static_cast<int>(m_branches.size());
    const int first = rowCount();
    const int count = parent.existingChildCount();
    m_branches.push_back({&parent, first, count, row, above});
    m_branchOf.insert(&parent, branch);
    for (int i = 0; i < count; ++i) {
        add(*parent.child(i), numbers);
    }
    for (int i = 0; i < count; ++i) {
        if (FeatureTreeItem &child = *parent.child(i); child.existingChildCount() > 0) {
            addBelow(child, first + i, branch, numbers);
        }
    }
}

void FeatureTreeSearchIndex::add(FeatureTreeItem &item, QHash<QString, int> &numbers)
{
    int number = none;
    if (isSearchable(item)) {
        const QString shown = item.displayText();
        const QString name = item.nodeName();
        m_text += folded(shown) + textEnd;
        if (name != shown) {
            m_text += folded(name) + textEnd;
        }
        // Hints and placeholders are no features.
        if (qobject_cast<const FeatureTreeINodeItem *>(&item)) {
            number = numbers.value(name, m_nameCount);
            if (number == m_nameCount) {
                numbers.insert(name, m_nameCount++);
            }
        }
    }
    m_names.push_back(number);
    m_textEnds.push_back(static_cast<quint32>(m_text.size()));
    m_states.push_back(State::of(item).value);
}
