// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QSharedPointer>

class FeatureTreeWidget;
class QAction;
class QModelIndex;

/*! \brief What the viewer adds to the context menu of the feature tree, and the actions that unfold and fold
 * all of it.
 *
 * The entries work on the row that is current when they are chosen.
 */
class TreeMenu : public QObject
{
    Q_OBJECT

public:
    /*! \a tree has to outlive the menu. */
    explicit TreeMenu(FeatureTreeWidget *tree, QObject *parent = nullptr);
    ~TreeMenu() override;

    /*! Returns the actions that unfold and fold the whole tree, for other menus. */
    QList<QAction *> expansionActions() const;

signals:
    /*! Something to tell the user for \a milliseconds. */
    void hint(const QString &text, int milliseconds);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void show(const QPoint &pos, const QSharedPointer<QMenu> &menu);
    void copyName();
    void copyValue();
    void copyFullName();
    void expandAll();
    void collapseAll();
    void goToFeature();

private:
    void addEntries(QMenu *menu);
    void setExpanded(bool expanded);
    void showRow(const QModelIndex &index);
    QPoint rowPosition(const QPoint &otherwise) const;
    QString name() const;
    QString value() const;
    QString fullName() const;

    FeatureTreeWidget *m_tree;
    QAction *m_expandAll;
    QAction *m_collapseAll;
    bool m_isForKeyboard = false; // the menu was asked for by a key, wherever the mouse is
};
