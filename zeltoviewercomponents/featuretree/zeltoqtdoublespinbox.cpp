// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "zeltoqtdoublespinbox.h"

#include "accessibleeditors_p.h"
#include "editorkeys_p.h"
#include "inputhint_p.h"
#include "numbertext_p.h"
#include "sharedpalette_p.h"

#include <platform/core/formatdoublevalue.h>

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Doubles = std::numeric_limits<double>;

// The most that QDoubleSpinBox keeps: it rounds values to its decimals, and features' values must stay as
// they are.
constexpr int mostDecimals = Doubles::max_exponent10 + Doubles::digits10;

// Returns as many decimals as give back the value.
int decimalsOf(double value)
{
    if (!std::isfinite(value) || value == std::trunc(value)) {
        return 0;
    }
    const auto exponent = static_cast<int>(std::floor(std::log10(std::abs(value))));
    return std::clamp(Doubles::max_digits10 - 1 - exponent, 0, mostDecimals);
}

bool isByTheUser(Qt::FocusReason reason)
{
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

ZeltoQtDoubleSpinBox::ZeltoQtDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    AccessibleEditors::install();
    connect(lineEdit(), SIGNAL(textChanged(QString)), this, SLOT(onTextChanged(QString)));
}

ZeltoQtDoubleSpinBox::~ZeltoQtDoubleSpinBox() = default;

double ZeltoQtDoubleSpinBox::pageStep() const
{
    return m_pageStep;
}

void ZeltoQtDoubleSpinBox::setPageStep(double pageStep)
{
    m_pageStep = pageStep;
}

bool ZeltoQtDoubleSpinBox::showFeatureValues(GenApi::EDisplayNotation notation, int precision)
{
    if (notation == GenApi::UndefinedDisplayNotation) {
        notation = GenApi::fnAutomatic;
    }
    if (m_notation == notation && m_precision == precision && m_language == locale()) {
        return false;
    }
    m_language = locale();
    m_notation = notation;
    m_precision = precision;
    showText();
    return true;
}

void ZeltoQtDoubleSpinBox::setLimits(double minimum, double maximum)
{
    if (m_notation != GenApi::UndefinedDisplayNotation) {
        // The base prints and reads all digits of its limits, hundreds of those that mean none.
        minimum = minimum == Doubles::lowest() ? -Doubles::infinity() : minimum;
        maximum = maximum == Doubles::max() ? Doubles::infinity() : maximum;
    }
    makeRoomFor(minimum);
    makeRoomFor(maximum);
    if (minimum != this->minimum() || maximum != this->maximum()) {
        setRange(minimum, maximum);
    }
}

double ZeltoQtDoubleSpinBox::lowestValue() const
{
    return std::max(minimum(), Doubles::lowest());
}

double ZeltoQtDoubleSpinBox::highestValue() const
{
    return std::min(maximum(), Doubles::max());
}

void ZeltoQtDoubleSpinBox::setValue(double value)
{
    const EditorKeys::SelectedText selected(lineEdit());
    QDoubleSpinBox::setValue(value);
}

void ZeltoQtDoubleSpinBox::showValue(double value)
{
    makeRoomFor(value);
    if (value == this->value()) {
        showText();
    } else {
        setValue(value);
        settle();
    }
}

// Keeps as many decimals of feature values as the number has.
void ZeltoQtDoubleSpinBox::makeRoomFor(double number)
{
    if (m_notation != GenApi::UndefinedDisplayNotation && decimalsOf(number) > decimals()) {
        setDecimals(decimalsOf(number));
    }
}

void ZeltoQtDoubleSpinBox::setSteppable(bool isSteppable)
{
    if (isSteppable != m_isSteppable) {
        m_isSteppable = isSteppable;
        update(); // the buttons
    }
}

void ZeltoQtDoubleSpinBox::setSubstitute(const QString &text)
{
    if (text.isEmpty() && !hasSubstitute()) {
        return; // the value, or what is typed, stands there
    }
    m_substitute = text;
    showText();
    if (hasSubstitute() && hasFocus()) {
        // Not before the click that gave the focus is over.
        QMetaObject::invokeMethod(this, "selectSubstitute", Qt::QueuedConnection);
    }
}

bool ZeltoQtDoubleSpinBox::hasSubstitute() const
{
    return !m_substitute.isEmpty();
}

QString ZeltoQtDoubleSpinBox::numberText(double value) const
{
    return m_notation == GenApi::UndefinedDisplayNotation
        ? formatDoubleValue(value, decimals(), true, locale())
        : formatFeatureValue(value, m_notation, m_precision, locale());
}

