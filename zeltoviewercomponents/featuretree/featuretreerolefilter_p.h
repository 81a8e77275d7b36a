// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>

#include <QModelIndex>
#include <QRegularExpression>
#include <QSet>
#include <QString>

class QAbstractItemModel;

/*! \brief The filter of a feature tree whose items are out of reach, such as behind another proxy.
 *
 * Judges by what the rows answer to the roles of FeatureTreeItem, row by row; FeatureTreeProxyModel comes to
 * the same verdicts over the items, in one pass. A model without these roles passes as it is.
 *
 * \ingroup search
 */
class FeatureTreeRoleFilter
{
public:
    /*! \brief The names of the features that contain the text, each in one of the sets. */
    struct Matches
    {
        QSet<QString> visible; //!< shown at the level
        QSet<QString> hidden; //!< at a higher one alone
    };

    /*! \a model has to outlive the filter. */
    FeatureTreeRoleFilter(const QAbstractItemModel &model, const QRegularExpression &text,
                          GenApi::EVisibility level);

    /*! Returns whether the row matches, or one above or below it does. */
    bool accepts(const QModelIndex &row) const;
    /*! Returns whether the row itself contains the text, and is no category. */
    bool isHit(const QModelIndex &row) const;
    /*! Returns the matches in the whole tree. */
    Matches matches() const;

private:
    bool hasRoles() const;
    bool isEmptyText() const;
    bool matches(const QModelIndex &row) const;
    bool hasMatchBelow(const QModelIndex &parent) const;
    int effectiveVisibility(const QModelIndex &row) const;
    void collect(const QModelIndex &parent, int visibilityAbove, Matches &found) const;

    const QAbstractItemModel &m_model;
    QRegularExpression m_text;
    GenApi::EVisibility m_level;
};
