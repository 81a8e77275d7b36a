// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <cameras/frameconversion.h>
#include <cameras/framestatistics.h>

#include <QImage>
#include <QString>

namespace {

using namespace Cameras;

constexpr QSize twoMegapixels(1920, 1080);
constexpr QSize twentyMegapixels(5472, 3648);
constexpr QSize pane(800, 600);

// A picture with some structure: neither flat, which caches like, nor noise alone.
Frame frameOf(const char *format, const QSize &size)
{
    Frame frame;
    frame.width = size.width();
    frame.height = size.height();
    frame.pixelFormat = pixelFormat(QString::fromLatin1(format));
    const int bits = bitsPerPixel(frame.pixelFormat);
    frame.stride = (size.width() * bits + 7) / 8;
    frame.bytes.resize(frame.stride * size.height());
    quint32 noise = 1;
    for (qsizetype i = 0; i < frame.bytes.size(); ++i) {
        noise = noise * 1664525 + 1013904223;
        const bool isHigh = bits == 16 && i % 2 == 1;
        frame.bytes[i] = isHigh ? char((i / 4096) & 0x0f) : char(noise >> 24);
    }
    return frame;
}

QSize fitted(const QSize &size)
{
    return size.scaled(pane, Qt::KeepAspectRatio);
}

// What is painted of a large frame, beside the same of a small one.
void fitLargeBayer(benchmark::State &state, const char *format)
{
    const Frame large = frameOf(format, twentyMegapixels);
    const Frame small = frameOf(format, twoMegapixels);
    FrameConversion conversion;
    Figure figure(state);
    const auto paint = [&conversion](const Frame &frame) {
        const QRect all(0, 0, frame.width, frame.height);
        benchmark::DoNotOptimize(conversion.image(frame, all, fitted(all.size())).constBits());
    };
    paint(small);
    for (auto _ : state) {
        figure.ours([&] { paint(large); });
        figure.baseline("small", [&] { paint(small); });
    }
    figure.wantAtMost(6.0);
    // The panes are the same; the two fill them to 800 x 533 and 800 x 450.
    figure.wantShareOf("small", 1.5);
}
BENCHMARK_CAPTURE(fitLargeBayer, words, "BayerRG12")
    ->Iterations(40)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fitLargeBayer, dense, "BayerRG12p")
    ->Iterations(40)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A million pixels of a large frame, each as large as one of the screen.
void paintPixelByPixel(benchmark::State &state, const char *format)
{
    const Frame frame = frameOf(format, twentyMegapixels);
    FrameConversion conversion;
    Figure figure(state);
    const QRect part(1201, 903, 1000, 1000);
    for (auto _ : state) {
        figure.ours(
            [&] { benchmark::DoNotOptimize(conversion.image(frame, part, part.size()).constBits()); });
    }
    figure.wantAtMost(4.0);
}
BENCHMARK_CAPTURE(paintPixelByPixel, bayer, "BayerRG12")
    ->Iterations(40)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintPixelByPixel, bayerDense, "BayerRG12p")
    ->Iterations(40)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintPixelByPixel, mono, "Mono12Packed")
    ->Iterations(40)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// All pixels. Five times a second they may take 15 % of a core.
void countLargeFrame(benchmark::State &state, const char *format)
{
    const Frame frame = frameOf(format, twentyMegapixels);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { benchmark::DoNotOptimize(histogramOf(frame).values); });
    }
    figure.wantAtMost(30.0);
}
BENCHMARK_CAPTURE(countLargeFrame, words, "BayerRG12")
    ->Iterations(10)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLargeFrame, dense, "BayerRG12p")
    ->Iterations(10)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
