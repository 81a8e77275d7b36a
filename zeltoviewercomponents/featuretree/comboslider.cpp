// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "comboslider.h"

#include "controlparts_p.h"
#include "editornumbers_p.h"
#include "inputhint_p.h"
#include "zeltoqtspinbox.h"

#include <platform/core/logging.h>

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>

#include <algorithm>
#include <optional>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.comboSlider")

ComboSlider::ComboSlider(QWidget *parent)
    : QWidget(parent)
    , m_spinBox(new ZeltoQtSpinBox(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
{
    ControlParts::layOutComboSlider(this, m_spinBox, m_slider);
    setEditBoxWidth(ControlParts::editBoxWidth(*m_spinBox));
    m_slider->installEventFilter(this);
    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
    connect(m_slider, SIGNAL(actionTriggered(int)), this, SLOT(onSliderAction(int)));
    connect(m_spinBox, SIGNAL(editingFinished()), this, SLOT(onComboBoxEditingFinished()));
    const QLineEdit *const lineEdit = m_spinBox->lineEdit();
    connect(lineEdit, SIGNAL(textChanged(QString)), this, SLOT(onTextChanged()));
    connect(lineEdit, SIGNAL(returnPressed()), this, SLOT(onReturnPressed()));
    ComboSlider::updateToolTip();
}

ComboSlider::~ComboSlider() = default;

void ComboSlider::setValue(int value)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setValue(trimValue(value));
    // Takes back a text that was entered and refused: then the slider has not moved.
    m_spinBox->setValue(m_slider->value());
    m_spinBox->lineEdit()->setModified(false);
    m_showsTrueValue = m_slider->value() == value;
}

void ComboSlider::setMinimum(int minimum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMinimum(minimum);
    m_spinBox->setMinimum(minimum);
    emit rangeChanged(minimum, m_spinBox->maximum());
    updateToolTip();
}

void ComboSlider::setMaximum(int maximum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMaximum(maximum);
    m_spinBox->setMaximum(maximum);
    emit rangeChanged(m_spinBox->minimum(), maximum);
    updateToolTip();
}

void ComboSlider::setRange(int minimum, int maximum)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setMinimum(minimum);
    m_spinBox->setMinimum(minimum);
    m_slider->setMaximum(maximum);
    m_spinBox->setMaximum(maximum);
    emit rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setRangeAndStep(int minimum, int maximum, int singleStep)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_spinBox->setSingleStep(singleStep);
    m_spinBox->setMinimum(minimum);
    m_spinBox->setMaximum(maximum);
    m_slider->setSingleStep(singleStep);
    m_slider->setMinimum(minimum);
    m_slider->setMaximum(maximum);
    emit rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setSingleStep(int singleStep)
{
    m_slider->setSingleStep(singleStep);
    m_spinBox->setSingleStep(singleStep);
    updateToolTip();
}

void ComboSlider::setPageStep(int pageStep)
{
    m_slider->setPageStep(pageStep);
    // The spin box counts in single steps, and makes one at least.
    m_spinBox->setPageStep(std::max(pageStep / std::max(m_spinBox->singleStep(), 1), 1));
    updateToolTip();
}

int ComboSlider::value() const
{
    return m_slider->value();
}

int ComboSlider::minimum() const
{
    return m_slider->minimum();
}

int ComboSlider::maximum() const
{
    return m_slider->maximum();
}

int ComboSlider::singleStep() const
{
    return m_slider->singleStep();
}

int ComboSlider::pageStep() const
{
    return m_slider->pageStep();
}

int ComboSlider::editBoxWidth() const
{
    return m_editBoxWidth;
}

void ComboSlider::setEditBoxWidth(int width)
{
    m_editBoxWidth = width;
    m_spinBox->setMinimumWidth(width);
}

void ComboSlider::enableUpdate(bool enable)
{
    m_updateEnabled = enable;
}

bool ComboSlider::isUpdateEnabled() const
{
    return m_updateEnabled;
}

bool ComboSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_slider && event->type() == QEvent::Wheel) {
        // Steps of the same size wherever the wheel turns, and none without a value to start from.
        QCoreApplication::sendEvent(m_spinBox, event);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ComboSlider::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateToolTip();
    }
}

