// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QPointer>
#include <QString>
#include <QWidget>

namespace Core {
class LiveTexts;
}

class ChangeHistory;
class QAction;
class QModelIndex;
class QPoint;
class QSortFilterProxyModel;
class SearchedListView;

/*! \brief Lists the changes of a history, the newest first, with a search over all columns.
 *
 * A double click or Enter asks the host to go to the feature; the context menu puts values back, copies and
 * saves what is listed.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ChangeHistoryWidget : public QWidget
{
    Q_OBJECT

public:
    /*! Lists the changes of \a history, which outlives the widget. */
    explicit ChangeHistoryWidget(ChangeHistory *history, QWidget *parent = nullptr);
    ~ChangeHistoryWidget() override;

    /*! Returns the listed changes as lines of text with tabs between the columns. */
    QString text() const;
    /*! Sets whether values can be put back now: the camera is there, and nothing else is at work on it. */
    void setPuttingBack(bool isPossible);

Q_SIGNALS:
    /*! The user wants to see the feature of that full name. */
    void featureRequested(const QString &fullName);

private Q_SLOTS:
    void goToFeature();
    void putBackBefore();
    void putBackAfter();
    void copy();
    void save();
    void showMenu(const QPoint &pos);
    void updateActions();

private:
    QAction *addListAction(const char *text, const char *slot);
    void layOut();
    void putBack(int column);
    QString lineOf(const QModelIndex &index) const;
    QModelIndex current() const;

    Core::LiveTexts *m_texts; // first: the members that follow use it
    QPointer<ChangeHistory> m_history;
    QSortFilterProxyModel *m_filter;
    SearchedListView *m_view;
    QAction *m_go;
    QAction *m_putBackBefore;
    QAction *m_putBackAfter;
    QAction *m_copy;
    QAction *m_save;
    bool m_canPutBack = true;
};
