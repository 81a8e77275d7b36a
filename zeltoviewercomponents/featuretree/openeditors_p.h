// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QModelIndexList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

class QTreeView;

/*! \brief The permanent editors of the feature tree view.
 *
 * As long as few rows want an editor, all of them have it at once. Where there are more, those of the
 * viewport are opened before it is painted and those of one page above and below when nothing else is to do;
 * then, too, the ones farther away are closed, unless the user is at work in them. Which rows want an editor
 * is the view's business.
 *
 * \ingroup view
 */
class OpenEditors : public QObject
{
    Q_OBJECT

public:
    /*! The most rows that all have an editor at once. */
    static constexpr qsizetype limit = 64;

    using RowTest = std::function<bool(const QModelIndex &)>;
    using Rows = QList<QPersistentModelIndex>;

    /*! \a wantsEditor tells whether the row of a value wants an editor. */
    OpenEditors(QTreeView *view, RowTest wantsEditor);

    /*! Opens the editor of \a index and keeps account of it. */
    void open(const QModelIndex &index);
    /*! Opens the editors of \a rows: all of those that want one, or as many of them as exceed the limit.
     * \a areFurther says that the rows come to those that are equipped already. */
    void equip(const Rows &rows, bool areFurther);
    /*! Notes that other rows may be in the viewport when it is painted next. */
    void noteMovement();
    /*! Forgets editors that are closed or have lost their row. */
    void forgetClosed();
    /*! Forgets all editors, as the model has been reset. */
    void forgetAll();

    /*! Shows in all editors again what their rows have. */
    void refresh();
    /*! Returns whether \a index may get an editor now, and need not wait until it is scrolled to. */
    bool hasRoomFor(const QModelIndex &index);
    /*! Returns whether scrolling alone brings the row into sight. */
    bool isReachable(const QModelIndex &index) const;
    /*! Returns whether only the rows near the viewport have an editor. */
    bool isLimited() const { return m_isLimited; }
    /*! Returns whether \a editor is one of the permanent ones. */
    bool contains(const QWidget *editor) const;
    /*! Returns the row of the editor that is \a widget or has it as a part, invalid when there is none. */
    QModelIndex rowOf(const QWidget *widget) const;

signals:
    /*! A permanent editor was destroyed, with or without being closed. */
    void editorDestroyed(QObject *editor);

public slots:
    /*! Opens the missing editors of the viewport's rows; before these are painted. */
    void equipViewport();

private slots:
    void workWhenIdle();

private:
    struct Editor
    {
        QPersistentModelIndex index;
        QPointer<QWidget> widget;
    };

    bool isNearViewport(const QModelIndex &index, int pages) const;
    QModelIndexList rowsNearViewport(int pages) const;
    bool equipRows(const QModelIndexList &rows, int milliseconds);
    void makeRoom(qsizetype count);
    bool closeFar();
    void orderTabs();

    QTreeView *m_view;
    RowTest m_wantsEditor;
    QList<Editor> m_editors;
    QTimer m_idle;
    bool m_isLimited = false;
    bool m_hasMoved = false; // since the viewport was equipped last
    bool m_isEquipping = false;
    bool m_isTabOrderStale = false;
};
