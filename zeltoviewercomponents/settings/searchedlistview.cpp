// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "searchedlistview_p.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QShortcut>
#include <QSortFilterProxyModel>

SearchedListView::SearchedListView(QSortFilterProxyModel *model, QWidget *panel)
    : QTreeView(panel)
    , m_searchBox(new QLineEdit(panel))
{
    model->setFilterKeyColumn(-1);
    model->setFilterCaseSensitivity(Qt::CaseInsensitive);
    setModel(model);
    setAccessibleName(panel->windowTitle());
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(doubleClicked(QModelIndex)), this, SIGNAL(chosen()));
    m_searchBox->setClearButtonEnabled(true);
    connect(m_searchBox, SIGNAL(textChanged(QString)), model, SLOT(setFilterFixedString(QString)));
    auto *const find = new QShortcut(QKeySequence::Find, panel);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, SIGNAL(activated()), m_searchBox, SLOT(setFocus()));
    connect(find, SIGNAL(activated()), m_searchBox, SLOT(selectAll()));
    panel->setFocusProxy(this);
}

SearchedListView::~SearchedListView() = default;

QLineEdit *SearchedListView::searchBox() const
{
    return m_searchBox;
}

// QAbstractItemView leaves it to the platform whether Enter activates a row; here it always goes there.
void SearchedListView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit chosen();
        return;
    }
    QTreeView::keyPressEvent(event);
}
