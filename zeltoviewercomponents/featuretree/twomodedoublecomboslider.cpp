// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "twomodedoublecomboslider.h"

#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "floatentry_p.h"
#include "zeltoqtdoublespinbox.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int shortestPauseMilliseconds = 30;
constexpr int defaultPositions = 1000;

} // namespace

struct TwoModeDoubleComboSlider::Private
{
    ETwoModeDoubleComboSliderMode mode = ETwoModeDoubleComboSliderMode::Linear;
    FloatEntry entry; //!< its limits are those of the slider, too
    bool isPage = false; //!< the step under way
    bool isShowing = false; //!< the slider moves because of the program
    bool isUnannounced = false; //!< entered, but not announced yet
    QTimer pause;
};

TwoModeDoubleComboSlider::TwoModeDoubleComboSlider(QWidget *parent)
    : DoubleComboSlider(parent)
    , d(std::make_unique<Private>())
{
    d->entry.limits = {0.0, 0.0, 0.0};
    d->pause.setSingleShot(true);
    connect(&d->pause, SIGNAL(timeout()), this, SLOT(announceNow()));
    connect(spinBox()->lineEdit(), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(spinBox(), SIGNAL(left()), this, SLOT(onLeft()));
    // A value may lie between the positions that the base steps to.
    disconnect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
    connect(&d->entry.step, SIGNAL(swallowed()), this, SLOT(takeStep()));
    connect(slider(), SIGNAL(actionTriggered(int)), this, SLOT(onSliderAction(int)));
    connect(slider(), SIGNAL(valueChanged(int)), this, SLOT(onSliderMoved(int)));
    connect(slider(), SIGNAL(sliderReleased()), this, SLOT(announceNow()));
}

TwoModeDoubleComboSlider::~TwoModeDoubleComboSlider() = default;

void TwoModeDoubleComboSlider::setMode(ETwoModeDoubleComboSliderMode mode)
{
    d->mode = mode;
}

ETwoModeDoubleComboSliderMode TwoModeDoubleComboSlider::mode() const
{
    return d->mode;
}

void TwoModeDoubleComboSlider::setLogarithmic(bool logarithmic)
{
    d->mode =
        logarithmic ? ETwoModeDoubleComboSliderMode::Logarithmic : ETwoModeDoubleComboSliderMode::Linear;
    showPosition(positionFromValue(value()));
}

bool TwoModeDoubleComboSlider::isLogarithmicWanted() const
{
    return d->mode == ETwoModeDoubleComboSliderMode::Logarithmic;
}

void TwoModeDoubleComboSlider::setLowest(double minimum)
{
    setLimits(minimum, std::max(minimum, d->entry.limits.maximum), 0, defaultPositions, 1);
    showPosition(positionFromValue(value()));
}

void TwoModeDoubleComboSlider::setHighest(double maximum)
{
    setLimits(std::min(d->entry.limits.minimum, maximum), maximum, 0, defaultPositions, 1);
    showPosition(positionFromValue(value()));
}

void TwoModeDoubleComboSlider::setIncrement(double increment)
{
    d->entry.limits.increment = increment;
}

void TwoModeDoubleComboSlider::setFree(bool isFree)
{
    d->entry.isFree = isFree;
    spinBox()->setSteppable(!isFree);
}

void TwoModeDoubleComboSlider::setLimits(double minimum, double maximum, int minimumPosition,
                                         int maximumPosition, int positionStep)
{
    const QScopedValueRollback<bool> showing(d->isShowing, true);
    d->entry.limits.minimum = minimum;
    d->entry.limits.maximum = maximum;
    const int position = qBound(minimumPosition, intValue(), maximumPosition);
    initControls(minimum, maximum, position, minimumPosition, maximumPosition, positionStep);
}

void TwoModeDoubleComboSlider::showValue(double value)
{
    setShown(value);
    d->isUnannounced = false;
    settle(value);
}

void TwoModeDoubleComboSlider::setShownValue(double value)
{
    showValue(value);
}

// A value outside the limits is shown as it is; entries are limited by enter().
void TwoModeDoubleComboSlider::setShown(double value)
{
    const EditorNumbers::FloatLimits limits = d->entry.limitsAround(value);
    spinBox()->setLimits(limits.minimum, limits.maximum);
    setValue(value);
    showPosition(positionFromValue(value));
}

void TwoModeDoubleComboSlider::settle(double value)
{
    d->entry.settled = value;
    spinBox()->settle();
}

void TwoModeDoubleComboSlider::dropChange()
{
    d->entry.step.end();
    d->isUnannounced = false;
}

NumberStep &TwoModeDoubleComboSlider::step() const
{
    return d->entry.step;
}

bool TwoModeDoubleComboSlider::isLogarithmic() const
{
    return d->mode == ETwoModeDoubleComboSliderMode::Logarithmic && d->entry.limits.minimum > 0.0;
}

double TwoModeDoubleComboSlider::valueFromPosition(int position) const
{
    const EditorNumbers::FloatLimits &limits = d->entry.limits;
    const double distance = double(intMaximum()) - intMinimum();
    if (position <= intMinimum() || distance == 0.0) {
        return limits.minimum;
    }
    if (position >= intMaximum()) {
        return limits.maximum;
    }
    const double part = (double(position) - intMinimum()) / distance;
    // In this form no step in between is larger than the result.
    return isLogarithmic()
        ? std::exp(std::log(limits.minimum) * (1.0 - part) + std::log(limits.maximum) * part)
        : EditorNumbers::sumWithoutNoise(limits.minimum * (1.0 - part), limits.maximum * part);
}

int TwoModeDoubleComboSlider::positionFromValue(double value) const
{
    const EditorNumbers::FloatLimits &limits = d->entry.limits;
    if (!(value > limits.minimum)) {
        return intMinimum();
    }
    if (value >= limits.maximum) {
        return intMaximum();
    }
    // Halves, since the full range of doubles has no difference that is a double.
    const double part = isLogarithmic()
        ? (std::log(value) - std::log(limits.minimum)) / (std::log(limits.maximum) - std::log(limits.minimum))
        : (value / 2.0 - limits.minimum / 2.0) / (limits.maximum / 2.0 - limits.minimum / 2.0);
    return EditorNumbers::saturated(intMinimum()
                                    + std::llround(part * (double(intMaximum()) - intMinimum())));
}

bool TwoModeDoubleComboSlider::isBeingMoved() const
{
    return slider()->isSliderDown() || d->isUnannounced;
}

void TwoModeDoubleComboSlider::showPosition(int position)
{
    const QScopedValueRollback<bool> showing(d->isShowing, true);
    setIntValue(position);
}

void TwoModeDoubleComboSlider::onTextEdited()
{
    d->entry.step.end();
    enableUpdate(false);
}

void TwoModeDoubleComboSlider::onEditingFinished()
{
    const QPointer<TwoModeDoubleComboSlider> self(this);
    if (const auto typed = spinBox()->entry()) {
        d->entry.step.end();
        if (!d->entry.isFree) {
            spinBox()->tellOutcome(*typed, d->entry.usable(*typed), d->entry.limits.minimum,
                                   d->entry.limits.maximum, d->entry.limits.increment);
        }
        enter(*typed);
    }
    if (self) {
        announceNow(); // without the pause
    }
}

void TwoModeDoubleComboSlider::onSliderMoved(int position)
{
    if (d->isShowing) {
        return;
    }
    d->entry.step.end();
    if (!d->entry.limits.isBounded()) {
        showPosition(positionFromValue(value())); // nobody means what lies a position farther
        return;
    }
    const int trimmed = trimSliderValue(position);
    // The end of the slider is the limit, although the last step may fall short of it.
    const double reached = valueFromPosition(position == intMaximum() ? position : trimmed);
    spinBox()->setSubstitute(QString());
    enter(EditorNumbers::snappedToGrid(EditorNumbers::withoutNoise(reached), d->entry.limits.minimum,
                                       d->entry.limits.maximum, d->entry.limits.increment));
}

// Keys and the wheel on the slider step as those in the spin box do.
void TwoModeDoubleComboSlider::onSliderAction(int action)
{
    const qint64 distance = qint64(slider()->sliderPosition()) - slider()->value();
    const bool isPage =
        action == QAbstractSlider::SliderPageStepAdd || action == QAbstractSlider::SliderPageStepSub;
    const bool isSingle =
        action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderSingleStepSub;
    const bool isWheel = action == QAbstractSlider::SliderMove && !slider()->isSliderDown();
    if (!spinBox()->hasSubstitute() && !isPage && !isSingle && !isWheel) {
        return;
    }
    if (slider()->isSliderDown()) {
        return;
    }
    slider()->setSliderPosition(slider()->value());
    const bool isUp = isWheel
        ? distance > 0
        : action == QAbstractSlider::SliderPageStepAdd || action == QAbstractSlider::SliderSingleStepAdd;
    const auto width = std::max(1, intIncrement());
    const int steps = isWheel ? EditorNumbers::saturated(std::max<qint64>(1, std::abs(distance) / width)) : 1;
    takeSteps(isUp ? steps : -steps, isPage);
}

void TwoModeDoubleComboSlider::onStepTriggered(int steps)
{
    takeSteps(steps, std::abs(steps) == EditorKeys::pageKeySteps);
}

void TwoModeDoubleComboSlider::onLeft()
{
    d->entry.stepWidth = 0.0;
    d->entry.step.end();
}

void TwoModeDoubleComboSlider::takeSteps(int steps, bool isPage)
{
    if (d->entry.isFree || spinBox()->hasSubstitute()) {
        return;
    }
    d->isPage = isPage;
    d->entry.step.begin(value(), steps);
    takeStep();
}

void TwoModeDoubleComboSlider::takeStep()
{
    const auto target = d->entry.step.next([this](double start, double factor) {
        return d->entry.usable(
            EditorNumbers::sumWithoutNoise(start, stepDistance(start, d->entry.step.steps()) * factor));
    });
    if (target) {
        enter(*target);
    } else if (spinBox()->entry()) {
        enter(*spinBox()->entry()); // typed at a limit
    }
}

double TwoModeDoubleComboSlider::stepDistance(double start, int steps)
{
    const EditorNumbers::FloatLimits &limits = d->entry.limits;
    if (limits.isBounded()) {
        const double positions = d->isPage
            ? std::copysign(std::max(slider()->pageStep(), intIncrement()), steps)
            : double(steps) * std::max(1, intIncrement());
        const double least = limits.increment > 0.0 ? limits.increment : spinBox()->finestDigit(start);
        return std::copysign(std::max(std::abs(slidersDistance(start, positions)), least), steps);
    }
    if (d->entry.stepWidth == 0.0) {
        d->entry.stepWidth = spinBox()->lastDigit(start);
    }
    const double width = limits.increment > 0.0 ? limits.increment : d->entry.stepWidth;
    return d->isPage ? std::copysign(EditorKeys::pageKeySteps * width, steps) : steps * width;
}

// Returns how far the number of positions leads from the start, which may lie between two of them.
double TwoModeDoubleComboSlider::slidersDistance(double start, double positions) const
{
    const EditorNumbers::FloatLimits &limits = d->entry.limits;
    const double part = positions / (double(intMaximum()) - intMinimum());
    return isLogarithmic() ? std::max(start, limits.minimum)
            * std::expm1(part * (std::log(limits.maximum) - std::log(limits.minimum)))
                           : part * (limits.maximum - limits.minimum);
}

void TwoModeDoubleComboSlider::enter(double value)
{
    const double entered = d->entry.usable(value);
    setShown(entered);
    enableUpdate(true);
    if (entered != d->entry.settled || !d->entry.step.isHeld(entered)) {
        d->isUnannounced = true;
    }
    settle(entered);
    if (!d->pause.isActive()) {
        announceNow();
    }
}

void TwoModeDoubleComboSlider::announceNow()
{
    if (!d->isUnannounced) {
        return;
    }
    d->isUnannounced = false;
    // The receivers write to the camera before the signal returns: as long again belongs to the user.
    QElapsedTimer duration;
    duration.start();
    const QPointer<TwoModeDoubleComboSlider> self(this);
    d->entry.step.beginWrite();
    emit boxValueChanged();
    if (self) {
        d->pause.start(std::max<int>(shortestPauseMilliseconds, duration.elapsed()));
        d->entry.step.endWrite();
    }
}
