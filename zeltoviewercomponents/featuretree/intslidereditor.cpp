// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "intslidereditor.h"

#include "editordatakeeper_p.h"
#include "editorintake_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "numberstep_p.h"
#include "zeltoqtspinbox.h"

#include <platform/core/guard.h>

#include <QLineEdit>
#include <QPointer>
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

void logInconsistency(const IParameter &parameter, const IntegerParameterData &snapshot)
{
    const QString name = EditorIntake::nodeName(&parameter);
    if (!snapshot.isReadable) {
        log(QStringLiteral("Non-readable slider: %1??????").arg(name));
        return;
    }
    const QString function = QString::fromLatin1(setEditorDataName);
    const int value = EditorNumbers::saturated(snapshot.value);
    const int minimum = EditorNumbers::saturated(snapshot.minimum);
    const int maximum = EditorNumbers::saturated(snapshot.maximum);
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

} // namespace

IntSliderEditor::IntSliderEditor(QWidget *parent)
    : ComboSlider(parent)
    , m_keeper(new EditorDataKeeper(this, spinBox(), spinBox()->lineEdit()))
    , m_step(new NumberStep(this))
{
    connect(spinBox()->lineEdit(), SIGNAL(textEdited(QString)), this, SLOT(endStep()));
    connect(m_step, SIGNAL(swallowed()), this, SLOT(goOnStepping()));
    // What came in during a drag was not shown.
    connect(slider(), SIGNAL(sliderReleased()), m_keeper, SLOT(showAgainAfterCommit()));
}

IntSliderEditor::~IntSliderEditor() = default;

void IntSliderEditor::setEditorData(EditorData data)
{
    const Core::GuardSite site{logCategory(), setEditorDataName};
    const auto *const snapshot = EditorIntake::snapshotIn<IntegerParameterData>(data, site);
    if (!snapshot) {
        return;
    }
    m_step->show(data);
    m_keeper->keep(data);
    const auto headline = [snapshot] {
        return snapshot->isReadable ? QStringLiteral("Failed to update the integer value editor")
                                    : QStringLiteral("Failed to retrieve a node's name");
    };
    Core::guardedRun(site, headline, [this, &data] { showSnapshot(data); });
}

void IntSliderEditor::showSnapshot(const EditorData &data)
{
    const auto &snapshot = static_cast<const IntegerParameterData &>(*data.ptrParameterData);
    logInconsistency(*data.ptrParameter, snapshot);
    const bool isChangeable = EditorIntake::canBeChanged(snapshot);
    QLineEdit *const lineEdit = spinBox()->lineEdit();
    if (!isChangeable) {
        lineEdit->setModified(false); // the focus goes with the lock, and would take what is typed along
    }
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    std::optional<EditorKeys::TypedText> typed;
    if (EditorKeys::isBeingTyped(*spinBox(), *lineEdit)) {
        typed.emplace(lineEdit);
    }
    showLimits(snapshot);
    spinBox()->setSubstitute(snapshot.isReadable ? QString() : tr("<not readable>"));
    const int value = EditorNumbers::saturated(snapshot.value);
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
    const int minimum = EditorNumbers::saturated(snapshot.minimum);
    const int maximum = EditorNumbers::saturated(snapshot.maximum);
    const int increment = EditorNumbers::saturated(snapshot.increment);
    const int pageStep = EditorNumbers::pageStep(minimum, maximum, increment);
    if (minimum != this->minimum() || maximum != this->maximum() || increment != singleStep()) {
        setRangeAndStep(minimum, maximum, increment);
        setPageStep(pageStep); // counted in single steps
    } else if (pageStep != this->pageStep()) {
        setPageStep(pageStep);
    }
    spinBox()->setHasLimits(minimum <= maximum);
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
    m_step->end();
    if (const std::optional<int> start = stepStart()) {
        m_stepWidth = EditorNumbers::wrappingDifference(value, *start);
        m_step->beginAt(*start, value);
    }
    write(value);
}

void IntSliderEditor::write(int value)
{
    const QPointer<IntSliderEditor> self(this); // the write may take the row away
    m_step->beginWrite();
    ComboSlider::tellUser(value);
    if (self) {
        m_step->endWrite();
        m_step->judge();
    }
}

void IntSliderEditor::endStep()
{
    m_step->end();
}

void IntSliderEditor::goOnStepping()
{
    const auto target = m_step->next([this](double start, double factor) {
        return trimValue(EditorNumbers::saturated(start + m_stepWidth * factor));
    });
    if (target) {
        const auto next = static_cast<int>(*target);
        setValue(next);
        write(next);
    }
}
