// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedscene_p.h"

#include <QHash>

#include <cmath>
#include <numbers>

namespace Cameras {

namespace {

using Light = SimulatedScene::Light;

constexpr qint64 tile = 480; // pixels of the sensor, so that every region shows something
constexpr float bright = 0.9F;
constexpr float dark = 0.06F;

constexpr Light grey(float brightness)
{
    return {brightness, brightness, brightness};
}

// The closer to its centre, the finer: where its spokes run into each other tells how sharp the image is.
Light star(float x, float y)
{
    constexpr float radius = tile * 0.42F;
    constexpr int spokes = 36;
    const float distance = std::hypot(x, y);
    if (distance > radius) {
        return grey(0.45F);
    }
    const float turn = std::atan2(y, x) / (2 * std::numbers::pi_v<float>);
    return grey(std::fmod((turn + 1) * spokes, 1.0F) < 0.5F ? bright : dark);
}

Light steps(qint64 x, qint64 y)
{
    constexpr qint64 count = 8;
    const qint64 step = x * count / tile;
    return grey(y < tile / 2 ? float(step + 1) / count : float(count - step) / count);
}

Light patches(qint64 x, qint64 y)
{
    static constexpr std::array<Light, 9> colours{
        Light{0.8F, 0.1F, 0.1F},  Light{0.1F, 0.7F, 0.15F},  Light{0.1F, 0.2F, 0.8F},
        Light{0.8F, 0.75F, 0.1F}, Light{0.75F, 0.15F, 0.7F}, Light{0.1F, 0.7F, 0.75F},
        Light{0.7F, 0.4F, 0.2F},  Light{0.9F, 0.65F, 0.55F}, grey(0.9F)};
    return colours[size_t(y * 3 / tile * 3 + x * 3 / tile)];
}

Light squares(qint64 x, qint64 y)
{
    constexpr qint64 size = tile / 12;
    return grey((x / size + y / size) % 2 == 0 ? bright : dark);
}

Light inTile(qint64 kind, qint64 x, qint64 y)
{
    switch (kind) {
    case 0:
        return star(float(x) - tile / 2.0F, float(y) - tile / 2.0F);
    case 1:
        return steps(x, y);
    case 2:
        return patches(x, y);
    default:
        return squares(x, y);
    }
}

unsigned ramp(qint64 place, qint64 length, unsigned maximum)
{
    return length < 2 ? 0 : unsigned(quint64(place % length) * maximum / quint64(length - 1));
}

qint64 moved(const PatternPlace &place, qint64 length)
{
    return qint64(place.number % quint64(length));
}

// From white to black, each the next in brightness.
unsigned bar(const PatternPlace &place)
{
    static constexpr std::array<std::array<unsigned, 3>, 8> bars{
        {{1, 1, 1}, {1, 1, 0}, {0, 1, 1}, {0, 1, 0}, {1, 0, 1}, {1, 0, 0}, {0, 0, 1}, {0, 0, 0}}};
    const auto index = size_t(place.x * qint64(bars.size()) / place.width);
    return place.colour < 0 ? place.maximum - place.maximum * unsigned(index) / unsigned(bars.size() - 1)
                            : place.maximum * bars[index][size_t(place.colour)];
}

// Those of the makers look like this one.
unsigned diagonal(const PatternPlace &place)
{
    return ramp(place.x + place.y + moved(place, place.width), place.width, place.maximum);
}

} // namespace

SimulatedScene::SimulatedScene(qint64 width, qint64 height)
    : m_width(width)
    , m_height(height)
{
}

Light SimulatedScene::at(qint64 x, qint64 y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return {};
    }
    Light light = inTile((x / tile + y / tile * 3) % 4, x % tile, y % tile);
    // Lenses are darker towards the corners.
    const float fromCentreX = float(2 * x - m_width) / float(m_width);
    const float fromCentreY = float(2 * y - m_height) / float(m_height);
    const float shade = 1 - 0.15F * (fromCentreX * fromCentreX + fromCentreY * fromCentreY);
    for (float &colour : light) {
        colour *= shade;
    }
    return light;
}

Pattern patternCalled(const QString &name)
{
    using Place = const PatternPlace &;
    static const QHash<QString, Pattern> patterns{
        {QStringLiteral("Off"), nullptr},
        {QStringLiteral("Black"), [](Place) { return 0U; }},
        {QStringLiteral("FrameCounter"), [](Place) { return 0U; }},
        {QStringLiteral("White"), [](Place place) { return place.maximum; }},
        {QStringLiteral("GreyHorizontalRamp"),
         [](Place place) { return ramp(place.x, place.width, place.maximum); }},
        {QStringLiteral("GreyVerticalRamp"),
         [](Place place) { return ramp(place.y, place.height, place.maximum); }},
        {QStringLiteral("GreyHorizontalRampMoving"),
         [](Place place) { return ramp(place.x + moved(place, place.width), place.width, place.maximum); }},
        {QStringLiteral("GreyVerticalRampMoving"),
         [](Place place) { return ramp(place.y + moved(place, place.height), place.height, place.maximum); }},
        {QStringLiteral("HorizontalLineMoving"),
         [](Place place) { return place.y == moved(place, place.height) ? place.maximum : 0U; }},
        {QStringLiteral("VerticalLineMoving"),
         [](Place place) { return place.x == moved(place, place.width) ? place.maximum : 0U; }},
        {QStringLiteral("ColorBar"), bar},
    };
    return patterns.value(name, diagonal);
}

} // namespace Cameras
