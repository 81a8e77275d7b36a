// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

namespace Cameras {

/*! \brief What a simulated camera looks at: stars and steps to focus and to expose by, and patches of colour.
 */
class SimulatedScene
{
public:
    /*! Red, green and blue, 1 where the scene is brightest. */
    using Light = std::array<float, 3>;

    /*! A sensor of that size sees all of the scene. */
    SimulatedScene(qint64 width, qint64 height);

    /*! Returns the light at the pixel \a x, \a y of the sensor; none beyond its borders. */
    Light at(qint64 x, qint64 y) const;

private:
    qint64 m_width;
    qint64 m_height;
};

/*! \brief A pixel of a test pattern. */
struct PatternPlace
{
    qint64 x = 0;
    qint64 y = 0;
    qint64 width = 0; //!< of the image
    qint64 height = 0;
    quint64 number = 0; //!< of the frame
    int colour = -1; //!< 0, 1 or 2 for red, green or blue, -1 for grey
    unsigned maximum = 0; //!< the largest value
};

using Pattern = unsigned (*)(const PatternPlace &);

/*! Returns the values of the test pattern called \a name, null for the scene. */
Pattern patternCalled(const QString &name);

} // namespace Cameras
