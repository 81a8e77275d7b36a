// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTreeView>

class QKeyEvent;
class QLineEdit;
class QSortFilterProxyModel;

/*! \brief The list of a panel, with a box that searches all of its columns.
 *
 * \ingroup settings
 */
class SearchedListView : public QTreeView
{
    Q_OBJECT

public:
    /*! Ctrl+F leads to the box wherever the focus is in \a panel, which also gives the list its name. */
    SearchedListView(QSortFilterProxyModel *model, QWidget *panel);
    ~SearchedListView() override;

    /*! Returns the box, which \a panel has to place. */
    QLineEdit *searchBox() const;

signals:
    /*! A row was double-clicked, or Enter was pressed on it. */
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLineEdit *m_searchBox;
};
