// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "workbenchservice.h"

#include "workbenchitem.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>

#include <algorithm>
#include <utility>

using namespace Plugin::Workbench;

WorkbenchService::WorkbenchService(QWidget *window, QObject *parent)
    : IWorkbenchService(parent)
{
    window->installEventFilter(this);
    connect(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)), this,
            SLOT(onFocusChanged(QWidget *, QWidget *)));
}

WorkbenchService::~WorkbenchService() = default;

void WorkbenchService::addPage(QWidget *page)
{
    const auto item = QSharedPointer<WorkbenchItem>::create(page);
    m_items.append(item);
    connect(page, SIGNAL(destroyed(QObject *)), this, SLOT(onPageDestroyed(QObject *)));
    emit itemCreated(item);
}

bool WorkbenchService::selectItem(const QString &id)
{
    for (const WorkbenchBaseInfoPtr &item : std::as_const(m_items)) {
        QWidget *const page = item->id() == id ? item->widget() : nullptr;
        if (!page) {
            continue;
        }
        if (auto *const dock = qobject_cast<QDockWidget *>(page->parentWidget())) {
            dock->show();
            dock->raise();
        }
        page->setFocus();
        select(item);
        return true;
    }
    return false;
}

bool WorkbenchService::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        emit workbenchSelected(event->type() == QEvent::WindowActivate);
    }
    return IWorkbenchService::eventFilter(watched, event);
}

void WorkbenchService::onFocusChanged(QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    for (const WorkbenchBaseInfoPtr &item : std::as_const(m_items)) {
        const QWidget *const page = item->widget();
        if (now && page && (page == now || page->isAncestorOf(now))) {
            select(item);
            return;
        }
    }
}

void WorkbenchService::onPageDestroyed(QObject *page)
{
    const auto isPage = [page](const WorkbenchBaseInfoPtr &item) { return item->widget() == page; };
    const auto found = std::find_if(m_items.cbegin(), m_items.cend(), isPage);
    if (found == m_items.cend()) {
        return;
    }
    const WorkbenchBaseInfoPtr item = m_items.takeAt(found - m_items.cbegin());
    if (item == m_selected) {
        select(nullptr);
    }
    emit itemDestroyed(item);
}

void WorkbenchService::select(const WorkbenchBaseInfoPtr &item)
{
    if (item != m_selected) {
        m_selected = item;
        emit selectedItemChanged(item);
    }
}
