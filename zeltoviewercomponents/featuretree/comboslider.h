// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QWidget>

#include <memory>
#include <optional>

class InputHint;
class QSlider;
class ZeltoQtSpinBox;

/*! \brief A spin box with a slider beside it, for integers.
 *
 * Values lie on the grid that starts at the minimum. Only the user's changes emit valueChanged(),
 * programmatic ones never do. A hint says when a limit or a grid point took the place of what was entered.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT ComboSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit ComboSlider(QWidget *parent = nullptr);
    ~ComboSlider() override;

    /*! Shows the grid point at or below \a value. */
    virtual void setValue(int value);
    /*! Sets the lowest value, where the grid starts. */
    virtual void setMinimum(int minimum);
    /*! Sets the highest value. */
    virtual void setMaximum(int maximum);
    /*! Sets both limits. */
    virtual void setRange(int minimum, int maximum);
    /*! Sets both limits and the distance of the grid points. */
    virtual void setRangeAndStep(int minimum, int maximum, int singleStep);
    /*! Sets the distance of the grid points. */
    virtual void setSingleStep(int singleStep);
    /*! Sets by how much a page key changes the value. */
    virtual void setPageStep(int pageStep);

    /*! Returns the value that is shown. */
    int value() const;
    /*! Returns the lowest value. */
    int minimum() const;
    /*! Returns the highest value. */
    int maximum() const;
    /*! Returns the distance of the grid points. */
    int singleStep() const;
    /*! Returns by how much a page key changes the value. */
    int pageStep() const;

    /*! Returns the least width of the spin box. */
    int editBoxWidth() const;
    /*! Sets the least width of the spin box. */
    void setEditBoxWidth(int width);

    /*! Sets whether movements of the slider emit valueChanged(). */
    void enableUpdate(bool enable);
    /*! Returns whether movements of the slider emit valueChanged(). */
    bool isUpdateEnabled() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /*! The user has changed the value. */
    void valueChanged(int value);
    /*! The limits were set. */
    void rangeChanged(int minimum, int maximum);

protected:
    void changeEvent(QEvent *event) override;
    virtual void updateToolTip();

    /*! Tells everybody of the user's change to \a value, unless updates are off. */
    virtual void tellUser(int value);

    /*! Returns the grid point at or below \a value, inside the limits. */
    int trimValue(int value) const;

    /*! Returns where the step began that is being told; nothing when that is an entry or a drag. */
    std::optional<int> stepStart() const;
    /*! Sets whether what is shown is the value that setValue() was asked for. Any entry changes one that is
     * not. */
    void setShowsTrueValue(bool showsTrueValue);

    QSlider *slider() const;
    ZeltoQtSpinBox *spinBox() const;

protected Q_SLOTS:
    void onSliderValueChanged(int value);
    void onComboBoxEditingFinished();

private Q_SLOTS:
    void onSliderAction(int action);
    void onTextChanged();
    void onReturnPressed();

private:
    InputHint *hint();

    struct Private;
    const std::unique_ptr<Private> d;
};
