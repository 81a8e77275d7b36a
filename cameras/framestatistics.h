// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frame.h"

#include <cameras/cameras_export.h>

#include <QList>
#include <QRect>
#include <QString>

namespace Cameras {

/*! \brief How often each value occurs in a frame, all pixels that have come counted. */
struct Histogram
{
    /*! \brief Of one channel. */
    struct Channel
    {
        QString name; //!< as in FrameValues
        QList<quint32> counts; //!< by value
    };

    QList<Channel> channels; //!< none for formats that we do not know
    quint64 values = 0; //!< that were counted
    quint64 black = 0; //!< of these, zeros
    quint64 saturated = 0; //!< of these, the largest there can be, or above
};

/*! \brief What a part of a frame is like. */
struct PartStatistics
{
    /*! \brief Of one channel. */
    struct Channel
    {
        QString name; //!< as in FrameValues
        quint64 values = 0; //!< that have come
        double mean = 0.0; //!< of these
        double deviation = 0.0; //!< the standard deviation
    };

    QList<Channel> channels; //!< none where nothing of the part has come
    /*! The root of the mean square of the steps to the next pixels of the same channel to the right and
     * below, in percent of the mean: the higher, the sharper. Of YUV that of Y, of RGB that of green. */
    double sharpness = 0.0;
};

/*! Returns the histogram of \a frame. Takes a while for a large one; safe on any thread. */
ZELTO_CAMERAS_EXPORT Histogram histogramOf(const Frame &frame);

/*! Returns the statistics of \a part of \a frame. */
ZELTO_CAMERAS_EXPORT PartStatistics statisticsOf(const Frame &frame, const QRect &part);

} // namespace Cameras
