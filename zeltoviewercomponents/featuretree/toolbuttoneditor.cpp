// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "toolbuttoneditor.h"

#include "editordatakeeper.h"
#include "editorhelpers.h"

#include <platform/core/guard.h>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.toolButtonEditor")

ToolButtonEditor::ToolButtonEditor(QWidget *parent)
    : QToolButton(parent)
    , m_keeper(new EditorDataKeeper(this, this))
{
    setAutoRaise(false);
    setText(tr("Execute"));
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setContentsMargins(0, 0, 0, 0);
    setAutoFillBackground(true);
}

ToolButtonEditor::~ToolButtonEditor() = default;

void ToolButtonEditor::setEditorData(EditorData data)
{
    const auto command = qSharedPointerObjectCast<ICommandParameter>(data.ptrParameter);
    if (!command || !data.ptrParameterData || data.ptrParameterData->type != ParameterType::Command) {
        Core::Logging::createLogEntry(ELogLevel::Debug, logCategory(),
                                      QStringLiteral("%1 is called with non-command node????")
                                          .arg(QLatin1String("ToolButtonEditor::setEditorData")));
        return;
    }
    m_command = command;
    // The headline never names the node: nothing replaces its "%s".
    const QString headline = QStringLiteral("!! Failed to initialize button data for node %s");
    Core::guardedRun({logCategory(), "ToolButtonEditor::setEditorData"}, headline, [this, &data] {
        const auto &snapshot = static_cast<const CommandParameterData &>(*data.ptrParameterData);
        m_keeper->keep(data);
        setChecked(!snapshot.isDone);
        setEnabled(EditorHelpers::canBeChanged(snapshot));
        // Unlike other widgets, a disabled button keeps clicks from the row.
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    });
}

QVariant ToolButtonEditor::editorData()
{
    const bool wasChecked = isChecked();
    Core::guardedRun({logCategory(), "ToolButtonEditor::editorData"},
                     QStringLiteral("!! Failed to set button state"), [this] {
                         if (m_command) {
                             m_command->scheduleParameterDataChangedCheck(false);
                         }
                     });
    m_keeper->showAgainAfterCommit();
    return wasChecked ? QVariant(QStringLiteral("1")) : QVariant();
}
