// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcameracontrolservice.h>

class MainWindow;

/*! \brief Lets plug-ins close the viewer's camera and open it again. */
class CameraControlService : public Plugin::ZeltoViewer::IZeltoViewerControlledCameraControlService
{
    Q_OBJECT

public:
    /*! \a window has to outlive the service. */
    explicit CameraControlService(MainWindow *window, QObject *parent = nullptr);
    ~CameraControlService() override;

    bool setCameraOpen(bool open) override;

private:
    MainWindow *m_window;
};
