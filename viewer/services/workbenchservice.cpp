// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "workbenchservice.h"

#include "workbenchitem.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>

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
    connect(page, SIGNAL(destroyed()), this, SLOT(onPageDestroyed()));
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

void WorkbenchService::onPageDestroyed()
{
    const auto items = std::exchange(m_items, {});
    for (const WorkbenchBaseInfoPtr &item : items) {
        if (item->widget()) {
            m_items.append(item);
            continue;
        }
        if (item == m_selected) {
            select(nullptr);
        }
        emit itemDestroyed(item);
    }
}

void WorkbenchService::select(const WorkbenchBaseInfoPtr &item)
{
    if (item != m_selected) {
        m_selected = item;
        emit selectedItemChanged(item);
    }
}
