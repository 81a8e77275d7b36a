// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/camerainfo.h>
#include <platform/core/service.h>

namespace Plugin::ZeltoViewer {

/*! \brief Tells plug-ins about the camera that the viewer controls.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IZeltoViewerControlledCameraStatusService
    : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IZeltoViewerControlledCameraStatusService(QObject *parent = nullptr);
    ~IZeltoViewerControlledCameraStatusService() override;

Q_SIGNALS:
    /*! The camera is open and its features can be reached. */
    void cameraFullyInitialized(const Core::CameraPoolComponents::CameraInfoPtr &camera);
};

} // namespace Plugin::ZeltoViewer
