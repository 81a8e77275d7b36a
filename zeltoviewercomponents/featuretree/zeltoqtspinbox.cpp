// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "zeltoqtspinbox.h"

#include "accessibleeditors_p.h"
#include "editorkeys_p.h"
#include "editornumbers_p.h"
#include "integertext_p.h"
#include "numbertext_p.h"
#include "sharedpalette_p.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyleOptionSpinBox>

#include <utility>

ZeltoQtSpinBox::ZeltoQtSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    AccessibleEditors::install();
}

ZeltoQtSpinBox::~ZeltoQtSpinBox() = default;

void ZeltoQtSpinBox::setPageStep(int pageStep)
{
    m_pageStep = pageStep;
}

void ZeltoQtSpinBox::setValue(int value)
{
    if (value == this->value() && cleanText() == textFromValue(value)) {
        return; // the base would paint it again
    }
    const EditorKeys::SelectedText selected(lineEdit());
    QSpinBox::setValue(value);
}

void ZeltoQtSpinBox::stepBy(int steps)
{
    if (m_pageKeyPressed) {
        m_pageKeyPressed = false;
        steps = steps < 0 ? EditorNumbers::wrappingDifference(0, m_pageStep) : m_pageStep;
    }
    if (!canStep() || !problem().isEmpty()) {
        return;
    }
    noteEntered();
    interpretText(); // the base makes no step from beyond a limit
    const QScopedValueRollback<std::optional<int>> stepping(m_stepStart, value());
    QAbstractSpinBox::stepBy(steps);
    if (singleStep() == 0) {
        // The grid has no distance, and the base made no step.
        setValue(EditorNumbers::saturated(qint64(value()) + steps));
    }
    emit editingFinished();
}

std::optional<int> ZeltoQtSpinBox::stepStart() const
{
    return m_stepStart;
}

void ZeltoQtSpinBox::setSubstitute(const QString &text)
{
    if (text == m_substitute && (text.isEmpty() || lineEdit()->isModified())) {
        return; // the value, or what is typed, stands there
    }
    m_substitute = text;
    const QString shown = textFromValue(value());
    if (lineEdit()->text() != shown) {
        const EditorKeys::SelectedText selected(lineEdit());
        lineEdit()->setText(shown);
    }
}

void ZeltoQtSpinBox::setHasLimits(bool hasLimits)
{
    m_hasLimits = hasLimits;
}

bool ZeltoQtSpinBox::canStep() const
{
    return m_hasLimits && m_substitute.isEmpty();
}

QString ZeltoQtSpinBox::problem() const
{
    const QString text = cleanText();
    if (text.isEmpty() || text == specialValueText() || text == textFromValue(value())) {
        return {};
    }
    const auto number = numberIn(text);
    if (!number) {
        return IntegerText::problem(text, IntegerText::Form::Decimal, locale());
    }
    if (!m_hasLimits) {
        return IntegerText::limitsProblem();
    }
    // Where no value was read, none is chosen in the place of the one that was meant.
    return m_substitute.isEmpty() ? QString() : outcomeOf(*number);
}

QString ZeltoQtSpinBox::outcomeOf(qint64 number) const
{
    const int limited = qBound(minimum(), EditorNumbers::saturated(number), maximum());
    const int value = EditorNumbers::trimmedToGrid(limited, minimum(), singleStep());
    if (number == value) {
        return {};
    }
    const QString text = QSpinBox::textFromValue(value);
    return number > maximum() || number < minimum()
        ? NumberText::limitHint(text, number > maximum())
        : IntegerText::gridHint(text, QSpinBox::textFromValue(singleStep()));
}

std::optional<qint64> ZeltoQtSpinBox::takeEntered()
{
    return std::exchange(m_entered, std::nullopt);
}

QValidator::State ZeltoQtSpinBox::validate(QString &text, int &) const
{
    if (!m_substitute.isEmpty() && text == m_substitute) {
        return QValidator::Acceptable;
    }
    const auto number = m_hasLimits ? numberIn(text) : std::nullopt;
    return number && *number >= minimum() && *number <= maximum() ? QValidator::Acceptable
                                                                  : QValidator::Intermediate;
}

