// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreesearchindex_p.h"

#include <platform/genicam/genapi.h>

#include <QByteArray>
#include <QRegularExpression>
#include <QSet>
#include <QString>

#include <array>
#include <optional>
#include <vector>

class FeatureTreeItem;

/*! \brief Judges which rows of a feature tree are shown, by user level and search text.
 *
 * It is given items and answers verdicts and counts; it knows no model and tells nobody. A row passes when it
 * matches, or one below it does. With a text, all branches are loaded and the whole tree is judged in one
 * pass; the verdicts stand beside the numbers of the search index. Without one, the rows that no search has
 * numbered are judged one by one, which loads no more than it takes to find the first that matches.
 *
 * \ingroup search
 */
class FeatureTreeFilter
{
public:
    using Loader = FeatureTreeSearchIndex::Loader;

    explicit FeatureTreeFilter(Loader load);

    void setLevel(GenApi::EVisibility level);
    GenApi::EVisibility level() const { return m_level; }
    /*! Sets the text, as it is typed, and the expression for it. */
    void setText(const QString &text, const QRegularExpression &expression);
    /*! Sets an expression that is no literal text. */
    void setExpression(const QRegularExpression &expression);
    bool hasText() const { return m_hasText; }
    QString pattern() const { return m_expression.pattern(); }

    /*! Forgets the tree. */
    void reset();
    /*! Says that rows are to be judged anew before the next verdict. */
    void expire() { m_isExpired = true; }
    bool isExpired() const { return m_isExpired; }
    /*! Returns whether there are rows that came after a pass over the whole tree. */
    bool isOutdated() const { return hasText() && !m_index.isCurrent(); }
    /*! Judges the tree below \a root. Returns false when all verdicts are what they were, as far as that is
     * known. */
    bool judge(FeatureTreeItem &root);

    /*! Returns whether the existing child of \a parent in \a row passes. */
    bool accepts(FeatureTreeItem &parent, int row);
    /*! Returns whether the rows that exist are numbered. */
    bool isNumbered() const { return m_index.isCurrent(); }
    /*! Returns whether it is known that no child of \a parent is a category. */
    bool isAboveLeaves(const FeatureTreeItem &parent) const;
    /*! Returns the same without judging rows that have expired: the verdict of before. */
    bool accepted(FeatureTreeItem &parent, int row);
    /*! Returns whether the row shows the counts, and is to be shown. */
    bool isShownSearchRow(FeatureTreeItem &item) const;
    /*! Returns whether the row itself contains the text. The search row, categories and top rows never do. */
    bool isHit(const FeatureTreeItem &item) const;

    /*! Returns the number of features that match within the level; 0 without a text. */
    int visibleMatchCount() const { return m_visibleCount; }
    /*! Returns the number of features that would match at a higher level, Invisible ones apart. */
    int hiddenMatchCount() const { return m_hiddenCount; }
    QSet<QString> visibleMatches() const { return namesOf(Matched::Visibly); }
    QSet<QString> hiddenMatches() const { return namesOf(Matched::Hidden); }

private:
    enum class Matched : quint8 { No, Hidden, Visibly };

    /*! \brief What follows from a row's state at the level. */
    struct Rule
    {
        bool passes = false;
        GenApi::EVisibility visibility = GenApi::UndefinedVisibility; // from which on it is seen, if at all
    };

    Rule ruleOf(FeatureTreeSearchIndex::State state) const;
    const Rule &rule(int row) const { return m_rules[m_index.state(row).value]; }
    int numberOf(const FeatureTreeItem &parent, int row);
    bool judgeAlone(FeatureTreeItem &item);
    bool hasMatchBelow(FeatureTreeItem &item);
    bool matches(FeatureTreeItem &item) const;
    void judgeRows();
    void judgeHits();
    void judgeBranches();
    void countHit(int row, GenApi::EVisibility visibilityAbove);
    template <typename Visit>
    void forEachHit(Visit visit) const;
    QSet<QString> namesOf(Matched matched) const;

    void take(const QRegularExpression &expression);

    Loader m_load;
    GenApi::EVisibility m_level = GenApi::Guru;
    QRegularExpression m_expression;
    bool m_hasText = false;
    std::optional<QByteArray> m_text; // absent where the expression is no literal text

    FeatureTreeSearchIndex m_index;
    std::array<Rule, FeatureTreeSearchIndex::State::count> m_rules;
    std::vector<quint8> m_verdicts; // by the index's number of the row
    std::vector<Matched> m_matched; // by its number of the name
    int m_visibleCount = 0;
    int m_hiddenCount = 0;
    bool m_isExpired = true;
    // Rows are asked for one after the other.
    const FeatureTreeItem *m_lastParent = nullptr;
    int m_lastFirst = FeatureTreeSearchIndex::none;
};
