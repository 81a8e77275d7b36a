// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QModelIndex>
#include <QPoint>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <optional>

class FeatureTreeView;
class FeatureTreeWidget;

/*! \brief What a user sees of a feature tree: the branches that are open, the current row, the scroll
 * position, the search, the level, whether it polls, and what is being typed into an editor.
 *
 * A row is known by the full names from the top down to it, since a feature may stand in two categories; so a
 * look fits the tree of the same camera opened anew. Each part is present when it was taken or read, and a
 * tree keeps what the look does not have. The tree itself uses one to bring back what a search has changed.
 *
 * \ingroup view
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeLook
{
    Q_GADGET

public:
    /*! \brief The parts of a look. */
    enum Part {
        OpenRows = 1, //!< QStringList in a map
        CurrentRow = 2, //!< QString, empty without one
        ScrollPosition = 4, //!< QPoint
        Search = 8, //!< QString
        Hit = 16, //!< QString, the current row in the search
        Level = 32, //!< int
        Polling = 64, //!< bool
    };
    Q_ENUM(Part)
    Q_DECLARE_FLAGS(Parts, Part)

    /*! Makes a look without any part. */
    FeatureTreeLook() = default;
    /*! Makes the look that toMap() gave; other keys are ignored. */
    explicit FeatureTreeLook(const QVariantMap &map);
    /*! Takes all parts of \a tree. During a search, the rows and the scroll position are those from before.
     * What is being typed is no part that toMap() knows: it belongs to the moment. */
    explicit FeatureTreeLook(FeatureTreeWidget &tree);

    /*! Returns \a parts of the look, as far as it has them, as values to be kept, by the names of Part. */
    QVariantMap toMap(Parts parts) const;
    /*! Brings \a tree to this look, as far as it has the rows. Ends its search. Whether the favorites are
     * open is remembered with them and stays. */
    void applyTo(FeatureTreeWidget &tree) const;

    /*! Forgets \a parts. */
    void remove(Parts parts);
    /*! Sets whether the tree polls. */
    void setPolling(bool polls) { m_polls = polls; }
    /*! Returns whether the tree polls; false when that is not known. */
    bool polls() const { return m_polls.value_or(false); }

    /*! Adds to the open rows those of \a view at and below \a top. */
    void takeOpenRows(const FeatureTreeView &view, const QModelIndex &top);
    /*! Takes the current row of \a view. */
    void takeCurrentRow(const FeatureTreeView &view);
    /*! Takes the scroll position of \a view. */
    void takeScrollPosition(FeatureTreeView &view);
    /*! Opens and closes the branches of \a view at and below \a top. */
    void restoreOpenRows(FeatureTreeView &view, const QModelIndex &top) const;
    /*! Makes the row the current one of \a view, which neither scrolls nor opens branches for that. */
    void restoreCurrentRow(FeatureTreeView &view) const;
    /*! Scrolls \a view. */
    void restoreScrollPosition(FeatureTreeView &view) const;

private:
    struct Typing
    {
        QString row;
        QString text;
    };

    void takeTyping(const FeatureTreeView &view);
    void restoreTyping(FeatureTreeView &view) const;

    std::optional<QSet<QString>> m_openRows;
    std::optional<QString> m_currentRow;
    std::optional<QPoint> m_scrollPosition;
    std::optional<QString> m_search;
    std::optional<QString> m_hit;
    std::optional<GenApi::EVisibility> m_level;
    std::optional<bool> m_polls;
    std::optional<Typing> m_typing;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FeatureTreeLook::Parts)
