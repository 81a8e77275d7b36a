// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "inteditor.h"

#include "accessibleeditors_p.h"
#include "editordatakeeper_p.h"
#include "editorintake_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "inputhint_p.h"
#include "integertext_p.h"

#include <platform/core/guard.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

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
    , m_hint(new InputHint(this, this))
{
    AccessibleEditors::install();
    setFrame(false);
    setContentsMargins(1, 0, 1, 0);
    setAutoFillBackground(true);
    connect(this, SIGNAL(textChanged(QString)), this, SLOT(judgeText()));
}

IntEditor::~IntEditor() = default;

void IntEditor::setEditorData(EditorData data)
{
    const Core::GuardSite site{logCategory(), setEditorDataName};
    const auto *const snapshot = EditorIntake::snapshotIn<IntegerParameterData>(data, site);
    if (!snapshot) {
        return;
    }
    const auto headline = [&data] {
        return QStringLiteral("Failed to update the integer value editor for node %1")
            .arg(EditorIntake::nodeName(data.ptrParameter.data()));
    };
    Core::guardedRun(site, headline, [this, &data, snapshot] {
        m_keeper->keep(data);
        if (snapshot->representation == QLatin1String("IPV4Address")) {
            m_addressName = data.ptrParameter->name();
        }
        const bool isChangeable = EditorIntake::canBeChanged(*snapshot);
        if (!isChangeable) {
            setModified(false); // the focus goes with the lock, and would take what is typed along
        }
        showSnapshot(*snapshot);
        setEnabled(isChangeable);
    });
}

void IntEditor::showSnapshot(const IntegerParameterData &snapshot)
{
    m_showsValue = snapshot.isReadable;
    m_representation = snapshot.representation;
    if (!snapshot.isReadable) {
        m_hint->setToolTip(QString());
        showText(notReadable());
        return;
    }
    const QString representation =
        m_representation.isEmpty() ? QStringLiteral("PureNumber") : m_representation;
    const bool isHex = representation == QLatin1String("HexNumber");
    if (isHex
        || isAnyOf(representation,
                   {QLatin1String("PureNumber"), QLatin1String("Linear"), QLatin1String("Logarithmic")})) {
        const int minimum = EditorNumbers::saturated(snapshot.minimum);
        const int maximum = EditorNumbers::saturated(snapshot.maximum);
        m_hint->setToolTip(isHex ? tr("Range: 0x%1..0x%2").arg(minimum, 0, 16).arg(maximum, 0, 16)
                                 : tr("Range: %1..%2").arg(minimum).arg(maximum));
        showText(QStringLiteral("%1").arg(snapshot.valueString));
    } else if (isAnyOf(
                   representation,
                   {QLatin1String("IPV4Address"), QLatin1String("Boolean"), QLatin1String("MACAddress")})) {
        setValidator(nullptr);
        m_hint->setToolTip(QString());
        showText(snapshot.valueString);
    } else {
        m_showsValue = false;
        log(QStringLiteral("%1 unexpected representation."));
    }
}

void IntEditor::showText(const QString &text)
{
    if (EditorKeys::isBeingTyped(*this, *this)) {
        return;
    }
    m_isRefused = false;
    m_shownText = text;
    if (this->text() != text) {
        const EditorKeys::SelectedText selected(this);
        setText(text);
    }
    setModified(false);
    judgeText();
}

QVariant IntEditor::editorData()
{
    const bool hasNothing = !isModified() && (!m_showsValue || text() == notReadable());
    if (hasNothing || text().isEmpty() || m_isRefused || !problem().isEmpty()) {
        return {};
    }
    setModified(false);
    m_keeper->showAgainAfterCommit();
    return IntegerText::handedOut(text(), locale());
}

bool IntEditor::isUntouched() const
{
    return !isModified() && text() == m_shownText;
}

void IntEditor::keepRefused()
{
    if (hasFocus()) {
        m_isRefused = true;
        setModified(true);
        m_hint->setProblem(IntegerText::refusal());
    }
}

bool IntEditor::isRefused() const
{
    return m_isRefused;
}

// Returns why what is typed is no value.
QString IntEditor::problem() const
{
    return text() == m_shownText
        ? QString()
        : IntegerText::problem(text(), IntegerText::formOf(m_representation, m_addressName), locale());
}

void IntEditor::judgeText()
{
    m_isRefused = false;
    m_hint->setProblem(problem());
}

bool IntEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != this || event->type() != QEvent::KeyPress) {
        return QLineEdit::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) {
        return false;
    }
    if (!problem().isEmpty()) {
        m_hint->tell(problem());
        event->accept();
        return true;
    }
    m_isRefused = false; // by now it may be allowed
    if (text().isEmpty()) {
        setModified(false);
        m_keeper->showAgain();
    }
    return false;
}

void IntEditor::focusInEvent(QFocusEvent *event)
{
    // Before the delegate's filter, which commits and closes on Return.
    installEventFilter(this);
    QLineEdit::focusInEvent(event);
    if (text() == notReadable()) {
        // Not before the click that gave the focus is over.
        QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
    }
}

void IntEditor::focusOutEvent(QFocusEvent *event)
{
    if (EditorKeys::isFocusLent(*event)) {
        const QSignalBlocker silence(this); // the editing is not finished
        QLineEdit::focusOutEvent(event);
        return;
    }
    if (m_isRefused || !problem().isEmpty()) {
        setModified(false);
        m_keeper->showAgain();
    }
    QLineEdit::focusOutEvent(event);
    setModified(false);
}

QString IntEditor::notReadable() const
{
    return tr("<not readable>");
}
