// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QDoubleSpinBox>
#include <QLocale>
#include <QScopedValueRollback>

#include <optional>

class InputHint;

/*! \brief A spin box for doubles that reports step requests instead of stepping.
 *
 * It shows plain decimals until showFeatureValues() makes it follow a feature's notation and precision. Then
 * the value itself keeps all its digits, and they are shown once the user has clicked or tabbed into the box.
 *
 * Every key stays as typed until Return or leaving, which take a number, limited to the range. A text that is
 * no number is marked, Return keeps it, and leaving gives back the value. A menu, a tool tip or another
 * window is not leaving.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ZeltoQtDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit ZeltoQtDoubleSpinBox(QWidget *parent = nullptr);
    ~ZeltoQtDoubleSpinBox() override;

    /*! Returns the page step, which is kept for the owner. */
    double pageStep() const;
    /*! Sets the page step. */
    void setPageStep(double pageStep);

    using QDoubleSpinBox::lineEdit;

    /*! Shows values as formatFeatureValue() does with \a notation and \a precision. Returns whether they
     * were shown otherwise before. */
    bool showFeatureValues(GenApi::EDisplayNotation notation, int precision);

    /*! Sets both limits, with all their digits when feature values are shown. */
    void setLimits(double minimum, double maximum);
    /*! Returns the lowest value, the lowest double where there is no limit. */
    double lowestValue() const;
    /*! Returns the highest value, the highest double where there is no limit. */
    double highestValue() const;
    /*! Sets the value to \a value, limited to the range. */
    void setValue(double value);
    /*! Shows \a value, limited to the range, with all its digits kept when feature values are shown. */
    void showValue(double value);

    /*! Sets whether stepping makes sense. Where it does not, keys and wheel leave alone what is typed. */
    void setSteppable(bool isSteppable);

    /*! Shows \a text instead of the value until the user types a number; an empty text shows the value. */
    void setSubstitute(const QString &text);
    /*! Returns whether there is a text instead of the value. */
    bool hasSubstitute() const;

    /*! Returns \a value as the spin box shows numbers. */
    QString numberText(double value) const;
    /*! Returns one unit of the last digit of \a value as it is shown. */
    double lastDigit(double value) const;
    /*! Returns the least difference from \a value that can be shown. */
    double finestDigit(double value) const;

    /*! Returns whether the user is typing: nothing was entered or set since. */
    bool isBeingTyped() const;
    /*! Keeps the typed text, if any, as it is for as long as what is returned lives. */
    QScopedValueRollback<bool> keepTypedText();
    /*! Shows the value again in place of a typed text, unless that is to be kept. */
    void showText();
    /*! Takes the text that stands there for the value: it is not typed, nor has it a problem. */
    void settle();
    /*! Returns, during editingFinished() and stepTriggered(), the number that was typed, that which was shown
     * included; none when the text was left alone. */
    std::optional<double> entry() const;
    /*! Tells the user beside the box when the limits or \a increment made \a value of the \a typed number. */
    void tellOutcome(double typed, double value, double minimum, double maximum, double increment);

    /*! Takes over a typed number, then emits stepTriggered(); a text that is no number stays, and nothing
     * steps. */
    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    /*! Refuses line breaks and the like alone: everything else can be typed. */
    QValidator::State validate(QString &text, int &pos) const override;
    /*! Limits a number to the range. */
    void fixup(QString &text) const override;

Q_SIGNALS:
    /*! The user wants \a steps steps; negative ones go down. */
    void stepTriggered(int steps);
    /*! The user has left; after editingFinished(). */
    void left();

protected:
    void initStyleOption(QStyleOptionSpinBox *option) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    StepEnabled stepEnabled() const override;

private Q_SLOTS:
    void onTextChanged(const QString &text);
    void selectSubstitute();

private:
    InputHint *hint();
    void makeRoomFor(double number);
    bool takeTyped();
    bool isAsShown(const QString &text) const;
    QString shownText(double value) const;
    void showAllDigits(bool all);
    void setProblem(const QString &problem);

    double m_pageStep = 0.0;
    GenApi::EDisplayNotation m_notation = GenApi::UndefinedDisplayNotation;
    int m_precision = 0;
    QLocale m_language; //!< of feature values
    bool m_hasAllDigits = false; //!< shown, as long as the user is here
    bool m_isSteppable = true;
    bool m_isTextKept = false;
    QString m_substitute;
    std::optional<double> m_entry;
    InputHint *m_hint = nullptr; // created when there is something to say
};
