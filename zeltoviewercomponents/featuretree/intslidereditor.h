// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"
#include "comboslider.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QDeadlineTimer>

#include <optional>

class EditorDataKeeper;

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

private slots:
    void goOnStepping();

private:
    /*! \brief A step that has not moved the camera's value yet. */
    struct Step
    {
        ParameterCollection::ParameterDataPtr before; //!< the camera's answer is a newer one
        int start;
        qint64 distance;
        int last; //!< the value that was written last
        QDeadlineTimer answerTime; //!< after it, an old answer counts, too
    };

    void showSnapshot(const EditorData &data);
    void write(int value);
    void showLimits(const ParameterCollection::IntegerParameterData &snapshot);
    ParameterCollection::ParameterDataPtr currentValue() const;

    EditorDataKeeper *m_keeper;
    EditorData m_shown;
    std::optional<Step> m_step;
    bool m_isWriting = false;
};
