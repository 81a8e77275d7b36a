// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ifeaturetreecontrolservice.h"

namespace Plugin::FeatureTree {

IFeatureTreeControlService::IFeatureTreeControlService(QObject *parent)
    : Core::Service::IService(parent)
{
}

IFeatureTreeControlService::~IFeatureTreeControlService() = default;

} // namespace Plugin::FeatureTree
