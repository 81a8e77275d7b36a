// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreefilter_p.h"

#include "featuretreeitem.h"
#include "featuretreenames.h"

#include <algorithm>
#include <utility>

using Index = FeatureTreeSearchIndex;

namespace {

FeatureTreeItem &rootOf(FeatureTreeItem &item)
{
    FeatureTreeItem *root = &item;
    while (FeatureTreeItem *const above = root->parent()) {
        root = above;
    }
    return *root;
}

bool isSearchRow(const FeatureTreeItem &item)
{
    return item.getFullName() == FeatureTreeNames::search;
}

bool isFavoritesRoot(const FeatureTreeItem &item)
{
    return item.getFullName() == FeatureTreeNames::favoritesTopLevel;
}

} // namespace

FeatureTreeFilter::FeatureTreeFilter(Loader load)
    : m_load(std::move(load))
{
}

void FeatureTreeFilter::setLevel(GenApi::EVisibility level)
{
    m_level = level;
    expire();
}

void FeatureTreeFilter::setText(const QString &text, const QRegularExpression &expression)
{
    take(expression);
    m_text = Index::folded(text);
}

void FeatureTreeFilter::setExpression(const QRegularExpression &expression)
{
    take(expression);
    m_text.reset();
}

void FeatureTreeFilter::take(const QRegularExpression &expression)
{
    m_expression = expression;
    m_hasText = !expression.pattern().isEmpty();
    expire();
}

void FeatureTreeFilter::reset()
{
    m_index = Index();
    m_verdicts.clear();
    m_lastParent = nullptr;
    expire();
}

bool FeatureTreeFilter::judge(FeatureTreeItem &root)
{
    m_isExpired = false;
    const bool isNumbered = m_index.isCurrent();
    if (hasText() && !isNumbered) {
        m_index.build(root, m_load);
        m_lastParent = nullptr;
    }
    m_matched.assign(static_cast<size_t>(m_index.nameCount()), Matched::No);
    m_visibleCount = 0;
    m_hiddenCount = 0;
    if (!m_index.isCurrent()) {
        m_verdicts.clear();
        return true; // rows are judged as they are asked for
    }
    m_index.updateStates();
    for (size_t value = 0; value < m_rules.size(); ++value) {
        m_rules[value] = ruleOf({static_cast<quint8>(value)});
    }
    const std::vector<quint8> before =
        std::exchange(m_verdicts, std::vector<quint8>(static_cast<size_t>(m_index.rowCount()), 0));
    hasText() ? judgeHits() : judgeRows();
    judgeBranches();
    return !isNumbered || m_verdicts != before;
}

// Without a text.
void FeatureTreeFilter::judgeRows()
{
    for (int row = 0; row < m_index.rowCount(); ++row) {
        m_verdicts[static_cast<size_t>(row)] = m_index.hasText(row) && rule(row).passes ? 1 : 0;
    }
}

void FeatureTreeFilter::judgeHits()
{
    // The highest visibility among a branch's item and what stands above it.
    std::vector<GenApi::EVisibility> above;
    above.reserve(m_index.branches().size());
    for (const Index::Branch &branch : m_index.branches()) {
        above.push_back(branch.row == Index::none ? GenApi::Beginner
                                                  : std::max(above[static_cast<size_t>(branch.above)],
                                                             rule(branch.row).visibility));
    }
    auto branch = m_index.branches().cbegin();
    forEachHit([&](int row) {
        while (row >= branch->first + branch->count) {
            ++branch;
        }
        m_verdicts[static_cast<size_t>(row)] = rule(row).passes ? 1 : 0;
        countHit(row, above[static_cast<size_t>(branch - m_index.branches().cbegin())]);
    });
}

// From the lowest branches up: an item passes with any of its children.
void FeatureTreeFilter::judgeBranches()
{
    for (auto branch = m_index.branches().crbegin(); branch != m_index.branches().crend(); ++branch) {
        if (branch->row == Index::none) {
            continue;
        }
        const auto first = m_verdicts.cbegin() + branch->first;
        const bool passes = std::find(first, first + branch->count, 1) != first + branch->count
            || (!hasText() && isFavoritesRoot(*branch->item));
        m_verdicts[static_cast<size_t>(branch->row)] |= passes ? 1 : 0;
    }
}

template <typename Visit>
void FeatureTreeFilter::forEachHit(Visit visit) const
{
    if (m_text) {
        m_index.forEachHit(*m_text, visit);
        return;
    }
    for (const Index::Branch &branch : m_index.branches()) {
        for (int i = 0; i < branch.count; ++i) {
            if (m_index.hasText(branch.first + i) && isHit(*branch.item->child(i))) {
                visit(branch.first + i);
            }
        }
    }
}

