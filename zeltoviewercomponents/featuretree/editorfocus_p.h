// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QModelIndex>
#include <QObject>

class OpenEditors;
class QTreeView;
class QWidget;

/*! \brief The keyboard focus in the editors of the feature tree view.
 *
 * An editor gives the focus back to the view before its row goes, gets out of sight or is locked, or else the
 * focus would go on to the editor of whatever row comes next. The focus is that of the window, which an open
 * popup and another window do not take away.
 *
 * \ingroup view
 */
class EditorFocus : public QObject
{
    Q_OBJECT

public:
    EditorFocus(QTreeView *view, const OpenEditors *editors);

    /*! Returns the editor that has the focus, also when that is in a part of it. */
    QWidget *editor() const;
    /*! Returns the row of the editor with the focus; one that is not permanent belongs to \a current. */
    QModelIndex row(const QModelIndex &current) const;

    /*! Returns whether text in the editor with the focus has been changed, and not yet been entered. */
    bool isTyping() const;

    /*! Takes the focus from \a widget and from what is in it. */
    void takeFrom(const QWidget *widget);
    /*! Takes the focus from an editor whose row is in a collapsed branch, hidden or scrolled away. */
    void takeFromUnseenRow();
    /*! Takes the focus from an editor whose row is gone. */
    void takeFromLostRow();
    /*! Takes the focus from an editor that must not commit: closes its list or menu and drops what was typed.
     * Returns that editor, null when the focus is in none. */
    QWidget *dropEditor();
    /*! Takes the focus from an editor that has no row to commit to, and never listens to it again. */
    void abandonEditor();
    /*! Passes the focus on to what comes after the view, or else back to the view. */
    void leaveEditors(bool forward);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /*! Escape was pressed in a permanent editor, which the focus has left. */
    void escaped(QWidget *editor);
    /*! The value is to be copied, as no text is selected. */
    void copyRequested();
    /*! The focus is back in an editor, from a menu or a list. */
    void returned();

public slots:
    /*! Looks at the keys of \a now, if it is an editor or in one, and no longer at those of \a old. While
     * text is being typed into \a old, a right click does not take the focus from it. */
    void follow(QWidget *old, QWidget *now);

private:
    QWidget *focusWidget() const;
    QWidget *editorAround(QWidget *widget) const;
    QWidget *nextOutsideView() const;
    void escape(QObject *input, QEvent *event);
    static bool isForHost(const QKeyEvent &key, QObject *input);

    QTreeView *m_view;
    const OpenEditors *m_editors;
};
