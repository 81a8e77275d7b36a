// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "sizedicon_p.h"

#include <QPainter>

#include <algorithm>
#include <utility>

SizedIconEngine::SizedIconEngine(QString file, QList<int> sizes)
    : m_file(std::move(file))
    , m_sizes(std::move(sizes))
{
}

// The smallest one that is large enough.
const QIcon &SizedIconEngine::pictureFor(const QSize &size)
{
    const auto found =
        std::lower_bound(m_sizes.cbegin(), m_sizes.cend(), std::max(size.width(), size.height()));
    const int chosen = found == m_sizes.cend() ? m_sizes.constLast() : *found;
    QIcon &picture = m_pictures[chosen];
    if (picture.isNull()) {
        picture = QIcon(m_file.arg(chosen));
    }
    return picture;
}

void SizedIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const QSize pixels = rect.size() * painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, pixmap(pixels, mode, state));
}

QPixmap SizedIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return pictureFor(size).pixmap(size, 1.0, mode, state);
}

QSize SizedIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    Q_UNUSED(mode)
    Q_UNUSED(state)
    const int edge = std::min({size.width(), size.height(), m_sizes.constLast()});
    return {edge, edge};
}

QList<QSize> SizedIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state)
{
    if (mode != QIcon::Normal || state != QIcon::Off) {
        return {};
    }
    QList<QSize> sizes;
    for (const int size : std::as_const(m_sizes)) {
        sizes.append({size, size});
    }
    return sizes;
}

bool SizedIconEngine::isNull()
{
    return m_sizes.isEmpty();
}

QIconEngine *SizedIconEngine::clone() const
{
    return new SizedIconEngine(*this);
}