void ZeltoQtSpinBox::fixup(QString &text) const
{
    const auto number = numberIn(text);
    if (number && m_hasLimits && !m_isPausing) {
        const int limited = qBound(minimum(), EditorNumbers::saturated(*number), maximum());
        text = prefix() + QSpinBox::textFromValue(limited) + suffix();
    }
}

QString ZeltoQtSpinBox::textFromValue(int value) const
{
    return m_substitute.isEmpty() ? QSpinBox::textFromValue(value) : m_substitute;
}

int ZeltoQtSpinBox::valueFromText(const QString &text) const
{
    const auto number = numberIn(text);
    return number ? EditorNumbers::saturated(*number) : value();
}

QAbstractSpinBox::StepEnabled ZeltoQtSpinBox::stepEnabled() const
{
    if (isReadOnly() || !canStep()) {
        return StepNone;
    }
    // A step starts from what is typed, which the base would not look at.
    const qint64 start = typedNumber().value_or(value());
    const bool isOutside = start < minimum() || start > maximum();
    return (isOutside || start < maximum() ? StepUpEnabled : StepNone)
        | (isOutside || start > minimum() ? StepDownEnabled : StepNone);
}

void ZeltoQtSpinBox::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !problem().isEmpty()) {
        event->accept();
        emit lineEdit()->returnPressed(); // as the base does
        return;
    }
    if (isReturn) {
        noteEntered();
    }
    m_pageKeyPressed = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    QAbstractSpinBox::keyPressEvent(event);
    // At a limit the page key makes no step, and the next arrow key must not make its page step.
    m_pageKeyPressed = false;
    EditorKeys::finishKeyPress(event, *lineEdit(),
                               [this](QKeyEvent *press) { QAbstractSpinBox::keyPressEvent(press); });
}

void ZeltoQtSpinBox::focusInEvent(QFocusEvent *event)
{
    QSpinBox::focusInEvent(event);
    if (!m_substitute.isEmpty() && lineEdit()->text() == m_substitute) {
        // Not before the click that gave the focus is over.
        QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
    }
}

void ZeltoQtSpinBox::focusOutEvent(QFocusEvent *event)
{
    if (EditorKeys::isFocusLent(*event)) {
        pause(event);
        return;
    }
    if (problem().isEmpty()) {
        noteEntered();
    } else {
        lineEdit()->setText(textFromValue(value()));
    }
    QSpinBox::focusOutEvent(event);
}

// The base enters what is typed when it is hidden, and drops it when it is shown again: a minimized window
// has not been left.
void ZeltoQtSpinBox::showEvent(QShowEvent *event)
{
    if (!lineEdit()->isModified()) {
        QSpinBox::showEvent(event);
    }
}

void ZeltoQtSpinBox::hideEvent(QHideEvent *)
{
    endRepeatedSteps();
}

std::optional<qint64> ZeltoQtSpinBox::numberIn(const QString &text) const
{
    QString bare = text;
    bare.remove(0, bare.startsWith(prefix()) ? prefix().size() : 0);
    bare.chop(bare.endsWith(suffix()) ? suffix().size() : 0);
    return IntegerText::number(bare, locale());
}

std::optional<qint64> ZeltoQtSpinBox::typedNumber() const
{
    return lineEdit()->isModified() ? numberIn(lineEdit()->text()) : std::nullopt;
}

void ZeltoQtSpinBox::noteEntered()
{
    m_entered = typedNumber();
}

// Does what the base does when it loses the focus, except for entering what is typed.
void ZeltoQtSpinBox::pause(QFocusEvent *event)
{
    const QScopedValueRollback<bool> pausing(m_isPausing, true);
    endRepeatedSteps();
    lineEdit()->event(event);
    QWidget::focusOutEvent(event);
}

void ZeltoQtSpinBox::endRepeatedSteps()
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QSpinBox::mouseReleaseEvent(&release);
}

void ZeltoQtSpinBox::initStyleOption(QStyleOptionSpinBox *option) const
{
    QSpinBox::initStyleOption(option);
    sharePalette(option);
}
