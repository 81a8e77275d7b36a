// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camerarecord_p.h"

#include <utility>

namespace Cameras {

CameraRecord::CameraRecord(Texts texts)
    : m_texts(std::move(texts))
{
}

CameraRecord::~CameraRecord() = default;

QString CameraRecord::id() const
{
    return m_texts.id;
}

QString CameraRecord::vendorName() const
{
    return m_texts.vendorName;
}

QString CameraRecord::modelName() const
{
    return m_texts.modelName;
}

QString CameraRecord::serialNumber() const
{
    return m_texts.serialNumber;
}

QString CameraRecord::deviceClass() const
{
    return m_texts.deviceClass;
}

} // namespace Cameras
