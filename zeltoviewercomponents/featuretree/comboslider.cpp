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

struct ComboSlider::Private
{
    ZeltoQtSpinBox *spinBox;
    QSlider *slider;
    InputHint *hint = nullptr; // created when there is something to say
    int editBoxWidth = 0;
    std::optional<int> sliderStepStart = std::nullopt;
    bool updateEnabled = true;
    bool showsTrueValue = true;
};

ComboSlider::ComboSlider(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(Private{new ZeltoQtSpinBox(this), new QSlider(Qt::Horizontal, this)}))
{
    ControlParts::layOutComboSlider(this, d->spinBox, d->slider);
    setEditBoxWidth(ControlParts::editBoxWidth(*d->spinBox));
    d->slider->installEventFilter(this);
    connect(d->slider, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
    connect(d->slider, SIGNAL(actionTriggered(int)), this, SLOT(onSliderAction(int)));
    connect(d->spinBox, SIGNAL(editingFinished()), this, SLOT(onComboBoxEditingFinished()));
    const QLineEdit *const lineEdit = d->spinBox->lineEdit();
    connect(lineEdit, SIGNAL(textChanged(QString)), this, SLOT(onTextChanged()));
    connect(lineEdit, SIGNAL(returnPressed()), this, SLOT(onReturnPressed()));
    ComboSlider::updateToolTip();
}

ComboSlider::~ComboSlider() = default;

void ComboSlider::setValue(int value)
{
    const QScopedValueRollback<bool> silence(d->updateEnabled, false);
    d->slider->setValue(trimValue(value));
    // Takes back a text that was entered and refused: then the slider has not moved.
    d->spinBox->setValue(d->slider->value());
    d->spinBox->lineEdit()->setModified(false);
    d->showsTrueValue = d->slider->value() == value;
}

void ComboSlider::setMinimum(int minimum)
{
    const QScopedValueRollback<bool> silence(d->updateEnabled, false);
    d->slider->setMinimum(minimum);
    d->spinBox->setMinimum(minimum);
    emit rangeChanged(minimum, d->spinBox->maximum());
    updateToolTip();
}

void ComboSlider::setMaximum(int maximum)
{
    const QScopedValueRollback<bool> silence(d->updateEnabled, false);
    d->slider->setMaximum(maximum);
    d->spinBox->setMaximum(maximum);
    emit rangeChanged(d->spinBox->minimum(), maximum);
    updateToolTip();
}

void ComboSlider::setRange(int minimum, int maximum)
{
    const QScopedValueRollback<bool> silence(d->updateEnabled, false);
    d->slider->setMinimum(minimum);
    d->spinBox->setMinimum(minimum);
    d->slider->setMaximum(maximum);
    d->spinBox->setMaximum(maximum);
    emit rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setRangeAndStep(int minimum, int maximum, int singleStep)
{
    const QScopedValueRollback<bool> silence(d->updateEnabled, false);
    d->spinBox->setSingleStep(singleStep);
    d->spinBox->setMinimum(minimum);
    d->spinBox->setMaximum(maximum);
    d->slider->setSingleStep(singleStep);
    d->slider->setMinimum(minimum);
    d->slider->setMaximum(maximum);
    emit rangeChanged(minimum, maximum);
    updateToolTip();
}

void ComboSlider::setSingleStep(int singleStep)
{
    d->slider->setSingleStep(singleStep);
    d->spinBox->setSingleStep(singleStep);
    updateToolTip();
}

void ComboSlider::setPageStep(int pageStep)
{
    d->slider->setPageStep(pageStep);
    // The spin box counts in single steps, and makes one at least.
    d->spinBox->setPageStep(std::max(pageStep / std::max(d->spinBox->singleStep(), 1), 1));
    updateToolTip();
}

int ComboSlider::value() const
{
    return d->slider->value();
}

int ComboSlider::minimum() const
{
    return d->slider->minimum();
}

int ComboSlider::maximum() const
{
    return d->slider->maximum();
}

int ComboSlider::singleStep() const
{
    return d->slider->singleStep();
}

int ComboSlider::pageStep() const
{
    return d->slider->pageStep();
}

int ComboSlider::editBoxWidth() const
{
    return d->editBoxWidth;
}

void ComboSlider::setEditBoxWidth(int width)
{
    d->editBoxWidth = width;
    d->spinBox->setMinimumWidth(width);
}

void ComboSlider::enableUpdate(bool enable)
{
    d->updateEnabled = enable;
}

bool ComboSlider::isUpdateEnabled() const
{
    return d->updateEnabled;
}

bool ComboSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->slider && event->type() == QEvent::Wheel) {
        // Steps of the same size wherever the wheel turns, and none without a value to start from.
        QCoreApplication::sendEvent(d->spinBox, event);
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
        const int step = d->spinBox->singleStep();
        const QString text = step != 1
            ? tr("Range: %1..%2 (Increment: %3)")
                  .arg(d->spinBox->minimum())
                  .arg(d->spinBox->maximum())
                  .arg(step)
            : tr("Range: %1..%2").arg(d->spinBox->minimum()).arg(d->spinBox->maximum());
        if (text != toolTip()) {
            setToolTip(text);
        }
    });
}

