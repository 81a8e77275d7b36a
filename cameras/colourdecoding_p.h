// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pixellayout_p.h"

#include <QtGlobal>

#include <vector>

namespace Cameras {

/*! Writes to \a rgb, which is made large enough, red, green and blue of the \a width x \a height pixels in \a
 * mosaic, which begins with a whole cell of \a layout; both sides are at least 6. The two pixels along the
 * border are of no use. */
void decodeBayer(const std::vector<uchar> &mosaic, int width, int height, const PixelLayout &layout,
                 std::vector<uchar> &rgb);

/*! Returns red, green and blue of pixels of which \a uyv has U, Y and V each. */
std::vector<uchar> decodedYuv(std::vector<uchar> uyv, const PixelLayout &layout);

} // namespace Cameras
