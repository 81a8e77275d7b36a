// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "doublecomboslider.h"

#include "controlparts_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "spinboxeventcatcher_p.h"
#include "zeltoqtdoublespinbox.h"

#include <QEvent>
#include <QSlider>

#include <algorithm>
#include <limits>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.doubleComboSlider")

struct DoubleComboSlider::Private
{
    ZeltoQtDoubleSpinBox *spinBox;
    QSlider *slider;
    SpinBoxEventCatcher *eventCatcher;
    int editBoxWidth = 0;
    int intIncrement = 0;
    double minRangeLimit = 0.0;
    double maxRangeLimit = 0.0;
    bool hasFocus = false;
    bool updateExpected = false;
};

DoubleComboSlider::DoubleComboSlider(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(Private{new ZeltoQtDoubleSpinBox(this), new QSlider(Qt::Horizontal, this),
                                          new SpinBoxEventCatcher(this)}))
{
    ControlParts::layOutComboSlider(this, d->spinBox, d->slider);
    setEditBoxWidth(ControlParts::editBoxWidth(*d->spinBox));
    d->spinBox->setAccelerated(true);
    d->spinBox->installEventFilter(d->eventCatcher);
    d->slider->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    connect(d->spinBox, SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
    connect(d->eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
    DoubleComboSlider::updateToolTip();
}

DoubleComboSlider::~DoubleComboSlider()
{
    d->spinBox->removeEventFilter(d->eventCatcher); // it loses the focus after this
}

void DoubleComboSlider::setValue(double value)
{
    d->spinBox->showValue(value);
}

void DoubleComboSlider::setIntValue(int position)
{
    d->slider->setValue(position);
}

void DoubleComboSlider::setMinimum(double minimum)
{
    d->minRangeLimit = minimum;
    // Before the spin box has the minimum, unlike in setMaximum(): the tip still tells the old one.
    updateToolTip();
    d->spinBox->setLimits(minimum, std::max(minimum, d->spinBox->maximum()));
}

void DoubleComboSlider::setIntMinimum(int minimum)
{
    d->slider->setMinimum(minimum);
    reportIntRange();
}

void DoubleComboSlider::setMaximum(double maximum)
{
    d->maxRangeLimit = maximum;
    d->spinBox->setLimits(std::min(d->spinBox->minimum(), maximum), maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntMaximum(int maximum)
{
    d->slider->setMaximum(maximum);
    reportIntRange();
}

void DoubleComboSlider::setDecimals(int decimals)
{
    d->spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleComboSlider::setRange(double minimum, double maximum)
{
    d->minRangeLimit = minimum;
    d->maxRangeLimit = maximum;
    d->spinBox->setLimits(minimum, maximum);
    updateToolTip();
}

void DoubleComboSlider::setIntRange(int minimum, int maximum)
{
    d->slider->setRange(minimum, maximum);
    reportIntRange();
}

void DoubleComboSlider::reportIntRange()
{
    updateToolTip();
    emit rangeChanged(d->slider->minimum(), d->slider->maximum());
}

void DoubleComboSlider::setIntIncrement(int increment)
{
    d->intIncrement = increment;
}

void DoubleComboSlider::setPageStep()
{
    int step = EditorNumbers::pageStep(d->slider->minimum(), d->slider->maximum(), d->intIncrement);
    if (d->slider->singleStep() != 0 && d->intIncrement != 0) {
        const qint64 distance = EditorNumbers::wrappingDifference(step, d->slider->minimum());
        step = EditorNumbers::saturated(step - distance % d->intIncrement);
    }
    d->slider->setPageStep(step);
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
    d->slider->setSingleStep(intIncrement);
    setIntValue(intValue);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
}

double DoubleComboSlider::value() const
{
    return d->spinBox->value();
}

double DoubleComboSlider::minimum() const
{
    return d->spinBox->lowestValue();
}

double DoubleComboSlider::maximum() const
{
    return d->spinBox->highestValue();
}

int DoubleComboSlider::decimals() const
{
    return d->spinBox->decimals();
}

int DoubleComboSlider::intValue() const
{
    return d->slider->value();
}

int DoubleComboSlider::intMinimum() const
{
    return d->slider->minimum();
}

int DoubleComboSlider::intMaximum() const
{
    return d->slider->maximum();
}

int DoubleComboSlider::intIncrement() const
{
    return d->intIncrement;
}

int DoubleComboSlider::editBoxWidth() const
{
    return d->editBoxWidth;
}

void DoubleComboSlider::setEditBoxWidth(int width)
{
    d->editBoxWidth = width;
    d->spinBox->setMinimumWidth(width);
}

void DoubleComboSlider::enableUpdate(bool enable)
{
    d->updateExpected = enable;
}

bool DoubleComboSlider::isUpdateExspected() const
{
    return d->updateExpected;
}

bool DoubleComboSlider::hasFocus() const
{
    return d->hasFocus;
}

bool DoubleComboSlider::checkIfLimitsChanged(int minimum, int maximum, int increment) const
{
    return minimum != d->slider->minimum() || maximum != d->slider->maximum() || increment != d->intIncrement;
}

bool DoubleComboSlider::checkIfLimitsChanged(double minimum, double maximum, int increment) const
{
    return minimum != d->minRangeLimit || maximum != d->maxRangeLimit || increment != d->intIncrement;
}

int DoubleComboSlider::trimSliderValue(int position) const
{
    return d->slider->singleStep() == 0
        ? position
        : EditorNumbers::trimmedToGrid(position, d->slider->minimum(), d->intIncrement);
}

QSlider *DoubleComboSlider::slider() const
{
    return d->slider;
}

ZeltoQtDoubleSpinBox *DoubleComboSlider::spinBox() const
{
    return d->spinBox;
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
            tr("Range: %1..%2").arg(d->spinBox->numberText(minimum()), d->spinBox->numberText(maximum()));
        if (text != toolTip()) {
            d->slider->setToolTip(text);
            d->spinBox->setToolTip(text);
            setToolTip(text);
        }
    });
}

void DoubleComboSlider::onSpinBoxStepTriggered(int steps)
{
    d->updateExpected = true;
    const qint64 distance = steps == EditorKeys::pageKeySteps ? d->slider->pageStep()
        : steps == -EditorKeys::pageKeySteps                  ? -qint64(d->slider->pageStep())
                                                              : qint64(steps) * d->intIncrement;
    d->slider->setValue(EditorNumbers::saturated(d->slider->value() + distance));
}

void DoubleComboSlider::onSpinBoxFocusEventTriggered(bool focus)
{
    d->hasFocus = focus;
    d->updateExpected = !focus;
}
