// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "figure.h"
#include "trees.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QTreeView>

#include <memory>

/*! Works until everything that is pending has been laid out, painted and deleted. */
void settle();

using Collection = QSharedPointer<ParameterCollection::IParameterCollection>;

/*! \brief The library's widget, shown with everything expanded. */
class Window
{
public:
    Window(const Collection &camera, const QString &nodeMapName);
    explicit Window(const QSharedPointer<MemoryCollection> &camera);
    /*! Shows several node maps. */
    explicit Window(const QList<QSharedPointer<MemoryCollection>> &nodeMaps);

    void fill(const Collection &camera, const QString &nodeMapName);
    /*! Puts \a text into the search box and waits until the result is painted. */
    void search(const QString &text);
    void setLevel(GenApi::EVisibility level);

    FeatureTreeWidget &widget() { return m_widget; }
    FeatureTreeView &view() { return *m_widget.treeView(); }
    /*! Returns the model below the proxy. */
    const QAbstractItemModel &model();

private:
    void open();

    FeatureTreeWidget m_widget{QStringLiteral("benchmark")};
};

/*! \brief The stock view over the rows of a window, in the same size, shown with all branches expanded. */
class StockWindow
{
public:
    /*! How many rows have a permanent editor: none, or all of them. */
    enum class Editors { None, All };

    StockWindow(Window &window, Editors editors);

    /*! Shows a new view over the rows. */
    void open();
    /*! Filters by \a text and waits until the result is painted; branches that come back are expanded. */
    void search(const QString &text);
    QTreeView &view() { return *m_view; }

private:
    void expandAndEquip(const QModelIndex &parent);

    StockTree m_tree;
    Editors m_editors;
    QSize m_size;
    std::unique_ptr<QTreeView> m_view;
};

/*! Measures one key of a search in \a window beside the same in the stock views, in turns. */
void measureSearchKey(benchmark::State &state, Window &window);
