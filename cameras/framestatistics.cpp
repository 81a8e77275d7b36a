// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framestatistics.h"

#include "framerows_p.h"
#include "framevalues.h"
#include "pixellayout_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace Cameras {

namespace {

using Colour = PixelLayout::Colour;
using Counts = std::vector<quint32>;

// Even and odd pixels have tables of their own: equal neighbours need not wait for each other, and those of a
// Bayer line have different colours anyway.
template <typename Reader>
void countLine(Reader reader, const FrameRows::Row &row, int count, quint32 *even, quint32 *odd)
{
    int x = 0;
    for (; x + 1 < count; x += 2) {
        ++even[reader.at(row, x)];
        ++odd[reader.at(row, x + 1)];
    }
    if (x < count) {
        ++even[reader.at(row, x)];
    }
}

// The tables of the four places of a cell, upper ones first.
std::array<Counts, 4> countCells(FrameRows &rows, const PixelLayout &layout)
{
    std::array<Counts, 4> tables;
    // A reader of two bytes may find more than the format has.
    const size_t size = layout.packing == PixelLayout::Packing::Words ? 65536 : size_t(layout.maximum()) + 1;
    tables.fill(Counts(size));
    withReader(layout, [&](auto reader) {
        for (int y = 0; y < rows.count(); ++y) {
            const size_t first = y % 2 * 2;
            countLine(reader, rows.row(y), rows.pixelsIn(y), tables[first].data(), tables[first + 1].data());
        }
    });
    return tables;
}

// The tables of bytes that follow each other in groups of \a period.
std::vector<Counts> countBytes(FrameRows &rows, const PixelLayout &layout, int period)
{
    std::vector<Counts> tables(period, Counts(256));
    for (int y = 0; y < rows.count(); ++y) {
        const uchar *const bytes = rows.row(y).bytes;
        const qsizetype size = qsizetype(rows.pixelsIn(y)) * layout.channels;
        for (qsizetype i = 0; i + period <= size; i += period) {
            for (int place = 0; place < period; ++place) {
                ++tables[place][bytes[i + place]];
            }
        }
    }
    return tables;
}

void add(Histogram &histogram, const QString &name, const std::vector<const Counts *> &tables,
         unsigned maximum)
{
    Histogram::Channel channel{name, QList<quint32>(qsizetype(maximum) + 1)};
    for (const Counts *const table : tables) {
        for (size_t value = 0; value < table->size(); ++value) {
            channel.counts[qsizetype(std::min<size_t>(value, maximum))] += (*table)[value];
            histogram.values += (*table)[value];
        }
    }
    histogram.black += channel.counts.constFirst();
    histogram.saturated += channel.counts.constLast();
    histogram.channels.append(channel);
}

Histogram cellHistogram(FrameRows &rows, const PixelLayout &layout)
{
    Histogram histogram;
    const std::array<Counts, 4> tables = countCells(rows, layout);
    if (layout.colour == Colour::Mono) {
        add(histogram, QString(), {&tables[0], &tables[1], &tables[2], &tables[3]}, layout.maximum());
        return histogram;
    }
    constexpr std::array names{"R", "G", "B"};
    for (int colour = 0; colour < 3; ++colour) {
        std::vector<const Counts *> ofColour;
        for (size_t place = 0; place < 4; ++place) {
            if (layout.order[place] == colour) {
                ofColour.push_back(&tables[place]);
            }
        }
        add(histogram, QString::fromLatin1(names[colour]), ofColour, layout.maximum());
    }
    return histogram;
}

Histogram byteHistogram(FrameRows &rows, const PixelLayout &layout)
{
    Histogram histogram;
    const bool isYuv = layout.isYuv();
    const std::vector<Counts> tables = countBytes(rows, layout, isYuv ? 4 : layout.channels);
    if (isYuv) {
        add(histogram, QStringLiteral("Y"), {&tables[layout.order[0]], &tables[layout.order[1]]}, 255);
        return histogram; // no colour is black or saturated
    }
    constexpr std::array names{"R", "G", "B"};
    for (int colour = 0; colour < 3; ++colour) {
        add(histogram, QString::fromLatin1(names[colour]), {&tables[layout.order[colour]]}, 255);
    }
    return histogram;
}

/*! \brief Sums of the values of a channel, for its mean and what is around it. */
struct Sums
{
    QString name;
    quint64 count = 0;
    double sum = 0.0;
    double squares = 0.0;
    double steps = 0.0; // squared
    quint64 stepCount = 0;

