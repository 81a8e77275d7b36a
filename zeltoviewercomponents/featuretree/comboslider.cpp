// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "comboslider.h"

#include "editorhelpers.h"
#include "wheelguard.h"
#include "zeltoqtspinbox.h"

#include <platform/core/logging.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.comboSlider")

ComboSlider::ComboSlider(QWidget *parent)
    : QWidget(parent)
    , m_spinBox(new ZeltoQtSpinBox(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
{
    EditorHelpers::layOutComboSlider(this, m_spinBox, m_slider);
    setEditBoxWidth(EditorHelpers::editBoxWidth(*m_spinBox));
    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
    connect(m_spinBox, SIGNAL(editingFinished()), this, SLOT(onComboBoxEditingFinished()));
    ComboSlider::updateToolTip();
}

ComboSlider::~ComboSlider() = default;

void ComboSlider::setValue(int value)
{
    const QScopedValueRollback<bool> silence(m_updateEnabled, false);
    m_slider->setValue(trimValue(value));
    // Takes back a text that was entered and refused: then the slider has not moved.
    m_spinBox->setValue(m_slider->value());
    EditorHelpers::lineEditOf(*m_spinBox)->setModified(false);
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
    // The spin box counts in single steps.
    const int singleStep = m_spinBox->singleStep();
    m_spinBox->setPageStep(singleStep > 1 ? pageStep / singleStep : pageStep);
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

void ComboSlider::updateToolTip()
{
    EditorHelpers::guardedToolTip(logCategory(), [this] {
        const int step = m_spinBox->singleStep();
        setToolTip(step != 1 ? tr("Range: %1..%2 (Increment: %3)")
                                   .arg(m_spinBox->minimum())
                                   .arg(m_spinBox->maximum())
                                   .arg(step)
                             : tr("Range: %1..%2").arg(m_spinBox->minimum()).arg(m_spinBox->maximum()));
    });
}

int ComboSlider::trimValue(int value) const
{
    const int limited = qBound(m_slider->minimum(), value, m_slider->maximum());
    return EditorHelpers::trimmedToGrid(limited, m_spinBox->minimum(), m_spinBox->singleStep());
}

QSlider *ComboSlider::slider() const
{
    return m_slider;
}

ZeltoQtSpinBox *ComboSlider::spinBox() const
{
    return m_spinBox;
}

void ComboSlider::onComboBoxEditingFinished()
{
    EditorHelpers::lineEditOf(*m_spinBox)->setModified(false);
    const int trimmed = trimValue(m_spinBox->value());
    if (trimmed != m_spinBox->value()) {
        m_spinBox->setValue(trimmed);
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
    if (m_updateEnabled) {
        emit valueChanged(value);
    }
}
