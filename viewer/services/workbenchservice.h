// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/Workbench/iworkbenchservice.h>

#include <QList>

/*! \brief Tells plug-ins about the pages of the viewer's window. The page that has, or last had, the keyboard
 * focus is the selected one. */
class WorkbenchService : public Plugin::Workbench::IWorkbenchService
{
    Q_OBJECT

public:
    /*! \a window is the window whose pages these are. */
    explicit WorkbenchService(QWidget *window, QObject *parent = nullptr);
    ~WorkbenchService() override;

    /*! Adds \a page, known by its object name, until it is destroyed. A focus proxy tells where the keyboard
     * focus goes when the page is selected. */
    void addPage(QWidget *page);

    bool selectItem(const QString &id) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void onFocusChanged(QWidget *old, QWidget *now);
    void onPageDestroyed(QObject *page);

private:
    void select(const Plugin::Workbench::WorkbenchBaseInfoPtr &item);

    QList<Plugin::Workbench::WorkbenchBaseInfoPtr> m_items;
    Plugin::Workbench::WorkbenchBaseInfoPtr m_selected;
};
