// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "inteditor.h"

#include "editordatakeeper.h"
#include "editorhelpers.h"

#include <platform/core/guard.h>

#include <algorithm>
#include <initializer_list>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.intEditor")

namespace {

constexpr char setEditorDataName[] = "IntEditor::setEditorData";

void log(const QString &format)
{
    Core::Logging::createLogEntry(ELogLevel::Debug, logCategory(),
                                  format.arg(QLatin1String(setEditorDataName)));
}

bool isAnyOf(const QString &text, std::initializer_list<QLatin1String> candidates)
{
    return std::find(candidates.begin(), candidates.end(), text) != candidates.end();
}

} // namespace

IntEditor::IntEditor(QWidget *parent)
    : QLineEdit(parent)
    , m_keeper(new EditorDataKeeper(this, this, this))
{
    setFrame(false);
    setContentsMargins(1, 0, 1, 0);
    setAutoFillBackground(true);
}

IntEditor::~IntEditor() = default;

void IntEditor::setEditorData(EditorData data)
{
    const auto parameter = qSharedPointerObjectCast<IIntegerParameter>(data.ptrParameter);
    if (!parameter || !data.ptrParameterData || data.ptrParameterData->type != ParameterType::Integer) {
        log(QStringLiteral("%1 is called with non-integer node????"));
        return;
    }
    const auto headline = [&parameter] {
        return QStringLiteral("Failed to update the integer value editor for node %1")
            .arg(EditorHelpers::nodeName(parameter.data()));
    };
    Core::guardedRun({logCategory(), setEditorDataName}, headline, [this, &data] {
        m_keeper->keep(data);
        const auto &snapshot = static_cast<const IntegerParameterData &>(*data.ptrParameterData);
        setEnabled(EditorHelpers::canBeChanged(snapshot));
        showSnapshot(snapshot);
    });
}

void IntEditor::showSnapshot(const IntegerParameterData &snapshot)
{
    if (!snapshot.isReadable) {
        showText(notReadable());
        setToolTip(QString());
        return;
    }
    const QString &representation = snapshot.representation;
    const bool isHex = representation == QLatin1String("HexNumber");
    if (isHex
        || isAnyOf(representation,
                   {QLatin1String("PureNumber"), QLatin1String("Linear"), QLatin1String("Logarithmic")})) {
        const int minimum = EditorHelpers::saturated(snapshot.minimum);
        const int maximum = EditorHelpers::saturated(snapshot.maximum);
        showText(QStringLiteral("%1").arg(snapshot.valueString));
        setToolTip(isHex ? tr("Range: 0x%1..0x%2").arg(minimum, 0, 16).arg(maximum, 0, 16)
                         : tr("Range: %1..%2").arg(minimum).arg(maximum));
    } else if (isAnyOf(
                   representation,
                   {QLatin1String("IPV4Address"), QLatin1String("Boolean"), QLatin1String("MACAddress")})) {
        setValidator(nullptr);
        showText(snapshot.valueString);
        setToolTip(QString());
    } else {
        log(QStringLiteral("%1 unexpected representation."));
    }
}

void IntEditor::showText(const QString &text)
{
    if (EditorHelpers::isBeingTyped(*this, *this)) {
        return;
    }
    if (this->text() != text) {
        setText(text);
    }
    setModified(false);
}

QVariant IntEditor::editorData()
{
    if (text() == notReadable()) {
        return {};
    }
    setModified(false);
    m_keeper->showAgainAfterCommit();
    return text();
}

void IntEditor::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (text() == notReadable()) {
        // Not before the click that gave the focus is over.
        QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
    }
}

QString IntEditor::notReadable() const
{
    return tr("<not readable>");
}
