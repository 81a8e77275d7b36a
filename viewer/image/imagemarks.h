// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLine>
#include <QRect>
#include <QTransform>

#include <optional>

class QPainter;
class QPoint;
class QRectF;

/*! \brief What is drawn over an image, in pixels of the frame. */
struct ImageMarks
{
    bool hasCrosshair = false; //!< in the middle of the frame
    bool hasGrid = false; //!< of thirds
    QRect part; //!< whose statistics are shown; none when empty
    std::optional<QLine> line; //!< of the profile
    QRect region; //!< that is being drawn
    std::optional<QPoint> probe; //!< the pixel that keys have moved to

    /*! Paints them; \a toView maps the frame of \a size to the painter's coordinates. */
    void paint(QPainter &painter, const QTransform &toView, const QSize &size) const;
};
