// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floateditor.h"

#include "editordatakeeper_p.h"
#include "editorintake_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "floatentry_p.h"
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
    : DoubleSpinBox(parent, representation, Limits::Later)
    , m_keeper(new EditorDataKeeper(this, spinBox(), spinBox()->lineEdit()))
    , m_entry(std::make_unique<FloatEntry>())
{
    connect(spinBox()->lineEdit(), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
    connect(spinBox(), SIGNAL(left()), this, SLOT(onLeft()));
    connect(&m_entry->step, SIGNAL(swallowed()), this, SLOT(takeStep()));
}

FloatEditor::~FloatEditor() = default;

void FloatEditor::setEditorData(EditorData data)
{
    const auto show = [this, &data](const FloatParameterData &snapshot) {
        m_keeper->keep(data);
        m_entry->step.show(data);
        showSnapshot(snapshot);
    };
    EditorIntake::takeFloatData({logCategory(), "FloatEditor::setEditorData"}, data, show);
}

void FloatEditor::showSnapshot(const FloatParameterData &snapshot)
{
    const bool isChangeable = EditorIntake::canBeChanged(snapshot);
    if (!isChangeable) {
        // The focus goes with the lock; it would take what is typed along.
        spinBox()->showText();
        m_entry->step.end();
    }
    setEnabled(isChangeable);
    const EditorNumbers::FloatLimits shown = EditorNumbers::usableLimits(snapshot);
    const bool canStep = EditorNumbers::canStep(snapshot);
    m_entry->limits = canStep ? shown : EditorNumbers::FloatLimits(); // then the parameter alone refuses
    spinBox()->setSteppable(canStep);
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    if (hasFocus() && isUpdateExspected()) {
        spinBox()->settle();
    }
    const auto typed = spinBox()->keepTypedText();
    const bool isNewLook = spinBox()->showFeatureValues(snapshot.displayNotation, snapshot.displayPrecision);
    if (isNewLook || checkIfLimitsChanged(shown.minimum, shown.maximum, shown.increment)) {
        setIncrement(shown.increment); // which the tool tip of the range tells
        setRangeStepAndIncrement(shown.minimum, shown.maximum, shown.increment);
    }
    showValue(snapshot);
}

void FloatEditor::showValue(const FloatParameterData &snapshot)
{
    const bool isFinite = std::isfinite(snapshot.value);
    if (isFinite) {
        setShown(snapshot.value);
    } else {
        spinBox()->setLimits(m_entry->limits.minimum, m_entry->limits.maximum);
    }
    spinBox()->setSubstitute(!snapshot.isReadable ? tr("<not readable>")
                                 : isFinite       ? QString()
                                                  : spinBox()->locale().toString(snapshot.value));
    m_entry->settled =
        EditorNumbers::hasNumber(snapshot) ? snapshot.value : std::numeric_limits<double>::quiet_NaN();
    m_keeper->setCommitted(false);
}

// A value outside the limits is shown as it is; entries are limited by commit().
void FloatEditor::setShown(double value)
{
    const EditorNumbers::FloatLimits limits = m_entry->limitsAround(value);
    spinBox()->setLimits(limits.minimum, limits.maximum);
    setValue(value);
}

QVariant FloatEditor::editorData()
{
    return m_keeper->takeCommitted() ? value() : QVariant();
}

void FloatEditor::onTextEdited()
{
    m_entry->step.end();
    enableUpdate(false);
}

void FloatEditor::onEditingFinished()
{
    const auto typed = spinBox()->entry();
    if (!typed) {
        return;
    }
    m_entry->step.end();
    spinBox()->tellOutcome(*typed, m_entry->usable(*typed), m_entry->limits.minimum, m_entry->limits.maximum,
                           m_entry->limits.increment);
    commit(*typed);
}

void FloatEditor::onStepTriggered(int steps)
{
    m_entry->step.begin(value(), steps);
    takeStep();
}

void FloatEditor::onLeft()
{
    m_entry->stepWidth = 0.0;
    m_entry->step.end();
}

void FloatEditor::takeStep()
{
    const auto target = m_entry->step.next([this](double start, double factor) {
        const double distance = stepDistance(m_entry->step.steps()) * factor;
        return m_entry->usable(EditorNumbers::sumWithoutNoise(start, distance));
    });
    if (target) {
        commit(*target);
    } else if (spinBox()->entry()) {
        commit(*spinBox()->entry()); // typed at a limit
    }
}

double FloatEditor::stepDistance(int steps)
{
    const EditorNumbers::FloatLimits &limits = m_entry->limits;
    if (limits.increment > 0.0) {
        m_entry->stepWidth = limits.increment;
    } else if (m_entry->stepWidth == 0.0) {
        m_entry->stepWidth = freeStepWidth();
    }
    if (std::abs(steps) != EditorKeys::pageKeySteps) {
        return m_entry->stepWidth * steps;
    }
    const double page = limits.isBounded() ? std::max(spinBox()->pageStep(), m_entry->stepWidth)
                                           : m_entry->stepWidth * EditorKeys::pageKeySteps;
    return std::copysign(page, steps);
}

double FloatEditor::freeStepWidth() const
{
    const EditorNumbers::FloatLimits &limits = m_entry->limits;
    if (!limits.isBounded()) {
        return spinBox()->lastDigit(value());
    }
    // A unit in the second digit of the value; near 0, of a hundredth of the range.
    const double reference =
        value() != 0.0 ? std::abs(value()) : (limits.maximum / 100.0 - limits.minimum / 100.0);
    return reference > 0.0 ? std::pow(10.0, std::floor(std::log10(reference)) - 1.0) : 0.0;
}

void FloatEditor::commit(double number)
{
    const double usable = m_entry->usable(number);
    setShown(usable);
    enableUpdate(true);
    if (usable == m_entry->settled && m_entry->step.isHeld(usable)) {
        m_entry->step.end();
        return;
    }
    m_entry->settled = usable;
    m_keeper->setCommitted(true);
    const QPointer<FloatEditor> self(this);
    m_entry->step.beginWrite();
    emit boxValueChanged();
    if (self) {
        m_entry->step.endWrite();
    }
}
