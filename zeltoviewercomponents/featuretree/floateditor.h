// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "doublespinbox.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <memory>

class EditorDataKeeper;
struct FloatEntry;

/*! \brief Edits a floating-point feature with a spin box.
 *
 * What the user enters is limited, moved onto the increment's grid and announced once, on Return, focus loss
 * or a step; it is handed out in the C locale with all its digits. Without a value, or with limits in the
 * wrong order, a typed number is announced as it is, and nothing steps.
 *
 * A step goes by the increment. Without one it changes the second digit of the value, or, where a limit is
 * missing, its last shown digit; how far it goes stays the same while the user is in the editor. A step that
 * the camera swallows is taken again tenfold.
 *
 * \ingroup editors
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FloatEditor : public DoubleSpinBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    /*! Makes an editor for a feature of that representation. */
    FloatEditor(QWidget *parent, const QString &representation);
    ~FloatEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

Q_SIGNALS:
    /*! The user has committed a change. */
    void boxValueChanged();

private Q_SLOTS:
    void onTextEdited();
    void onEditingFinished();
    void onStepTriggered(int steps);
    void onLeft();
    void takeStep();

private:
    void showSnapshot(const ParameterCollection::FloatParameterData &snapshot);
    void showValue(const ParameterCollection::FloatParameterData &snapshot);
    void setShown(double value);
    double stepDistance(int steps);
    double freeStepWidth() const;
    void commit(double number);

    EditorDataKeeper *m_keeper;
    std::unique_ptr<FloatEntry> m_entry;
};
