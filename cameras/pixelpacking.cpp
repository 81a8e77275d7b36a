// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "pixelpacking_p.h"

#include <algorithm>
#include <cmath>

namespace Cameras {

namespace {

using Packing = PixelLayout::Packing;

/*! \brief A colour as brightness and two differences. */
struct Yuv
{
    int y;
    int u;
    int v;
};

/*! \brief How red, green and blue become these, in steps of 1/65536. */
struct YuvWeights
{
    std::array<int, 3> y;
    std::array<int, 3> u;
    std::array<int, 3> v;
    int yOffset;
};

YuvWeights weights(double red, double blue, double yRange, double differenceRange)
{
    const double green = 1 - red - blue;
    const auto steps = [](double weight) { return int(std::lround(weight * 65536)); };
    const double y = yRange / 255;
    const double u = differenceRange / 255 / 2 / (1 - blue);
    const double v = differenceRange / 255 / 2 / (1 - red);
    return {{steps(red * y), steps(green * y), steps(blue * y)},
            {steps(-red * u), steps(-green * u), steps((1 - blue) * u)},
            {steps((1 - red) * v), steps(-green * v), steps(-blue * v)},
            yRange < 255 ? 16 : 0};
}

const YuvWeights &weightsOf(PixelLayout::Colour colour)
{
    static const YuvWeights full = weights(0.299, 0.114, 255, 255);
    static const YuvWeights television = weights(0.299, 0.114, 219, 224);
    static const YuvWeights highDefinition = weights(0.2126, 0.0722, 219, 224);
    switch (colour) {
    case PixelLayout::Colour::Yuv601:
        return television;
    case PixelLayout::Colour::Yuv709:
        return highDefinition;
    default:
        return full;
    }
}

int weighted(const std::array<int, 3> &weights, const quint16 *rgb, int offset)
{
    const int sum = weights[0] * rgb[0] + weights[1] * rgb[1] + weights[2] * rgb[2];
    return std::clamp(((sum + 32768) >> 16) + offset, 0, 255);
}

Yuv yuvOf(const YuvWeights &weights, const quint16 *rgb)
{
    return {weighted(weights.y, rgb, weights.yOffset), weighted(weights.u, rgb, 128),
            weighted(weights.v, rgb, 128)};
}

} // namespace

PixelPacking::PixelPacking(const PixelLayout &layout, uchar *to)
    : m_layout(layout)
    , m_to(to)
{
}

void PixelPacking::write(std::span<const quint16> line)
{
    if (m_layout.isYuv()) {
        writeYuv(line);
    } else if (m_layout.colour == PixelLayout::Colour::Rgb) {
        writeRgb(line);
    } else if (m_layout.packing == Packing::Words) {
        writeWords(line);
    } else if (m_layout.packing == Packing::Dense) {
        writeDense(line);
    } else if (m_layout.packing == Packing::Grouped) {
        writeGrouped(line);
    } else {
        writeBytes(line);
    }
}

void PixelPacking::finish()
{
    if (m_restBits > 0) {
        *m_to = uchar(m_rest);
    }
    if (m_hasFirst) {
        m_to[0] = uchar(m_first >> (m_layout.bits - 8));
        m_to[1] = uchar(m_first & ((1U << (m_layout.bits - 8)) - 1));
    }
}

void PixelPacking::writeBytes(std::span<const quint16> line)
{
    m_to = std::transform(line.begin(), line.end(), m_to, [](quint16 value) { return uchar(value); });
}

void PixelPacking::writeWords(std::span<const quint16> line)
{
    for (const quint16 value : line) {
        m_to[0] = uchar(value);
        m_to[1] = uchar(value >> 8);
        m_to += 2;
    }
}

void PixelPacking::writeDense(std::span<const quint16> line)
{
    quint64 rest = m_rest;
    int restBits = m_restBits;
    for (const quint16 value : line) {
        rest |= quint64(value) << restBits;
        restBits += m_layout.bits;
        for (; restBits >= 8; restBits -= 8) {
            *m_to++ = uchar(rest);
            rest >>= 8;
        }
    }
    m_rest = rest;
    m_restBits = restBits;
}

void PixelPacking::writeGrouped(std::span<const quint16> line)
{
    const int lowBits = m_layout.bits - 8;
    const unsigned lowMask = (1U << lowBits) - 1;
    for (const quint16 value : line) {
        if (!m_hasFirst) {
            m_first = value;
        } else {
            m_to[0] = uchar(m_first >> lowBits);
            m_to[1] = uchar((m_first & lowMask) | (value & lowMask) << 4);
            m_to[2] = uchar(value >> lowBits);
            m_to += 3;
        }
        m_hasFirst = !m_hasFirst;
    }
}

void PixelPacking::writeRgb(std::span<const quint16> line)
{
    for (size_t i = 0; i + 2 < line.size(); i += 3) {
        for (size_t colour = 0; colour < 3; ++colour) {
            m_to[m_layout.order[colour]] = uchar(line[i + colour]);
        }
        if (m_layout.channels == 4) {
            m_to[m_layout.order[3]] = 255;
        }
        m_to += m_layout.channels;
    }
}

// Two pixels share the mean of their colours; a last one without a neighbour has half of the pair's bytes.
void PixelPacking::writeYuv(std::span<const quint16> line)
{
    const YuvWeights &weights = weightsOf(m_layout.colour);
    for (size_t i = 0; i + 2 < line.size(); i += 6) {
        const bool isPair = i + 5 < line.size();
        const Yuv first = yuvOf(weights, &line[i]);
        const Yuv second = isPair ? yuvOf(weights, &line[i + 3]) : first;
        std::array<uchar, 4> pair{};
        pair[size_t(m_layout.order[0])] = uchar(first.y);
        pair[size_t(m_layout.order[1])] = uchar(second.y);
        pair[size_t(m_layout.order[2])] = uchar((first.u + second.u + 1) / 2);
        pair[size_t(m_layout.order[3])] = uchar((first.v + second.v + 1) / 2);
        m_to = std::copy_n(pair.begin(), isPair ? 4 : 2, m_to);
    }
}

} // namespace Cameras
