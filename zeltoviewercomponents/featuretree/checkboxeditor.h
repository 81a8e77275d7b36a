// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QCheckBox>

class EditorDataKeeper;

/*! \brief Edits a boolean feature; hands out "1" or "0".
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT CheckBoxEditor : public QCheckBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit CheckBoxEditor(QWidget *parent);
    ~CheckBoxEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

private:
    EditorDataKeeper *m_keeper;
};
