// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floateditor.h"

#include "editordatakeeper.h"
#include "editorhelpers.h"
#include "zeltoqtdoublespinbox.h"

#include <platform/core/guard.h>

#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.floatEditor")

FloatEditor::FloatEditor(QWidget *parent, const QString &representation)
    : DoubleSpinBox(parent, representation)
    , m_keeper(new EditorDataKeeper(this, spinBox(), EditorHelpers::lineEditOf(*spinBox())))
{
    connect(EditorHelpers::lineEditOf(*spinBox()), SIGNAL(textEdited(QString)), this, SLOT(onTextEdited()));
    connect(spinBox(), SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
    connect(spinBox(), SIGNAL(stepTriggered(int)), this, SLOT(onStepTriggered(int)));
}

FloatEditor::~FloatEditor() = default;

void FloatEditor::setEditorData(EditorData data)
{
    const auto show = [this, &data](const FloatParameterData &snapshot) {
        m_keeper->keep(data);
        showSnapshot(snapshot);
    };
    EditorHelpers::takeFloatData({logCategory(), "FloatEditor::setEditorData"}, data, show);
}

void FloatEditor::showSnapshot(const FloatParameterData &snapshot)
{
    setEnabled(EditorHelpers::canBeChanged(snapshot));
    const EditorHelpers::FloatLimits limits = EditorHelpers::usableLimits(snapshot);
    m_minimum = limits.minimum;
    m_maximum = limits.maximum;
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    std::optional<EditorHelpers::TypedText> typed;
    if (hasFocus() && !isUpdateExspected() && lineEdit->isModified()) {
        typed.emplace(lineEdit);
    }
    spinBox()->showFeatureValues(snapshot.displayNotation);
    initControls(limits.minimum, limits.maximum, snapshot.value, limits.increment);
    updateToolTip();
    showValue(snapshot);
}

void FloatEditor::showValue(const FloatParameterData &snapshot)
{
    if (std::isfinite(snapshot.value)) {
        // A value outside the limits is shown as it is; entries are limited by commit().
        spinBox()->setRange(std::min(m_minimum, snapshot.value), std::max(m_maximum, snapshot.value));
        setValue(snapshot.value);
    }
    spinBox()->setSubstitute(!snapshot.isReadable ? tr("<not readable>")
                                 : std::isfinite(snapshot.value)
                                 ? QString()
                                 : spinBox()->locale().toString(snapshot.value));
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    lineEdit->setModified(false);
    m_settledText = lineEdit->text();
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
    enableUpdate(false);
}

void FloatEditor::onEditingFinished()
{
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (spinBox()->hasSubstitute() || lineEdit->text() == m_settledText) {
        lineEdit->setModified(false);
        return;
    }
    commit(value());
}

void FloatEditor::onStepTriggered(int steps)
{
    if (spinBox()->hasSubstitute()) {
        return;
    }
    const bool isPage = std::abs(steps) == EditorHelpers::pageKeySteps;
    const double distance = isPage ? std::copysign(spinBox()->pageStep(), steps) : stepWidth() * steps;
    if (std::isfinite(distance)) {
        commit(EditorHelpers::withoutNoise(value() + distance));
    }
}

double FloatEditor::stepWidth() const
{
    if (increment() > 0.0) {
        return increment();
    }
    // A unit in the second digit of the value; near 0, of a hundredth of the range.
    const double reference = value() != 0.0 ? std::abs(value()) : (m_maximum / 100.0 - m_minimum / 100.0);
    return reference > 0.0 ? std::pow(10.0, std::floor(std::log10(reference)) - 1.0) : 0.0;
}

void FloatEditor::commit(double value)
{
    const double usable = EditorHelpers::snappedToGrid(value, m_minimum, m_maximum, increment());
    spinBox()->setRange(m_minimum, m_maximum);
    setValue(usable);
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    lineEdit->setModified(false);
    enableUpdate(true);
    if (lineEdit->text() == m_settledText) {
        return;
    }
    m_settledText = lineEdit->text();
    m_isChanged = true;
    emit boxValueChanged();
}
