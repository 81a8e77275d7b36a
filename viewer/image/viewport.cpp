// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "viewport.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double largestScale = 64.0;

// Where the view is wider than the frame, that stays in the middle.
double held(double center, double frame, double view)
{
    return frame <= view ? frame / 2.0 : std::clamp(center, view / 2.0, frame - view / 2.0);
}

} // namespace

void Viewport::setFrameSize(const QSize &size)
{
    m_frameSize = size;
    m_keptPlace.reset();
}

void Viewport::setViewSize(const QSize &size)
{
    if (m_viewSize != size) {
        m_viewSize = size;
        m_keptPlace.reset();
    }
}

void Viewport::fit()
{
    m_scale = 0.0;
    m_keptPlace.reset();
}

double Viewport::fittedScale() const
{
    if (m_frameSize.isEmpty() || m_viewSize.isEmpty()) {
        return 1.0;
    }
    return std::min({double(m_viewSize.width()) / m_frameSize.width(),
                     double(m_viewSize.height()) / m_frameSize.height(), largestScale});
}

double Viewport::scale() const
{
    return isFitted() ? fittedScale() : m_scale;
}

QPointF Viewport::center() const
{
    const QPointF wanted = isFitted() ? QPointF(m_frameSize.width(), m_frameSize.height()) / 2.0 : m_center;
    return {held(wanted.x(), m_frameSize.width(), m_viewSize.width() / scale()),
            held(wanted.y(), m_frameSize.height(), m_viewSize.height() / scale())};
}

void Viewport::setScale(double scale, const QPointF &kept)
{
    // While the frame is smaller than the view it stays in the middle, which must not add up.
    if (m_keptPlace != kept) {
        m_keptPlace = kept;
        m_keptPosition = toFrame(kept);
    }
    m_scale = std::clamp(scale, std::min(fittedScale(), 1.0) / 2.0, largestScale);
    const QPointF middle(m_viewSize.width() / 2.0, m_viewSize.height() / 2.0);
    m_center = m_keptPosition + (middle - kept) / m_scale;
    m_center = center();
}

void Viewport::pan(const QPointF &distance)
{
    if (isFitted()) {
        return;
    }
    m_keptPlace.reset();
    m_center -= distance / m_scale;
    m_center = center();
}

QPointF Viewport::toFrame(const QPointF &place) const
{
    const QPointF middle(m_viewSize.width() / 2.0, m_viewSize.height() / 2.0);
    return center() + (place - middle) / scale();
}

QPointF Viewport::toView(const QPointF &position) const
{
    const QPointF middle(m_viewSize.width() / 2.0, m_viewSize.height() / 2.0);
    return middle + (position - center()) * scale();
}

QRect Viewport::visiblePart() const
{
    const QPointF first = toFrame({0.0, 0.0});
    const QPointF last = toFrame({double(m_viewSize.width()), double(m_viewSize.height())});
    const QRect part(QPoint(int(std::floor(first.x())), int(std::floor(first.y()))),
                     QPoint(int(std::ceil(last.x())) - 1, int(std::ceil(last.y())) - 1));
    return part.intersected(QRect(QPoint(), m_frameSize));
}

QRect Viewport::placeOf(const QRect &part) const
{
    const QPoint first = toView(part.topLeft()).toPoint();
    const QPoint end = toView(part.topLeft() + QPoint(part.width(), part.height())).toPoint();
    return QRect(first, QSize(std::max(end.x() - first.x(), 1), std::max(end.y() - first.y(), 1)));
}
