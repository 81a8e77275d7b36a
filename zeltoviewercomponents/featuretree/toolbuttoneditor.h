// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QToolButton>

class EditorDataKeeper;

/*! \brief Executes a command feature: hands out "1" when pressed. Stays pressed while the command runs. */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ToolButtonEditor : public QToolButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit ToolButtonEditor(QWidget *parent);
    ~ToolButtonEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

private:
    EditorDataKeeper *m_keeper;
    QSharedPointer<ParameterCollection::ICommandParameter> m_command;
};
