// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "figure.h"
#include "trees.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QTreeView>

/*! Works until everything that is pending has been laid out and painted. */
void settle();

using Collection = QSharedPointer<ParameterCollection::IParameterCollection>;

/*! \brief The library's widget, shown with everything expanded. */
class Window
{
public:
    Window(const Collection &camera, const QString &nodeMapName);
    explicit Window(const QSharedPointer<MemoryCollection> &camera);

    void fill(const Collection &camera, const QString &nodeMapName);
    /*! Puts \a text into the search box and waits until the result is painted. */
    void search(const QString &text);

    FeatureTreeWidget &widget() { return m_widget; }
    FeatureTreeView &view() { return *m_widget.treeView(); }
    /*! Returns the model below the proxy. */
    const QAbstractItemModel &model();

private:
    FeatureTreeWidget m_widget{QStringLiteral("benchmark")};
};

/*! \brief The stock view over the rows of a window, in the same size, shown with everything expanded. */
class StockWindow
{
public:
    explicit StockWindow(Window &window);

    /*! Filters by \a text and waits until the result is painted. */
    void search(const QString &text);

private:
    StockTree m_tree;
    QTreeView m_view;
};

/*! Measures one key of a search in \a window beside the same in the stock view, in turns. */
void measureSearchKey(benchmark::State &state, Window &window);
