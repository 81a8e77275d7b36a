// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "zeltoqtdoublespinbox.h"

#include "editorhelpers.h"

#include <platform/core/formatdoublevalue.h>
#include <platform/core/singleprecision.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

// The most that QDoubleSpinBox keeps: it rounds values to its decimals, and features' values must stay as
// they are.
constexpr int allDecimals =
    std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

// Returns the fewest digits that give back the value.
QString shortestText(double value, char format, const QLocale &locale)
{
    return locale.toString(Core::withoutSinglePrecisionNoise(value), format, QLocale::FloatingPointShortest);
}

bool isUnfinishedNumber(QString text, const QLocale &locale)
{
    text.replace(locale.negativeSign(), QLatin1String("-"));
    text.replace(locale.positiveSign(), QLatin1String("+"));
    text.replace(locale.exponential(), QLatin1String("e"), Qt::CaseInsensitive);
    const QString point = QRegularExpression::escape(locale.decimalPoint());
    const QRegularExpression startsOfNumbers(
        QStringLiteral("^[+-]?(\\d*%1?\\d*|(\\d+%1?\\d*|%1\\d+)[eE][+-]?)$").arg(point),
        QRegularExpression::UseUnicodePropertiesOption);
    return startsOfNumbers.match(text).hasMatch();
}

} // namespace

ZeltoQtDoubleSpinBox::ZeltoQtDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
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

void ZeltoQtDoubleSpinBox::showFeatureValues(GenApi::EDisplayNotation notation)
{
    if (notation == GenApi::UndefinedDisplayNotation) {
        notation = GenApi::fnAutomatic;
    }
    if (m_notation != notation) {
        m_notation = notation;
        setDecimals(allDecimals);
    }
}

void ZeltoQtDoubleSpinBox::setSubstitute(const QString &text)
{
    m_substitute = text;
    m_isNumberTyped = false;
    const QString shown = textFromValue(value());
    if (lineEdit()->text() != shown) {
        lineEdit()->setText(shown);
    }
    if (hasFocus()) {
        selectSubstituteLater();
    }
}

bool ZeltoQtDoubleSpinBox::hasSubstitute() const
{
    return !m_substitute.isEmpty() && !m_isNumberTyped;
}

void ZeltoQtDoubleSpinBox::stepBy(int steps)
{
    // What is typed counts before the step.
    interpretText();
    emit stepTriggered(steps);
}

QAbstractSpinBox::StepEnabled ZeltoQtDoubleSpinBox::stepEnabled() const
{
    // The base would go by the value alone; the owner knows the limits of its steps.
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

QString ZeltoQtDoubleSpinBox::textFromValue(double value) const
{
    return hasSubstitute() ? m_substitute : numberText(value);
}

QString ZeltoQtDoubleSpinBox::numberText(double value) const
{
    if (m_notation == GenApi::UndefinedDisplayNotation) {
        return formatDoubleValue(value, decimals(), true, locale());
    }
    const double magnitude = std::abs(value);
    const bool isExtreme = magnitude >= 1e15 || (magnitude < 1e-5 && magnitude != 0.0);
    const bool isScientific = m_notation == GenApi::fnScientific
        || (isExtreme && (m_notation == GenApi::fnAutomatic || magnitude >= 1e22 || magnitude < 1e-15));
    return shortestText(value, isScientific ? 'e' : 'f', strictLocale());
}

double ZeltoQtDoubleSpinBox::valueFromText(const QString &text) const
{
    return numberFrom(text).value_or(value());
}

QValidator::State ZeltoQtDoubleSpinBox::validate(QString &text, int &) const
{
    const QString trimmed = text.trimmed();
    if (hasSubstitute() && trimmed == m_substitute) {
        return QValidator::Acceptable;
    }
    if (const auto number = numberFrom(text)) {
        return *number >= minimum() && *number <= maximum() ? QValidator::Acceptable
                                                            : QValidator::Intermediate;
    }
    return isUnfinishedNumber(trimmed, strictLocale()) ? QValidator::Intermediate : QValidator::Invalid;
}

void ZeltoQtDoubleSpinBox::fixup(QString &text) const
{
    if (const auto number = numberFrom(text)) {
        // In full, since a text with the digits that are shown may lie beyond the limit.
        text = strictLocale().toString(qBound(minimum(), *number, maximum()), 'g', 17);
    }
}

void ZeltoQtDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    QAbstractSpinBox::keyPressEvent(event);
    EditorHelpers::finishKeyPress(event, *lineEdit(),
                                  [this](QKeyEvent *press) { QAbstractSpinBox::keyPressEvent(press); });
}

void ZeltoQtDoubleSpinBox::focusInEvent(QFocusEvent *event)
{
    QDoubleSpinBox::focusInEvent(event);
    selectSubstituteLater();
}

void ZeltoQtDoubleSpinBox::onTextChanged(const QString &text)
{
    // The beginning of a number is no reason to forget that there is no value.
    m_isNumberTyped = numberFrom(text).has_value();
}

// Not before the click that gave the focus is over.
void ZeltoQtDoubleSpinBox::selectSubstituteLater()
{
    QMetaObject::invokeMethod(this, "selectSubstitute", Qt::QueuedConnection);
}

void ZeltoQtDoubleSpinBox::selectSubstitute()
{
    if (hasSubstitute() && lineEdit()->text() == m_substitute) {
        lineEdit()->selectAll();
    }
}

std::optional<double> ZeltoQtDoubleSpinBox::numberFrom(const QString &text) const
{
    bool ok = false;
    const double number = strictLocale().toDouble(text.trimmed(), &ok);
    return ok && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

QLocale ZeltoQtDoubleSpinBox::strictLocale() const
{
    QLocale strict = locale();
    strict.setNumberOptions(strict.numberOptions() | QLocale::OmitGroupSeparator
                            | QLocale::RejectGroupSeparator);
    return strict;
}
