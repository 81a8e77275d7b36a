// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "colourdecoding_p.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <dc1394/conversions.h>

namespace Cameras {

namespace {

dc1394color_filter_t filterOf(const PixelLayout &layout)
{
    if (layout.order[0] == 1) {
        return layout.order[1] == 0 ? DC1394_COLOR_FILTER_GRBG : DC1394_COLOR_FILTER_GBRG;
    }
    return layout.order[0] == 0 ? DC1394_COLOR_FILTER_RGGB : DC1394_COLOR_FILTER_BGGR;
}

uchar rounded(double value)
{
    return uchar(std::clamp(std::lround(value), 0L, 255L));
}

// Brings a pixel to the full range and the weights that the decoder knows.
void standardize(uchar *uyv, bool isHighDefinition)
{
    constexpr double lumaRange = 255.0 / 219.0;
    constexpr double colourRange = 255.0 / 224.0;
    const double u = (uyv[0] - 128) * colourRange;
    const double y = (uyv[1] - 16) * lumaRange;
    const double v = (uyv[2] - 128) * colourRange;
    if (!isHighDefinition) {
        uyv[0] = rounded(u + 128);
        uyv[1] = rounded(y);
        uyv[2] = rounded(v + 128);
        return;
    }
    // ITU-R BT.709 to BT.601.
    uyv[0] = rounded(0.989854 * u - 0.110653 * v + 128);
    uyv[1] = rounded(y + 0.101579 * u + 0.196076 * v);
    uyv[2] = rounded(-0.072453 * u + 0.983398 * v + 128);
}

} // namespace

void decodeBayer(const std::vector<uchar> &mosaic, int width, int height, const PixelLayout &layout,
                 std::vector<uchar> &rgb)
{
    rgb.resize(size_t(width) * height * 3);
    dc1394_bayer_decoding_8bit(mosaic.data(), rgb.data(), width, height, filterOf(layout),
                               DC1394_BAYER_METHOD_BILINEAR);
}

std::vector<uchar> decodedYuv(std::vector<uchar> uyv, const PixelLayout &layout)
{
    if (layout.colour != PixelLayout::Colour::Yuv) {
        for (size_t i = 0; i + 2 < uyv.size(); i += 3) {
            standardize(uyv.data() + i, layout.colour == PixelLayout::Colour::Yuv709);
        }
    }
    std::vector<uchar> rgb(uyv.size());
    dc1394_convert_to_RGB8(uyv.data(), rgb.data(), uint32_t(uyv.size() / 3), 1, DC1394_BYTE_ORDER_UYVY,
                           DC1394_COLOR_CODING_YUV444, 8);
    return rgb;
}

} // namespace Cameras
