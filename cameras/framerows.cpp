// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framerows_p.h"

#include <algorithm>
#include <cstring>

namespace Cameras {

namespace {

constexpr int longestSide = 1 << 24; // no product of two of them, in bits, overflows
constexpr qsizetype slack = 8; // that readers may touch behind the last pixel

} // namespace

bool FrameRows::isSane(const Frame &frame, const PixelLayout &layout)
{
    if (frame.width <= 0 || frame.height <= 0 || frame.width > longestSide || frame.height > longestSide) {
        return false;
    }
    const qint64 lineBits = qint64(frame.width) * layout.bitsPerPixel();
    return frame.stride == 0 || (frame.stride >= lineBits / 8 && frame.stride <= qsizetype(longestSide) * 64);
}

FrameRows::FrameRows(const Frame &frame, const PixelLayout &layout)
    : m_frame(frame)
    , m_layout(layout)
    , m_bitsPerPixel(layout.bitsPerPixel())
    , m_lineBits(frame.stride > 0 ? qint64(frame.stride) * 8 : qint64(frame.width) * m_bitsPerPixel)
{
    const qint64 bits = qint64(frame.bytes.size()) * 8;
    m_count = int(std::min<qint64>(frame.height, (bits + m_lineBits - m_bitsPerPixel) / m_lineBits));
    m_count = std::max(m_count, 0);
}

qint64 FrameRows::firstBit(int y) const
{
    return m_lineBits * y;
}

int FrameRows::pixelsIn(int y) const
{
    const qint64 bits = qint64(m_frame.bytes.size()) * 8 - firstBit(y);
    return int(std::clamp<qint64>(bits / m_bitsPerPixel, 0, m_frame.width));
}

FrameRows::Row FrameRows::row(int y)
{
    const qint64 pixel = m_frame.stride > 0 ? 0 : qint64(m_frame.width) * y;
    const bool isGrouped = m_layout.packing == PixelLayout::Packing::Grouped;
    // A group begins with its first pixel, also where that belongs to the line before.
    const qint64 bit = isGrouped ? (m_frame.stride > 0 ? firstBit(y) : pixel / 2 * 24) : firstBit(y);
    Row row;
    row.phase = isGrouped ? int(pixel % 2) : int(bit % 8);
    const qsizetype first = bit / 8;
    const qsizetype size = (qsizetype(m_frame.width + 1) * m_bitsPerPixel + 7) / 8 + slack;
    const qsizetype left = m_frame.bytes.size() - first;
    if (left >= size) {
        row.bytes = reinterpret_cast<const uchar *>(m_frame.bytes.constData()) + first;
        return row;
    }
    if (left <= 0) {
        m_nothing.resize(size);
        row.bytes = m_nothing.data();
        return row;
    }
    std::vector<uchar> &copy = m_copies[m_nextCopy];
    m_nextCopy = 1 - m_nextCopy;
    copy.assign(size, 0);
    std::memcpy(copy.data(), m_frame.bytes.constData() + first, left);
    row.bytes = copy.data();
    return row;
}

} // namespace Cameras
