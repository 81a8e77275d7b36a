// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "historyactions.h"

#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/changehistory.h>
#include <zeltoviewercomponents/settings/changehistorywidget.h>

#include <QAction>
#include <QKeySequence>

namespace {

// The name of a file may have the character that marks letters on the keyboard.
QString inMenu(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

HistoryActions::HistoryActions(FeatureTreeWidget *tree, QWidget *window)
    : QObject(window)
    , m_tree(tree)
    , m_history(new ChangeHistory(this))
    , m_panel(new ChangeHistoryWidget(m_history, window))
    , m_undo(new QAction(this))
    , m_redo(new QAction(this))
{
    (new Core::LiveTexts(tree))->add([this] { updateActions(); });
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    connect(m_undo, SIGNAL(triggered()), m_history, SLOT(undo()));
    connect(m_redo, SIGNAL(triggered()), m_history, SLOT(redo()));
    connect(m_history, SIGNAL(stepsChanged()), this, SLOT(updateActions()));
    connect(m_history, SIGNAL(modifiedChanged(bool)), this, SIGNAL(fileStateChanged()));
    connect(tree, SIGNAL(restingChanged(bool)), this, SLOT(updateActions()));
    connect(tree, SIGNAL(edited(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)),
            m_history,
            SLOT(record(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)));
    updateActions();
}

HistoryActions::~HistoryActions() = default;

void HistoryActions::open(const QList<SettingsNodeMap> &nodeMaps)
{
    m_history->open(nodeMaps);
    m_file.clear();
    emit fileStateChanged();
}

void HistoryActions::close()
{
    open({});
}

bool HistoryActions::differsFromFile() const
{
    return !m_file.isEmpty() && m_history->isModified();
}

void HistoryActions::onLoaded(const FeatureSettings &settings, const FeatureSettings &former,
                              const SettingsReport &report, const QString &fileName)
{
    if (fileName.isEmpty()) {
        m_history->recordApplied(tr("what was before"), settings, former, report);
        return; // not a state that anybody saved
    }
    m_history->recordApplied(fileName, settings, former, report);
    m_history->setUnmodified(report);
    m_file = fileName;
    emit fileStateChanged();
}

void HistoryActions::onSaved(const FeatureSettings &settings, const QString &fileName)
{
    Q_UNUSED(settings)
    m_history->setUnmodified();
    m_file = fileName;
    emit fileStateChanged();
}

void HistoryActions::onTakenOver(const QString &name, const FeatureSettings &settings,
                                 const FeatureSettings &former, const SettingsReport &report)
{
    m_history->recordApplied(name, settings, former, report);
}

// Nothing can be written to a camera that was lost, or on which something else is at work.
void HistoryActions::updateActions()
{
    const bool canWrite = m_tree->isEnabled() && !m_tree->isResting();
    const auto update = [canWrite](QAction *action, bool isPossible, const QString &text) {
        action->setText(text);
        action->setEnabled(canWrite && isPossible);
    };
    m_panel->setPuttingBack(canWrite);
    update(m_undo, m_history->canUndo(),
           m_history->canUndo() ? tr("&Undo %1").arg(inMenu(m_history->undoText())) : tr("&Undo"));
    update(m_redo, m_history->canRedo(),
           m_history->canRedo() ? tr("&Redo %1").arg(inMenu(m_history->redoText())) : tr("&Redo"));
}
