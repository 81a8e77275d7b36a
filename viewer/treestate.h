// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class FeatureTreeWidget;

/*! \brief What a user sees of a feature tree: its search, the branches that are open and the current row.
 *
 * Rows are remembered by their names, so that the state fits the tree of the same camera opened anew.
 */
class TreeState
{
public:
    /*! Takes the state of \a tree, whose search is cleared for it. */
    explicit TreeState(FeatureTreeWidget &tree);
    /*! Makes the state that openRows() and currentRow() are of. */
    TreeState(const QStringList &openRows, const QString &currentRow);

    /*! Brings \a tree to the state as far as it has the rows. */
    void applyTo(FeatureTreeWidget &tree) const;

    /*! Returns the branches that are open, as texts to be kept. */
    QStringList openRows() const;
    /*! Returns the current row outside the search, as a text to be kept. */
    QString currentRow() const { return m_current; }

private:
    QString m_search;
    QString m_hit; // the current row in the search
    QString m_current;
    QSet<QString> m_expanded;
};
