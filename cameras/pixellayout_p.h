// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pixelformat.h"

#include <array>
#include <optional>

namespace Cameras {

/*! \brief What the bytes of a pixel format stand for. */
struct PixelLayout
{
    enum class Colour {
        Mono,
        Bayer, //!< one value per pixel, below a filter of red, green or blue
        Rgb,
        Yuv, //!< full range, weighted as for standard television
        Yuv601, //!< as Yuv, with room at both ends
        Yuv709, //!< as Yuv601, weighted as for high definition
    };
    enum class Packing {
        Bytes,
        Words, //!< two bytes for each value, the lower first
        Dense, //!< value after value without gaps, from the lowest bit up; "p" in names
        Grouped, //!< two values in three bytes, the lowest bits in the middle one; "Packed" in names
    };

    Colour colour = Colour::Mono;
    Packing packing = Packing::Bytes;
    int bits = 8; //!< of a value
    int channels = 1; //!< values of a pixel; for YUV 2, as half the pixels lend each other their colour
    /*! Bayer: which of red, green and blue (0, 1, 2) the upper and the lower two pixels of a cell have.
     * RGB: the places of red, green, blue and alpha in a pixel.
     * YUV: the places of the two Y, of U and of V in a pair of pixels. */
    std::array<int, 4> order{};

    bool isYuv() const { return colour >= Colour::Yuv; }
    /*! Returns the largest value. */
    unsigned maximum() const { return (1U << bits) - 1; }
    /*! Returns the bits that a pixel takes in memory. */
    int bitsPerPixel() const;
};

/*! Returns how the pixels of \a format lie in memory, nothing where we cannot show it. */
std::optional<PixelLayout> layoutOf(PixelFormat format);

} // namespace Cameras
