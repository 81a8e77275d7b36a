// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "imagemarks.h"

#include <QPainter>
#include <QPen>
#include <QPoint>
#include <QRectF>
#include <QSize>

namespace {

// Every colour is seen on a dark line beside a bright one.
template <typename Draw>
void drawLegibly(QPainter &painter, const QColor &colour, Draw draw)
{
    QPen pen(QColor(0, 0, 0, 160), 3.0);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    draw();
    pen.setColor(colour);
    pen.setWidthF(1.0);
    painter.setPen(pen);
    draw();
}

QRectF rectangleAround(const QRect &pixels)
{
    return QRectF(pixels);
}

void drawThirds(QPainter &painter, const QRectF &frame)
{
    for (int i = 1; i < 3; ++i) {
        const double x = frame.left() + frame.width() * i / 3.0;
        const double y = frame.top() + frame.height() * i / 3.0;
        painter.drawLine(QPointF(x, frame.top()), QPointF(x, frame.bottom()));
        painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));
    }
}

void drawMiddle(QPainter &painter, const QRectF &frame)
{
    const QPointF middle = frame.center();
    painter.drawLine(QPointF(middle.x(), frame.top()), QPointF(middle.x(), frame.bottom()));
    painter.drawLine(QPointF(frame.left(), middle.y()), QPointF(frame.right(), middle.y()));
}

} // namespace

void ImageMarks::paint(QPainter &painter, const QTransform &toView, const QSize &size) const
{
    const QRectF frame = toView.mapRect(QRectF(QPointF(), QSizeF(size)));
    if (hasGrid) {
        drawLegibly(painter, QColor(255, 255, 255, 200), [&] { drawThirds(painter, frame); });
    }
    if (hasCrosshair) {
        drawLegibly(painter, QColor(0, 255, 160), [&] { drawMiddle(painter, frame); });
    }
    const QPointF half(0.5, 0.5); // lines go from the middle of a pixel to that of another
    if (line) {
        const QLineF drawn(toView.map(QPointF(line->p1()) + half), toView.map(QPointF(line->p2()) + half));
        drawLegibly(painter, QColor(255, 220, 0), [&] { painter.drawLine(drawn); });
    }
    painter.setBrush(Qt::NoBrush);
    if (!part.isEmpty()) {
        const QRectF drawn = toView.mapRect(rectangleAround(part));
        drawLegibly(painter, QColor(255, 220, 0), [&] { painter.drawRect(drawn); });
    }
    if (probe) {
        const QRectF drawn = toView.mapRect(QRectF(*probe, QSizeF(1, 1))).adjusted(-3, -3, 3, 3);
        drawLegibly(painter, QColor(0, 200, 255), [&] { painter.drawRect(drawn); });
    }
    if (!region.isEmpty()) {
        const QRectF drawn = toView.mapRect(rectangleAround(region));
        painter.fillRect(drawn, QColor(0, 160, 255, 60));
        drawLegibly(painter, QColor(0, 200, 255), [&] { painter.drawRect(drawn); });
    }
}
