// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/pixelformat.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>

namespace Cameras {

/*! \brief One image as the camera sent it. Never changes once it is handed over, so that threads share it. */
struct Frame
{
    int width = 0; //!< pixels
    int height = 0; //!< lines
    PixelFormat pixelFormat; //!< of all lines
    qsizetype stride =
        0; //!< bytes from the start of a line to that of the next; 0 where packed lines share bytes
    QByteArray bytes; //!< as they came, at least stride * height unless the frame is incomplete
    quint64 number = 0; //!< counted by the camera
    quint64 cameraTime = 0; //!< nanoseconds of the camera's own clock
    QDateTime arrival; //!< when its last byte was here
    QString missing; //!< what of an incomplete frame is missing, in words; empty when it is complete
    QString remark; //!< what came with the image, in words, such as chunks; mostly empty

    /*! Returns whether all of the frame has come. */
    bool isComplete() const { return missing.isEmpty(); }
};

using FramePointer = std::shared_ptr<const Frame>;

} // namespace Cameras
