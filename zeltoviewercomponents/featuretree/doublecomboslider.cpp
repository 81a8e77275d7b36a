// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "doublecomboslider.h"

#include "controlparts_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "spinboxeventcatcher.h"
#include "zeltoqtdoublespinbox.h"

#include <QEvent>
#include <QSlider>

#include <algorithm>
#include <limits>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.doubleComboSlider")

DoubleComboSlider::DoubleComboSlider(QWidget *parent)
    : QWidget(parent)
    , m_spinBox(new ZeltoQtDoubleSpinBox(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_eventCatcher(new SpinBoxEventCatcher(this))
{
    ControlParts::layOutComboSlider(this, m_spinBox, m_slider);
    setEditBoxWidth(ControlParts::editBoxWidth(*m_spinBox));
    m_spinBox->setAccelerated(true);
    m_spinBox->installEventFilter(m_eventCatcher);
    m_slider->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    connect(m_spinBox, SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
    connect(m_eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
    DoubleComboSlider::updateToolTip();
}

DoubleComboSlider::~DoubleComboSlider() = default;

void DoubleComboSlider::setValue(double value)
{
    m_spinBox->showValue(value);
}

void DoubleComboSlider::setIntValue(int position)
{
    m_slider->setValue(position);
}

void DoubleComboSlider::setMinimum(double minimum)
{
    m_minRangeLimit = minimum;
    // Before the spin box has the minimum, unlike in setMaximum(): the tip still tells the old one.
    updateToolTip();
    m_spinBox->setLimits(minimum, std::max(minimum, m_spinBox->maximum()));
}

void DoubleComboSlider::setIntMinimum(int minimum)
{
    m_slider->setMinimum(minimum);
    reportIntRange();
}

void DoubleComboSlider::setMaximum(double maximum)
{
    m_maxRangeLimit = maximum;
    m_spinBox->setLimits(std::min(m_spinBox->minimum(), maximum), maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntMaximum(int maximum)
{
    m_slider->setMaximum(maximum);
    reportIntRange();
}

void DoubleComboSlider::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleComboSlider::setRange(double minimum, double maximum)
{
    m_minRangeLimit = minimum;
    m_maxRangeLimit = maximum;
    m_spinBox->setLimits(minimum, maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntRange(int minimum, int maximum)
{
    m_slider->setRange(minimum, maximum);
    reportIntRange();
}

void DoubleComboSlider::reportIntRange()
{
    updateToolTip();
    emit rangeChanged(m_slider->minimum(), m_slider->maximum());
}

void DoubleComboSlider::setIntIncrement(int increment)
{
    m_intIncrement = increment;
}

void DoubleComboSlider::setPageStep()
{
    int step = EditorNumbers::pageStep(m_slider->minimum(), m_slider->maximum(), m_intIncrement);
    if (m_slider->singleStep() != 0 && m_intIncrement != 0) {
        const qint64 distance = EditorNumbers::wrappingDifference(step, m_slider->minimum());
        step = EditorNumbers::saturated(step - distance % m_intIncrement);
    }
    m_slider->setPageStep(step);
    updateToolTip();
}

void DoubleComboSlider::setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    setIntRange(minIntRangeLimit, maxIntRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::initControls(double minRangeLimit, double maxRangeLimit, int intValue,
                                     int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    m_slider->setSingleStep(intIncrement);
    setIntValue(intValue);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
}

double DoubleComboSlider::value() const
{
    return m_spinBox->value();
}

double DoubleComboSlider::minimum() const
{
    return m_spinBox->lowestValue();
}

double DoubleComboSlider::maximum() const
{
    return m_spinBox->highestValue();
}

int DoubleComboSlider::decimals() const
{
    return m_spinBox->decimals();
}

int DoubleComboSlider::intValue() const
{
    return m_slider->value();
}

int DoubleComboSlider::intMinimum() const
{
    return m_slider->minimum();
}

int DoubleComboSlider::intMaximum() const
{
    return m_slider->maximum();
}

int DoubleComboSlider::intIncrement() const
{
    return m_intIncrement;
}

int DoubleComboSlider::editBoxWidth() const
{
    return m_editBoxWidth;
}

void DoubleComboSlider::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

void DoubleComboSlider::enableUpdate(bool enable)
{
    m_updateExpected = enable;
}

bool DoubleComboSlider::isUpdateExspected() const
{
    return m_updateExpected;
}

bool DoubleComboSlider::hasFocus() const
{
    return m_hasFocus;
}

bool DoubleComboSlider::checkIfLimitsChanged(int minimum, int maximum, int increment) const
{
    return minimum != m_slider->minimum() || maximum != m_slider->maximum() || increment != m_intIncrement;
}

bool DoubleComboSlider::checkIfLimitsChanged(double minimum, double maximum, int increment) const
{
    return minimum != m_minRangeLimit || maximum != m_maxRangeLimit || increment != m_intIncrement;
}

int DoubleComboSlider::trimSliderValue(int position) const
{
    return m_slider->singleStep() == 0
        ? position
        : EditorNumbers::trimmedToGrid(position, m_slider->minimum(), m_intIncrement);
}

QSlider *DoubleComboSlider::slider() const
{
    return m_slider;
}

ZeltoQtDoubleSpinBox *DoubleComboSlider::spinBox() const
{
    return m_spinBox;
}

void DoubleComboSlider::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateToolTip();
    }
}

void DoubleComboSlider::updateToolTip()
{
    ControlParts::guardedToolTip(logCategory(), [this] {
        const QString text =
            tr("Range: %1..%2").arg(m_spinBox->numberText(minimum()), m_spinBox->numberText(maximum()));
        if (text != toolTip()) {
            m_slider->setToolTip(text);
            m_spinBox->setToolTip(text);
            setToolTip(text);
        }
    });
}

void DoubleComboSlider::onSpinBoxStepTriggered(int steps)
{
    m_updateExpected = true;
    const qint64 distance = steps == EditorKeys::pageKeySteps ? m_slider->pageStep()
        : steps == -EditorKeys::pageKeySteps                  ? -qint64(m_slider->pageStep())
                                                              : qint64(steps) * m_intIncrement;
    m_slider->setValue(EditorNumbers::saturated(m_slider->value() + distance));
}

void DoubleComboSlider::onSpinBoxFocusEventTriggered(bool focus)
{
    m_hasFocus = focus;
    m_updateExpected = !focus;
}
