// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameters.h"

#include <cameras/camera.h>
#include <platform/core/camerainfo.h>

#include <QList>
#include <QString>

#include <memory>

/*! \brief What identifies a camera, as Python has it. */
class PythonCameraInfo
{
public:
    explicit PythonCameraInfo(const Core::CameraPoolComponents::CameraInfoPtr &info)
        : m_info(info)
    {
    }

    QString id() const { return m_info->id(); }
    QString vendorName() const { return m_info->vendorName(); }
    QString modelName() const { return m_info->modelName(); }
    QString serialNumber() const { return m_info->serialNumber(); }
    QString deviceClass() const { return m_info->deviceClass(); }

private:
    Core::CameraPoolComponents::CameraInfoPtr m_info;
};

/*! \brief A camera as Python has it: open until close(), or until it is destroyed or Python ends. Used on the
 * thread that opened it alone. */
class PythonCamera
{
public:
    explicit PythonCamera(std::unique_ptr<Cameras::Camera> camera);
    ~PythonCamera();
    Q_DISABLE_COPY_MOVE(PythonCamera)

    static QList<PythonCameraInfo> list();
    static PythonCamera *openEmbedded();
    static PythonCamera *openDescription(const QString &fileName, bool zeroed, const QString &registers);
    static PythonCamera *openLive(const QString &id);

    PythonCameraInfo info() const;
    QList<PythonNodeMap> nodeMaps() const;
    bool isOpen() const;
    bool isLost() const;
    bool isReadOnly() const;
    void close();

    /*! Closes all that belong to the calling thread. */
    static void closeAll();

private:
    const Cameras::Camera &camera() const;

    std::unique_ptr<Cameras::Camera> m_camera;
};
