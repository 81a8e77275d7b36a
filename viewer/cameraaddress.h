// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace Cameras {
class Camera;
class CameraOpening;
} // namespace Cameras

/*! \brief Says which camera is meant; without any name it is the embedded one. */
struct CameraAddress
{
    QString description; //!< name of a camera description file, for simulated registers
    QString camera; //!< id of a live camera
    bool zeroed = false; //!< the simulated registers start as zeros, instead of alive
    QString registers; //!< name of a register image that is laid over zeroed registers

    /*! Returns the address of the description file \a fileName. */
    static CameraAddress ofDescription(const QString &fileName)
    {
        return {fileName, QString(), false, QString()};
    }
    /*! Returns the address of the live camera called \a id. */
    static CameraAddress ofCamera(const QString &id) { return {QString(), id, false, QString()}; }

    bool isLive() const { return !camera.isEmpty(); }

    /*! Returns the options of the command line that open the same camera. */
    QStringList arguments() const;

    friend bool operator==(const CameraAddress &, const CameraAddress &) = default;
};

/*! Opens the camera at \a address and waits until it is open; throws Core::Exception::BaseException when that
 * fails. For programs without a window. */
std::unique_ptr<Cameras::Camera> cameraAt(const CameraAddress &address);

/*! Begins to open the camera at \a address. */
std::unique_ptr<Cameras::CameraOpening> openingAt(const CameraAddress &address);
