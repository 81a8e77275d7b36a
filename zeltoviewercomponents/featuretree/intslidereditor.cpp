// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "intslidereditor.h"

#include "editordatakeeper.h"
#include "editorhelpers.h"
#include "zeltoqtspinbox.h"

#include <platform/core/guard.h>

#include <QLineEdit>
#include <QSlider>

#include <optional>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.intSliderEditor")

namespace {

constexpr char setEditorDataName[] = "IntSliderEditor::setEditorData";

void log(const QString &text)
{
    Core::Logging::createLogEntry(ELogLevel::Debug, logCategory(), text);
}

void logInconsistency(const IParameter &parameter, int value, int minimum, int maximum)
{
    const QString function = QString::fromLatin1(setEditorDataName);
    if (minimum > maximum) {
        log(QStringLiteral("%1: Feature %2: min value %3 > max value %4???")
                .arg(function, EditorHelpers::nodeName(&parameter))
                .arg(minimum)
                .arg(maximum));
    }
    if (value < minimum || value > maximum) {
        log(QStringLiteral("%1: Feature %2: value %3 out of range??? min = %4, max = %5")
                .arg(function, EditorHelpers::nodeName(&parameter))
                .arg(value)
                .arg(minimum)
                .arg(maximum));
    }
}

int valueOf(const ParameterDataPtr &data)
{
    return EditorHelpers::saturated(static_cast<const IntegerParameterData &>(*data).value);
}

} // namespace

IntSliderEditor::IntSliderEditor(QWidget *parent)
    : ComboSlider(parent)
    , m_keeper(new EditorDataKeeper(this, spinBox(), EditorHelpers::lineEditOf(*spinBox())))
{
    // What came in during a drag was not shown.
    connect(slider(), SIGNAL(sliderReleased()), m_keeper, SLOT(showAgainAfterCommit()));
    // Before any delegate connects, which writes the value from within the signal.
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(noteStep(int)));
}

IntSliderEditor::~IntSliderEditor() = default;

void IntSliderEditor::setEditorData(EditorData data)
{
    const auto parameter = qSharedPointerObjectCast<IIntegerParameter>(data.ptrParameter);
    if (!parameter || !data.ptrParameterData || data.ptrParameterData->type != ParameterType::Integer) {
        log(QStringLiteral("%1 is called with non-integer node????").arg(QLatin1String(setEditorDataName)));
        return;
    }
    if (m_shown.ptrParameterData == data.ptrParameterData) {
        m_step.reset(); // what was there is shown again: the step was refused
    }
    m_shown = data;
    const Core::GuardSite site{logCategory(), setEditorDataName};
    const bool isReadable = data.ptrParameterData->isReadable;
    Core::guardedRun(site,
                     isReadable ? QStringLiteral("Failed to update the integer value editor")
                                : QStringLiteral("Failed to retrieve a node's name"),
                     [this, &data, isReadable] {
                         m_keeper->keep(data);
                         setEnabled(EditorHelpers::canBeChanged(*data.ptrParameterData));
                         if (isReadable) {
                             showSnapshot(data);
                         } else {
                             showUnreadable(data);
                         }
                     });
}

void IntSliderEditor::showUnreadable(const EditorData &data)
{
    log(QStringLiteral("Non-readable slider: %1??????")
            .arg(EditorHelpers::nodeName(data.ptrParameter.data())));
    std::optional<EditorHelpers::TypedText> typed;
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (EditorHelpers::isBeingTyped(*spinBox(), *lineEdit)) {
        typed.emplace(lineEdit);
    }
    showLimits(static_cast<const IntegerParameterData &>(*data.ptrParameterData));
    spinBox()->setSubstitute(tr("<not readable>"));
    lineEdit->setModified(false);
    setShowsTrueValue(false);
}

void IntSliderEditor::showSnapshot(const EditorData &data)
{
    const auto &snapshot = static_cast<const IntegerParameterData &>(*data.ptrParameterData);
    const int value = EditorHelpers::saturated(snapshot.value);
    logInconsistency(*data.ptrParameter, value, EditorHelpers::saturated(snapshot.minimum),
                     EditorHelpers::saturated(snapshot.maximum));
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    std::optional<EditorHelpers::TypedText> typed;
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (EditorHelpers::isBeingTyped(*spinBox(), *lineEdit)) {
        typed.emplace(lineEdit);
    }
    showLimits(snapshot);
    spinBox()->setSubstitute(QString());
    if (!slider()->isSliderDown() && (!typed || this->value() != trimValue(value))) {
        setValue(value);
    }
    if (this->value() != snapshot.value) {
        setShowsTrueValue(false);
    }
}

void IntSliderEditor::showLimits(const IntegerParameterData &snapshot)
{
    const int minimum = EditorHelpers::saturated(snapshot.minimum);
    const int maximum = EditorHelpers::saturated(snapshot.maximum);
    const int increment = EditorHelpers::saturated(snapshot.increment);
    if (minimum != this->minimum() || maximum != this->maximum() || increment != singleStep()) {
        setRangeAndStep(minimum, maximum, increment);
    }
    spinBox()->setHasLimits(minimum <= maximum);
    setPageStep(EditorHelpers::pageStep(minimum, maximum, increment));
}

QVariant IntSliderEditor::editorData()
{
    m_keeper->showAgainAfterCommit();
    return value();
}

void IntSliderEditor::noteStep(int value)
{
    m_step.reset();
    if (const ParameterDataPtr before = isStepping() ? currentValue() : nullptr) {
        m_step = Step{before, qint64(value) - valueOf(before)};
    }
}

void IntSliderEditor::valueTold()
{
    const ParameterDataPtr after = m_step ? currentValue() : nullptr;
    if (!after || after == m_step->before || valueOf(after) != valueOf(m_step->before)) {
        return; // refused, not answered yet, or moved
    }
    const int next = trimValue(EditorHelpers::saturated(valueOf(after) + 10 * m_step->distance));
    if (next != value()) {
        stepTo(next);
    }
}

// Returns the snapshot that the parameter has now, null without a value.
ParameterDataPtr IntSliderEditor::currentValue() const
{
    if (!m_shown.ptrParameter) {
        return nullptr;
    }
    const Core::GuardSite site{logCategory(), "IntSliderEditor::currentValue"};
    const ParameterDataPtr data =
        Core::guarded(site, QStringLiteral("Failed to look for the answer to a step"), ParameterDataPtr(),
                      [this] { return m_shown.ptrParameter->parameterData(); });
    return data && data->isReadable && data->type == ParameterType::Integer ? data : nullptr;
}
