// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camerastatusservice.h"

#include <viewer/mainwindow.h>

CameraStatusService::CameraStatusService(const MainWindow *window, QObject *parent)
    : IZeltoViewerControlledCameraStatusService(parent)
{
    connect(window, SIGNAL(cameraOpened(Core::CameraPoolComponents::CameraInfoPtr)), this,
            SIGNAL(cameraFullyInitialized(Core::CameraPoolComponents::CameraInfoPtr)));
}

CameraStatusService::~CameraStatusService() = default;
