// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/comboslider.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <optional>

class EditorDataKeeper;

/*! \brief Edits an integer feature with a spin box and a slider; 64-bit values are limited to 32 bits.
 *
 * A step that the camera swallows, because it rounds values, is made again tenfold until the value moves or
 * a limit is reached.
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
    void valueTold() override;

private slots:
    void noteStep(int value);

private:
    /*! \brief A step that the camera has not answered yet. */
    struct Step
    {
        ParameterCollection::ParameterDataPtr before;
        qint64 distance;
    };

    void showSnapshot(const EditorData &data);
    void showLimits(const ParameterCollection::IntegerParameterData &snapshot);
    void showUnreadable(const EditorData &data);
    ParameterCollection::ParameterDataPtr currentValue() const;

    EditorDataKeeper *m_keeper;
    EditorData m_shown;
    std::optional<Step> m_step;
};
