// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "controlparts_p.h"

#include "wheelguard_p.h"

#include <QAbstractSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <QString>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <exception>

namespace ControlParts {

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

} // namespace ControlParts
