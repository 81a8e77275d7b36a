// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/service.h>

namespace Plugin::ZeltoViewer {

/*! \brief Lets plug-ins release the camera that the viewer controls, and take it back.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IZeltoViewerControlledCameraControlService
    : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IZeltoViewerControlledCameraControlService(QObject *parent = nullptr);
    ~IZeltoViewerControlledCameraControlService() override;

    /*! Closes the controlled camera, or begins to open again the one that was controlled last: the status
     * service tells when that is done. Returns whether the camera is in the wanted state now. */
    virtual bool setCameraOpen(bool open) = 0;
};

} // namespace Plugin::ZeltoViewer
