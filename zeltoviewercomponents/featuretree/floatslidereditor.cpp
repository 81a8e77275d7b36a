// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floatslidereditor.h"

#include "editordatakeeper_p.h"
#include "editorintake_p.h"
#include "editornumbers_p.h"
#include "numberstep_p.h"
#include "zeltoqtdoublespinbox.h"

#include <platform/core/guard.h>

#include <QLocale>
#include <QSlider>

#include <cmath>
#include <limits>
#include <utility>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.floatSliderEditor")

namespace {

struct Positions
{
    int minimum = 0;
    int maximum = 1000;
    int step = 1;
};

// Returns the positions that the alias gives; a thousand when it gives none.
Positions aliasPositions(const IParameter *alias)
{
    const auto data = alias ? alias->parameterData() : nullptr;
    if (!data || data->type != ParameterType::Integer) {
        return {};
    }
    const auto &integer = static_cast<const IntegerParameterData &>(*data);
    const Positions positions{EditorNumbers::saturated(integer.minimum),
                              EditorNumbers::saturated(integer.maximum),
                              EditorNumbers::saturated(integer.increment)};
    return positions.minimum < positions.maximum && positions.step > 0 ? positions : Positions();
}

} // namespace

FloatSliderEditor::FloatSliderEditor(QSharedPointer<IParameterCollection> collection, QWidget *parent)
    : TwoModeDoubleComboSlider(parent)
    , m_collection(std::move(collection))
    , m_keeper(new EditorDataKeeper(this, spinBox(), spinBox()->lineEdit()))
{
    // What came in during a drag was not shown.
    connect(slider(), SIGNAL(sliderReleased()), m_keeper, SLOT(showAgainAfterCommit()));
    // Before any delegate connects: it asks for the value from within the signal.
    connect(this, SIGNAL(boxValueChanged()), this, SLOT(onBoxValueChanged()));
}

FloatSliderEditor::~FloatSliderEditor() = default;

void FloatSliderEditor::setEditorData(EditorData data)
{
    const auto show = [this, &data](const FloatParameterData &snapshot) {
        m_keeper->keep(data);
        step().show(data);
        findAlias(data.ptrParameter);
        showSnapshot(snapshot);
    };
    EditorIntake::takeFloatData({logCategory(), "FloatSliderEditor::setEditorData"}, data, show);
}

void FloatSliderEditor::findAlias(const QSharedPointer<IParameter> &parameter)
{
    if (parameter != m_parameter) {
        m_alias =
            m_collection ? m_collection->parameter(parameter->fullName() + QLatin1String("/Alias")) : nullptr;
        m_parameter = parameter;
    }
}

void FloatSliderEditor::showSnapshot(const FloatParameterData &snapshot)
{
    if (!EditorIntake::canBeChanged(snapshot)) {
        // The focus goes with the lock; it would take what is typed along.
        spinBox()->showText();
        dropChange();
    }
    setEnabled(EditorIntake::canBeChanged(snapshot));
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    if (hasFocus() && isUpdateExspected()) {
        spinBox()->settle();
    }
    const auto typed = spinBox()->keepTypedText();
    showLimits(snapshot, spinBox()->showFeatureValues(snapshot.displayNotation, snapshot.displayPrecision));
    if (isBeingMoved()) {
        return;
    }
    const bool isNumber = std::isfinite(snapshot.value);
    if (isNumber) {
        showValue(snapshot.value);
    }
    spinBox()->setSubstitute(!snapshot.isReadable ? tr("<not readable>")
                                 : isNumber       ? QString()
                                                  : spinBox()->locale().toString(snapshot.value));
    if (!EditorNumbers::hasNumber(snapshot)) {
        settle(std::numeric_limits<double>::quiet_NaN());
    }
    m_keeper->setCommitted(false);
}

void FloatSliderEditor::showLimits(const FloatParameterData &snapshot, bool isNewLook)
{
    const EditorNumbers::FloatLimits limits = EditorNumbers::usableLimits(snapshot);
    const Positions positions = aliasPositions(m_alias.data());
    setMode(snapshot.representation == QLatin1String("Logarithmic")
                ? ETwoModeDoubleComboSliderMode::Logarithmic
                : ETwoModeDoubleComboSliderMode::Linear);
    setIncrement(limits.increment);
    setFree(!EditorNumbers::canStep(snapshot));
    slider()->setEnabled(!(snapshot.minimum > snapshot.maximum)); // no position means anything
    if (isNewLook || checkIfLimitsChanged(limits.minimum, limits.maximum, positions.step)
        || checkIfLimitsChanged(positions.minimum, positions.maximum, positions.step)) {
        setLimits(limits.minimum, limits.maximum, positions.minimum, positions.maximum, positions.step);
    }
}

QVariant FloatSliderEditor::editorData()
{
    return m_keeper->takeCommitted() ? value() : QVariant();
}

void FloatSliderEditor::onBoxValueChanged()
{
    m_keeper->setCommitted(true);
}