void ComboSlider::updateToolTip()
{
    ControlParts::guardedToolTip(logCategory(), [this] {
        const int step = m_spinBox->singleStep();
        const QString text = step != 1
            ? tr("Range: %1..%2 (Increment: %3)")
                  .arg(m_spinBox->minimum())
                  .arg(m_spinBox->maximum())
                  .arg(step)
            : tr("Range: %1..%2").arg(m_spinBox->minimum()).arg(m_spinBox->maximum());
        if (text != toolTip()) {
            setToolTip(text);
        }
    });
}

int ComboSlider::trimValue(int value) const
{
    const int limited = qBound(m_slider->minimum(), value, m_slider->maximum());
    return EditorNumbers::trimmedToGrid(limited, m_spinBox->minimum(), m_spinBox->singleStep());
}

QSlider *ComboSlider::slider() const
{
    return m_slider;
}

ZeltoQtSpinBox *ComboSlider::spinBox() const
{
    return m_spinBox;
}

std::optional<int> ComboSlider::stepStart() const
{
    return m_sliderStepStart ? m_sliderStepStart : m_spinBox->stepStart();
}

void ComboSlider::setShowsTrueValue(bool showsTrueValue)
{
    m_showsTrueValue = showsTrueValue;
}

void ComboSlider::onComboBoxEditingFinished()
{
    m_spinBox->lineEdit()->setModified(false);
    const std::optional<qint64> entered = m_spinBox->takeEntered();
    const int trimmed = trimValue(m_spinBox->value());
    if (trimmed != m_spinBox->value()) {
        m_spinBox->setValue(trimmed);
    }
    const QString outcome = entered && !stepStart() ? m_spinBox->outcomeOf(*entered) : QString();
    if (!outcome.isEmpty()) {
        hint()->tell(outcome);
    }
    if (entered && !m_showsTrueValue && trimmed == m_slider->value()) {
        tellUser(trimmed);
    }
    m_slider->setValue(trimmed);
}

void ComboSlider::onSliderValueChanged(int value)
{
    const int trimmed = trimValue(value);
    if (trimmed != m_spinBox->value()) {
        m_spinBox->setValue(trimmed);
    }
    if (trimmed != value) {
        // Comes back here with the grid point.
        m_slider->setValue(trimmed);
        return;
    }
    tellUser(value);
    m_sliderStepStart.reset();
}

void ComboSlider::tellUser(int value)
{
    if (m_updateEnabled) {
        emit valueChanged(value);
    }
}

void ComboSlider::onSliderAction(int action)
{
    const bool isUp =
        action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderPageStepAdd;
    const bool isDown =
        action == QAbstractSlider::SliderSingleStepSub || action == QAbstractSlider::SliderPageStepSub;
    m_sliderStepStart.reset();
    if (!isUp && !isDown) {
        return;
    }
    const int value = m_slider->value();
    // Whole steps, as those of the spin box, and one at least: a page may be smaller.
    const int step = std::max(m_spinBox->singleStep(), 1);
    const qint64 wholeSteps = (qint64(m_slider->sliderPosition()) - value) / step;
    const qint64 steps = wholeSteps != 0 ? wholeSteps : isUp ? 1 : -1;
    const int target = trimValue(EditorNumbers::saturated(value + steps * step));
    m_slider->setSliderPosition(m_spinBox->canStep() ? target : value);
    if (m_slider->sliderPosition() != value) {
        m_sliderStepStart = value; // until the slider tells of it
    }
}

void ComboSlider::onTextChanged()
{
    const QString problem = m_spinBox->problem();
    if (m_hint || !problem.isEmpty()) {
        hint()->setProblem(problem);
    }
}

void ComboSlider::onReturnPressed()
{
    onTextChanged(); // the limits may have changed below the text
    if (m_hint && !m_hint->problem().isEmpty()) {
        m_hint->tell(m_hint->problem());
    }
}

InputHint *ComboSlider::hint()
{
    if (!m_hint) {
        m_hint = new InputHint(this, m_spinBox->lineEdit());
    }
    return m_hint;
}
