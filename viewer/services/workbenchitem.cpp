// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "workbenchitem.h"

WorkbenchItem::WorkbenchItem(QWidget *page)
    : m_id(page->objectName())
    , m_page(page)
{
}

WorkbenchItem::~WorkbenchItem() = default;

QString WorkbenchItem::id() const
{
    return m_id;
}

QString WorkbenchItem::title() const
{
    return m_page ? m_page->windowTitle() : QString();
}

QString WorkbenchItem::toolTip() const
{
    return m_page ? m_page->toolTip() : QString();
}

QIcon WorkbenchItem::icon() const
{
    return m_page ? m_page->windowIcon() : QIcon();
}

QWidget *WorkbenchItem::widget() const
{
    return m_page;
}