    void add(double value)
    {
        ++count;
        sum += value;
        squares += value * value;
    }
    void addStep(double step)
    {
        ++stepCount;
        steps += step * step;
    }
    double mean() const { return count > 0 ? sum / double(count) : 0.0; }
    double sharpness() const
    {
        return stepCount > 0 && sum > 0.0 ? std::sqrt(steps / double(stepCount)) / mean() * 100.0 : 0.0;
    }
};

/*! \brief One channel of a part as numbers, by pixel; so much of it as has come. */
class Plane
{
public:
    Plane(const Frame &frame, const PixelLayout &layout, int channel)
        : m_rows(frame, layout)
        , m_layout(layout)
        , m_channel(channel)
    {
    }

    int width(int y) const { return m_rows.pixelsIn(y); }
    int height() const { return m_rows.count(); }
    void read(int y, const QRect &part, std::vector<double> &values)
    {
        const int end = std::min(part.right() + 1, width(y));
        values.resize(std::max(end - part.x(), 0));
        const FrameRows::Row row = m_rows.row(y);
        for (size_t i = 0; i < values.size(); ++i) {
            values[i] = valueAt(row, part.x() + int(i));
        }
    }

private:
    double valueAt(const FrameRows::Row &row, int x) const
    {
        if (m_layout.isYuv()) {
            return row.bytes[x / 2 * 4 + m_layout.order[x % 2]];
        }
        if (m_layout.colour == Colour::Rgb) {
            return row.bytes[qsizetype(x) * m_layout.channels + m_layout.order[m_channel]];
        }
        return withReader(m_layout, [&](auto reader) { return double(reader.at(row, x)); });
    }

    FrameRows m_rows;
    PixelLayout m_layout;
    int m_channel;
};

// \a distance is that of neighbours of the same channel; \a sumsAt finds the sums for a pixel.
template <typename SumsAt>
void gather(Plane &plane, const QRect &part, int distance, SumsAt sumsAt)
{
    std::vector<std::vector<double>> lines(distance + 1); // the latest ones
    for (int y = part.y(); y <= part.bottom() && y < plane.height(); ++y) {
        std::vector<double> &line = lines[y % (distance + 1)];
        plane.read(y, part, line);
        const bool hasAbove = y - distance >= part.y();
        const std::vector<double> &above = lines[(y + 1) % (distance + 1)];
        for (size_t i = 0; i < line.size(); ++i) {
            Sums &sums = sumsAt(part.x() + int(i), y);
            sums.add(line[i]);
            if (i >= size_t(distance)) {
                sums.addStep(line[i] - line[i - distance]);
            }
            if (hasAbove && i < above.size()) {
                sums.addStep(line[i] - above[i]);
            }
        }
    }
}

std::vector<Sums> sumsOf(const Frame &frame, const PixelLayout &layout, const QRect &part)
{
    constexpr std::array names{"R", "G", "B"};
    std::vector<Sums> sums;
    if (layout.colour == Colour::Mono || layout.isYuv()) {
        sums.resize(1);
        sums[0].name = layout.isYuv() ? QStringLiteral("Y") : QString();
        Plane plane(frame, layout, 0);
        gather(plane, part, 1, [&](int, int) -> Sums & { return sums[0]; });
        return sums;
    }
    sums.resize(3);
    for (int colour = 0; colour < 3; ++colour) {
        sums[colour].name = QString::fromLatin1(names[colour]);
    }
    if (layout.colour == Colour::Bayer) {
        Plane plane(frame, layout, 0);
        gather(plane, part, 2, [&](int x, int y) -> Sums & { return sums[layout.order[y % 2 * 2 + x % 2]]; });
        return sums;
    }
    for (int colour = 0; colour < 3; ++colour) {
        Plane plane(frame, layout, colour);
        gather(plane, part, 1, [&](int, int) -> Sums & { return sums[colour]; });
    }
    return sums;
}

} // namespace

Histogram histogramOf(const Frame &frame)
{
    const auto layout = layoutOf(frame.pixelFormat);
    if (!layout || !FrameRows::isSane(frame, *layout)) {
        return {};
    }
    FrameRows rows(frame, *layout);
    return layout->isYuv() || layout->colour == Colour::Rgb ? byteHistogram(rows, *layout)
                                                            : cellHistogram(rows, *layout);
}

PartStatistics statisticsOf(const Frame &frame, const QRect &part)
{
    const auto layout = layoutOf(frame.pixelFormat);
    const QRect inside = part.intersected(QRect(0, 0, frame.width, frame.height));
    if (!layout || inside.isEmpty() || !FrameRows::isSane(frame, *layout)) {
        return {};
    }
    const std::vector<Sums> all = sumsOf(frame, *layout, inside);
    PartStatistics statistics;
    for (const Sums &sums : all) {
        if (sums.count > 0) {
            const double mean = sums.mean();
            const double variance = sums.squares / double(sums.count) - mean * mean;
            statistics.channels.append({sums.name, sums.count, mean, std::sqrt(std::max(variance, 0.0))});
        }
    }
    statistics.sharpness = all[all.size() == 3 ? 1 : 0].sharpness();
    return statistics;
}

} // namespace Cameras
