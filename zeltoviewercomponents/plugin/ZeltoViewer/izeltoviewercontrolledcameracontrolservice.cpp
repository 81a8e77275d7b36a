// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "izeltoviewercontrolledcameracontrolservice.h"

namespace Plugin::ZeltoViewer {

IZeltoViewerControlledCameraControlService::IZeltoViewerControlledCameraControlService(QObject *parent)
    : Core::Service::IService(parent)
{
}

IZeltoViewerControlledCameraControlService::~IZeltoViewerControlledCameraControlService() = default;

} // namespace Plugin::ZeltoViewer
