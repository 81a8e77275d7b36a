// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "pixellayout_p.h"

#include <QRegularExpression>
#include <QString>

namespace Cameras {

namespace {

using Colour = PixelLayout::Colour;
using Packing = PixelLayout::Packing;

Packing packingOf(const QString &suffix, int bits)
{
    if (suffix == QLatin1String("p")) {
        return Packing::Dense;
    }
    if (suffix == QLatin1String("Packed")) {
        return Packing::Grouped;
    }
    return bits > 8 ? Packing::Words : Packing::Bytes;
}

std::optional<PixelLayout> oneValueLayout(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:Mono|Bayer(GR|RG|GB|BG))(8|10|12|14|16)(p|Packed|)$"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    PixelLayout layout;
    layout.bits = match.captured(2).toInt();
    layout.packing = packingOf(match.captured(3), layout.bits);
    const QString filter = match.captured(1);
    if (!filter.isEmpty()) {
        layout.colour = Colour::Bayer;
        const bool startsGreen = filter.startsWith(QLatin1Char('G'));
        const bool hasRedAbove = filter.contains(QLatin1Char('R'));
        const int above = hasRedAbove ? 0 : 2;
        const int below = 2 - above;
        layout.order = startsGreen ? std::array{1, above, below, 1} : std::array{above, 1, 1, below};
    }
    return layout;
}

std::optional<PixelLayout> rgbLayout(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^(RGB|BGR)(a?)8$"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    PixelLayout layout;
    layout.colour = Colour::Rgb;
    layout.channels = match.captured(2).isEmpty() ? 3 : 4;
    layout.order =
        match.captured(1) == QLatin1String("RGB") ? std::array{0, 1, 2, 3} : std::array{2, 1, 0, 3};
    return layout;
}

std::optional<PixelLayout> yuvLayout(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^(?:YUV|YCbCr(601|709|)_?)422_8(_UYVY|_CbYCrY|)$"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    PixelLayout layout;
    layout.colour = match.captured(1).isEmpty()     ? Colour::Yuv
        : match.captured(1) == QLatin1String("601") ? Colour::Yuv601
                                                    : Colour::Yuv709;
    layout.channels = 2;
    layout.order = match.captured(2).isEmpty() ? std::array{0, 2, 1, 3} : std::array{1, 3, 0, 2};
    return layout;
}

} // namespace

int PixelLayout::bitsPerPixel() const
{
    switch (packing) {
    case Packing::Bytes:
        return 8 * channels;
    case Packing::Words:
        return 16;
    case Packing::Dense:
        return bits;
    case Packing::Grouped:
        return 12;
    }
    return 8;
}

std::optional<PixelLayout> layoutOf(PixelFormat format)
{
    const QString name = pixelFormatName(format);
    if (const auto layout = oneValueLayout(name)) {
        return layout;
    }
    const auto layout = rgbLayout(name);
    return layout ? layout : yuvLayout(name);
}

} // namespace Cameras
