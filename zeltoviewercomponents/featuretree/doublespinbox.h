// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

#include <memory>

class ZeltoQtDoubleSpinBox;

/*! \brief A spin box for doubles with limits, increment and page step; its owner decides how far a step goes.
 *
 * Tells its owner whether a refresh may overwrite what is shown: not while the user, who has the focus, has
 * changed it.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT DoubleSpinBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double increment READ increment WRITE setIncrement)
    Q_PROPERTY(double value READ value WRITE setValue USER true)

public:
    /*! With step buttons. */
    explicit DoubleSpinBox(QWidget *parent = nullptr);
    /*! For the \a representation "PureNumber" there are no step buttons. */
    DoubleSpinBox(QWidget *parent, const QString &representation);
    ~DoubleSpinBox() override;

    /*! Shows \a value, limited to the range. */
    virtual void setValue(double value);
    /*! Sets the lowest value. */
    virtual void setMinimum(double minimum);
    /*! Sets the highest value. */
    virtual void setMaximum(double maximum);
    /*! Sets how many decimals are kept. */
    virtual void setDecimals(int decimals);
    /*! Sets the increment, which the tool tip tells; 0 for none. */
    virtual void setIncrement(double increment);
    /*! Sets both limits. */
    virtual void setRange(double minimum, double maximum);
    /*! Sets the page step to the larger of two increments and a twentieth of the range. */
    virtual void setPageStep();
    /*! Sets limits, increment and page step; without an increment the step buttons go. */
    virtual void setRangeStepAndIncrement(double minimum, double maximum, double increment);
    /*! Shows \a value and sets limits, increment and page step. */
    virtual void initControls(double minimum, double maximum, double value, double increment);

    /*! Returns the value that is shown. */
    double value() const;
    /*! Returns the lowest value. */
    double minimum() const;
    /*! Returns the highest value. */
    double maximum() const;
    /*! Returns how many decimals are kept. */
    int decimals() const;
    /*! Returns the increment, 0 for none. */
    double increment() const;
    /*! Returns the page step, cut to 32 bits. */
    int pageStep() const;
    /*! Returns the least width of the spin box, 0 when none was set. */
    int editBoxWidth() const;

    /*! Sets whether a refresh may overwrite the shown value although the user has the focus. */
    void enableUpdate(bool enable);
    /*! Returns whether a refresh may overwrite the shown value although the user has the focus. */
    bool isUpdateExspected() const;
    /*! Returns whether the spin box has the focus. */
    bool hasFocus() const;

public Q_SLOTS:
    /*! Takes note that the spin box got or lost the focus. */
    void onSpinBoxFocusEventTriggered(bool focus);

protected:
    /*! \brief When the spin box gets its limits. */
    enum class Limits {
        Now, //!< all doubles
        Later, //!< by the owner, before it shows a value: all doubles take the base long
    };
    DoubleSpinBox(QWidget *parent, const QString &representation, Limits limits);

    void changeEvent(QEvent *event) override;
    virtual void updateToolTip();
    void setEditBoxWidth(int width);
    bool checkIfLimitsChanged(double minimum, double maximum, double increment) const;
    ZeltoQtDoubleSpinBox *spinBox() const;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
