// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floateditor.h"

#include "editordatakeeper_p.h"
#include "editorhelpers.h"
#include "floatstep_p.h"
#include "zeltoqtdoublespinbox.h"

#include <platform/core/guard.h>

#include <QLineEdit>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.floatEditor")

FloatEditor::FloatEditor(QWidget *parent, const QString &representation)
    : DoubleSpinBox(parent, representation)
    , m_keeper(new EditorDataKeeper(this, spinBox(), EditorHelpers::lineEditOf(*spinBox())))
    , m_step(new FloatStep(this))
{
    connect(EditorHelpers::lineEditOf(*spinBox()), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
    connect(spinBox(), SIGNAL(left()), this, SLOT(onLeft()));
    connect(m_step, SIGNAL(swallowed()), this, SLOT(takeStep()));
}

FloatEditor::~FloatEditor() = default;

void FloatEditor::setEditorData(EditorData data)
{
    const auto show = [this, &data](const FloatParameterData &snapshot) {
        m_keeper->keep(data);
        m_step->show(data);
        showSnapshot(snapshot);
    };
    EditorHelpers::takeFloatData({logCategory(), "FloatEditor::setEditorData"}, data, show);
}

void FloatEditor::showSnapshot(const FloatParameterData &snapshot)
{
    if (!EditorHelpers::canBeChanged(snapshot)) {
        // The focus goes with the lock; it would take what is typed along.
        spinBox()->showText();
        m_step->end();
    }
    setEnabled(EditorHelpers::canBeChanged(snapshot));
    m_limits = EditorHelpers::entryLimits(snapshot);
    spinBox()->setSteppable(EditorHelpers::canStep(snapshot));
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    if (hasFocus() && isUpdateExspected()) {
        spinBox()->settle();
    }
    const auto typed = spinBox()->keepTypedText();
    spinBox()->showFeatureValues(snapshot.displayNotation, snapshot.displayPrecision);
    const EditorHelpers::FloatLimits shown = EditorHelpers::usableLimits(snapshot);
    initControls(shown.minimum, shown.maximum, snapshot.value, shown.increment);
    updateToolTip();
    showValue(snapshot);
}

void FloatEditor::showValue(const FloatParameterData &snapshot)
{
    const bool isFinite = std::isfinite(snapshot.value);
    if (isFinite) {
        // A value outside the limits is shown as it is; entries are limited by commit().
        spinBox()->setLimits(std::min(m_limits.minimum, snapshot.value),
                             std::max(m_limits.maximum, snapshot.value));
        spinBox()->showValue(snapshot.value);
    } else {
        spinBox()->setLimits(m_limits.minimum, m_limits.maximum);
    }
    spinBox()->setSubstitute(!snapshot.isReadable ? tr("<not readable>")
                                 : isFinite       ? QString()
                                                  : spinBox()->locale().toString(snapshot.value));
    m_settledValue =
        EditorHelpers::hasNumber(snapshot) ? snapshot.value : std::numeric_limits<double>::quiet_NaN();
    m_isChanged = false;
}

QVariant FloatEditor::editorData()
{
    if (!m_isChanged) {
        return {};
    }
    m_isChanged = false;
    m_keeper->showAgainAfterCommit();
    return QString::number(value(), 'g', QLocale::FloatingPointShortest);
}

void FloatEditor::onTextEdited()
{
    m_step->end();
    enableUpdate(false);
}

void FloatEditor::onEditingFinished()
{
    const auto typed = spinBox()->entry();
    if (!typed) {
        return;
    }
    m_step->end();
    spinBox()->tellOutcome(*typed, snapped(*typed), m_limits.minimum, m_limits.maximum, m_limits.increment);
    commit(*typed);
}

void FloatEditor::onStepTriggered(int steps)
{
    m_step->begin(value(), steps);
    takeStep();
}

void FloatEditor::onLeft()
{
    m_stepWidth = 0.0;
    m_step->end();
}

void FloatEditor::takeStep()
{
    const auto target = m_step->next([this](double start, double factor) {
        const double distance = stepDistance(m_step->steps()) * factor;
        return snapped(EditorHelpers::sumWithoutNoise(start, distance));
    });
    if (target) {
        commit(*target);
    } else if (spinBox()->entry()) {
        commit(*spinBox()->entry()); // typed at a limit
    }
}

double FloatEditor::stepDistance(int steps)
{
    if (m_limits.increment > 0.0) {
        m_stepWidth = m_limits.increment;
    } else if (m_stepWidth == 0.0) {
        m_stepWidth = freeStepWidth();
    }
    if (std::abs(steps) != EditorHelpers::pageKeySteps) {
        return m_stepWidth * steps;
    }
    const double page = m_limits.isBounded() ? std::max(spinBox()->pageStep(), m_stepWidth)
                                             : m_stepWidth * EditorHelpers::pageKeySteps;
    return std::copysign(page, steps);
}

double FloatEditor::freeStepWidth() const
{
    if (!m_limits.isBounded()) {
        return spinBox()->lastDigit(value());
    }
    // A unit in the second digit of the value; near 0, of a hundredth of the range.
    const double reference =
        value() != 0.0 ? std::abs(value()) : (m_limits.maximum / 100.0 - m_limits.minimum / 100.0);
    return reference > 0.0 ? std::pow(10.0, std::floor(std::log10(reference)) - 1.0) : 0.0;
}

double FloatEditor::snapped(double number) const
{
    // What the camera holds stays as it is when it is typed again, whatever the limits are.
    return number == m_settledValue
        ? number
        : EditorHelpers::snappedToGrid(number, m_limits.minimum, m_limits.maximum, m_limits.increment);
}

void FloatEditor::commit(double number)
{
    const double usable = snapped(number);
    spinBox()->setLimits(std::min(m_limits.minimum, usable), std::max(m_limits.maximum, usable));
    setValue(usable);
    enableUpdate(true);
    if (usable == m_settledValue && m_step->isHeld(usable)) {
        m_step->end();
        return;
    }
    m_settledValue = usable;
    m_isChanged = true;
    const QPointer<FloatEditor> self(this);
    m_step->beginWrite();
    emit boxValueChanged();
    if (self) {
        m_step->endWrite();
    }
}
