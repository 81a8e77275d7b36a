// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/parameterdata.h>
#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>

#include <QDeadlineTimer>
#include <QScopedValueRollback>

#include <functional>
#include <optional>

/*! \brief A step of a floating-point editor, which goes on until the camera's value has moved.
 *
 * A register may swallow a step, as one of single precision does: the camera then answers with the value that
 * it had. Such a step is taken again from where it began, tenfold. A refusal ends the step, since a wider one
 * is not what the user asked for.
 */
class FloatStep
{
public:
    /*! Takes over what the editor is told to show. */
    void show(const AbstractItemEditor::EditorData &data);

    /*! Begins \a steps steps from \a start, the number that the editor shows. */
    void begin(double start, int steps);
    /*! Ends the step. */
    void end();
    /*! Returns whether the camera has not answered yet. */
    bool isUnderWay() const;

    /*! Returns the steps that were asked for; negative ones go down. */
    int steps() const;
    /*! Returns the number to write; none when the step goes no farther. \a reached returns the number that
     * the step leads to from \a start when it is taken \a factor times as wide. */
    std::optional<double> next(const std::function<double(double start, double factor)> &reached);

    /*! To be kept while the number is written: what is shown again meanwhile was refused. */
    QScopedValueRollback<bool> writing();
    /*! Returns whether the camera's answer is the value it had. Any other answer ends the step. */
    bool isSwallowed();

private:
    ParameterCollection::ParameterDataPtr current() const;

    AbstractItemEditor::EditorData m_shown;
    ParameterCollection::ParameterDataPtr m_before; //!< the camera's answer is a newer one
    double m_valueBefore = 0.0;
    double m_start = 0.0;
    double m_last = 0.0; //!< the number that was written last, or the start
    double m_factor = 1.0;
    int m_steps = 0; //!< 0 when no step is under way
    bool m_isWriting = false;
    QDeadlineTimer m_answerTime; //!< after it, an old answer counts, too
};
