// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorhelpers.h"

#include "wheelguard_p.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>

namespace EditorHelpers {

namespace {

int wrapped(quint32 bits)
{
    return static_cast<int>(bits);
}

// Logs limits that are not finite, not in order, or do not contain the value.
void logInconsistency(Core::Logging::CategoryId category, const char *function,
                      const ParameterCollection::IParameter &parameter,
                      const ParameterCollection::FloatParameterData &data)
{
    const bool isValueGood = !data.isReadable || (data.minimum <= data.value && data.value <= data.maximum);
    if (std::isfinite(data.minimum) && std::isfinite(data.maximum) && data.minimum <= data.maximum
        && isValueGood) {
        return;
    }
    Core::Logging::createLogEntry(
        Core::Logging::ELogLevel::Debug, category,
        QStringLiteral("%1: Feature %2: value %3 and limits %4..%5 do not fit together")
            .arg(QLatin1String(function), nodeName(&parameter))
            .arg(data.value)
            .arg(data.minimum)
            .arg(data.maximum));
}

} // namespace

int saturated(qint64 value)
{
    return static_cast<int>(
        std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

int wrappingDifference(int a, int b)
{
    return wrapped(static_cast<quint32>(a) - static_cast<quint32>(b));
}

int pageStep(int minimum, int maximum, int increment)
{
    const int difference = wrappingDifference(maximum, minimum);
    const int distance = difference < 0 ? wrappingDifference(0, difference) : difference;
    return std::max(distance / 20, wrapped(2U * static_cast<quint32>(increment)));
}

int trimmedToGrid(int value, int minimum, int increment)
{
    if (increment == 0) {
        return value;
    }
    return saturated(value - (qint64(value) - minimum) % increment);
}

double snappedToGrid(double value, double minimum, double maximum, double increment)
{
    const double limited = std::clamp(value, minimum, maximum);
    const double steps = std::round((limited - minimum) / increment);
    // Beyond 2^53 steps neighbouring grid points cannot be told apart.
    if (!(increment > 0.0) || !(steps < 9007199254740992.0)) {
        return limited;
    }
    const auto point = [=](double step) { return sumWithoutNoise(minimum, step * increment); };
    const double nearest = point(steps);
    return std::max(nearest <= maximum ? nearest : point(steps - 1.0), minimum);
}

double withoutNoise(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::digits10).toDouble();
}

double sumWithoutNoise(double a, double b)
{
    const double larger = std::max(std::abs(a), std::abs(b));
    const double decimals = std::numeric_limits<double>::digits10 - 1 - std::floor(std::log10(larger));
    return decimals > 0.0 && decimals <= std::numeric_limits<double>::max_exponent10
        ? QString::number(a + b, 'f', static_cast<int>(decimals)).toDouble()
        : withoutNoise(a + b);
}

bool FloatLimits::isBounded() const
{
    // Descriptions name the farthest number of either precision where there is no limit.
    constexpr double farthest = std::numeric_limits<float>::max();
    return minimum > -farthest && maximum < farthest;
}

FloatLimits usableLimits(const ParameterCollection::FloatParameterData &data)
{
    FloatLimits limits;
    if (!(data.minimum > data.maximum)) {
        limits.minimum = std::isfinite(data.minimum) ? data.minimum : limits.minimum;
        limits.maximum = std::isfinite(data.maximum) ? data.maximum : limits.maximum;
    }
    limits.increment = std::isfinite(data.increment) && data.increment > 0.0 ? data.increment : 0.0;
    return limits;
}

FloatLimits entryLimits(const ParameterCollection::FloatParameterData &data)
{
    return canStep(data) ? usableLimits(data) : FloatLimits();
}

bool hasNumber(const ParameterCollection::FloatParameterData &data)
{
    return data.isReadable && std::isfinite(data.value);
}

bool canStep(const ParameterCollection::FloatParameterData &data)
{
    return hasNumber(data) && !(data.minimum > data.maximum);
}

void takeFloatData(const Core::GuardSite &site, const AbstractItemEditor::EditorData &data,
                   const std::function<void(const ParameterCollection::FloatParameterData &)> &show)
{
    using ParameterCollection::FloatParameterData;
    const auto parameter = qSharedPointerObjectCast<ParameterCollection::IFloatParameter>(data.ptrParameter);
    if (!parameter || !data.ptrParameterData
        || data.ptrParameterData->type != ParameterCollection::ParameterType::Float) {
        Core::Logging::createLogEntry(
            Core::Logging::ELogLevel::Debug, site.category,
            QStringLiteral("%1 is called with non-float node????").arg(QLatin1String(site.function)));
        return;
    }
    const auto headline = [&parameter] {
        return QStringLiteral("Failed to update the floating-point value editor for node %1")
            .arg(nodeName(parameter.data()));
    };
    Core::guardedRun(site, headline, [&] {
        const auto &snapshot = static_cast<const FloatParameterData &>(*data.ptrParameterData);
        show(snapshot);
        logInconsistency(site.category, site.function, *parameter, snapshot);
    });
}

QString nodeName(const ParameterCollection::IParameter *parameter)
{
    return parameter ? QString::fromUtf8(parameter->name().toUtf8()) : QString();
}

bool wantsSlider(const QString &representation)
{
    return representation == QLatin1String("Linear") || representation == QLatin1String("Logarithmic");
}

bool canBeChanged(const ParameterCollection::ParameterData &data)
{
    return data.isImplemented && data.isWritable;
}

void guardedToolTip(Core::Logging::CategoryId category, const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::exception &exception) { // GenICam::GenericException is one
        Core::Logging::createLogEntry(
            Core::Logging::ELogLevel::Debug, category,
            QStringLiteral("Error creating tooltip text! Err='%1'").arg(QString::fromUtf8(exception.what())));
    }
}

void layOutComboSlider(QWidget *editor, QAbstractSpinBox *spinBox, QSlider *slider)
{
    auto *const layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 1, 0, 1);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHorizontalStretch(10);
    slider->setSizePolicy(policy);
    spinBox->setSizePolicy(QSizePolicy::Fixed, spinBox->sizePolicy().verticalPolicy());
    layout->addWidget(spinBox);
    layout->addWidget(slider);
    layout->addSpacing(4);
    // One tab stop for each editor; the slider's keys work after a click on it.
    slider->setFocusPolicy(Qt::ClickFocus);
    setUpComposite(editor, spinBox);
    new WheelGuard(editor, slider);
}

