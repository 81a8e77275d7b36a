// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A frame as a camera, or what stands between it and us, could garble it: the first bytes choose format,
// sizes and what is shown of it, the rest is its bytes. The parts of one image agree with each other.

#include "target.h"

#include <cameras/frameconversion.h>
#include <cameras/framestatistics.h>
#include <cameras/framevalues.h>

#include <QtEndian>

#include <algorithm>

using namespace Cameras;

namespace {

constexpr int headerSize = 20;
constexpr int largeShift = 14;

int number(const QByteArray &input, int place)
{
    return qFromLittleEndian<quint16>(input.constData() + place);
}

PixelFormat formatAt(int index)
{
    const QList<PixelFormat> formats = knownPixelFormats();
    return index < formats.size() ? formats.at(index) : PixelFormat{quint32(index) * 0x01010101U};
}

Frame frameOf(const QByteArray &input)
{
    const int flags = uchar(input.at(1));
    Frame frame;
    frame.pixelFormat = formatAt(uchar(input.at(0)));
    frame.width = number(input, 2) << (flags & 1 ? largeShift : 0);
    frame.height = number(input, 4) << (flags & 2 ? largeShift : 0);
    frame.stride = flags & 4 ? 0 : qsizetype(number(input, 6)) << (flags & 8 ? largeShift : 0);
    frame.bytes = input.mid(headerSize);
    return frame;
}

// What is under the cursor is what is saved.
void checkSamples(const Frame &frame)
{
    if (qint64(frame.width) * frame.height > (1 << 20)) {
        return; // legal, and slow
    }
    const FrameValues::Samples samples = FrameValues::all(frame);
    if (samples.channels != 1) {
        return;
    }
    const auto *const bytes = reinterpret_cast<const uchar *>(samples.bytes.constData());
    for (const QPoint &place : {QPoint(0, 0), QPoint(frame.width - 1, frame.height - 1)}) {
        const QList<FrameValues::Value> values = FrameValues::at(frame, place);
        const qsizetype index = qsizetype(frame.width) * place.y() + place.x();
        const quint32 sample =
            samples.bits > 8 ? qFromLittleEndian<quint16>(bytes + 2 * index) : bytes[index];
        Fuzz::require(values.isEmpty() ? sample == 0 : values.constFirst().value == sample,
                      "a value is saved as it is shown");
    }
}

void prepare() { }

void run(const QByteArray &input)
{
    if (input.size() < headerSize) {
        return;
    }
    const Frame frame = frameOf(input);
    const QRect part(number(input, 8) - 8, number(input, 10) - 8, number(input, 12), number(input, 14));
    const QSize size(number(input, 16) % 100, number(input, 18) % 100);
    FrameConversion conversion;
    const FrameConversion::Look look{1.5, 0.1, 0.9, (input.at(1) & 16) != 0};
    conversion.setLook(look);
    const QImage image = conversion.image(frame, part, size);
    Fuzz::require(image.isNull() || image.size() == size, "an image has the size that was asked for");
    const Histogram histogram = histogramOf(frame);
    Fuzz::require(histogram.black + histogram.saturated <= histogram.values, "extremes are among the values");
    Fuzz::require(histogram.values <= quint64(frame.bytes.size()) * 2, "only what has come is counted");
    statisticsOf(frame, part);
    FrameValues::along(frame, QLine(part.topLeft(), part.topLeft() + QPoint(number(input, 12) % 200, 3)));
    checkSamples(frame);
}

const Fuzz::Target target("frameconversion", prepare, run);

} // namespace
