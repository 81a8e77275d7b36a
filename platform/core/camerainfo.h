// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace Core::CameraPoolComponents {

/*! \brief What identifies a camera before and while it is open. */
class ZELTO_PLATFORM_EXPORT ICameraInfo
{
public:
    virtual ~ICameraInfo();

    /*! Returns the text by which the camera is opened. */
    virtual QString id() const = 0;
    /*! Returns the vendor's name, empty when it is not known. */
    virtual QString vendorName() const = 0;
    /*! Returns the model's name, empty when it is not known. */
    virtual QString modelName() const = 0;
    /*! Returns the serial number, empty when it is not known. */
    virtual QString serialNumber() const = 0;
    /*! Returns the device class word, such as "GEV" or "U3V". */
    virtual QString deviceClass() const = 0;

protected:
    ICameraInfo() = default;
    Q_DISABLE_COPY_MOVE(ICameraInfo)
};

using CameraInfoPtr = QSharedPointer<ICameraInfo>;

} // namespace Core::CameraPoolComponents

Q_DECLARE_METATYPE(Core::CameraPoolComponents::CameraInfoPtr)
