// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "twomodedoublecomboslider.h"

#include "editorhelpers.h"
#include "floatstep_p.h"
#include "zeltoqtdoublespinbox.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace {

constexpr int shortestPauseMilliseconds = 30;

} // namespace

TwoModeDoubleComboSlider::TwoModeDoubleComboSlider(QWidget *parent)
    : DoubleComboSlider(parent)
    , m_step(new FloatStep(this))
{
    m_pause.setSingleShot(true);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(announceNow()));
    connect(EditorHelpers::lineEditOf(*spinBox()), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(spinBox(), SIGNAL(left()), this, SLOT(onLeft()));
    // A value may lie between the positions that the base steps to.
    disconnect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
    connect(m_step, SIGNAL(swallowed()), this, SLOT(takeStep()));
    connect(slider(), SIGNAL(actionTriggered(int)), this, SLOT(onSliderAction(int)));
    connect(slider(), SIGNAL(valueChanged(int)), this, SLOT(onSliderMoved(int)));
    connect(slider(), SIGNAL(sliderReleased()), this, SLOT(announceNow()));
}

TwoModeDoubleComboSlider::~TwoModeDoubleComboSlider() = default;

void TwoModeDoubleComboSlider::setMode(ETwoModeDoubleComboSliderMode mode)
{
    m_mode = mode;
}

ETwoModeDoubleComboSliderMode TwoModeDoubleComboSlider::mode() const
{
    return m_mode;
}

void TwoModeDoubleComboSlider::setIncrement(double increment)
{
    m_increment = increment;
}

void TwoModeDoubleComboSlider::setFree(bool isFree)
{
    m_isFree = isFree;
    spinBox()->setSteppable(!isFree);
}

void TwoModeDoubleComboSlider::setLimits(double minimum, double maximum, int minimumPosition,
                                         int maximumPosition, int positionStep)
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_limits.minimum = minimum;
    m_limits.maximum = maximum;
    const int position = qBound(minimumPosition, intValue(), maximumPosition);
    initControls(minimum, maximum, position, minimumPosition, maximumPosition, positionStep);
}

void TwoModeDoubleComboSlider::showValue(double value)
{
    // A value outside the limits is shown as it is; entries are limited by enter().
    const auto limits = m_isFree ? EditorHelpers::FloatLimits() : m_limits;
    spinBox()->setLimits(std::min(limits.minimum, value), std::max(limits.maximum, value));
    setValue(value);
    showPosition(positionFromValue(value));
    m_isUnannounced = false;
    settle(value);
}

void TwoModeDoubleComboSlider::settle(double value)
{
    m_settledValue = value;
    spinBox()->settle();
}

void TwoModeDoubleComboSlider::dropChange()
{
    m_step->end();
    m_isUnannounced = false;
}

FloatStep &TwoModeDoubleComboSlider::step() const
{
    return *m_step;
}

bool TwoModeDoubleComboSlider::isLogarithmic() const
{
    return m_mode == ETwoModeDoubleComboSliderMode::Logarithmic && m_limits.minimum > 0.0;
}

double TwoModeDoubleComboSlider::valueFromPosition(int position) const
{
    const double distance = double(intMaximum()) - intMinimum();
    if (position <= intMinimum() || distance == 0.0) {
        return m_limits.minimum;
    }
    if (position >= intMaximum()) {
        return m_limits.maximum;
    }
    const double part = (double(position) - intMinimum()) / distance;
    // In this form no step in between is larger than the result.
    return isLogarithmic()
        ? std::exp(std::log(m_limits.minimum) * (1.0 - part) + std::log(m_limits.maximum) * part)
        : EditorHelpers::sumWithoutNoise(m_limits.minimum * (1.0 - part), m_limits.maximum * part);
}

int TwoModeDoubleComboSlider::positionFromValue(double value) const
{
    if (!(value > m_limits.minimum)) {
        return intMinimum();
    }
    if (value >= m_limits.maximum) {
        return intMaximum();
    }
    // Halves, since the full range of doubles has no difference that is a double.
    const double part = isLogarithmic()
        ? (std::log(value) - std::log(m_limits.minimum))
            / (std::log(m_limits.maximum) - std::log(m_limits.minimum))
        : (value / 2.0 - m_limits.minimum / 2.0) / (m_limits.maximum / 2.0 - m_limits.minimum / 2.0);
    return EditorHelpers::saturated(intMinimum()
                                    + std::llround(part * (double(intMaximum()) - intMinimum())));
}

bool TwoModeDoubleComboSlider::isBeingMoved() const
{
    return slider()->isSliderDown() || m_isUnannounced;
}

void TwoModeDoubleComboSlider::showPosition(int position)
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    setIntValue(position);
}

void TwoModeDoubleComboSlider::onTextEdited()
{
    m_step->end();
    enableUpdate(false);
}

