// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "toolbuttoneditor.h"

#include "accessibleeditors_p.h"
#include "editordatakeeper_p.h"
#include "editorintake_p.h"

#include <platform/core/guard.h>

#include <QEvent>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.toolButtonEditor")

namespace {

constexpr int askMilliseconds = 300;
constexpr int doneMilliseconds = 2000;

} // namespace

ToolButtonEditor::ToolButtonEditor(QWidget *parent)
    : QToolButton(parent)
    , m_keeper(new EditorDataKeeper(this, this))
{
    AccessibleEditors::install();
    setAutoRaise(false);
    setText(tr("Execute"));
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setContentsMargins(0, 0, 0, 0);
    setAutoFillBackground(true);
    connect(&m_askTimer, SIGNAL(timeout()), this, SLOT(askWhetherDone()));
    m_doneTimer.setSingleShot(true);
    connect(&m_doneTimer, SIGNAL(timeout()), this, SLOT(showReady()));
}

ToolButtonEditor::~ToolButtonEditor() = default;

void ToolButtonEditor::setEditorData(EditorData data)
{
    const Core::GuardSite site{logCategory(), "ToolButtonEditor::setEditorData"};
    const auto *const snapshot = EditorIntake::snapshotIn<CommandParameterData>(data, site);
    if (!snapshot) {
        return;
    }
    m_command = qSharedPointerObjectCast<ICommandParameter>(data.ptrParameter);
    // The headline never names the node: nothing replaces its "%s".
    const QString headline = QStringLiteral("!! Failed to initialize button data for node %s");
    Core::guardedRun(site, headline, [this, &data, snapshot] {
        m_keeper->keep(data);
        setChecked(!snapshot->isDone);
        showProgress(!snapshot->isDone);
        setEnabled(EditorIntake::canBeChanged(*snapshot));
        // Unlike other widgets, a disabled button keeps clicks from the row.
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    });
}

void ToolButtonEditor::showProgress(bool isRunning)
{
    if (isRunning == m_isRunning) {
        return;
    }
    m_isRunning = isRunning;
    if (isRunning) {
        m_doneTimer.stop();
        m_askTimer.start(askMilliseconds); // polling may be off
        showState(tr("Running…"));
    } else {
        m_askTimer.stop();
        m_doneTimer.start(doneMilliseconds);
        showState(tr("Done"));
    }
}

void ToolButtonEditor::showState(const QString &text)
{
    if (this->text() == tr("Execute")) {
        m_description = accessibleDescription();
    }
    setText(text);
    setAccessibleDescription(text);
}

void ToolButtonEditor::showReady()
{
    setText(tr("Execute"));
    setAccessibleDescription(m_description);
}

void ToolButtonEditor::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setText(m_isRunning ? tr("Running…") : m_doneTimer.isActive() ? tr("Done") : tr("Execute"));
    }
}

void ToolButtonEditor::askWhetherDone()
{
    Core::guardedRun({logCategory(), "ToolButtonEditor::editorData"},
                     QStringLiteral("!! Failed to set button state"), [this] {
                         if (m_command) {
                             m_command->scheduleParameterDataChangedCheck(false);
                         }
                     });
}

QVariant ToolButtonEditor::editorData()
{
    const bool wasChecked = isChecked();
    askWhetherDone();
    m_keeper->showAgainAfterCommit();
    return wasChecked ? QVariant(QStringLiteral("1")) : QVariant();
}
