// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <functional>
#include <string_view>
#include <vector>

class FeatureTreeItem;

/*! \brief Numbers a tree's rows and keeps what a filter asks of every one of them in a few long arrays.
 *
 * A search runs through one long text and touches no item, which makes it many times faster than asking row
 * by row. The children of an item have consecutive numbers, and higher ones than the item itself. Categories,
 * the search row and the top rows of collections have no text to search in. The numbers are out of date once
 * any item has come, gone or changed its name; the states are read again where rows have changed theirs.
 *
 * \ingroup search
 */
class FeatureTreeSearchIndex
{
public:
    static constexpr int none = -1;

    /*! \brief An item with children, which are \a count rows from the number \a first on. */
    struct Branch
    {
        FeatureTreeItem *item = nullptr;
        int first = 0;
        int count = 0;
        int row = none; //!< the item's own number; none of the invisible root
        int above = none; //!< the branch that it stands in
        bool hasCategories = false; //!< whether any of the rows has children, or would if there were any
    };

    /*! \brief What decides, beside the text, whether a row is shown: comparable in an array of bytes. */
    struct State
    {
        static constexpr int count = 16; //!< different values

        static State of(FeatureTreeItem &item);
        GenApi::EVisibility visibility() const;
        bool isShownAtAll() const { return (value & 1U) != 0; }

        quint8 value = 0;
    };

    /*! Returns \a text as it is searched for, and in: with the case of each character folded, as
     * case-insensitive comparisons of QString do, in UTF-8. */
    static QByteArray folded(const QString &text);

    /*! Loads the children of an item without telling of them. */
    using Loader = std::function<void(FeatureTreeItem &)>;

    /*! Takes all rows below \a root, after having them loaded. */
    void build(FeatureTreeItem &root, const Loader &load);
    /*! Returns whether the numbers are those of the rows that exist now. */
    bool isCurrent() const;
    /*! Reads the rows' states anew where any has changed since. */
    void updateStates();

    int rowCount() const { return static_cast<int>(m_textEnds.size()); }
    const std::vector<Branch> &branches() const { return m_branches; }
    /*! Returns the branch of the children of \a item, null when there is none. */
    const Branch *branchOf(const FeatureTreeItem *item) const;
    /*! Returns the number of the first child of \a parent, none for an item without children. */
    int firstRowOf(const FeatureTreeItem *parent) const;
    State state(int row) const { return State{m_states[static_cast<size_t>(row)]}; }
    bool hasText(int row) const { return m_textEnds[row] > (row > 0 ? m_textEnds[row - 1] : 0); }
    /*! Returns the number of the row's name, the same for all rows of a feature; none when it is no feature.
     */
    int name(int row) const { return m_names[static_cast<size_t>(row)]; }
    int nameCount() const { return m_nameCount; }

    /*! Calls \a visit with each row whose text contains \a text, which is folded, in ascending order. */
    template <typename Visit>
    void forEachHit(const QByteArray &text, Visit visit) const
    {
        const std::string_view all(m_text.constData(), static_cast<size_t>(m_text.size()));
        const std::string_view wanted(text.constData(), static_cast<size_t>(text.size()));
        int row = 0;
        for (size_t at = all.find(wanted); at != std::string_view::npos;
             at = all.find(wanted, m_textEnds[row++])) {
            while (m_textEnds[row] <= at) {
                ++row;
            }
            visit(row);
        }
    }

private:
    using Numbers = QHash<QString, int>;

    void addBelow(FeatureTreeItem &parent, int row, int above, const Loader &load, Numbers &numbers);
    void add(FeatureTreeItem &item, Numbers &numbers);
    int numberOf(const QString &name, Numbers &numbers);

    QByteArray m_text;
    std::vector<quint32> m_textEnds;
    std::vector<int> m_names;
    std::vector<quint8> m_states;
    std::vector<Branch> m_branches;
    QHash<const FeatureTreeItem *, int> m_branchOf;
    int m_nameCount = 0;
    quint64 m_treeRevision = 0;
    quint64 m_stateRevision = 0;
};
