// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pixellayout_p.h"

#include <QtGlobal>

#include <array>
#include <span>

namespace Cameras {

/*! \brief Writes the values of an image, line after line, as a pixel format has them in memory.
 *
 * Lines follow each other without gaps, and share bytes where their ends fall into one.
 */
class PixelPacking
{
public:
    /*! \a to has room for the image. */
    PixelPacking(const PixelLayout &layout, uchar *to);

    /*! Writes \a line: a value for each pixel, or red, green and blue of each where the format has colours.
     */
    void write(std::span<const quint16> line);
    /*! Writes what is left of a last byte. */
    void finish();

private:
    void writeBytes(std::span<const quint16> line);
    void writeWords(std::span<const quint16> line);
    void writeDense(std::span<const quint16> line);
    void writeGrouped(std::span<const quint16> line);
    void writeRgb(std::span<const quint16> line);
    void writeYuv(std::span<const quint16> line);

    PixelLayout m_layout;
    uchar *m_to;
    quint64 m_rest = 0; //!< bits that make no byte yet
    int m_restBits = 0;
    bool m_hasFirst = false; //!< of a group
    quint16 m_first = 0;
};

} // namespace Cameras
