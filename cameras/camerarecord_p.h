// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/core/camerainfo.h>

namespace Cameras {

/*! \brief What identifies a camera, kept as plain texts. */
class CameraRecord : public Core::CameraPoolComponents::ICameraInfo
{
public:
    struct Texts
    {
        QString id;
        QString vendorName;
        QString modelName;
        QString serialNumber;
        QString deviceClass;
    };

    explicit CameraRecord(Texts texts);
    ~CameraRecord() override;

    QString id() const override;
    QString vendorName() const override;
    QString modelName() const override;
    QString serialNumber() const override;
    QString deviceClass() const override;

private:
    Texts m_texts;
};

} // namespace Cameras
