// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QSpinBox>

#include <optional>

/*! \brief A spin box with a page step of its own that commits every step at once.
 *
 * What is typed stays as it is typed, also beyond the limits, until it is entered with Return, by a step or
 * by leaving. Then the nearest limit takes its place. A text that is no number is kept by Return and replaced
 * by the value on leaving, as is a number outside the limits where the value is not known. A menu or another
 * window is not leaving.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ZeltoQtSpinBox : public QSpinBox
{
public:
    explicit ZeltoQtSpinBox(QWidget *parent = nullptr);
    ~ZeltoQtSpinBox() override;

    using QSpinBox::lineEdit;

    /*! Sets by how much Page Up and Page Down change the value, in single steps. */
    void setPageStep(int pageStep);
    /*! Sets the value to \a value, limited to the range. */
    void setValue(int value);

    /*! Changes the value by \a steps single steps, or by the page step after a page key, and ends the
     * editing. */
    void stepBy(int steps) override;
    /*! Returns where the step began that is being made, which includes the end of the editing that follows.
     */
    std::optional<int> stepStart() const;

    /*! Shows \a text in the place of a value that is not known, which no step can start from. An empty one
     * shows the value again. */
    void setSubstitute(const QString &text);
    /*! Sets whether the limits fit together, so that numbers can be entered. */
    void setHasLimits(bool hasLimits);
    /*! Returns whether there is a value, and limits, to make steps with. */
    bool canStep() const;

    /*! Returns why what stands there is no value, empty when it is one. */
    QString problem() const;
    /*! Returns the words for what the limits and the grid make of \a number; empty when they leave it. */
    QString outcomeOf(qint64 number) const;
    /*! Returns the number that was typed before the editing ended, once. */
    std::optional<qint64> takeEntered();

    /*! Refuses no key: half of a number may look like anything. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*! Limits a number that was typed; the base would go back to the previous value. */
    void fixup(QString &text) const override;

protected:
    void initStyleOption(QStyleOptionSpinBox *option) const override;
    QString textFromValue(int value) const override;
    int valueFromText(const QString &text) const override;
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::optional<qint64> numberIn(const QString &text) const;
    std::optional<qint64> typedNumber() const;
    void noteEntered();
    void pause(QFocusEvent *event);
    void endRepeatedSteps();

    QString m_substitute;
    std::optional<qint64> m_entered;
    std::optional<int> m_stepStart;
    int m_pageStep = 10;
    bool m_pageKeyPressed = false;
    bool m_isPausing = false; // nothing is entered
    bool m_hasLimits = true;
};
