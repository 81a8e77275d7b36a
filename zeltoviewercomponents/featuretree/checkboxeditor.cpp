// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "checkboxeditor.h"

#include "accessibleeditors_p.h"
#include "editordatakeeper_p.h"
#include "editorintake_p.h"

#include <platform/core/guard.h>

using namespace ParameterCollection;

// Unlike the categories of the other editors: existing logging rules name it so.
ZELTO_LOG_CATEGORY("zelto.viewer.libs.zeltoViewerComponents.featureTree.checkBoxEditor")

CheckBoxEditor::CheckBoxEditor(QWidget *parent)
    : QCheckBox(parent)
    , m_keeper(new EditorDataKeeper(this, this))
{
    AccessibleEditors::install();
    setAutoFillBackground(true);
}

CheckBoxEditor::~CheckBoxEditor() = default;

void CheckBoxEditor::setEditorData(EditorData data)
{
    if (!data.ptrParameterData || data.ptrParameterData->type != ParameterType::Boolean) {
        return;
    }
    const auto headline = [&data] {
        return QStringLiteral("!! Failed to initialize checkbox data for node %1")
            .arg(EditorIntake::nodeName(data.ptrParameter.data()));
    };
    Core::guardedRun({logCategory(), "CheckBoxEditor::setEditorData"}, headline, [this, &data] {
        const auto &snapshot = static_cast<const BooleanParameterData &>(*data.ptrParameterData);
        m_keeper->keep(data);
        setChecked(snapshot.value);
        setEnabled(EditorIntake::canBeChanged(snapshot));
        // Unlike other widgets, a disabled button keeps clicks from the row.
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    });
}

QVariant CheckBoxEditor::editorData()
{
    m_keeper->showAgainAfterCommit();
    return isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}
