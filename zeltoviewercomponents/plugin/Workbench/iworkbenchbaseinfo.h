// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/baseinfo.h>

#include <QIcon>
#include <QSharedPointer>
#include <QString>

class QWidget;

namespace Plugin::Workbench {

/*! \brief An item of the workbench: a page of the application's window that a plug-in contributes.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IWorkbenchBaseInfo : public Core::AppCoreComponents::IBaseInfo
{
    Q_OBJECT

public:
    explicit IWorkbenchBaseInfo(QObject *parent = nullptr);
    ~IWorkbenchBaseInfo() override;

    /*! Returns the text that identifies the item among all, the same in every run. */
    virtual QString id() const = 0;
    /*! Returns the translated title. */
    virtual QString title() const = 0;
    /*! Returns the translated explanation, for tool tips. */
    virtual QString toolTip() const = 0;
    /*! Returns the icon beside the title; it may be null. */
    virtual QIcon icon() const = 0;
    /*! Returns the page, or null while it does not exist. The item's provider owns it. */
    virtual QWidget *widget() const = 0;
};

using WorkbenchBaseInfoPtr = QSharedPointer<IWorkbenchBaseInfo>;

} // namespace Plugin::Workbench