void setUpComposite(QWidget *editor, QAbstractSpinBox *spinBox)
{
    spinBox->setFocusPolicy(Qt::StrongFocus);
    editor->setFocusProxy(spinBox);
    editor->setFocusPolicy(Qt::StrongFocus);
    editor->setAutoFillBackground(true);
    // The beginning of a number is not yet a value, and going back to it later would enter it.
    spinBox->setKeyboardTracking(false);
    new WheelGuard(editor, spinBox);
}

int editBoxWidth(const QAbstractSpinBox &spinBox)
{
    QStyleOptionSpinBox option;
    option.initFrom(&spinBox);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame;
    const QFontMetrics metrics = spinBox.fontMetrics();
    const QSize contents(metrics.horizontalAdvance(QStringLiteral("999999999999")), metrics.height());
    return spinBox.style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, &spinBox).width();
}

QLineEdit *lineEditOf(const QAbstractSpinBox &spinBox)
{
    return spinBox.findChild<QLineEdit *>();
}

bool isFocusLent(const QEvent &event)
{
    if (event.type() != QEvent::FocusOut) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason
        || reason == Qt::ActiveWindowFocusReason || (reason == Qt::MouseFocusReason && isFocusForMenu());
}

bool isFocusForMenu()
{
    const QWidget *const focus = QApplication::focusWidget();
    return QGuiApplication::mouseButtons() == Qt::RightButton && !qobject_cast<const QLineEdit *>(focus)
        && !qobject_cast<const QAbstractSpinBox *>(focus);
}

bool isBeingTyped(const QWidget &owner, const QLineEdit &lineEdit)
{
    const QWidget *focused = &owner;
    while (focused->focusProxy()) {
        focused = focused->focusProxy();
    }
    const QWidget *const focus = owner.window()->focusWidget();
    return lineEdit.isModified()
        && (owner.hasFocus() || focus == focused || qobject_cast<const QMenuBar *>(focus));
}

void finishKeyPress(QKeyEvent *event, const QLineEdit &lineEdit,
                    const std::function<void(QKeyEvent *)> &press)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        return;
    }
    event->accept();
    // A line edit undoes typing and deleting one by one; the user wants back what was there before both.
    // Where the desktop undoes with another key, nothing changes.
    QString text;
    do {
        text = lineEdit.text();
        QKeyEvent undo(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, QString(), false, 1);
        press(&undo);
    } while (lineEdit.isUndoAvailable() && lineEdit.text() != text);
}

SelectedText::SelectedText(QLineEdit *lineEdit)
    : m_lineEdit(lineEdit)
    , m_text(lineEdit->text())
    , m_selected(lineEdit->selectedText())
{
}

SelectedText::~SelectedText()
{
    if (m_selected.isEmpty() || m_lineEdit->text() == m_text) {
        return;
    }
    if (m_selected == m_text) {
        m_lineEdit->selectAll();
    } else {
        m_lineEdit->deselect();
    }
}

TypedText::TypedText(QLineEdit *lineEdit)
    : m_lineEdit(lineEdit)
    , m_text(lineEdit->text())
    , m_cursor(lineEdit->cursorPosition())
    , m_selectionStart(lineEdit->selectionStart())
    , m_selectionLength(lineEdit->selectionLength())
{
}

TypedText::~TypedText()
{
    if (m_lineEdit->text() != m_text) {
        m_lineEdit->setText(m_text);
    }
    if (m_selectionStart >= 0) {
        const bool isCursorInFront = m_cursor == m_selectionStart;
        m_lineEdit->setSelection(m_selectionStart + (isCursorInFront ? m_selectionLength : 0),
                                 isCursorInFront ? -m_selectionLength : m_selectionLength);
    } else if (m_lineEdit->cursorPosition() != m_cursor) {
        m_lineEdit->setCursorPosition(m_cursor);
    }
    m_lineEdit->setModified(true);
}

} // namespace EditorHelpers
