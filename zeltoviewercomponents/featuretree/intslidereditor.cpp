// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "intslidereditor.h"

#include "editordatakeeper_p.h"
#include "editorhelpers.h"
#include "zeltoqtspinbox.h"

#include <platform/core/guard.h>

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>

#include <optional>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.intSliderEditor")

namespace {

constexpr char setEditorDataName[] = "IntSliderEditor::setEditorData";
constexpr int answerMilliseconds = 400; // less than editors wait before they show the last data again

void log(const QString &text)
{
    Core::Logging::createLogEntry(ELogLevel::Debug, logCategory(), text);
}

void logInconsistency(const IParameter &parameter, const IntegerParameterData &snapshot)
{
    const QString name = EditorHelpers::nodeName(&parameter);
    if (!snapshot.isReadable) {
        log(QStringLiteral("Non-readable slider: %1??????").arg(name));
        return;
    }
    const QString function = QString::fromLatin1(setEditorDataName);
    const int value = EditorHelpers::saturated(snapshot.value);
    const int minimum = EditorHelpers::saturated(snapshot.minimum);
    const int maximum = EditorHelpers::saturated(snapshot.maximum);
    if (minimum > maximum) {
        log(QStringLiteral("%1: Feature %2: min value %3 > max value %4???")
                .arg(function, name)
                .arg(minimum)
                .arg(maximum));
    }
    if (value < minimum || value > maximum) {
        log(QStringLiteral("%1: Feature %2: value %3 out of range??? min = %4, max = %5")
                .arg(function, name)
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
}

IntSliderEditor::~IntSliderEditor() = default;

void IntSliderEditor::setEditorData(EditorData data)
{
    const auto parameter = qSharedPointerObjectCast<IIntegerParameter>(data.ptrParameter);
    if (!parameter || !data.ptrParameterData || data.ptrParameterData->type != ParameterType::Integer) {
        log(QStringLiteral("%1 is called with non-integer node????").arg(QLatin1String(setEditorDataName)));
        return;
    }
    if (m_isWriting && m_shown.ptrParameterData == data.ptrParameterData) {
        m_step.reset(); // what was there is shown again: the step was refused
    }
    m_shown = data;
    m_keeper->keep(data);
    const bool isReadable = data.ptrParameterData->isReadable;
    Core::guardedRun({logCategory(), setEditorDataName},
                     isReadable ? QStringLiteral("Failed to update the integer value editor")
                                : QStringLiteral("Failed to retrieve a node's name"),
                     [this, &data] { showSnapshot(data); });
    if (m_step) {
        m_keeper->showAgainAfterCommit(); // the answer may have been there before
        // Not from within the refresh, whose sender is not done yet.
        QMetaObject::invokeMethod(this, "goOnStepping", Qt::QueuedConnection);
    }
}

void IntSliderEditor::showSnapshot(const EditorData &data)
{
    const auto &snapshot = static_cast<const IntegerParameterData &>(*data.ptrParameterData);
    logInconsistency(*data.ptrParameter, snapshot);
    const bool isChangeable = EditorHelpers::canBeChanged(snapshot);
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (!isChangeable) {
        lineEdit->setModified(false); // the focus goes with the lock, and would take what is typed along
    }
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    std::optional<EditorHelpers::TypedText> typed;
    if (EditorHelpers::isBeingTyped(*spinBox(), *lineEdit)) {
        typed.emplace(lineEdit);
    }
    showLimits(snapshot);
    spinBox()->setSubstitute(snapshot.isReadable ? QString() : tr("<not readable>"));
    const int value = EditorHelpers::saturated(snapshot.value);
    if (!snapshot.isReadable) {
        lineEdit->setModified(false);
    } else if (!slider()->isSliderDown() && (!typed || this->value() != trimValue(value))) {
        setValue(value);
    }
    if (!snapshot.isReadable || this->value() != snapshot.value) {
        setShowsTrueValue(false);
    }
    setEnabled(isChangeable);
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

void IntSliderEditor::tellUser(int value)
{
    if (!isUpdateEnabled()) {
        return;
    }
    m_step.reset();
    const std::optional<int> start = stepStart();
    if (const ParameterDataPtr before = start ? currentValue() : nullptr) {
        m_step = Step{before, *start, qint64(value) - *start, value, {}};
    }
    write(value);
}

void IntSliderEditor::write(int value)
{
    if (m_step) {
        m_step->answerTime.setRemainingTime(answerMilliseconds);
    }
    {
        const QScopedValueRollback<bool> writing(m_isWriting, true);
        ComboSlider::tellUser(value);
    }
    goOnStepping();
}

// The answer may have come within the write, or comes with a later snapshot.
void IntSliderEditor::goOnStepping()
{
    const ParameterDataPtr answer = m_step ? currentValue() : nullptr;
    if (!answer || (answer == m_step->before && !m_step->answerTime.hasExpired())) {
        return;
    }
    m_step->distance *= 10;
    const int next = trimValue(EditorHelpers::saturated(m_step->start + m_step->distance));
    const bool isSwallowed = valueOf(answer) == valueOf(m_step->before);
    if (!isSwallowed || next == m_step->last
        || EditorHelpers::isBeingTyped(*spinBox(), *EditorHelpers::lineEditOf(*spinBox()))) {
        m_step.reset();
        return;
    }
    m_step->before = answer;
    m_step->last = next;
    setValue(next);
    write(next);
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
