// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "iworkbenchbaseinfo.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/service.h>

namespace Plugin::Workbench {

/*! \brief Tells plug-ins about the items of the workbench and lets them select one.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IWorkbenchService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IWorkbenchService(QObject *parent = nullptr);
    ~IWorkbenchService() override;

    /*! Selects the item \a id; returns false when there is none. */
    virtual bool selectItem(const QString &id) = 0;

Q_SIGNALS:
    /*! Another item is selected; \a item is null when none is. */
    void selectedItemChanged(WorkbenchBaseInfoPtr item);
    /*! An item has been added. */
    void itemCreated(WorkbenchBaseInfoPtr item);
    /*! An item is about to go. */
    void itemDestroyed(WorkbenchBaseInfoPtr item);
    /*! The workbench itself has come to the front, or has left it. */
    void workbenchSelected(bool selected);
};

} // namespace Plugin::Workbench
