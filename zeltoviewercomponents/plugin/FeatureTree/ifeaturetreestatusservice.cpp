// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ifeaturetreestatusservice.h"

namespace Plugin::FeatureTree {

IFeatureTreeStatusService::IFeatureTreeStatusService(QObject *parent)
    : Core::Service::IService(parent)
{
}

IFeatureTreeStatusService::~IFeatureTreeStatusService() = default;

} // namespace Plugin::FeatureTree
