// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/Workbench/iworkbenchbaseinfo.h>

#include <QPointer>
#include <QWidget>

/*! \brief A page of the viewer's window, described by the page's own properties: object name, window title,
 * tool tip and window icon. */
class WorkbenchItem : public Plugin::Workbench::IWorkbenchBaseInfo
{
    Q_OBJECT

public:
    explicit WorkbenchItem(QWidget *page);
    ~WorkbenchItem() override;

    QString id() const override;
    QString title() const override;
    QString toolTip() const override;
    QIcon icon() const override;
    QWidget *widget() const override;

private:
    QString m_id; // lasts longer than the page
    QPointer<QWidget> m_page;
};
