// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include <optional>

/*! \brief Which part of a frame a view shows, and how large. All places in the view are device pixels. */
class Viewport
{
public:
    void setFrameSize(const QSize &size);
    void setViewSize(const QSize &size);
    QSize viewSize() const { return m_viewSize; }

    /*! Returns whether all of the frame is shown, as large as the view allows. */
    bool isFitted() const { return m_scale == 0.0; }
    /*! Shows all of the frame, also when sizes change. */
    void fit();
    /*! Returns how many device pixels a pixel of the frame takes along a side. */
    double scale() const;
    /*! Makes \a scale that, as far as it makes sense; what is at \a kept stays there. */
    void setScale(double scale, const QPointF &kept);
    /*! Moves what is shown by \a distance. */
    void pan(const QPointF &distance);

    QPointF toFrame(const QPointF &place) const;
    QPointF toView(const QPointF &position) const;
    /*! Returns the pixels that are in sight, wholly or in part. */
    QRect visiblePart() const;
    /*! Returns where \a part of the frame is shown. */
    QRect placeOf(const QRect &part) const;

private:
    double fittedScale() const;
    QPointF center() const;

    QSize m_frameSize;
    QSize m_viewSize;
    double m_scale = 0.0; // 0 when fitted
    QPointF m_center; // of the view, in the frame
    std::optional<QPointF> m_keptPlace; // of the zooming that is under way, and the position there
    QPointF m_keptPosition;
};
