// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frame.h"
#include "pixellayout_p.h"

#include <QtEndian>

#include <utility>
#include <vector>

namespace Cameras {

/*! \brief The lines of a frame, as readers of its pixels may take them without looking for the end.
 *
 * What has not come is zero. Lines are valid as long as this object, and the second call of row() after them,
 * so that two neighbours can be read together.
 */
class FrameRows
{
public:
    struct Row
    {
        const uchar *bytes = nullptr;
        int phase = 0; //!< where the first pixel begins: a bit of the first byte, or a place in the group
    };

    FrameRows(const Frame &frame, const PixelLayout &layout);

    /*! Returns whether \a frame has a size that can be worked with, and lines that do not overlap. */
    static bool isSane(const Frame &frame, const PixelLayout &layout);

    /*! Returns the line \a y of the frame, 0 the topmost. */
    Row row(int y);
    /*! Returns how many pixels of the line \a y have come. */
    int pixelsIn(int y) const;
    /*! Returns the number of lines of which at least one pixel has come. */
    int count() const { return m_count; }

private:
    qint64 firstBit(int y) const;

    const Frame &m_frame;
    PixelLayout m_layout;
    int m_bitsPerPixel;
    qint64 m_lineBits;
    int m_count = 0;
    std::vector<uchar> m_copies[2]; // of lines near the end
    int m_nextCopy = 0;
    std::vector<uchar> m_nothing; // a line of which nothing has come
};

/*! \brief Readers of pixels with one value: value \a x of a line. */
struct ByteReader
{
    static unsigned at(FrameRows::Row row, qsizetype x) { return row.bytes[x]; }
};

struct WordReader
{
    static unsigned at(FrameRows::Row row, qsizetype x)
    {
        return qFromLittleEndian<quint16>(row.bytes + 2 * x);
    }
};

template <int Bits>
struct DenseReader
{
    static unsigned at(FrameRows::Row row, qsizetype x)
    {
        const qsizetype bit = row.phase + x * Bits;
        return (qFromLittleEndian<quint32>(row.bytes + bit / 8) >> (bit % 8)) & ((1U << Bits) - 1);
    }
};

template <int Bits>
struct GroupedReader
{
    static unsigned at(FrameRows::Row row, qsizetype x)
    {
        constexpr int lowBits = Bits - 8;
        const qsizetype place = row.phase + x;
        const uchar *const group = row.bytes + place / 2 * 3;
        const bool isSecond = place % 2 != 0;
        const unsigned low = (group[1] >> (isSecond ? 4 : 0)) & ((1U << lowBits) - 1);
        return (unsigned(group[isSecond ? 2 : 0]) << lowBits) | low;
    }
};

/*! Calls \a work with the reader for \a layout, which is monochrome or Bayer. */
template <typename Work>
decltype(auto) withReader(const PixelLayout &layout, Work &&work)
{
    switch (layout.packing) {
    case PixelLayout::Packing::Words:
        return work(WordReader());
    case PixelLayout::Packing::Dense:
        return layout.bits == 10 ? work(DenseReader<10>())
            : layout.bits == 12  ? work(DenseReader<12>())
                                 : work(DenseReader<14>());
    case PixelLayout::Packing::Grouped:
        return layout.bits == 10 ? work(GroupedReader<10>()) : work(GroupedReader<12>());
    default:
        return work(ByteReader());
    }
}

} // namespace Cameras
