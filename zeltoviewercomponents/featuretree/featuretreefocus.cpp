// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreefocus.h"

#include "featuretreeeditors.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QTreeView>

FeatureTreeFocus::FeatureTreeFocus(QTreeView *view, const FeatureTreeEditors *editors)
    : m_view(view)
    , m_editors(editors)
{
}

QWidget *FeatureTreeFocus::editor() const
{
    QWidget *widget = QApplication::focusWidget();
    if (!widget || !m_view->viewport()->isAncestorOf(widget)) {
        return nullptr;
    }
    while (widget->parentWidget() != m_view->viewport()) {
        widget = widget->parentWidget();
    }
    return widget;
}

QModelIndex FeatureTreeFocus::row(const QModelIndex &current) const
{
    const QModelIndex permanent = m_editors->rowOf(QApplication::focusWidget());
    return permanent.isValid() ? permanent : current;
}

void FeatureTreeFocus::takeFrom(const QWidget *widget)
{
    const QWidget *const focus = QApplication::focusWidget();
    if (focus && (focus == widget || widget->isAncestorOf(focus))) {
        m_view->setFocus();
    }
}

void FeatureTreeFocus::takeFromUnseenRow()
{
    const QModelIndex index = editor() ? row(m_view->currentIndex()) : QModelIndex();
    if (index.isValid() && !m_view->visualRect(index).isValid()) {
        m_view->setFocus();
    }
}

void FeatureTreeFocus::takeFromLostRow()
{
    const QWidget *const focused = editor();
    // An editor that is not permanent belongs to the current row.
    const QModelIndex index =
        m_editors->contains(focused) ? m_editors->rowOf(focused) : m_view->currentIndex();
    if (!index.isValid()) {
        abandonEditor();
    }
}

void FeatureTreeFocus::abandonEditor()
{
    if (QWidget *const focused = editor()) {
        focused->removeEventFilter(m_view->itemDelegate());
        focused->blockSignals(true);
        m_view->setFocus();
    }
}

void FeatureTreeFocus::leaveEditors(bool forward)
{
    QWidget *const target = forward ? nextOutsideView() : m_view;
    target->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

QWidget *FeatureTreeFocus::nextOutsideView() const
{
    const auto takesFocus = [this](const QWidget *widget) {
        return !m_view->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
    };
    QWidget *widget = m_view->nextInFocusChain();
    while (widget != m_view && !takesFocus(widget)) {
        widget = widget->nextInFocusChain();
    }
    return widget;
}
