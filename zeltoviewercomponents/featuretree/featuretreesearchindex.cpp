// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreesearchindex_p.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"

namespace {

// No text holds the noncharacter that ends each, so nothing matches across two of them.
constexpr QChar textEnd(0xffff);

quint64 nextId()
{
    static quint64 id = 0;
    return ++id;
}

} // namespace

void FeatureTreeSearchIndex::build(FeatureTreeItem &root)
{
    m_text.clear();
    m_rows.clear();
    m_id = nextId();
    m_names.clear();
    QHash<QString, int> numbers;
    addBelow(root, numbers);
    m_revision = FeatureTreeItem::treeRevision();
}

bool FeatureTreeSearchIndex::isCurrent() const
{
    return m_revision == FeatureTreeItem::treeRevision();
}

bool FeatureTreeSearchIndex::holds(const FeatureTreeItem *item) const
{
    return item->m_searchIndexId == m_id;
}

void FeatureTreeSearchIndex::addBelow(FeatureTreeItem &parent, QHash<QString, int> &numbers)
{
    for (int row = 0; row < parent.existingChildCount(); ++row) {
        FeatureTreeItem &item = *parent.child(row);
        item.m_searchIndexId = m_id;
        // The search row shows counts and is no row to be found.
        if (!item.isCategory() && item.getFullName() != FeatureTreeNames::search
            && item.nodeName() != FeatureTreeNames::root) {
            add(item, numbers);
        }
        addBelow(item, numbers);
    }
}

void FeatureTreeSearchIndex::add(FeatureTreeItem &item, QHash<QString, int> &numbers)
{
    const QString shown = item.displayText();
    const QString name = item.nodeName();
    m_text += FeatureTreeItem::foldedForSearch(shown) + textEnd;
    if (name != shown) {
        m_text += FeatureTreeItem::foldedForSearch(name) + textEnd;
    }
    Row row{&item, m_text.size()};
    // Hints and placeholders are no features.
    if (qobject_cast<const FeatureTreeINodeItem *>(&item)) {
        row.name = numbers.value(name, static_cast<int>(m_names.size()));
        if (row.name == m_names.size()) {
            numbers.insert(name, row.name);
            m_names.append(name);
        }
    }
    m_rows.append(row);
}