int ComboSlider::trimValue(int value) const
{
    const int limited = qBound(d->slider->minimum(), value, d->slider->maximum());
    return EditorNumbers::trimmedToGrid(limited, d->spinBox->minimum(), d->spinBox->singleStep());
}

QSlider *ComboSlider::slider() const
{
    return d->slider;
}

ZeltoQtSpinBox *ComboSlider::spinBox() const
{
    return d->spinBox;
}

std::optional<int> ComboSlider::stepStart() const
{
    return d->sliderStepStart ? d->sliderStepStart : d->spinBox->stepStart();
}

void ComboSlider::setShowsTrueValue(bool showsTrueValue)
{
    d->showsTrueValue = showsTrueValue;
}

void ComboSlider::onComboBoxEditingFinished()
{
    d->spinBox->lineEdit()->setModified(false);
    const std::optional<qint64> entered = d->spinBox->takeEntered();
    const int trimmed = trimValue(d->spinBox->value());
    if (trimmed != d->spinBox->value()) {
        d->spinBox->setValue(trimmed);
    }
    const QString outcome = entered && !stepStart() ? d->spinBox->outcomeOf(*entered) : QString();
    if (!outcome.isEmpty()) {
        hint()->tell(outcome);
    }
    if (entered && !d->showsTrueValue && trimmed == d->slider->value()) {
        tellUser(trimmed);
    }
    d->slider->setValue(trimmed);
}

void ComboSlider::onSliderValueChanged(int value)
{
    const int trimmed = trimValue(value);
    if (trimmed != d->spinBox->value()) {
        d->spinBox->setValue(trimmed);
    }
    if (trimmed != value) {
        // Comes back here with the grid point.
        d->slider->setValue(trimmed);
        return;
    }
    tellUser(value);
    d->sliderStepStart.reset();
}

void ComboSlider::tellUser(int value)
{
    if (d->updateEnabled) {
        emit valueChanged(value);
    }
}

void ComboSlider::onSliderAction(int action)
{
    const bool isUp =
        action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderPageStepAdd;
    const bool isDown =
        action == QAbstractSlider::SliderSingleStepSub || action == QAbstractSlider::SliderPageStepSub;
    d->sliderStepStart.reset();
    if (!isUp && !isDown) {
        return;
    }
    const int value = d->slider->value();
    // Whole steps, as those of the spin box, and one at least: a page may be smaller.
    const int step = std::max(d->spinBox->singleStep(), 1);
    const qint64 wholeSteps = (qint64(d->slider->sliderPosition()) - value) / step;
    const qint64 steps = wholeSteps != 0 ? wholeSteps : isUp ? 1 : -1;
    const int target = trimValue(EditorNumbers::saturated(value + steps * step));
    d->slider->setSliderPosition(d->spinBox->canStep() ? target : value);
    if (d->slider->sliderPosition() != value) {
        d->sliderStepStart = value; // until the slider tells of it
    }
}

void ComboSlider::onTextChanged()
{
    const QString problem = d->spinBox->problem();
    if (d->hint || !problem.isEmpty()) {
        hint()->setProblem(problem);
    }
}

void ComboSlider::onReturnPressed()
{
    onTextChanged(); // the limits may have changed below the text
    if (d->hint && !d->hint->problem().isEmpty()) {
        d->hint->tell(d->hint->problem());
    }
}

InputHint *ComboSlider::hint()
{
    if (!d->hint) {
        d->hint = new InputHint(this, d->spinBox->lineEdit());
    }
    return d->hint;
}
