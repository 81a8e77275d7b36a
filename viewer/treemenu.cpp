// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "treemenu.h"

#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QAbstractProxyModel>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QModelIndex>
#include <QPersistentModelIndex>

namespace {

constexpr int hintTime = 5000;

void copy(const QString &text)
{
    QApplication::clipboard()->setText(text);
}

QModelIndex topRowOf(QModelIndex index)
{
    while (index.parent().isValid()) {
        index = index.parent();
    }
    return index;
}

} // namespace

TreeMenu::TreeMenu(FeatureTreeWidget *tree, QObject *parent)
    : QObject(parent)
    , m_tree(tree)
    , m_expandAll(new QAction(this))
    , m_collapseAll(new QAction(this))
{
    auto *const texts = new Core::LiveTexts(tree);
    texts->add(m_expandAll, &QAction::setText, [] { return tr("&Expand All"); });
    texts->add(m_collapseAll, &QAction::setText, [] { return tr("Collapse &All"); });
    // Arrows are on every keyboard, at the same place; plus and minus are not.
    m_expandAll->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Down));
    m_collapseAll->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Up));
    connect(m_expandAll, SIGNAL(triggered()), this, SLOT(expandAll()));
    connect(m_collapseAll, SIGNAL(triggered()), this, SLOT(collapseAll()));
    connect(tree, SIGNAL(contextMenuRequested(QPoint, QSharedPointer<QMenu>)), this,
            SLOT(show(QPoint, QSharedPointer<QMenu>)));
    tree->installEventFilter(this);
}

TreeMenu::~TreeMenu() = default;

QList<QAction *> TreeMenu::expansionActions() const
{
    return {m_expandAll, m_collapseAll};
}

bool TreeMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ContextMenu) {
        m_isForKeyboard = static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
    }
    return QObject::eventFilter(watched, event);
}

void TreeMenu::show(const QPoint &pos, const QSharedPointer<QMenu> &menu)
{
    addEntries(menu.data());
    const QPoint position = m_tree->mapToGlobal(pos);
    menu->exec(m_isForKeyboard ? rowPosition(position) : position);
}

void TreeMenu::addEntries(QMenu *menu)
{
    menu->addSeparator();
    menu->addAction(tr("Copy &Name"), this, SLOT(copyName()))->setEnabled(!name().isEmpty());
    menu->addAction(tr("Copy &Value"), this, SLOT(copyValue()))->setEnabled(!value().isEmpty());
    menu->addAction(tr("Copy &Full Name"), this, SLOT(copyFullName()))->setEnabled(!fullName().isEmpty());
    menu->addSeparator();
    menu->addActions(expansionActions());
    menu->addSeparator();
    const bool isElsewhere = m_tree->IsCurrentFavorite() || !m_tree->searchText().isEmpty();
    menu->addAction(tr("&Go To Feature"), this, SLOT(goToFeature()))
        ->setEnabled(isElsewhere && m_tree->GetCurrentNode());
}

// Where the current row's name begins; nowhere else would somebody who works with keys look for the menu.
QPoint TreeMenu::rowPosition(const QPoint &otherwise) const
{
    FeatureTreeView *const view = m_tree->treeView();
    const QModelIndex index = m_tree->GetCurrentIndex().siblingAtColumn(FeatureTreeColumns::name);
    if (!view->visualRect(index).isValid()) {
        return otherwise; // in a branch that is folded
    }
    view->scrollTo(index);
    return view->viewport()->mapToGlobal(view->visualRect(index).bottomLeft());
}

// The row of a node map is not called by its node anywhere.
QString TreeMenu::name() const
{
    const auto node = m_tree->GetCurrentNode();
    if (node && node->name() != FeatureTreeNames::root) {
        return node->name();
    }
    const QModelIndex index = m_tree->GetCurrentIndex().siblingAtColumn(FeatureTreeColumns::name);
    const QString plain = index.data(Qt::AccessibleTextRole).toString(); // where the text has markup
    return plain.isEmpty() ? index.data().toString() : plain;
}

QString TreeMenu::fullName() const
{
    const auto node = m_tree->GetCurrentNode();
    return node && node->name() != FeatureTreeNames::root ? node->fullName() : QString();
}

QString TreeMenu::value() const
{
    auto *const item = qobject_cast<FeatureTreeINodeItem *>(m_tree->GetCurrentItem());
    const auto data = item ? item->getParameterData() : nullptr;
    const bool hasValue = data && data->isReadable && item->editorType() != FeatureTreeItem::Command;
    return hasValue ? item->valueText() : QString();
}

void TreeMenu::copyName()
{
    copy(name());
}

void TreeMenu::copyValue()
{
    copy(value());
}

void TreeMenu::copyFullName()
{
    copy(fullName());
}

void TreeMenu::expandAll()
{
    setExpanded(true);
}

void TreeMenu::collapseAll()
{
    const QModelIndex current = m_tree->GetCurrentIndex();
    if (current.isValid()) {
        m_tree->treeView()->setCurrentIndex(topRowOf(current)); // which keys can walk on from
    }
    setExpanded(false);
}

void TreeMenu::setExpanded(bool expanded)
{
    FeatureTreeView *const view = m_tree->treeView();
    view->setExpandedRows([expanded](const QModelIndex &) { return expanded; });
    view->scrollTo(view->currentIndex());
    if (m_tree->searchText().isEmpty()) { // a search has its own expansion
        m_tree->getFeatureExtension()->GetFavorites().setExpanded(expanded);
    }
}

void TreeMenu::goToFeature()
{
    const bool isFavorite = m_tree->IsCurrentFavorite();
    const QString feature = fullName();
    const auto *const model = qobject_cast<QAbstractProxyModel *>(m_tree->treeView()->model());
    const QPersistentModelIndex hit(model->mapToSource(m_tree->GetCurrentIndex()));
    m_tree->setSearchText(QString());
    if (isFavorite) {
        if (!m_tree->showFeature(feature)) {
            emit hint(tr("This feature is not shown at the current level"), hintTime);
        }
    } else {
        showRow(model->mapFromSource(hit)); // a feature may stand in two categories
    }
    m_tree->treeView()->setFocus();
}

void TreeMenu::showRow(const QModelIndex &index)
{
    FeatureTreeView *const view = m_tree->treeView();
    for (QModelIndex branch = index.parent(); branch.isValid(); branch = branch.parent()) {
        view->expand(branch);
    }
    view->setCurrentIndex(index.siblingAtColumn(FeatureTreeColumns::name));
    view->scrollTo(index);
}
