// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

#include <memory>

class QSlider;
class ZeltoQtDoubleSpinBox;

/*! \brief A spin box for doubles beside a slider of integer positions that carries the stepping.
 *
 * How positions and values belong together is the subclass's matter.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT DoubleComboSlider : public QWidget
{
    Q_OBJECT

public:
    explicit DoubleComboSlider(QWidget *parent = nullptr);
    ~DoubleComboSlider() override;

    /*! Shows \a value in the spin box; the slider stays where it is. */
    virtual void setValue(double value);
    /*! Sets the slider's position. */
    virtual void setIntValue(int position);
    /*! Sets the lowest value of the spin box. */
    virtual void setMinimum(double minimum);
    /*! Sets the slider's first position. */
    virtual void setIntMinimum(int minimum);
    /*! Sets the highest value of the spin box. */
    virtual void setMaximum(double maximum);
    /*! Sets the slider's last position. */
    virtual void setIntMaximum(int maximum);
    /*! Sets how many decimals the spin box keeps. */
    virtual void setDecimals(int decimals);
    /*! Sets both limits of the spin box. */
    virtual void setRange(double minimum, double maximum);
    /*! Sets the slider's first and last position. */
    virtual void setIntRange(int minimum, int maximum);
    /*! Sets the slider step that corresponds to one increment of the value. */
    virtual void setIntIncrement(int increment);
    /*! Sets the page step to the larger of two increments and a twentieth of the slider's range, on the grid.
     */
    virtual void setPageStep();
    /*! Sets the range of the slider, its step and its page step. */
    virtual void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement);
    /*! Sets the limits of the spin box, the slider's step and its page step. */
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement);
    /*! Sets the ranges of both controls, the steps and the position of the slider. */
    virtual void initControls(double minRangeLimit, double maxRangeLimit, int intValue, int minIntRangeLimit,
                              int maxIntRangeLimit, int intIncrement);

    /*! Returns the value in the spin box. */
    double value() const;
    /*! Returns the lowest value of the spin box. */
    double minimum() const;
    /*! Returns the highest value of the spin box. */
    double maximum() const;
    /*! Returns how many decimals the spin box keeps. */
    int decimals() const;
    /*! Returns the slider's position. */
    int intValue() const;
    /*! Returns the slider's first position. */
    int intMinimum() const;
    /*! Returns the slider's last position. */
    int intMaximum() const;
    /*! Returns the slider step that corresponds to one increment of the value. */
    int intIncrement() const;
    /*! Returns the least width of the spin box. */
    int editBoxWidth() const;

    /*! Sets whether a refresh may overwrite the shown value although the user has the focus. */
    void enableUpdate(bool enable);
    /*! Returns whether a refresh may overwrite the shown value although the user has the focus. */
    bool isUpdateExspected() const;
    /*! Returns whether the spin box has the focus. */
    bool hasFocus() const;

public Q_SLOTS:
    /*! Moves the slider as a step of the spin box asks for. */
    void onSpinBoxStepTriggered(int steps);
    /*! Takes note that the spin box got or lost the focus. */
    void onSpinBoxFocusEventTriggered(bool focus);

Q_SIGNALS:
    /*! The slider's range was set. */
    void rangeChanged(int minimum, int maximum);

protected:
    void changeEvent(QEvent *event) override;
    virtual void updateToolTip();
    void setEditBoxWidth(int width);
    bool checkIfLimitsChanged(int minimum, int maximum, int increment) const;
    bool checkIfLimitsChanged(double minimum, double maximum, int increment) const;
    /*! Returns the grid position at or below \a position. */
    int trimSliderValue(int position) const;
    QSlider *slider() const;
    ZeltoQtDoubleSpinBox *spinBox() const;

private:
    void reportIntRange();

    struct Private;
    const std::unique_ptr<Private> d;
};
