// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

class QSlider;
class ZeltoQtSpinBox;

/*! \brief A spin box with a slider beside it, for integers.
 *
 * Values lie on the grid that starts at the minimum. Only the user's changes emit valueChanged(),
 * programmatic ones never do.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ComboSlider : public QWidget
{
    Q_OBJECT

public:
    explicit ComboSlider(QWidget *parent);
    ~ComboSlider() override;

    /*! Shows the grid point at or below \a value. */
    virtual void setValue(int value);
    virtual void setMinimum(int minimum);
    virtual void setMaximum(int maximum);
    virtual void setRange(int minimum, int maximum);
    virtual void setRangeAndStep(int minimum, int maximum, int singleStep);
    virtual void setSingleStep(int singleStep);
    virtual void setPageStep(int pageStep);

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    int pageStep() const;

    int editBoxWidth() const;
    /*! Sets the least width of the spin box. */
    void setEditBoxWidth(int width);

    /*! Sets whether movements of the slider emit valueChanged(). */
    void enableUpdate(bool enable);
    bool isUpdateEnabled() const;

signals:
    void valueChanged(int value);
    void rangeChanged(int minimum, int maximum);

protected:
    virtual void updateToolTip();

    /*! Returns the grid point at or below \a value, inside the limits. */
    int trimValue(int value) const;

    QSlider *slider() const;
    ZeltoQtSpinBox *spinBox() const;

protected slots:
    void onSliderValueChanged(int value);
    void onComboBoxEditingFinished();

private:
    ZeltoQtSpinBox *m_spinBox;
    QSlider *m_slider;
    int m_editBoxWidth = 0;
    bool m_updateEnabled = true;
};
