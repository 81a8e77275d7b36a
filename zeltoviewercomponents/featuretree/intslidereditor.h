// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/comboslider.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class EditorDataKeeper;

/*! \brief Edits an integer feature with a spin box and a slider; 64-bit values are limited to 32 bits. */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IntSliderEditor : public ComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntSliderEditor(QWidget *parent);
    ~IntSliderEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

private:
    void showSnapshot(const EditorData &data);

    EditorDataKeeper *m_keeper;
};
