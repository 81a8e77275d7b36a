// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "parentpalette_p.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>
#include <QWidget>

ParentPalette::ParentPalette(QWidget *widget, const QString &sheet, const QString &backgroundRule)
    : QObject(widget)
    , m_widget(widget)
    , m_sheet(sheet)
    , m_backgroundRule(backgroundRule)
{
    if (QWidget *const parent = widget->parentWidget()) {
        parent->installEventFilter(this);
        take();
    }
    if (widget->styleSheet().isEmpty()) {
        widget->setStyleSheet(sheet);
    }
}

bool ParentPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && watched == m_widget->parentWidget()) {
        // While sheets come and go, palettes pass that are not meant to stay.
        QMetaObject::invokeMethod(this, "take", Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void ParentPalette::take()
{
    const QWidget *const parent = m_widget->parentWidget();
    if (!parent || parent->palette() == m_palette) {
        return;
    }
    m_palette = parent->palette();
    if (!m_widget->styleSheet().isEmpty()) {
        // With its sheet, a widget gets back the palette that it had when it got the sheet.
        m_widget->setStyleSheet(QString());
    }
    const bool isStyled = parent->style()->inherits("QStyleSheetStyle");
    const QColor background = m_palette.color(QPalette::Base);
    const bool isOfApplication = background == QApplication::palette().color(QPalette::Base);
    QPalette palette;
    if (!isStyled) {
        palette = m_palette;
        palette.setResolveMask(~QPalette::ResolveMask(0)); // none of it is the application's
    }
    m_widget->setPalette(palette);
    m_widget->setStyleSheet(isStyled || isOfApplication || m_backgroundRule.isEmpty()
                                ? m_sheet
                                : m_sheet + m_backgroundRule.arg(background.name()));
}
