// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frame.h"

#include <cameras/cameras_export.h>

#include <QImage>
#include <QRect>
#include <QSize>

#include <vector>

namespace Cameras {

struct PixelLayout;

/*! \brief Makes of a part of a frame what is painted of it.
 *
 * The work grows with what is painted, not with the sensor: a large part in a small image is sampled, a small
 * one enlarged without smoothing, so that each pixel is seen. The last eight bits of precision go, the order
 * of values does not. Not to be shared by threads.
 */
class ZELTO_CAMERAS_EXPORT FrameConversion
{
public:
    /*! \brief How values become brightness; for the eye alone. */
    struct Look
    {
        double gamma = 1.0; //!< above 1 dark parts become brighter
        double black = 0.0; //!< the share of the largest value that is shown black
        double white = 1.0; //!< that which is shown white
        bool marksExtremes = false; //!< the largest value red, zero blue; looks at each pixel of the part

        /*! Returns whether all of it is the same. */
        bool operator==(const Look &other) const = default;
    };

    /*! Returns whether frames of \a format can be shown. */
    static bool canConvert(PixelFormat format);

    /*! Returns how values become brightness, as they are where nothing was set. */
    Look look() const { return m_look; }
    /*! Sets how values become brightness, from the next image on. */
    void setLook(const Look &look);

    /*! Returns the pixels \a part of \a frame as an image of \a size. Null where the frame has no such
     * pixels or cannot be shown; what has not come of it is black. */
    QImage image(const Frame &frame, const QRect &part, const QSize &size);
    /*! Returns all of \a frame, pixel by pixel. */
    QImage image(const Frame &frame);

private:
    void prepareTable(int bits);
    QImage converted(const Frame &frame, const PixelLayout &layout, const QRect &part, const QSize &size);
    QImage shrunk(const Frame &frame, const PixelLayout &layout, const QRect &part, const QSize &size) const;
    QImage exact(const Frame &frame, const PixelLayout &layout, const QRect &part);
    QImage exactMono(const Frame &frame, const PixelLayout &layout, const QRect &part) const;
    QImage exactBayer(const Frame &frame, const PixelLayout &layout, const QRect &part);
    void markExtremes(QImage &image, const Frame &frame, const PixelLayout &layout, const QRect &part) const;
    QImage sampledColour(const Frame &frame, const PixelLayout &layout, const QRect &part,
                         const QSize &size) const;
    QRgb rgb(unsigned red, unsigned green, unsigned blue) const;

    Look m_look;
    int m_bits = 0; // of the values in the table
    std::vector<uchar> m_table; // brightness, by value
    std::vector<uchar> m_mosaic; // kept from image to image: new memory costs more than what is done with it
    std::vector<uchar> m_decoded;
};

} // namespace Cameras
