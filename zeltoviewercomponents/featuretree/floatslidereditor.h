// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "twomodedoublecomboslider.h"

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class EditorDataKeeper;

/*! \brief Edits a floating-point feature with a spin box and a slider.
 *
 * The slider has the range and the step of the feature's alias, the integer called by the feature's name and
 * "/Alias"; the camera's answer to a write decides where the slider stands.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FloatSliderEditor : public TwoModeDoubleComboSlider,
                                                             public AbstractItemEditor
{
    Q_OBJECT

public:
    /*! Makes an editor that finds the alias of its feature in \a collection. */
    FloatSliderEditor(QSharedPointer<ParameterCollection::IParameterCollection> collection, QWidget *parent);
    ~FloatSliderEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

private Q_SLOTS:
    void onBoxValueChanged();

private:
    void findAlias(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void showSnapshot(const ParameterCollection::FloatParameterData &snapshot);
    void showLimits(const ParameterCollection::FloatParameterData &snapshot, bool isNewLook);

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QSharedPointer<ParameterCollection::IParameter> m_alias; //!< of the parameter; null when it has none
    EditorDataKeeper *m_keeper;
};
