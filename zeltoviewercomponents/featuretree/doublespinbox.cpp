// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "doublespinbox.h"

#include "controlparts_p.h"
#include "spinboxeventcatcher.h"
#include "zeltoqtdoublespinbox.h"

#include <QEvent>
#include <QHBoxLayout>

#include <algorithm>
#include <cmath>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.doubleSpinBox")

DoubleSpinBox::DoubleSpinBox(QWidget *parent, const QString &representation)
    : DoubleSpinBox(parent, representation, Limits::Now)
{
}

DoubleSpinBox::DoubleSpinBox(QWidget *parent, const QString &representation, Limits limits)
    : QWidget(parent)
    , m_spinBox(new ZeltoQtDoubleSpinBox(this))
    , m_eventCatcher(new SpinBoxEventCatcher(this))
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_spinBox);
    setContentsMargins(1, 0, 1, 0);
    if (limits == Limits::Now) {
        m_spinBox->setLimits(m_minRangeLimit, m_maxRangeLimit);
    }
    m_spinBox->setAccelerated(true);
    if (representation == QLatin1String("PureNumber")) {
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    }
    ControlParts::setUpComposite(this, m_spinBox);
    m_spinBox->installEventFilter(m_eventCatcher);
    connect(m_eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
}

DoubleSpinBox::~DoubleSpinBox() = default;

void DoubleSpinBox::setValue(double value)
{
    m_spinBox->showValue(value);
}

void DoubleSpinBox::setMinimum(double minimum)
{
    m_spinBox->setLimits(minimum, std::max(minimum, m_spinBox->maximum()));
    updateToolTip();
}

void DoubleSpinBox::setMaximum(double maximum)
{
    m_spinBox->setLimits(std::min(m_spinBox->minimum(), maximum), maximum);
    updateToolTip();
}

void DoubleSpinBox::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleSpinBox::setIncrement(double increment)
{
    m_increment = increment;
}

void DoubleSpinBox::setRange(double minimum, double maximum)
{
    m_minRangeLimit = minimum;
    m_maxRangeLimit = maximum;
    m_spinBox->setLimits(minimum, maximum);
    updateToolTip();
}

void DoubleSpinBox::setPageStep()
{
    m_spinBox->setPageStep(std::max(2.0 * m_increment, (m_maxRangeLimit - m_minRangeLimit) / 20.0));
}

void DoubleSpinBox::setRangeStepAndIncrement(double minimum, double maximum, double increment)
{
    setRange(minimum, maximum);
    setIncrement(increment);
    setPageStep();
    if (increment == 0.0) {
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
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
    return m_spinBox->value();
}

double DoubleSpinBox::minimum() const
{
    return m_spinBox->lowestValue();
}

double DoubleSpinBox::maximum() const
{
    return m_spinBox->highestValue();
}

int DoubleSpinBox::decimals() const
{
    return m_spinBox->decimals();
}

double DoubleSpinBox::increment() const
{
    return m_increment;
}

int DoubleSpinBox::pageStep() const
{
    const double step = m_spinBox->pageStep();
    return std::isnan(step) ? 0
                            : static_cast<int>(std::clamp<double>(step, std::numeric_limits<int>::min(),
                                                                  std::numeric_limits<int>::max()));
}

int DoubleSpinBox::editBoxWidth() const
{
    return m_editBoxWidth;
}

void DoubleSpinBox::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

void DoubleSpinBox::enableUpdate(bool enable)
{
    m_updateExpected = enable;
}

bool DoubleSpinBox::isUpdateExspected() const
{
    return m_updateExpected;
}

bool DoubleSpinBox::hasFocus() const
{
    return m_hasFocus;
}

bool DoubleSpinBox::checkIfLimitsChanged(double minimum, double maximum, double increment) const
{
    return minimum != m_minRangeLimit || maximum != m_maxRangeLimit || increment != m_increment;
}

ZeltoQtDoubleSpinBox *DoubleSpinBox::spinBox() const
{
    return m_spinBox;
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
        const QString lowest = m_spinBox->numberText(minimum());
        const QString highest = m_spinBox->numberText(maximum());
        const QString increment = m_spinBox->numberText(m_increment);
        // A text with a decimal comma converts to 0 as well, and then the increment is left out.
        const QString text = increment.toDouble() == 0.0
            ? tr("Range: %1..%2").arg(lowest, highest)
            : tr("Range: %1..%2 (Increment: %3)").arg(lowest, highest, increment);
        if (text != toolTip()) {
            m_spinBox->setToolTip(text);
            setToolTip(text);
        }
    });
}

void DoubleSpinBox::onSpinBoxFocusEventTriggered(bool focus)
{
    m_hasFocus = focus;
    m_updateExpected = !focus;
}
