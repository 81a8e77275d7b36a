// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "doublespinbox.h"

#include "controlparts_p.h"
#include "spinboxeventcatcher_p.h"
#include "zeltoqtdoublespinbox.h"

#include <QEvent>
#include <QHBoxLayout>

#include <algorithm>
#include <cmath>
#include <limits>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.doubleSpinBox")

struct DoubleSpinBox::Private
{
    ZeltoQtDoubleSpinBox *spinBox;
    SpinBoxEventCatcher *eventCatcher;
    double increment = 0.0;
    double minRangeLimit = std::numeric_limits<double>::lowest();
    double maxRangeLimit = std::numeric_limits<double>::max();
    int editBoxWidth = 0;
    bool updateExpected = false;
    bool hasFocus = false;
};

DoubleSpinBox::DoubleSpinBox(QWidget *parent)
    : DoubleSpinBox(parent, QString())
{
}

DoubleSpinBox::DoubleSpinBox(QWidget *parent, const QString &representation)
    : DoubleSpinBox(parent, representation, Limits::Now)
{
}

DoubleSpinBox::DoubleSpinBox(QWidget *parent, const QString &representation, Limits limits)
    : QWidget(parent)
    , d(std::make_unique<Private>(Private{new ZeltoQtDoubleSpinBox(this), new SpinBoxEventCatcher(this)}))
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->spinBox);
    setContentsMargins(1, 0, 1, 0);
    if (limits == Limits::Now) {
        d->spinBox->setLimits(d->minRangeLimit, d->maxRangeLimit);
    }
    d->spinBox->setAccelerated(true);
    if (representation == QLatin1String("PureNumber")) {
        d->spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
    ControlParts::setUpComposite(this, d->spinBox);
    d->spinBox->installEventFilter(d->eventCatcher);
    connect(d->eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
}

DoubleSpinBox::~DoubleSpinBox()
{
    d->spinBox->removeEventFilter(d->eventCatcher); // it loses the focus after this
}

void DoubleSpinBox::setValue(double value)
{
    d->spinBox->showValue(value);
}

void DoubleSpinBox::setMinimum(double minimum)
{
    d->spinBox->setLimits(minimum, std::max(minimum, d->spinBox->maximum()));
    updateToolTip();
}

void DoubleSpinBox::setMaximum(double maximum)
{
    d->spinBox->setLimits(std::min(d->spinBox->minimum(), maximum), maximum);
    updateToolTip();
}

void DoubleSpinBox::setDecimals(int decimals)
{
    d->spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleSpinBox::setIncrement(double increment)
{
    d->increment = increment;
}

void DoubleSpinBox::setRange(double minimum, double maximum)
{
    d->minRangeLimit = minimum;
    d->maxRangeLimit = maximum;
    d->spinBox->setLimits(minimum, maximum);
    updateToolTip();
}

void DoubleSpinBox::setPageStep()
{
    d->spinBox->setPageStep(std::max(2.0 * d->increment, (d->maxRangeLimit - d->minRangeLimit) / 20.0));
}

void DoubleSpinBox::setRangeStepAndIncrement(double minimum, double maximum, double increment)
{
    setRange(minimum, maximum);
    setIncrement(increment);
    setPageStep();
    if (increment == 0.0) {
        d->spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
}

void DoubleSpinBox::initControls(double minimum, double maximum, double value, double increment)
{
    // The value goes first: the spin box limits it to the range it had, and then to the new one.
    setValue(value);
    setRangeStepAndIncrement(minimum, maximum, increment);
}

double DoubleSpinBox::value() const
{
    return d->spinBox->value();
}

double DoubleSpinBox::minimum() const
{
    return d->spinBox->lowestValue();
}

double DoubleSpinBox::maximum() const
{
    return d->spinBox->highestValue();
}

int DoubleSpinBox::decimals() const
{
    return d->spinBox->decimals();
}

double DoubleSpinBox::increment() const
{
    return d->increment;
}

int DoubleSpinBox::pageStep() const
{
    const double step = d->spinBox->pageStep();
    return std::isnan(step) ? 0
                            : static_cast<int>(std::clamp<double>(step, std::numeric_limits<int>::min(),
                                                                  std::numeric_limits<int>::max()));
}

int DoubleSpinBox::editBoxWidth() const
{
    return d->editBoxWidth;
}

void DoubleSpinBox::setEditBoxWidth(int width)
{
    d->editBoxWidth = width;
    d->spinBox->setMinimumWidth(width);
}

void DoubleSpinBox::enableUpdate(bool enable)
{
    d->updateExpected = enable;
}

bool DoubleSpinBox::isUpdateExspected() const
{
    return d->updateExpected;
}

bool DoubleSpinBox::hasFocus() const
{
    return d->hasFocus;
}

bool DoubleSpinBox::checkIfLimitsChanged(double minimum, double maximum, double increment) const
{
    return minimum != d->minRangeLimit || maximum != d->maxRangeLimit || increment != d->increment;
}

ZeltoQtDoubleSpinBox *DoubleSpinBox::spinBox() const
{
    return d->spinBox;
}

void DoubleSpinBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateToolTip();
    }
}

void DoubleSpinBox::updateToolTip()
{
    ControlParts::guardedToolTip(logCategory(), [this] {
        const QString lowest = d->spinBox->numberText(minimum());
        const QString highest = d->spinBox->numberText(maximum());
        const QString increment = d->spinBox->numberText(d->increment);
        // A text with a decimal comma converts to 0 as well, and then the increment is left out.
        const QString text = increment.toDouble() == 0.0
            ? tr("Range: %1..%2").arg(lowest, highest)
            : tr("Range: %1..%2 (Increment: %3)").arg(lowest, highest, increment);
        if (text != toolTip()) {
            d->spinBox->setToolTip(text);
            setToolTip(text);
        }
    });
}

void DoubleSpinBox::onSpinBoxFocusEventTriggered(bool focus)
{
    d->hasFocus = focus;
    d->updateExpected = !focus;
}
