// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floatslidereditor.h"

#include "editordatakeeper_p.h"
#include "editorhelpers.h"
#include "floatstep_p.h"
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
Positions aliasPositions(const QSharedPointer<IParameterCollection> &collection, const QString &name)
{
    const auto alias = collection ? collection->parameter(name + QLatin1String("/Alias")) : nullptr;
    const auto data = alias ? alias->parameterData() : nullptr;
    if (!data || data->type != ParameterType::Integer) {
        return {};
    }
    const auto &integer = static_cast<const IntegerParameterData &>(*data);
    const Positions positions{EditorHelpers::saturated(integer.minimum),
                              EditorHelpers::saturated(integer.maximum),
                              EditorHelpers::saturated(integer.increment)};
    return positions.minimum < positions.maximum && positions.step > 0 ? positions : Positions();
}

} // namespace

FloatSliderEditor::FloatSliderEditor(QSharedPointer<IParameterCollection> collection, QWidget *parent)
    : TwoModeDoubleComboSlider(parent)
    , m_collection(std::move(collection))
    , m_keeper(new EditorDataKeeper(this, spinBox(), EditorHelpers::lineEditOf(*spinBox())))
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
        showSnapshot(data.ptrParameter->fullName(), snapshot);
    };
    EditorHelpers::takeFloatData({logCategory(), "FloatSliderEditor::setEditorData"}, data, show);
}

void FloatSliderEditor::showSnapshot(const QString &name, const FloatParameterData &snapshot)
{
    if (!EditorHelpers::canBeChanged(snapshot)) {
        // The focus goes with the lock; it would take what is typed along.
        spinBox()->showText();
        dropChange();
    }
    setEnabled(EditorHelpers::canBeChanged(snapshot));
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    if (hasFocus() && isUpdateExspected()) {
        spinBox()->settle();
    }
    const auto typed = spinBox()->keepTypedText();
    spinBox()->showFeatureValues(snapshot.displayNotation, snapshot.displayPrecision);
    showLimits(name, snapshot);
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
    if (!EditorHelpers::hasNumber(snapshot)) {
        settle(std::numeric_limits<double>::quiet_NaN());
    }
    m_isChanged = false;
}

void FloatSliderEditor::showLimits(const QString &name, const FloatParameterData &snapshot)
{
    const EditorHelpers::FloatLimits limits = EditorHelpers::usableLimits(snapshot);
    const Positions positions = aliasPositions(m_collection, name);
    setMode(snapshot.representation == QLatin1String("Logarithmic")
                ? ETwoModeDoubleComboSliderMode::Logarithmic
                : ETwoModeDoubleComboSliderMode::Linear);
    setIncrement(limits.increment);
    setFree(!EditorHelpers::canStep(snapshot));
    slider()->setEnabled(!(snapshot.minimum > snapshot.maximum)); // no position means anything
    setLimits(limits.minimum, limits.maximum, positions.minimum, positions.maximum, positions.step);
}

QVariant FloatSliderEditor::editorData()
{
    if (!m_isChanged) {
        return {};
    }
    m_isChanged = false;
    m_keeper->showAgainAfterCommit();
    return QString::number(value(), 'g', QLocale::FloatingPointShortest);
}

void FloatSliderEditor::onBoxValueChanged()
{
    m_isChanged = true;
}
