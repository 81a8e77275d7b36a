// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <QList>
#include <QString>

namespace Cameras {

/*! \brief How the pixels of a frame lie in memory, as the Pixel Format Naming Convention (PFNC) numbers it.
 */
struct PixelFormat
{
    quint32 code = 0; //!< the number that cameras send

    /*! Returns whether both are the same format. */
    bool operator==(const PixelFormat &other) const = default;
};

/*! Returns the PFNC name of \a format, such as "BayerRG12p", or its number in hexadecimal where we know none.
 */
ZELTO_CAMERAS_EXPORT QString pixelFormatName(PixelFormat format);
/*! Returns the format called \a name, code 0 where we know none. */
ZELTO_CAMERAS_EXPORT PixelFormat pixelFormat(const QString &name);
/*! Returns the bits that a pixel of \a format takes in memory, padding included, as its number tells. */
ZELTO_CAMERAS_EXPORT int bitsPerPixel(PixelFormat format);
/*! Returns the formats that can be shown. */
ZELTO_CAMERAS_EXPORT QList<PixelFormat> knownPixelFormats();

} // namespace Cameras
