// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "parentfont_p.h"

#include <QWidget>

ParentFont::ParentFont(QWidget *widget)
    : m_widget(widget)
{
}

void ParentFont::update()
{
    const QWidget *const parent = m_widget->parentWidget();
    if (parent && parent->font() != m_font) {
        m_font = parent->font(); // before the widget hears of the change that comes of it
        m_widget->setFont(m_font);
    }
}
