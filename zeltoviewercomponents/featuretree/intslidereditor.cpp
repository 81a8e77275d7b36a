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
    const Core::GuardSite site{logCategory(), setEditorDataName};
    if (!data.ptrParameterData->isReadable) {
        Core::guardedRun(site, QStringLiteral("Failed to retrieve a node's name"), [this, &parameter, &data] {
            m_keeper->keep(data);
            setEnabled(EditorHelpers::canBeChanged(*data.ptrParameterData));
            log(QStringLiteral("Non-readable slider: %1??????")
                    .arg(EditorHelpers::nodeName(parameter.data())));
        });
        return;
    }
    Core::guardedRun(site, QStringLiteral("Failed to update the integer value editor"), [this, &data] {
        m_keeper->keep(data);
        showSnapshot(data);
    });
}

void IntSliderEditor::showSnapshot(const EditorData &data)
{
    const auto &snapshot = static_cast<const IntegerParameterData &>(*data.ptrParameterData);
    const int minimum = EditorHelpers::saturated(snapshot.minimum);
    const int maximum = EditorHelpers::saturated(snapshot.maximum);
    const int value = EditorHelpers::saturated(snapshot.value);
    const int increment = EditorHelpers::saturated(snapshot.increment);
    logInconsistency(*data.ptrParameter, value, minimum, maximum);
    setEnabled(EditorHelpers::canBeChanged(snapshot));
    // The value below a typed text is the camera's too: the text is compared with it when it is entered.
    std::optional<EditorHelpers::TypedText> typed;
    QLineEdit *const lineEdit = EditorHelpers::lineEditOf(*spinBox());
    if (EditorHelpers::isBeingTyped(*spinBox(), *lineEdit)) {
        typed.emplace(lineEdit);
    }
    if (minimum != this->minimum() || maximum != this->maximum() || increment != singleStep()) {
        setRangeAndStep(minimum, maximum, increment);
    }
    if (!slider()->isSliderDown() && (!typed || this->value() != trimValue(value))) {
        setValue(value);
    }
    setPageStep(EditorHelpers::pageStep(minimum, maximum, increment));
}

QVariant IntSliderEditor::editorData()
{
    m_keeper->showAgainAfterCommit();
    return value();
}
