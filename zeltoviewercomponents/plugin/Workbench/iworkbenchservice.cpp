// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "iworkbenchservice.h"

namespace Plugin::Workbench {

IWorkbenchService::IWorkbenchService(QObject *parent)
    : Core::Service::IService(parent)
{
}

IWorkbenchService::~IWorkbenchService() = default;

} // namespace Plugin::Workbench