double ZeltoQtDoubleSpinBox::lastDigit(double value) const
{
    return lastDigitOfFeatureValue(value, m_notation, m_precision);
}

double ZeltoQtDoubleSpinBox::finestDigit(double value) const
{
    return finestOfFeatureValue(value, m_notation, m_precision);
}

bool ZeltoQtDoubleSpinBox::isBeingTyped() const
{
    return lineEdit()->isModified();
}

QScopedValueRollback<bool> ZeltoQtDoubleSpinBox::keepTypedText()
{
    return QScopedValueRollback<bool>(m_isTextKept, m_isTextKept || isBeingTyped());
}

void ZeltoQtDoubleSpinBox::settle()
{
    if (!m_isTextKept) {
        lineEdit()->setModified(false);
        setProblem(QString());
    }
}

std::optional<double> ZeltoQtDoubleSpinBox::entry() const
{
    return m_entry;
}

void ZeltoQtDoubleSpinBox::tellOutcome(double typed, double value, double minimum, double maximum,
                                       double increment)
{
    // A limit that is typed as it is shown, rounded, is no news.
    if (numberText(typed) == numberText(value)) {
        return;
    }
    if (typed > maximum || typed < minimum) {
        const bool isMaximum = typed > maximum;
        hint()->tell(NumberText::limitHint(numberText(isMaximum ? maximum : minimum), isMaximum));
    } else {
        hint()->tell(NumberText::incrementHint(numberText(value), numberText(increment)));
    }
}

void ZeltoQtDoubleSpinBox::stepBy(int steps)
{
    if (!m_isSteppable || !takeTyped()) {
        return;
    }
    const QPointer<ZeltoQtDoubleSpinBox> self(this); // a write may end in a message, and that in a closed row
    emit stepTriggered(steps);
    if (self) {
        m_entry.reset();
    }
}

QAbstractSpinBox::StepEnabled ZeltoQtDoubleSpinBox::stepEnabled() const
{
    // The base would go by the value alone; the owner knows the limits of its steps.
    return isReadOnly() || !m_isSteppable ? StepNone : StepUpEnabled | StepDownEnabled;
}

QString ZeltoQtDoubleSpinBox::textFromValue(double value) const
{
    return m_isTextKept ? lineEdit()->displayText() : shownText(value);
}

QString ZeltoQtDoubleSpinBox::shownText(double value) const
{
    if (hasSubstitute()) {
        return m_substitute;
    }
    return m_hasAllDigits && m_notation != GenApi::UndefinedDisplayNotation
        ? formatFeatureValue(value, m_notation, allDigits, locale())
        : numberText(value);
}

double ZeltoQtDoubleSpinBox::valueFromText(const QString &text) const
{
    const auto number = isAsShown(text) ? std::nullopt : NumberText(text, locale()).number();
    if (!number) {
        return value(); // what is shown may be rounded; the value is not
    }
    return m_notation == GenApi::UndefinedDisplayNotation
        ? QString::number(*number, 'f', decimals()).toDouble() // as setValue() does
        : *number;
}

bool ZeltoQtDoubleSpinBox::isAsShown(const QString &text) const
{
    return text.trimmed() == shownText(value());
}

QValidator::State ZeltoQtDoubleSpinBox::validate(QString &text, int &) const
{
    const auto isControl = [](QChar letter) {
        return letter.category() == QChar::Other_Control || letter.category() == QChar::Separator_Line
            || letter.category() == QChar::Separator_Paragraph;
    };
    const QString trimmed = text.trimmed();
    if (std::any_of(trimmed.begin(), trimmed.end(), isControl)) {
        return QValidator::Invalid;
    }
    if (m_isTextKept) {
        return QValidator::Intermediate;
    }
    if (isAsShown(text)) {
        return QValidator::Acceptable;
    }
    const auto number = NumberText(text, locale()).number();
    return number && *number >= minimum() && *number <= maximum() ? QValidator::Acceptable
                                                                  : QValidator::Intermediate;
}

void ZeltoQtDoubleSpinBox::fixup(QString &text) const
{
    const auto number = NumberText(text, locale()).number();
    if (!m_isTextKept && number) {
        // In full, since a text with the digits that are shown may lie beyond the limit.
        QLocale plain = locale();
        plain.setNumberOptions(plain.numberOptions() | QLocale::OmitGroupSeparator);
        text = plain.toString(qBound(minimum(), *number, maximum()), 'g', Doubles::max_digits10);
    }
}

