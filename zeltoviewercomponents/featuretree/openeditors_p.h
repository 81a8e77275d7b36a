// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QModelIndexList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

#include <functional>

class QTreeView;

/*! \brief The permanent editors of the feature tree view.
 *
 * Up to 200 editors stay open wherever their rows are. Beyond that number they are open in and near the
 * viewport and come and go as the view scrolls. Which rows want one is the view's business.
 *
 * \ingroup view
 */
class OpenEditors : public QObject
{
    Q_OBJECT

public:
    explicit OpenEditors(QTreeView *view);

    /*! Opens the editor of \a index and keeps account of it. */
    void open(const QModelIndex &index);
    /*! Opens the editors of the rows near the viewport that want one, closes those beyond the budget, and
     * lets the focus walk from top to bottom. */
    void ensureNearViewport(const std::function<bool(const QModelIndex &)> &wantsEditor);
    /*! Forgets editors that are closed or have lost their row. */
    void forgetClosed();
    /*! Forgets all editors, as the model has been reset. */
    void forgetAll();

    /*! Returns whether \a index may get an editor now, and need not wait until it is scrolled to. */
    bool hasRoomFor(const QModelIndex &index) const;
    /*! Returns whether further editors open only near the viewport. */
    bool isBudgetSpent() const;
    /*! Returns whether \a editor is one of the permanent ones. */
    bool contains(const QWidget *editor) const;
    /*! Returns the row of the editor that is \a widget or has it as a part, invalid when there is none. */
    QModelIndex rowOf(const QWidget *widget) const;

signals:
    /*! A permanent editor was destroyed, with or without being closed. */
    void editorDestroyed(QObject *editor);

private:
    struct Editor
    {
        QPersistentModelIndex index;
        QPointer<QWidget> widget;
    };

    bool isNearViewport(const QModelIndex &index) const;
    QModelIndexList rowsNearViewport() const;
    void closeFar(const QModelIndexList &near);
    void orderTabs();

    QTreeView *m_view;
    QList<Editor> m_editors;
    bool m_isEnsuring = false;
    bool m_isTabOrderStale = false;
};
