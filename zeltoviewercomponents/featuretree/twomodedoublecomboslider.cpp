// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "twomodedoublecomboslider.h"

#include "editorhelpers.h"
#include "zeltoqtdoublespinbox.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace {

constexpr int shortestPauseMilliseconds = 30;

} // namespace

TwoModeDoubleComboSlider::TwoModeDoubleComboSlider(QWidget *parent)
    : DoubleComboSlider(parent)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(announceNow()));
    connect(EditorHelpers::lineEditOf(*spinBox()), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(valueChanged(double)), this, SLOT(onValueChanged(double)));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    // After the base's slot, which moves the slider.
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
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

void TwoModeDoubleComboSlider::setLimits(double minimum, double maximum, int minimumPosition,
                                         int maximumPosition, int positionStep)
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_minimum = minimum;
    m_maximum = maximum;
    const int position = qBound(minimumPosition, intValue(), maximumPosition);
    initControls(minimum, maximum, position, minimumPosition, maximumPosition, positionStep);
}

void TwoModeDoubleComboSlider::showValue(double value)
{
    // A value outside the limits is shown as it is; entries are limited by enter().
    spinBox()->setRange(std::min(m_minimum, value), std::max(m_maximum, value));
    setValue(value);
    showPosition(positionFromValue(value));
    m_valueBeforeStep = this->value();
    m_isUnannounced = false;
    settle();
}

void TwoModeDoubleComboSlider::settle()
{
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    lineEdit->setModified(false);
    m_settledText = lineEdit->text();
}

bool TwoModeDoubleComboSlider::isLogarithmic() const
{
    return m_mode == ETwoModeDoubleComboSliderMode::Logarithmic && m_minimum > 0.0;
}

double TwoModeDoubleComboSlider::valueFromPosition(int position) const
{
    const double distance = double(intMaximum()) - intMinimum();
    if (position <= intMinimum() || distance == 0.0) {
        return m_minimum;
    }
    if (position >= intMaximum()) {
        return m_maximum;
    }
    const double part = (double(position) - intMinimum()) / distance;
    // In this form no step in between is larger than the result.
    return isLogarithmic() ? std::exp(std::log(m_minimum) * (1.0 - part) + std::log(m_maximum) * part)
                           : m_minimum * (1.0 - part) + m_maximum * part;
}

int TwoModeDoubleComboSlider::positionFromValue(double value) const
{
    if (!(value > m_minimum)) {
        return intMinimum();
    }
    if (value >= m_maximum) {
        return intMaximum();
    }
    // Halves, since the full range of doubles has no difference that is a double.
    const double part = isLogarithmic()
        ? (std::log(value) - std::log(m_minimum)) / (std::log(m_maximum) - std::log(m_minimum))
        : (value / 2.0 - m_minimum / 2.0) / (m_maximum / 2.0 - m_minimum / 2.0);
    return EditorHelpers::saturated(intMinimum()
                                    + std::llround(part * (double(intMaximum()) - intMinimum())));
}

bool TwoModeDoubleComboSlider::isBeingTyped() const
{
    return hasFocus() && !isUpdateExspected() && EditorHelpers::lineEditOf(*spinBox())->isModified();
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
    enableUpdate(false);
}

void TwoModeDoubleComboSlider::onValueChanged(double value)
{
    // A step goes on from what was typed before it.
    if (hasFocus() && !isUpdateExspected()) {
        showPosition(positionFromValue(value));
        m_valueBeforeStep = value;
    }
}

void TwoModeDoubleComboSlider::onEditingFinished()
{
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (spinBox()->hasSubstitute() || lineEdit->text() == m_settledText) {
        lineEdit->setModified(false);
    } else {
        enter(value());
        showPosition(positionFromValue(value()));
    }
    announceNow();
}

void TwoModeDoubleComboSlider::onSliderMoved(int position)
{
    if (m_isShowing) {
        return;
    }
    const bool hadValue = !spinBox()->hasSubstitute();
    spinBox()->setSubstitute(QString());
    const int trimmed = trimSliderValue(position);
    showPosition(trimmed);
    // The end of the slider is the limit, although the last step may fall short of it.
    const double reached = valueFromPosition(position == intMaximum() ? position : trimmed);
    const double entered = usable(EditorHelpers::withoutNoise(reached));
    if (!hadValue || entered != value()) {
        enter(entered);
    }
}

void TwoModeDoubleComboSlider::onStepTriggered(int steps)
{
    // A position may be less than an increment away: a step changes the value all the same.
    if (value() == m_valueBeforeStep) {
        enter(value() + std::copysign(m_increment, steps));
        showPosition(positionFromValue(value()));
    }
    m_valueBeforeStep = value();
}

double TwoModeDoubleComboSlider::usable(double value) const
{
    return EditorHelpers::snappedToGrid(value, m_minimum, m_maximum, m_increment);
}

void TwoModeDoubleComboSlider::enter(double value)
{
    spinBox()->setRange(m_minimum, m_maximum);
    setValue(usable(value));
    enableUpdate(true);
    if (EditorHelpers::lineEditOf(*spinBox())->text() != m_settledText) {
        m_isUnannounced = true;
    }
    settle();
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
    emit boxValueChanged();
    m_pause.start(std::max<int>(shortestPauseMilliseconds, duration.elapsed()));
}