// Makes a typed number the value. Returns false for a text that is none.
bool ZeltoQtDoubleSpinBox::takeTyped()
{
    m_entry.reset();
    if (isAsShown(text()) || text().isEmpty()) {
        if (isBeingTyped() && !text().isEmpty() && !hasSubstitute()) {
            m_entry = value();
        }
        showText(); // without blanks around
        return true;
    }
    const NumberText typed(text(), locale());
    m_entry = typed.number();
    if (!m_entry) {
        setProblem(typed.problem().isEmpty() ? NumberText::incompleteHint() : typed.problem());
        return false;
    }
    m_substitute.clear();
    const double limited = qBound(minimum(), *m_entry, maximum());
    makeRoomFor(limited);
    QDoubleSpinBox::setValue(limited);
    settle();
    tellOutcome(*m_entry, value(), minimum(), maximum(), 0.0);
    return true;
}

void ZeltoQtDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || takeTyped()) {
        const QPointer<ZeltoQtDoubleSpinBox> self(this);
        QAbstractSpinBox::keyPressEvent(event);
        if (!self) {
            return;
        }
        m_entry.reset();
    }
    EditorKeys::finishKeyPress(event, *lineEdit(),
                               [this](QKeyEvent *press) { QAbstractSpinBox::keyPressEvent(press); });
}

void ZeltoQtDoubleSpinBox::focusInEvent(QFocusEvent *event)
{
    if (isByTheUser(event->reason())) {
        showAllDigits(true);
    }
    QDoubleSpinBox::focusInEvent(event);
    if (hasSubstitute()) {
        QMetaObject::invokeMethod(this, "selectSubstitute", Qt::QueuedConnection);
    }
}

void ZeltoQtDoubleSpinBox::focusOutEvent(QFocusEvent *event)
{
    if (EditorKeys::isFocusLent(*event)) {
        const auto kept = keepTypedText();
        const QSignalBlocker blocker(this); // the editing goes on
        QDoubleSpinBox::focusOutEvent(event);
        return;
    }
    if (!takeTyped()) {
        showText();
    }
    const QPointer<ZeltoQtDoubleSpinBox> self(this);
    QDoubleSpinBox::focusOutEvent(event);
    if (!self) {
        return;
    }
    m_entry.reset();
    showAllDigits(false);
    emit left();
}

// The base would interpret the text when the window is left.
void ZeltoQtDoubleSpinBox::changeEvent(QEvent *event)
{
    const auto kept = keepTypedText();
    QDoubleSpinBox::changeEvent(event);
}

// The base would show the value again when the window comes back.
void ZeltoQtDoubleSpinBox::showEvent(QShowEvent *event)
{
    const auto kept = keepTypedText();
    QDoubleSpinBox::showEvent(event);
}

void ZeltoQtDoubleSpinBox::hideEvent(QHideEvent *event)
{
    const auto kept = keepTypedText();
    QDoubleSpinBox::hideEvent(event);
}

void ZeltoQtDoubleSpinBox::onTextChanged(const QString &text)
{
    setProblem(isAsShown(text) ? QString() : NumberText(text, locale()).problem());
}

void ZeltoQtDoubleSpinBox::selectSubstitute()
{
    if (hasSubstitute() && lineEdit()->text() == m_substitute) {
        lineEdit()->selectAll();
    }
}

void ZeltoQtDoubleSpinBox::showText()
{
    if (m_isTextKept) {
        return;
    }
    const QString shown = shownText(value());
    if (lineEdit()->text() != shown) {
        const EditorKeys::SelectedText selected(lineEdit());
        const QSignalBlocker blocker(lineEdit());
        lineEdit()->setText(shown);
    }
    settle();
}

void ZeltoQtDoubleSpinBox::showAllDigits(bool all)
{
    m_hasAllDigits = all;
    if (!isBeingTyped()) {
        showText();
    }
}

void ZeltoQtDoubleSpinBox::setProblem(const QString &problem)
{
    if (m_hint || !problem.isEmpty()) {
        hint()->setProblem(problem);
    }
}

InputHint *ZeltoQtDoubleSpinBox::hint()
{
    if (!m_hint) {
        m_hint = new InputHint(this, lineEdit());
    }
    return m_hint;
}

void ZeltoQtDoubleSpinBox::initStyleOption(QStyleOptionSpinBox *option) const
{
    QDoubleSpinBox::initStyleOption(option);
    sharePalette(option);
}
