// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frame.h"

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QLine>
#include <QList>
#include <QPoint>
#include <QString>

namespace Cameras {

/*! \brief The values of a frame as the camera sent them, unpacked and nothing else. */
class ZELTO_CAMERAS_EXPORT FrameValues
{
    Q_DECLARE_TR_FUNCTIONS(FrameValues)

public:
    /*! \brief One value of a pixel. */
    struct Value
    {
        QString channel; //!< "R", "G", "B", "A", "Y", "U" or "V"; empty for monochrome
        quint32 value = 0; //!< as the camera sent it
    };

    /*! \brief Values along a line, of one channel. */
    struct Curve
    {
        QString channel; //!< as of a Value
        QList<QPoint> points; //!< x: place along the line, from 0; y: the value
    };

    /*! \brief All values of a frame, line after line without gaps. */
    struct Samples
    {
        int width = 0; //!< in pixels
        int height = 0; //!< in pixels
        int channels = 0; //!< of a pixel: 1, or red, green, blue and perhaps alpha; 0 when there are none
        int bits = 0; //!< that a value can have
        QByteArray bytes; //!< one byte for a value of up to 8 bits, else two, the lower first
    };

    /*! Returns the values of the pixel at \a position; none where it has not come, or we do not know the
     * format. Of YUV both pixels of a pair have the same U and V. */
    static QList<Value> at(const Frame &frame, const QPoint &position);
    /*! Returns the values of the pixels that are nearest to \a line, for Bayer a curve for each colour. */
    static QList<Curve> along(const Frame &frame, const QLine &line);
    /*! Returns all values, zero where nothing has come; none for YUV, unknown formats, and frames that claim
     * to be larger than memory is spent on. */
    static Samples all(const Frame &frame);
    /*! Returns how many values a pixel of \a format has in what all() returns, 0 when that is nothing. */
    static int channels(PixelFormat format);
    /*! Returns the largest value that \a format has, 0 where we do not know it. */
    static quint32 maximum(PixelFormat format);
};

} // namespace Cameras
