// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/doublespinbox.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class EditorDataKeeper;

/*! \brief Edits a floating-point feature with a spin box.
 *
 * Shows as many digits as give the value back. What the user enters is limited, moved onto the increment's
 * grid and announced once, on Return, focus loss or a step; it is handed out in the C locale.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FloatEditor : public DoubleSpinBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    FloatEditor(QWidget *parent, const QString &representation);
    ~FloatEditor() override;

    void setEditorData(EditorData data) override;
    QVariant editorData() override;

signals:
    /*! The user has committed a change. */
    void boxValueChanged();

private slots:
    void onTextEdited();
    void onEditingFinished();
    void onStepTriggered(int steps);

private:
    void showSnapshot(const ParameterCollection::FloatParameterData &snapshot);
    void showValue(const ParameterCollection::FloatParameterData &snapshot);
    double stepWidth() const;
    void commit(double value);

    EditorDataKeeper *m_keeper;
    double m_minimum = 0.0; //!< the limits of what the user enters; the shown value may lie outside
    double m_maximum = 0.0;
    QString m_settledText; //!< what was last shown or committed
    bool m_isChanged = false; //!< committed, not handed out yet
};
