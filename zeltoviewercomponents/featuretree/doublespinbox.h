// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

#include <limits>

class SpinBoxEventCatcher;
class ZeltoQtDoubleSpinBox;

/*! \brief A spin box for doubles with limits, increment and page step; its owner decides how far a step goes.
 *
 * Tells its owner whether a refresh may overwrite what is shown: not while the user, who has the focus, has
 * changed it.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT DoubleSpinBox : public QWidget
{
    Q_OBJECT

public:
    /*! For the \a representation "PureNumber" there are no step buttons. */
    DoubleSpinBox(QWidget *parent, const QString &representation);
    ~DoubleSpinBox() override;

    virtual void setValue(double value);
    virtual void setMinimum(double minimum);
    virtual void setMaximum(double maximum);
    virtual void setDecimals(int decimals);
    virtual void setIncrement(double increment);
    virtual void setRange(double minimum, double maximum);
    /*! Sets the page step to the larger of two increments and a twentieth of the range. */
    virtual void setPageStep();
    virtual void setRangeStepAndIncrement(double minimum, double maximum, double increment);
    virtual void initControls(double minimum, double maximum, double value, double increment);

    double value() const;
    double minimum() const;
    double maximum() const;
    int decimals() const;
    double increment() const;
    int pageStep() const;
    int editBoxWidth() const;

    void enableUpdate(bool enable);
    /*! Returns whether a refresh may overwrite the shown value although the user has the focus. */
    bool isUpdateExspected() const;
    bool hasFocus() const;

protected:
    virtual void updateToolTip();
    void setEditBoxWidth(int width);
    bool checkIfLimitsChanged(double minimum, double maximum, double increment) const;
    ZeltoQtDoubleSpinBox *spinBox() const;

protected slots:
    void onSpinBoxFocusEventTriggered(bool focus);

private:
    ZeltoQtDoubleSpinBox *m_spinBox;
    SpinBoxEventCatcher *m_eventCatcher;
    double m_increment = 0.0;
    double m_minRangeLimit = std::numeric_limits<double>::lowest();
    double m_maxRangeLimit = std::numeric_limits<double>::max();
    int m_editBoxWidth = 0;
    bool m_updateExpected = false;
    bool m_hasFocus = false;
};
