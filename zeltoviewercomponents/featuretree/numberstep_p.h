// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <platform/parametercollection/parameterdata.h>

#include <QBasicTimer>
#include <QObject>

#include <functional>
#include <optional>

/*! \brief A step of a number editor, which goes on until the camera's value has moved.
 *
 * A register may swallow a step, as one of single precision does: the camera then answers with the value that
 * it had. Such a step is taken again from where it began, tenfold. A refusal ends the step, since a wider one
 * is not what the user asked for; so does everything else that the user does. Silence is no answer: a camera
 * that says nothing is asked.
 *
 * \ingroup editors
 */
class NumberStep : public QObject
{
    Q_OBJECT

public:
    explicit NumberStep(QObject *parent);
    ~NumberStep() override;

    /*! Takes over what the editor is told to show. */
    void show(const AbstractItemEditor::EditorData &data);

    /*! Begins \a steps steps from \a start, the number that the editor shows. */
    void begin(double start, int steps);
    /*! Begins a step from \a start that has led to \a first, which is about to be written. */
    void beginAt(double start, double first);
    /*! Ends the step. */
    void end();

    /*! Returns the steps that were asked for; negative ones go down. */
    int steps() const;
    /*! Returns the number to write; none when the step goes no farther. \a reached returns the number that
     * the step leads to from \a start when it is taken \a factor times as wide. */
    std::optional<double> next(const std::function<double(double start, double factor)> &reached);

    /*! To be called before the number is written: what is shown again until endWrite() was refused. */
    void beginWrite();
    /*! To be called after the number was written. */
    void endWrite();

    /*! Returns whether the camera, as far as is known, holds \a value: the editor may show an older one. */
    bool isHeld(double value) const;

public slots:
    /*! Looks whether the camera has answered, which it may have done within the write. */
    void judge();

signals:
    /*! The camera has answered with the value it had: next() tells how to go on. */
    void swallowed();

protected:
    void timerEvent(QTimerEvent *event) override;

private slots:
    void onPublished();

private:
    void ask();
    void follow();
    bool isWaiting() const;
    ParameterCollection::ParameterDataPtr current() const;

    AbstractItemEditor::EditorData m_shown;
    ParameterCollection::ParameterDataPtr m_before; //!< the camera's answer is a newer one
    double m_start = 0.0;
    double m_last = 0.0; //!< the number that was written last, or the start
    double m_factor = 1.0;
    int m_steps = 0; //!< 0 when no step is under way
    int m_tries = 0;
    bool m_isFollowing = false;
    bool m_isWriting = false;
    bool m_isAsked = false; //!< then the same snapshot is an answer, too
    QBasicTimer m_answerTimer; //!< runs from a write to its answer, or until the camera is asked
};
