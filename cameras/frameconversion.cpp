// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "frameconversion.h"

#include "colourdecoding_p.h"
#include "framerows_p.h"
#include "pixellayout_p.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Cameras {

namespace {

using Colour = PixelLayout::Colour;

constexpr QRgb saturatedMark = qRgb(255, 0, 0);
constexpr QRgb blackMark = qRgb(0, 0, 255);
constexpr QRgb noMark = 0;
constexpr int margin = 2; // that demosaicing takes from the neighbourhood

// The pixels of a line of \a count from \a first on that \a size places show.
std::vector<int> sampled(int first, int count, int size)
{
    std::vector<int> places(size);
    for (int i = 0; i < size; ++i) {
        places[i] = first + int((qint64(2) * i + 1) * count / (qint64(2) * size));
    }
    return places;
}

// Mirrors a place beyond the border so that it has the same colour of a mosaic.
int mirrored(int place, int size)
{
    const int inside = place < 0 ? -place : place >= size ? 2 * size - 2 - place : place;
    return std::clamp(inside, 0, size - 1);
}

// Whether neighbours can be taken together. Else all pixels of the part are looked at, which must not be many
// more than there are places.
bool isMuchSmaller(const QSize &size, const QRect &part)
{
    return part.width() >= 2 * size.width() || part.height() >= 2 * size.height();
}

QImage resampled(const QImage &image, const QSize &size)
{
    if (image.size() == size) {
        return image;
    }
    QImage result(size, QImage::Format_RGB32);
    const std::vector<int> columns = sampled(0, image.width(), size.width());
    const std::vector<int> lines = sampled(0, image.height(), size.height());
    for (int y = 0; y < size.height(); ++y) {
        auto *const out = reinterpret_cast<QRgb *>(result.scanLine(y));
        if (y > 0 && lines[y] == lines[y - 1]) {
            std::copy_n(reinterpret_cast<const QRgb *>(result.constScanLine(y - 1)), size.width(), out);
            continue;
        }
        const auto *const in = reinterpret_cast<const QRgb *>(image.constScanLine(lines[y]));
        for (int x = 0; x < size.width(); ++x) {
            out[x] = in[columns[x]];
        }
    }
    return result;
}

/*! \brief A line or column of a frame and where an image shows it. */
struct Shown
{
    int source;
    int target;
};

// Where the image is smaller, all of the part are there, so that several share a place.
std::vector<Shown> shownPlaces(int first, int count, int size)
{
    std::vector<Shown> shown;
    if (count < size) {
        const std::vector<int> places = sampled(first, count, size);
        for (int i = 0; i < size; ++i) {
            shown.push_back({places[i], i});
        }
        return shown;
    }
    for (int i = 0; i < count; ++i) {
        shown.push_back({first + i, int(qint64(i) * size / count)});
    }
    return shown;
}

// All pixels of the part count, also those that a smaller image leaves out: a single one that is saturated
// must be seen. What has not come is not marked.
template <typename MarkOf>
void paintMarks(QImage &image, FrameRows &rows, const QRect &part, MarkOf markOf)
{
    const std::vector<Shown> columns = shownPlaces(part.x(), part.width(), image.width());
    const std::vector<Shown> lines = shownPlaces(part.y(), part.height(), image.height());
    for (const Shown &line : lines) {
        if (line.source >= rows.count()) {
            return;
        }
        const FrameRows::Row row = rows.row(line.source);
        const int end = rows.pixelsIn(line.source);
        auto *const out = reinterpret_cast<QRgb *>(image.scanLine(line.target));
        for (const Shown &column : columns) {
            if (column.source >= end) {
                break;
            }
            const QRgb mark = markOf(row, column.source);
            if (mark != noMark && out[column.target] != saturatedMark) {
                out[column.target] = mark;
            }
        }
    }
}

} // namespace

bool FrameConversion::canConvert(PixelFormat format)
{
    return layoutOf(format).has_value();
}

void FrameConversion::setLook(const Look &look)
{
    if (m_look != look) {
        m_look = look;
        m_bits = 0;
    }
}

void FrameConversion::prepareTable(int bits)
{
    if (m_bits == bits) {
        return;
    }
    m_bits = bits;
    m_table.resize(size_t(1) << bits);
    const double maximum = double(m_table.size() - 1);
    const double range = std::max(m_look.white - m_look.black, 1.0 / maximum);
    const double exponent = 1.0 / std::max(m_look.gamma, 0.01);
    for (size_t value = 0; value < m_table.size(); ++value) {
        const double share = std::clamp((double(value) / maximum - m_look.black) / range, 0.0, 1.0);
        m_table[value] = uchar(std::lround(std::pow(share, exponent) * 255.0));
    }
}

