// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

class QSlider;
class SpinBoxEventCatcher;
class ZeltoQtDoubleSpinBox;

/*! \brief A spin box for doubles beside a slider of integer positions that carries the stepping.
 *
 * How positions and values belong together is the subclass's matter.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT DoubleComboSlider : public QWidget
{
    Q_OBJECT

public:
    explicit DoubleComboSlider(QWidget *parent);
    ~DoubleComboSlider() override;

    virtual void setValue(double value);
    /*! Sets the slider's position. */
    virtual void setIntValue(int position);
    virtual void setMinimum(double minimum);
    virtual void setIntMinimum(int minimum);
    virtual void setMaximum(double maximum);
    virtual void setIntMaximum(int maximum);
    virtual void setDecimals(int decimals);
    virtual void setRange(double minimum, double maximum);
    virtual void setIntRange(int minimum, int maximum);
    /*! Sets the slider step that corresponds to one increment of the value. */
    virtual void setIntIncrement(int increment);
    /*! Sets the page step to the larger of two increments and a twentieth of the slider's range, on the grid.
     */
    virtual void setPageStep();
    virtual void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement);
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement);
    virtual void initControls(double minRangeLimit, double maxRangeLimit, int intValue, int minIntRangeLimit,
                              int maxIntRangeLimit, int intIncrement);

    double value() const;
    double minimum() const;
    double maximum() const;
    int decimals() const;
    int intValue() const;
    int intMinimum() const;
    int intMaximum() const;
    int intIncrement() const;
    int editBoxWidth() const;

    void enableUpdate(bool enable);
    /*! Returns whether a refresh may overwrite the shown value although the user has the focus. */
    bool isUpdateExspected() const;
    bool hasFocus() const;

signals:
    void rangeChanged(int minimum, int maximum);

protected:
    virtual void updateToolTip();
    void setEditBoxWidth(int width);
    bool checkIfLimitsChanged(int minimum, int maximum, int increment) const;
    bool checkIfLimitsChanged(double minimum, double maximum, int increment) const;
    /*! Returns the grid position at or below \a position. */
    int trimSliderValue(int position) const;
    QSlider *slider() const;
    ZeltoQtDoubleSpinBox *spinBox() const;

protected slots:
    void onSpinBoxStepTriggered(int steps);
    void onSpinBoxFocusEventTriggered(bool focus);

private:
    void reportIntRange();

    ZeltoQtDoubleSpinBox *m_spinBox;
    QSlider *m_slider;
    SpinBoxEventCatcher *m_eventCatcher;
    int m_editBoxWidth = 0;
    int m_intIncrement = 0;
    double m_minRangeLimit = 0.0;
    double m_maxRangeLimit = 0.0;
    bool m_hasFocus = false;
    bool m_updateExpected = false;
};
