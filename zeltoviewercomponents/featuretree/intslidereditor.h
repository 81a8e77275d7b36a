// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "comboslider.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class EditorDataKeeper;
class NumberStep;

/*! \brief Edits an integer feature with a spin box and a slider; 64-bit values are limited to 32 bits.
 *
 * A step that the camera swallows, because it rounds values, is made again tenfold until the value moves or
 * a limit is reached.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IntSliderEditor : public ComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntSliderEditor(QWidget *parent);
    ~IntSliderEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

protected:
    void tellUser(int value) override;

private Q_SLOTS:
    void endStep();
    void goOnStepping();

private:
    void showSnapshot(const EditorData &data);
    void showLimits(const ParameterCollection::IntegerParameterData &snapshot);
    void write(int value);

    EditorDataKeeper *m_keeper;
    NumberStep *m_step;
    int m_stepWidth = 0; //!< of the step under way
};