QRgb FrameConversion::rgb(unsigned red, unsigned green, unsigned blue) const
{
    return qRgb(m_table[red], m_table[green], m_table[blue]);
}

QImage FrameConversion::image(const Frame &frame)
{
    return image(frame, QRect(0, 0, frame.width, frame.height), QSize(frame.width, frame.height));
}

QImage FrameConversion::image(const Frame &frame, const QRect &part, const QSize &size)
{
    const auto layout = layoutOf(frame.pixelFormat);
    if (!layout || !FrameRows::isSane(frame, *layout) || size.isEmpty()) {
        return {};
    }
    const QRect inside = part.intersected(QRect(0, 0, frame.width, frame.height));
    if (inside.isEmpty()) {
        return {};
    }
    prepareTable(layout->bits);
    QImage image = converted(frame, *layout, inside, size);
    if (m_look.marksExtremes && !image.isNull()) {
        markExtremes(image, frame, *layout, inside);
    }
    return image;
}

QImage FrameConversion::converted(const Frame &frame, const PixelLayout &layout, const QRect &part,
                                  const QSize &size)
{
    if (layout.colour == Colour::Rgb || layout.isYuv()) {
        return sampledColour(frame, layout, part, size);
    }
    const bool hasCells = frame.width > 1 && frame.height > 1;
    return hasCells && isMuchSmaller(size, part) ? shrunk(frame, layout, part, size)
                                                 : resampled(exact(frame, layout, part), size);
}

// Each place shows the mean of a cell of two by two pixels, for Bayer of each colour in it.
QImage FrameConversion::shrunk(const Frame &frame, const PixelLayout &layout, const QRect &part,
                               const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    std::vector<int> columns = sampled(part.x(), part.width(), size.width());
    for (int &column : columns) {
        column = std::min(column & ~1, (frame.width - 2) & ~1);
    }
    const std::vector<int> lines = sampled(part.y(), part.height(), size.height());
    FrameRows rows(frame, layout);
    const bool isBayer = layout.colour == Colour::Bayer;
    // The green that a cell has twice, and where the other two stand.
    const bool startsGreen = layout.order[0] == 1;
    const auto places = startsGreen ? std::array{1, 2, 0, 3} : std::array{0, 3, 1, 2};
    const int red = layout.order[places[0]] == 0 ? places[0] : places[1];
    const int blue = places[0] + places[1] - red;
    const unsigned maximum = layout.maximum();
    withReader(layout, [&](auto reader) {
        for (int y = 0; y < size.height(); ++y) {
            const int line = std::min(lines[y] & ~1, (frame.height - 2) & ~1);
            const FrameRows::Row above = rows.row(line);
            const FrameRows::Row below = rows.row(line + 1);
            auto *const out = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < size.width(); ++x) {
                const int column = columns[x];
                const std::array<unsigned, 4> cell{std::min(reader.at(above, column), maximum),
                                                   std::min(reader.at(above, column + 1), maximum),
                                                   std::min(reader.at(below, column), maximum),
                                                   std::min(reader.at(below, column + 1), maximum)};
                const unsigned mean = (cell[0] + cell[1] + cell[2] + cell[3] + 2) / 4;
                out[x] = isBayer ? rgb(cell[red], (cell[places[2]] + cell[places[3]] + 1) / 2, cell[blue])
                                 : rgb(mean, mean, mean);
            }
        }
    });
    return image;
}

QImage FrameConversion::exact(const Frame &frame, const PixelLayout &layout, const QRect &part)
{
    const bool hasCells = frame.width > 1 && frame.height > 1;
    return layout.colour == Colour::Bayer && hasCells ? exactBayer(frame, layout, part)
                                                      : exactMono(frame, layout, part);
}

QImage FrameConversion::exactMono(const Frame &frame, const PixelLayout &layout, const QRect &part) const
{
    QImage image(part.size(), QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    std::vector<QRgb> colours(m_table.size());
    for (unsigned value = 0; value < colours.size(); ++value) {
        colours[value] = rgb(value, value, value);
    }
    const unsigned maximum = layout.maximum();
    FrameRows rows(frame, layout);
    withReader(layout, [&](auto reader) {
        for (int y = 0; y < part.height(); ++y) {
            const FrameRows::Row row = rows.row(part.y() + y);
            auto *const out = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < part.width(); ++x) {
                out[x] = colours[std::min(reader.at(row, part.x() + x), maximum)];
            }
        }
    });
    return image;
}

