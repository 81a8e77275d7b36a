// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QByteArray>
#include <QWidget>

class QDataStream;
class QTreeView;

/*! \brief Base of widgets around a tree view: saves and restores the widths of the tree's columns.
 *
 * A subclass may append a state of its own. The state is a versioned byte array; one of another version or of
 * a tree with another number of columns is refused.
 *
 * \ingroup view
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT TreeWidgetBase : public QWidget
{
    Q_OBJECT

public:
    explicit TreeWidgetBase(QWidget *parent = nullptr);
    ~TreeWidgetBase() override;

    /*! Returns the tree view whose header is saved, null when there is none. */
    virtual QTreeView *treeView() const = 0;

    /*! Returns the state, marked with \a version; empty without a tree view. */
    QByteArray saveState(int version);
    /*! Restores what saveState() returned for the same \a version. Returns false when \a state does not fit;
     * columns restored until then keep their new widths. */
    bool restoreState(const QByteArray &state, int version);

protected:
    /*! Appends the state of the subclass. */
    virtual void onSaveState(QDataStream &stream);
    /*! Reads what onSaveState() has appended. */
    virtual void onRestoreState(QDataStream &stream);
};
