// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>

class FeatureTreeEditors;
class QTreeView;
class QWidget;

/*! \brief The keyboard focus in the editors of the feature tree view.
 *
 * An editor gives the focus back to the view before its row goes or gets out of sight, or else the focus
 * would go on to the editor of whatever row comes next.
 */
class FeatureTreeFocus
{
public:
    FeatureTreeFocus(QTreeView *view, const FeatureTreeEditors *editors);

    /*! Returns the editor that has the focus, also when that is in a part of it. */
    QWidget *editor() const;
    /*! Returns the row of the editor with the focus; one that is not permanent belongs to \a current. */
    QModelIndex row(const QModelIndex &current) const;

    /*! Takes the focus from \a widget and from what is in it. */
    void takeFrom(const QWidget *widget);
    /*! Takes the focus from an editor whose row is in a collapsed branch, hidden or scrolled away. */
    void takeFromUnseenRow();
    /*! Takes the focus from an editor whose row is gone. */
    void takeFromLostRow();
    /*! Takes the focus from an editor that has no row to commit to. */
    void abandonEditor();
    /*! Passes the focus on to what comes after the view, or else back to the view. */
    void leaveEditors(bool forward);

private:
    QWidget *nextOutsideView() const;

    QTreeView *m_view;
    const FeatureTreeEditors *m_editors;
};