void TwoModeDoubleComboSlider::onEditingFinished()
{
    const QPointer<TwoModeDoubleComboSlider> self(this);
    if (const auto typed = spinBox()->entry()) {
        m_step->end();
        if (!m_isFree) {
            spinBox()->tellOutcome(*typed, usable(*typed), m_limits.minimum, m_limits.maximum, m_increment);
        }
        enter(*typed);
    }
    if (self) {
        announceNow(); // without the pause
    }
}

void TwoModeDoubleComboSlider::onSliderMoved(int position)
{
    if (m_isShowing) {
        return;
    }
    m_step->end();
    if (!m_limits.isBounded()) {
        showPosition(positionFromValue(value())); // nobody means what lies a position farther
        return;
    }
    const int trimmed = trimSliderValue(position);
    // The end of the slider is the limit, although the last step may fall short of it.
    const double reached = valueFromPosition(position == intMaximum() ? position : trimmed);
    spinBox()->setSubstitute(QString());
    enter(EditorHelpers::snappedToGrid(EditorHelpers::withoutNoise(reached), m_limits.minimum,
                                       m_limits.maximum, m_increment));
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
    const int steps = isWheel ? EditorHelpers::saturated(std::max<qint64>(1, std::abs(distance) / width)) : 1;
    takeSteps(isUp ? steps : -steps, isPage);
}

void TwoModeDoubleComboSlider::onStepTriggered(int steps)
{
    takeSteps(steps, std::abs(steps) == EditorHelpers::pageKeySteps);
}

void TwoModeDoubleComboSlider::onLeft()
{
    m_digit = 0.0;
    m_step->end();
}

void TwoModeDoubleComboSlider::takeSteps(int steps, bool isPage)
{
    if (m_isFree || spinBox()->hasSubstitute()) {
        return;
    }
    m_isPage = isPage;
    m_step->begin(value(), steps);
    takeStep();
}

void TwoModeDoubleComboSlider::takeStep()
{
    const auto target = m_step->next([this](double start, double factor) {
        return usable(EditorHelpers::sumWithoutNoise(start, stepDistance(start, m_step->steps()) * factor));
    });
    if (target) {
        enter(*target);
    } else if (spinBox()->entry()) {
        enter(*spinBox()->entry()); // typed at a limit
    }
}

double TwoModeDoubleComboSlider::stepDistance(double start, int steps)
{
    if (m_limits.isBounded()) {
        const double positions = m_isPage
            ? std::copysign(std::max(slider()->pageStep(), intIncrement()), steps)
            : double(steps) * std::max(1, intIncrement());
        const double least = m_increment > 0.0 ? m_increment : spinBox()->finestDigit(start);
        return std::copysign(std::max(std::abs(slidersDistance(start, positions)), least), steps);
    }
    if (m_digit == 0.0) {
        m_digit = spinBox()->lastDigit(start);
    }
    const double width = m_increment > 0.0 ? m_increment : m_digit;
    return m_isPage ? std::copysign(EditorHelpers::pageKeySteps * width, steps) : steps * width;
}

// Returns how far the number of positions leads from the start, which may lie between two of them.
double TwoModeDoubleComboSlider::slidersDistance(double start, double positions) const
{
    const double part = positions / (double(intMaximum()) - intMinimum());
    return isLogarithmic() ? std::max(start, m_limits.minimum)
            * std::expm1(part * (std::log(m_limits.maximum) - std::log(m_limits.minimum)))
                           : part * (m_limits.maximum - m_limits.minimum);
}

double TwoModeDoubleComboSlider::usable(double value) const
{
    // What the camera holds stays as it is when it is typed again, whatever the limits are.
    return m_isFree || value == m_settledValue
        ? value
        : EditorHelpers::snappedToGrid(value, m_limits.minimum, m_limits.maximum, m_increment);
}

void TwoModeDoubleComboSlider::enter(double value)
{
    const double entered = usable(value);
    const auto limits = m_isFree ? EditorHelpers::FloatLimits() : m_limits;
    spinBox()->setLimits(std::min(limits.minimum, entered), std::max(limits.maximum, entered));
    setValue(entered);
    showPosition(positionFromValue(entered));
    enableUpdate(true);
    if (entered != m_settledValue || !m_step->isHeld(entered)) {
        m_isUnannounced = true;
    }
    settle(entered);
    if (!m_pause.isActive()) {
        announceNow();
    }
}

void TwoModeDoubleComboSlider::announceNow()
{
    if (!m_isUnannounced) {
        return;
    }
    m_isUnannounced = false;
    // The receivers write to the camera before the signal returns: as long again belongs to the user.
    QElapsedTimer duration;
    duration.start();
    const QPointer<TwoModeDoubleComboSlider> self(this);
    m_step->beginWrite();
    emit boxValueChanged();
    if (self) {
        m_step->endWrite();
        m_pause.start(std::max<int>(shortestPauseMilliseconds, duration.elapsed()));
    }
}
