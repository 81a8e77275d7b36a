// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "zeltoqtspinbox.h"

#include "editorhelpers.h"

#include <QKeyEvent>

ZeltoQtSpinBox::ZeltoQtSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
}

ZeltoQtSpinBox::~ZeltoQtSpinBox() = default;

void ZeltoQtSpinBox::setPageStep(int pageStep)
{
    m_pageStep = pageStep;
}

void ZeltoQtSpinBox::stepBy(int steps)
{
    if (m_pageKeyPressed) {
        m_pageKeyPressed = false;
        steps = steps < 0 ? EditorHelpers::wrappingDifference(0, m_pageStep) : m_pageStep;
    }
    QAbstractSpinBox::stepBy(steps);
    emit editingFinished();
}

QValidator::State ZeltoQtSpinBox::validate(QString &text, int &pos) const
{
    // The base drops them wherever they stand: a pasted 12.5 would become 125 where the comma is decimal.
    return text.contains(locale().groupSeparator()) ? QValidator::Invalid : QSpinBox::validate(text, pos);
}

void ZeltoQtSpinBox::fixup(QString &text) const
{
    bool ok = false;
    const qint64 number = locale().toLongLong(text, &ok);
    if (ok) {
        text = textFromValue(qBound(minimum(), EditorHelpers::saturated(number), maximum()));
    }
}

void ZeltoQtSpinBox::keyPressEvent(QKeyEvent *event)
{
    m_pageKeyPressed = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    QAbstractSpinBox::keyPressEvent(event);
    // At a limit the page key makes no step, and the next arrow key must not make its page step.
    m_pageKeyPressed = false;
    EditorHelpers::finishKeyPress(event, *lineEdit(),
                                  [this](QKeyEvent *press) { QAbstractSpinBox::keyPressEvent(press); });
}
