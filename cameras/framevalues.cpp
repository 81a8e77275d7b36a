// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framevalues.h"

#include "framerows_p.h"
#include "pixellayout_p.h"

#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace Cameras {

namespace {

using Colour = PixelLayout::Colour;
using Value = FrameValues::Value;

constexpr qint64 mostSamples = qint64(1) << 28;

const QString &rgbName(int channel)
{
    static const QList<QString> names{QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B"),
                                      QStringLiteral("A")};
    return names.at(channel);
}

QList<Value> yuvValues(const uchar *row, int x, const PixelLayout &layout)
{
    const uchar *const pair = row + x / 2 * 4;
    return {{QStringLiteral("Y"), pair[layout.order[x % 2]]},
            {QStringLiteral("U"), pair[layout.order[2]]},
            {QStringLiteral("V"), pair[layout.order[3]]}};
}

QList<Value> valuesAt(FrameRows &rows, const PixelLayout &layout, const QPoint &position)
{
    if (position.x() >= rows.pixelsIn(position.y())) {
        return {};
    }
    const FrameRows::Row row = rows.row(position.y());
    const int x = position.x();
    if (layout.isYuv()) {
        return yuvValues(row.bytes, x, layout);
    }
    QList<Value> values;
    if (layout.colour == Colour::Rgb) {
        for (int channel = 0; channel < layout.channels; ++channel) {
            const qsizetype place = qsizetype(x) * layout.channels + layout.order[channel];
            values.append({rgbName(channel), row.bytes[place]});
        }
        return values;
    }
    const QString name =
        layout.colour == Colour::Bayer ? rgbName(layout.order[position.y() % 2 * 2 + x % 2]) : QString();
    values.append({name, withReader(layout, [&](auto reader) { return quint32(reader.at(row, x)); })});
    return values;
}

void unpackLine(const FrameRows::Row &row, int count, const PixelLayout &layout, uchar *out)
{
    if (layout.colour == Colour::Rgb) {
        for (int i = 0; i < count * layout.channels; ++i) {
            const int pixel = i / layout.channels * layout.channels;
            out[i] = row.bytes[pixel + layout.order[i - pixel]];
        }
        return;
    }
    withReader(layout, [&](auto reader) {
        for (int x = 0; x < count; ++x) {
            if (layout.bits <= 8) {
                out[x] = uchar(reader.at(row, x));
            } else {
                qToLittleEndian<quint16>(quint16(reader.at(row, x)), out + 2 * x);
            }
        }
    });
}

} // namespace

QList<Value> FrameValues::at(const Frame &frame, const QPoint &position)
{
    const auto layout = layoutOf(frame.pixelFormat);
    const bool isInside =
        position.x() >= 0 && position.y() >= 0 && position.x() < frame.width && position.y() < frame.height;
    if (!layout || !isInside || !FrameRows::isSane(frame, *layout)) {
        return {};
    }
    FrameRows rows(frame, *layout);
    return valuesAt(rows, *layout, position);
}

QList<FrameValues::Curve> FrameValues::along(const Frame &frame, const QLine &line)
{
    const auto layout = layoutOf(frame.pixelFormat);
    const QRect all(0, 0, frame.width, frame.height);
    if (!layout || !FrameRows::isSane(frame, *layout) || !all.contains(line.p1())
        || !all.contains(line.p2())) {
        return {};
    }
    FrameRows rows(frame, *layout);
    QList<Curve> curves;
    const int steps = std::max(std::abs(line.dx()), std::abs(line.dy()));
    for (int i = 0; i <= steps; ++i) {
        const double share = steps > 0 ? double(i) / steps : 0.0;
        const QPoint position(line.x1() + qRound(share * line.dx()), line.y1() + qRound(share * line.dy()));
        const QList<Value> values = valuesAt(rows, *layout, position);
        for (const Value &value : values) {
            const auto isOfChannel = [&value](const Curve &curve) { return curve.channel == value.channel; };
            auto curve = std::find_if(curves.begin(), curves.end(), isOfChannel);
            if (curve == curves.end()) {
                curve = curves.insert(curves.end(), {value.channel, {}});
            }
            curve->points.append(QPoint(i, int(value.value)));
        }
    }
    return curves;
}

FrameValues::Samples FrameValues::all(const Frame &frame)
{
    const auto layout = layoutOf(frame.pixelFormat);
    if (!layout || layout->isYuv() || !FrameRows::isSane(frame, *layout)
        || qint64(frame.width) * frame.height * layout->channels > mostSamples) {
        return {};
    }
    Samples samples{frame.width, frame.height, layout->channels, layout->bits, {}};
    const qsizetype lineSize = qsizetype(frame.width) * layout->channels * (layout->bits > 8 ? 2 : 1);
    samples.bytes = QByteArray(lineSize * frame.height, '\0');
    FrameRows rows(frame, *layout);
    auto *const out = reinterpret_cast<uchar *>(samples.bytes.data());
    for (int y = 0; y < rows.count(); ++y) {
        unpackLine(rows.row(y), rows.pixelsIn(y), *layout, out + lineSize * y);
    }
    return samples;
}

int FrameValues::channels(PixelFormat format)
{
    const auto layout = layoutOf(format);
    return layout && !layout->isYuv() ? layout->channels : 0;
}

quint32 FrameValues::maximum(PixelFormat format)
{
    const auto layout = layoutOf(format);
    return layout ? layout->maximum() : 0;
}

} // namespace Cameras
