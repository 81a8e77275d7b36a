// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "historyactions.h"

#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/changehistory.h>

#include <QAction>
#include <QKeySequence>

HistoryActions::HistoryActions(FeatureTreeWidget *tree, QObject *parent)
    : QObject(parent)
    , m_history(new ChangeHistory(this))
    , m_undo(new QAction(this))
    , m_redo(new QAction(this))
{
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    connect(m_undo, SIGNAL(triggered()), m_history, SLOT(undo()));
    connect(m_redo, SIGNAL(triggered()), m_history, SLOT(redo()));
    connect(m_history, SIGNAL(stepsChanged()), this, SLOT(updateActions()));
    connect(tree, SIGNAL(edited(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)),
            m_history,
            SLOT(record(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)));
    updateActions();
}

HistoryActions::~HistoryActions() = default;

void HistoryActions::updateActions()
{
    m_undo->setText(m_history->canUndo() ? tr("&Undo %1").arg(m_history->undoText()) : tr("&Undo"));
    m_undo->setEnabled(m_history->canUndo());
    m_redo->setText(m_history->canRedo() ? tr("&Redo %1").arg(m_history->redoText()) : tr("&Redo"));
    m_redo->setEnabled(m_history->canRedo());
}
