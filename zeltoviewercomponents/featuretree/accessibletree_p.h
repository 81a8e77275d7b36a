// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleTableInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QPersistentModelIndex>

class FeatureTreeView;

/*! \brief Tells assistive technology of the rows of a feature tree.
 *
 * As that of any tree, it is a table of the rows that can be scrolled to. Unlike Qt's own, its cells say
 * whether a value can be changed, and hold the editor that stands in them.
 */
class AccessibleTree : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessibleTree(FeatureTreeView *view);
    ~AccessibleTree() override;

    /*! Tells of a new text of \a index, provided that somebody has asked for the former one. */
    static void tellChange(FeatureTreeView *view, const QModelIndex &index);
    /*! Tells that the row of \a index was expanded or collapsed. */
    static void tellExpanded(FeatureTreeView *view, const QModelIndex &index);
    /*! Tells that there are other rows than before. */
    static void tellRows(FeatureTreeView *view);
    /*! Tells that \a index has the focus in the view. */
    static void tellFocus(FeatureTreeView *view, const QModelIndex &index);
    /*! Returns the cell in which \a editor stands; null for a widget that is no editor of a feature tree. */
    static QAccessibleInterface *cellAround(const QWidget *editor);

    /*! Returns the cell of \a index; null for an invalid one. */
    QAccessibleInterface *cell(const QModelIndex &index) const;
    /*! Returns the number of the row among those that can be scrolled to. */
    int rowOf(const QModelIndex &index) const;

    bool isValid() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override;
    QAccessibleInterface *summary() const override;
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

private:
    static AccessibleTree *find(FeatureTreeView *view);
    FeatureTreeView *view() const;
    QModelIndex indexOf(int row, int column) const;
    QModelIndex lastRow() const;
    QAccessibleInterface *headerCell(int column) const;

    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells; // that somebody has asked for
    mutable QHash<int, QAccessible::Id> m_headerCells;
};
