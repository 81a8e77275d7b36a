// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

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

    /*! Brings \a tree to the state as far as it has the rows. */
    void applyTo(FeatureTreeWidget &tree) const;

private:
    QString m_search;
    QString m_current;
    QSet<QString> m_expanded;
};
