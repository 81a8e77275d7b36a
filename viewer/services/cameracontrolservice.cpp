// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameracontrolservice.h"

#include <viewer/mainwindow.h>

CameraControlService::CameraControlService(MainWindow *window, QObject *parent)
    : IZeltoViewerControlledCameraControlService(parent)
    , m_window(window)
{
}

CameraControlService::~CameraControlService() = default;

bool CameraControlService::setCameraOpen(bool open)
{
    if (!open) {
        m_window->closeCamera();
    } else if (!m_window->isCameraOpen() && !m_window->isOpening()) {
        m_window->reconnect();
    }
    return m_window->isCameraOpen() == open;
}