void FeatureTreeFilter::countHit(int row, GenApi::EVisibility visibilityAbove)
{
    const int name = m_index.name(row);
    if (name == Index::none) {
        return;
    }
    Matched &matched = m_matched[static_cast<size_t>(name)];
    const GenApi::EVisibility visibility = std::max(visibilityAbove, rule(row).visibility);
    // A feature may stand in several places; where it is in sight decides.
    if (visibility <= m_level && matched != Matched::Visibly) {
        m_hiddenCount -= matched == Matched::Hidden ? 1 : 0;
        ++m_visibleCount;
        matched = Matched::Visibly;
    } else if (visibility > m_level && visibility < GenApi::Invisible && matched == Matched::No) {
        ++m_hiddenCount;
        matched = Matched::Hidden;
    }
}

QSet<QString> FeatureTreeFilter::namesOf(Matched matched) const
{
    QSet<QString> names;
    for (const Index::Branch &branch : m_index.branches()) {
        for (int i = 0; i < branch.count; ++i) {
            const int name = m_index.name(branch.first + i);
            if (name != Index::none && m_matched[static_cast<size_t>(name)] == matched) {
                names.insert(branch.item->child(i)->nodeName());
            }
        }
    }
    return names;
}

FeatureTreeFilter::Rule FeatureTreeFilter::ruleOf(Index::State state) const
{
    const GenApi::EVisibility visibility = state.visibility();
    const bool isShown = m_level == GenApi::Invisible || state.isShownAtAll();
    return {isShown && visibility <= m_level,
            isShown || visibility == GenApi::Invisible ? visibility : GenApi::UndefinedVisibility};
}

bool FeatureTreeFilter::accepts(FeatureTreeItem &parent, int row)
{
    if (m_isExpired || isOutdated()) {
        judge(rootOf(parent));
    }
    return accepted(parent, row);
}

bool FeatureTreeFilter::isAboveLeaves(const FeatureTreeItem &parent) const
{
    const Index::Branch *const branch = m_index.isCurrent() ? m_index.branchOf(&parent) : nullptr;
    return branch && !branch->hasCategories;
}

bool FeatureTreeFilter::accepted(FeatureTreeItem &parent, int row)
{
    const bool isCurrent = m_index.isCurrent();
    if (isCurrent && &parent == m_lastParent) {
        return m_verdicts[static_cast<size_t>(m_lastFirst + row)] != 0;
    }
    if (!parent.parent() && isSearchRow(*parent.child(row))) {
        return isShownSearchRow(*parent.child(row));
    }
    if (isCurrent) {
        const int number = numberOf(parent, row);
        return number != Index::none && m_verdicts[static_cast<size_t>(number)] != 0;
    }
    return !hasText() && judgeAlone(*parent.child(row));
}

int FeatureTreeFilter::numberOf(const FeatureTreeItem &parent, int row)
{
    const int first = m_index.firstRowOf(&parent);
    if (first == Index::none) {
        return first;
    }
    if (parent.parent()) { // the search row among the top rows has its own verdict
        m_lastParent = &parent;
        m_lastFirst = first;
    }
    return first + row;
}

bool FeatureTreeFilter::judgeAlone(FeatureTreeItem &item)
{
    return isFavoritesRoot(item) || matches(item) || hasMatchBelow(item);
}

// Children first, and what stands below them only where none of them matches.
bool FeatureTreeFilter::hasMatchBelow(FeatureTreeItem &item)
{
    m_load(item);
    const int count = item.existingChildCount();
    for (int row = 0; row < count; ++row) {
        if (matches(*item.child(row))) {
            return true;
        }
    }
    for (int row = 0; row < count; ++row) {
        if (hasMatchBelow(*item.child(row))) {
            return true;
        }
    }
    return false;
}

bool FeatureTreeFilter::matches(FeatureTreeItem &item) const
{
    return ruleOf(Index::State::of(item)).passes && isHit(item);
}

bool FeatureTreeFilter::isShownSearchRow(FeatureTreeItem &item) const
{
    // Shown by a search alone, at the highest level too.
    return ruleOf(Index::State::of(item)).passes && item.getVisibility() < GenApi::Invisible;
}

bool FeatureTreeFilter::isHit(const FeatureTreeItem &item) const
{
    if (item.isCategory() || isSearchRow(item)) {
        return false;
    }
    const QString name = item.nodeName();
    const bool found = !hasText() || item.displayText().contains(m_expression) || name.contains(m_expression);
    return found && name != FeatureTreeNames::root;
}