// Brightness first, colours from eight bits then: that is what the eye can tell, at a fraction of the time.
QImage FrameConversion::exactBayer(const Frame &frame, const PixelLayout &layout, const QRect &part)
{
    const int left = (part.x() & ~1) - margin;
    const int top = (part.y() & ~1) - margin;
    const int width = part.right() + 1 + margin - left;
    const int height = part.bottom() + 1 + margin - top;
    const int evenWidth = std::max((width + 1) & ~1, 6);
    const int evenHeight = std::max((height + 1) & ~1, 6);
    m_mosaic.resize(size_t(evenWidth) * evenHeight);
    const unsigned maximum = layout.maximum();
    FrameRows rows(frame, layout);
    const int firstInside = std::max(-left, 0);
    const int endInside = std::min(evenWidth, frame.width - left);
    withReader(layout, [&](auto reader) {
        for (int y = 0; y < evenHeight; ++y) {
            const FrameRows::Row row = rows.row(mirrored(top + y, frame.height));
            uchar *const out = m_mosaic.data() + size_t(evenWidth) * y;
            for (int x = firstInside; x < endInside; ++x) {
                out[x] = m_table[std::min(reader.at(row, left + x), maximum)];
            }
            for (int x = 0; x < firstInside; ++x) {
                out[x] = m_table[std::min(reader.at(row, mirrored(left + x, frame.width)), maximum)];
            }
            for (int x = endInside; x < evenWidth; ++x) {
                out[x] = m_table[std::min(reader.at(row, mirrored(left + x, frame.width)), maximum)];
            }
        }
    });
    decodeBayer(m_mosaic, evenWidth, evenHeight, layout, m_decoded);
    const size_t first = (size_t(evenWidth) * (part.y() - top) + (part.x() - left)) * 3;
    return QImage(m_decoded.data() + first, part.width(), part.height(), evenWidth * 3, QImage::Format_RGB888)
        .convertToFormat(QImage::Format_RGB32);
}

void FrameConversion::markExtremes(QImage &image, const Frame &frame, const PixelLayout &layout,
                                   const QRect &part) const
{
    FrameRows rows(frame, layout);
    const auto &order = layout.order;
    const qsizetype channels = layout.channels;
    if (layout.isYuv()) {
        paintMarks(image, rows, part, [&order](const FrameRows::Row &row, int x) {
            const uchar luma = row.bytes[x / 2 * 4 + order[x % 2]];
            return luma == 255 ? saturatedMark : luma == 0 ? blackMark : noMark;
        });
    } else if (layout.colour == Colour::Rgb) {
        paintMarks(image, rows, part, [&order, channels](const FrameRows::Row &row, int x) {
            const uchar *const pixel = row.bytes + x * channels;
            const uchar most = std::max({pixel[order[0]], pixel[order[1]], pixel[order[2]]});
            return most == 255 ? saturatedMark : most == 0 ? blackMark : noMark;
        });
    } else {
        withReader(layout, [&](auto reader) {
            paintMarks(image, rows, part, [maximum = layout.maximum()](const FrameRows::Row &row, int x) {
                const unsigned value = decltype(reader)::at(row, x);
                return value >= maximum ? saturatedMark : value == 0 ? blackMark : noMark;
            });
        });
    }
}

QImage FrameConversion::sampledColour(const Frame &frame, const PixelLayout &layout, const QRect &part,
                                      const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    const std::vector<int> columns = sampled(part.x(), part.width(), size.width());
    const std::vector<int> lines = sampled(part.y(), part.height(), size.height());
    const auto &order = layout.order;
    FrameRows rows(frame, layout);
    std::vector<uchar> line(layout.isYuv() ? size_t(size.width()) * 3 : 0);
    for (int y = 0; y < size.height(); ++y) {
        const uchar *const row = rows.row(lines[y]).bytes;
        auto *const out = reinterpret_cast<QRgb *>(image.scanLine(y));
        if (layout.isYuv()) {
            for (int x = 0; x < size.width(); ++x) {
                const uchar *const pair = row + columns[x] / 2 * 4;
                line[3 * x] = pair[order[2]];
                line[3 * x + 1] = pair[order[columns[x] % 2]];
                line[3 * x + 2] = pair[order[3]];
            }
            const std::vector<uchar> decoded = decodedYuv(line, layout);
            const int end = rows.pixelsIn(lines[y]);
            for (int x = 0; x < size.width(); ++x) {
                out[x] = columns[x] < end ? rgb(decoded[3 * x], decoded[3 * x + 1], decoded[3 * x + 2])
                                          : qRgb(0, 0, 0); // without a colour it would be green
            }
            continue;
        }
        for (int x = 0; x < size.width(); ++x) {
            const uchar *const pixel = row + qsizetype(columns[x]) * layout.channels;
            out[x] = rgb(pixel[order[0]], pixel[order[1]], pixel[order[2]]);
        }
    }
    return image;
}

} // namespace Cameras
