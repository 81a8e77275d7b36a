// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "doublecomboslider.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <memory>

class NumberStep;

/*! \brief How the positions of a slider divide the range of values.
 *
 * \ingroup controls
 */
enum class ETwoModeDoubleComboSliderMode {
    Linear, //!< equal distances are equal differences
    Logarithmic, //!< equal distances are equal ratios; linear where the minimum is not positive
};

/*! \brief A spin box and a slider that show the same value, on a linear or logarithmic scale.
 *
 * What the user enters is limited and moved onto the increment's grid. Changes in quick succession, as from a
 * drag or a held key, are announced no more often than their receivers can take them; the last one always is.
 *
 * A step goes as far as one position of the slider, at least as far as the increment and as can be shown;
 * where a limit is missing, it changes the last shown digit.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT TwoModeDoubleComboSlider : public DoubleComboSlider
{
    Q_OBJECT
    Q_PROPERTY(bool logarithmic READ isLogarithmicWanted WRITE setLogarithmic)
    Q_PROPERTY(double lowest READ minimum WRITE setLowest)
    Q_PROPERTY(double highest READ maximum WRITE setHighest)
    Q_PROPERTY(double shownValue READ value WRITE setShownValue NOTIFY boxValueChanged USER true)

public:
    explicit TwoModeDoubleComboSlider(QWidget *parent = nullptr);
    ~TwoModeDoubleComboSlider() override;

    /*! Sets how positions and values belong together, from the next value or movement on. */
    void setMode(ETwoModeDoubleComboSliderMode mode);
    /*! Returns how positions and values belong together. */
    ETwoModeDoubleComboSliderMode mode() const;

    /*! Sets the mode that \a logarithmic stands for. */
    void setLogarithmic(bool logarithmic);
    /*! Returns whether the mode is the logarithmic one. */
    bool isLogarithmicWanted() const;
    /*! Sets the lowest value, with a thousand positions up to the highest. */
    void setLowest(double minimum);
    /*! Sets the highest value, with a thousand positions from the lowest. */
    void setHighest(double maximum);

    /*! Sets the distance of the values that can be entered, counted from the minimum; 0 for none. */
    void setIncrement(double increment);

    /*! Sets whether numbers are announced as they are typed, whatever the limits, and nothing steps. */
    void setFree(bool isFree);

    /*! Sets the limits of values and positions. What is shown moves only as far as the new limits ask. */
    void setLimits(double minimum, double maximum, int minimumPosition, int maximumPosition,
                   int positionStep);

    /*! Shows \a value in the spin box, as it is, and on the slider. Announces nothing. */
    void showValue(double value);
    /*! The same, by the name that forms know. */
    void setShownValue(double value);

    /*! Returns the value that belongs to \a position. */
    double valueFromPosition(int position) const;
    /*! Returns the position that is nearest to \a value. */
    int positionFromValue(double value) const;

Q_SIGNALS:
    /*! The user has committed a change. */
    void boxValueChanged();

protected:
    /*! Returns whether the user is moving the slider, or has and the change is not announced yet. */
    bool isBeingMoved() const;
    /*! Makes \a value the base that the user's next change is compared with; NaN for none. */
    void settle(double value);
    /*! Drops a change that is not announced yet. */
    void dropChange();
    NumberStep &step() const;

private Q_SLOTS:
    void onTextEdited();
    void onEditingFinished();
    void onSliderMoved(int position);
    void onSliderAction(int action);
    void onStepTriggered(int steps);
    void onLeft();
    void announceNow();
    void takeStep();

private:
    bool isLogarithmic() const;
    void setShown(double value);
    void enter(double value);
    void showPosition(int position);
    void takeSteps(int steps, bool isPage);
    double stepDistance(double start, int steps);
    double slidersDistance(double start, double positions) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
