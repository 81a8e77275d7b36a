// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "izeltoviewercontrolledcamerastatusservice.h"

namespace Plugin::ZeltoViewer {

IZeltoViewerControlledCameraStatusService::IZeltoViewerControlledCameraStatusService(QObject *parent)
    : Core::Service::IService(parent)
{
}

IZeltoViewerControlledCameraStatusService::~IZeltoViewerControlledCameraStatusService() = default;

} // namespace Plugin::ZeltoViewer
