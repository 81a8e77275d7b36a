// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedimage_p.h"

#include "pixelpacking_p.h"
#include "receivedframe_p.h"

#include <platform/core/exception.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <tuple>

using Core::Exception::BaseException;

namespace Cameras {

namespace {

constexpr qint64 mostPixels = 100'000'000;
constexpr double fullExposure = 0.02; // seconds, after which the brightest places are saturated
constexpr float lightSteps = 16384; // of the brightest place, which leaves room for the balance of colours
constexpr int levels = 65536; // of the sensor
constexpr int mostLevel = 4 * levels - 1; // a pixel that far beyond saturation shows no noise
constexpr int noiseShift = 6; // levels that share an entry of the table of noise
constexpr double fullWell = 10000; // electrons
constexpr double readNoise = 6; // electrons
constexpr size_t noiseCount = 65536;
constexpr int noiseScale = 1024;
constexpr double mostNoise = 8.0 * noiseScale; // its product with any noise is an int
// How much of each colour passes the filters.
constexpr std::array<float, 3> filters{0.6F, 1.0F, 0.5F};

// A value of normal distribution for each pixel would cost more than all the rest.
const std::vector<qint16> &noiseTable()
{
    static const std::vector<qint16> table = [] {
        std::mt19937 generator(1);
        std::normal_distribution<double> distribution(0, noiseScale);
        std::vector<qint16> values(noiseCount);
        for (qint16 &value : values) {
            value = qint16(std::clamp(distribution(generator), -mostNoise, mostNoise));
        }
        return values;
    }();
    return table;
}

bool hasSameScene(const SimulatedSettings &one, const SimulatedSettings &other)
{
    const auto shape = [](const SimulatedSettings &of) {
        return std::tie(of.sensorWidth, of.sensorHeight, of.width, of.height, of.offsetX, of.offsetY,
                        of.binningX, of.binningY, of.decimationX, of.decimationY, of.isReversedX,
                        of.isReversedY, of.format.code, of.balance);
    };
    return shape(one) == shape(other);
}

// The digits of a frame's number, five lines of three pixels each.
constexpr std::array<quint16, 10> digits{075557, 022222, 071747, 071717, 055711,
                                         074717, 074757, 071111, 075757, 075717};
constexpr qint64 digitWidth = 4; // with the gap
constexpr qint64 plateHeight = 7;

bool isDigitLit(const QByteArray &text, qint64 x, qint64 y)
{
    const qint64 index = (x - 1) / digitWidth;
    const qint64 column = (x - 1) % digitWidth;
    if (x < 1 || index >= text.size() || column > 2 || y < 1 || y > 5) {
        return false;
    }
    const quint16 digit = digits[size_t(text.at(index) - '0')];
    return digit >> ((5 - y) * 3 + 2 - column) & 1;
}

} // namespace

bool SimulatedImage::hasColours() const
{
    return m_layout.isYuv() || m_layout.colour == PixelLayout::Colour::Rgb;
}

size_t SimulatedImage::valuesPerLine() const
{
    return size_t(m_settings.width) * (hasColours() ? 3 : 1);
}

qsizetype SimulatedImage::size() const
{
    return qsizetype(ReceivedFrame::sizeOf(m_settings.width, m_settings.height, m_settings.format));
}

void SimulatedImage::setUp(const SimulatedSettings &settings)
{
    const auto layout = layoutOf(settings.format);
    if (!layout) {
        throw BaseException(
            tr("The simulated camera makes no images in the pixel format %1.").arg(settings.formatName));
    }
    if (settings.width <= 0 || settings.height <= 0 || settings.width > mostPixels
        || settings.height > mostPixels / settings.width) {
        throw BaseException(tr("The simulated camera makes no images of %1 x %2 pixels.")
                                .arg(settings.width)
                                .arg(settings.height));
    }
    const bool isSceneKept = !m_light.empty() && hasSameScene(settings, m_settings);
    m_settings = settings;
    m_layout = *layout;
    m_pattern = patternCalled(settings.pattern);
    m_line.resize(valuesPerLine());
    if (m_pattern) {
        m_light = {};
    } else if (!isSceneKept) {
        renderScene();
    }
    setUpLight();
}

void SimulatedImage::renderScene()
{
    const SimulatedScene scene(m_settings.sensorWidth, m_settings.sensorHeight);
    m_light.resize(valuesPerLine() * size_t(m_settings.height));
    for (qint64 y = 0; y < m_settings.height && !m_isCancelled; ++y) {
        renderLine(scene, y, m_light.data() + valuesPerLine() * size_t(y));
    }
}

// The part of the sensor's pixels that is read out is set in binned and decimated ones.
void SimulatedImage::renderLine(const SimulatedScene &scene, qint64 y, quint16 *line) const
{
    const SimulatedSettings &settings = m_settings;
    const qint64 row = settings.offsetY + (settings.isReversedY ? settings.height - 1 - y : y);
    const qint64 sensorY = row * settings.binningY * settings.decimationY;
    for (qint64 x = 0; x < settings.width; ++x) {
        const qint64 column = settings.offsetX + (settings.isReversedX ? settings.width - 1 - x : x);
        const auto light = scene.at(column * settings.binningX * settings.decimationX, sensorY);
        const auto filtered = [&](int colour) {
            const auto place = size_t(colour);
            return quint16(std::min(
                light[place] * filters[place] * float(settings.balance[place]) * lightSteps, 65535.0F));
        };
        if (hasColours()) {
            line = std::generate_n(line, 3, [&, colour = 0]() mutable { return filtered(colour++); });
        } else if (m_layout.colour == PixelLayout::Colour::Bayer) {
            *line++ = filtered(colourAt(x, y));
        } else {
            *line++ = quint16((light[0] * 0.3F + light[1] * 0.6F + light[2] * 0.1F) * lightSteps);
        }
    }
}

int SimulatedImage::colourAt(qint64 x, qint64 y) const
{
    return m_layout.order[size_t((y & 1) * 2 + (x & 1))];
}

void SimulatedImage::setUpLight()
{
    const double gathered = double(m_settings.binningX) * m_settings.binningY; // pixels of the sensor
    const double perElectron = m_settings.gain * m_settings.summed / gathered; // of the full well
    m_amplification =
        float(levels / lightSteps * m_settings.exposure / fullExposure * m_settings.gain * m_settings.summed);
    m_noise.resize((mostLevel >> noiseShift) + 1);
    for (size_t i = 0; i < m_noise.size(); ++i) {
        const double level = double(i << noiseShift) / levels;
        const double electrons = level * fullWell / std::max(perElectron, 1e-9);
        const double noise = perElectron * std::sqrt(electrons + gathered * readNoise * readNoise) / fullWell;
        m_noise[i] = int(std::min(noise, 1.0) * levels);
    }
    m_noise.back() = 0;
}

void SimulatedImage::paint(quint64 number, QByteArray &bytes)
{
    PixelPacking packing(m_layout, reinterpret_cast<uchar *>(bytes.data()));
    for (qint64 y = 0; y < m_settings.height && !m_isCancelled; ++y) {
        if (m_pattern) {
            paintPattern(number, y, m_line);
        } else {
            paintScene(y, m_line);
        }
        if (!m_pattern || m_settings.pattern == QLatin1String("FrameCounter")) {
            paintMarks(number, y, m_line);
        }
        packing.write(m_line);
    }
    packing.finish();
}

void SimulatedImage::paintScene(qint64 y, std::span<quint16> line)
{
    const quint16 *const light = m_light.data() + line.size() * size_t(y);
    const qint16 *const normal = noiseTable().data();
    const int *const noise = m_noise.data();
    const float amplification = m_amplification;
    const int shift = 16 - m_layout.bits;
    const int black = int(std::lround(std::clamp(m_settings.blackLevel, -65535.0, 65535.0)));
    const int maximum = int(m_layout.maximum());
    m_random = m_random * 1664525 + 1013904223;
    const size_t start = m_random >> 16;
    for (size_t i = 0; i < line.size(); ++i) {
        const int level = int(std::min(float(light[i]) * amplification, float(mostLevel)));
        const int deviation =
            normal[(start + i) & (noiseCount - 1)] * noise[level >> noiseShift] / noiseScale;
        line[i] = quint16(std::clamp(((level + deviation) >> shift) + black, 0, maximum));
    }
}

void SimulatedImage::paintPattern(quint64 number, qint64 y, std::span<quint16> line) const
{
    PatternPlace place{0, y, m_settings.width, m_settings.height, number, -1, m_layout.maximum()};
    const int colours = hasColours() ? 3 : 1;
    for (size_t i = 0; i < line.size(); ++i) {
        place.x = qint64(i) / colours;
        if (hasColours()) {
            place.colour = int(i) % colours;
        } else if (m_layout.colour == PixelLayout::Colour::Bayer) {
            place.colour = colourAt(place.x, y);
        }
        line[i] = quint16(m_pattern(place));
    }
}

// A bar that sweeps, and a plate that carries the number.
void SimulatedImage::paintMarks(quint64 number, qint64 y, std::span<quint16> line) const
{
    const qint64 width = m_settings.width;
    const qint64 scale = std::clamp<qint64>(std::min(width, m_settings.height) / 160, 1, 16);
    const size_t colours = hasColours() ? 3 : 1;
    const auto fill = [&](qint64 x, quint16 value) {
        if (x >= 0 && x < width) {
            std::fill_n(line.begin() + qptrdiff(size_t(x) * colours), colours, value);
        }
    };
    const auto white = quint16(m_layout.maximum());
    const auto bar = qint64(number * 4 * quint64(scale) % quint64(width));
    for (qint64 x = bar; x < bar + scale; ++x) {
        fill(x, white);
    }
    const QByteArray text = QByteArray::number(number);
    const qint64 plateWidth = (text.size() * digitWidth + 1) * scale;
    const qint64 row = y - m_settings.height / 16;
    if (plateWidth > width || row < 0 || row >= plateHeight * scale) {
        return;
    }
    const auto left = qint64(number * quint64(scale) % quint64(width - plateWidth + 1));
    for (qint64 x = 0; x < plateWidth; ++x) {
        fill(left + x, isDigitLit(text, x / scale, row / scale) ? white : quint16(0));
    }
}

} // namespace Cameras
