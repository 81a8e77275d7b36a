// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>

class MainWindow;

/*! \brief Tells plug-ins about the viewer's camera. */
class CameraStatusService : public Plugin::ZeltoViewer::IZeltoViewerControlledCameraStatusService
{
    Q_OBJECT

public:
    explicit CameraStatusService(const MainWindow *window, QObject *parent = nullptr);
    ~CameraStatusService() override;
};
