// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "iworkbenchbaseinfo.h"

namespace Plugin::Workbench {

IWorkbenchBaseInfo::IWorkbenchBaseInfo(QObject *parent)
    : Core::AppCoreComponents::IBaseInfo(parent)
{
}

IWorkbenchBaseInfo::~IWorkbenchBaseInfo() = default;

} // namespace Plugin::Workbench
