// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/doublecomboslider.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QTimer>

/*! \brief How the positions of a slider divide the range of values. */
enum class ETwoModeDoubleComboSliderMode {
    Linear, //!< equal distances are equal differences
    Logarithmic, //!< equal distances are equal ratios; linear where the minimum is not positive
};

/*! \brief A spin box and a slider that show the same value, on a linear or logarithmic scale.
 *
 * What the user enters is limited and moved onto the increment's grid. Changes in quick succession, as from a
 * drag or a held key, are announced no more often than their receivers can take them; the last one always is.
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT TwoModeDoubleComboSlider : public DoubleComboSlider
{
    Q_OBJECT

public:
    explicit TwoModeDoubleComboSlider(QWidget *parent);
    ~TwoModeDoubleComboSlider() override;

    /*! Sets how positions and values belong together, from the next value or movement on. */
    void setMode(ETwoModeDoubleComboSliderMode mode);
    /*! Returns how positions and values belong together. */
    ETwoModeDoubleComboSliderMode mode() const;

    /*! Sets the distance of the values that can be entered, counted from the minimum; 0 for none. */
    void setIncrement(double increment);

    /*! Sets the limits of values and positions. What is shown moves only as far as the new limits ask. */
    void setLimits(double minimum, double maximum, int minimumPosition, int maximumPosition,
                   int positionStep);

    /*! Shows \a value in the spin box, as it is, and on the slider. Announces nothing. */
    void showValue(double value);

    /*! Returns the value that belongs to \a position. */
    double valueFromPosition(int position) const;
    /*! Returns the position that is nearest to \a value. */
    int positionFromValue(double value) const;

signals:
    /*! The user has committed a change. */
    void boxValueChanged();

protected:
    /*! Returns whether the user is moving the slider, or has and the change is not announced yet. */
    bool isBeingMoved() const;
    /*! Returns whether the user is typing a value. */
    bool isBeingTyped() const;
    /*! Makes what is shown the base that the user's next change is compared with. */
    void settle();

private slots:
    void onTextEdited();
    void onValueChanged(double value);
    void onEditingFinished();
    void onSliderMoved(int position);
    void onStepTriggered(int steps);
    void announceNow();

private:
    bool isLogarithmic() const;
    double usable(double value) const;
    void enter(double value);
    void showPosition(int position);

    ETwoModeDoubleComboSliderMode m_mode = ETwoModeDoubleComboSliderMode::Linear;
    double m_increment = 0.0;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    double m_valueBeforeStep = 0.0;
    QString m_settledText; //!< what was last shown or entered
    bool m_isShowing = false; //!< the slider moves because of the program
    bool m_isUnannounced = false; //!< entered, but not announced yet
    QTimer m_pause;
};
