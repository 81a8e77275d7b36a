// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pixellayout_p.h"
#include "simulatedscene_p.h"
#include "simulatedsettings_p.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QtGlobal>

#include <atomic>
#include <span>
#include <vector>

namespace Cameras {

/*! \brief Paints the images of a simulated camera: its scene or a test pattern, as its features ask for.
 *
 * The scene is as bright as exposure and gain make it, with the noise of light and of a sensor, and
 * saturates. Marks with the frame's number move over it. A test pattern is exact. Used on one thread, but for
 * cancel().
 */
class SimulatedImage
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::SimulatedImage)

public:
    /*! Paints as \a settings say from now on. Throws Core::Exception::BaseException when they make no image.
     */
    void setUp(const SimulatedSettings &settings);

    /*! Ends what setUp() and paint() are doing, on any thread; what they make is not whole from then on. */
    void cancel() { m_isCancelled = true; }

    /*! Returns the bytes that an image has. */
    qsizetype size() const;
    /*! Paints the frame number \a number into \a bytes, which has size() bytes. */
    void paint(quint64 number, QByteArray &bytes);

private:
    bool hasColours() const;
    size_t valuesPerLine() const;
    void renderScene();
    void renderLine(const SimulatedScene &scene, qint64 y, quint16 *line) const;
    void setUpLight();
    void paintScene(qint64 y, std::span<quint16> line);
    void paintPattern(quint64 number, qint64 y, std::span<quint16> line) const;
    void paintMarks(quint64 number, qint64 y, std::span<quint16> line) const;
    int colourAt(qint64 x, qint64 y) const;

    SimulatedSettings m_settings;
    PixelLayout m_layout;
    Pattern m_pattern = nullptr;
    std::vector<quint16> m_light; //!< of all values, without exposure and gain
    float m_amplification = 1;
    std::vector<int> m_noise; //!< by brightness
    std::vector<quint16> m_line;
    quint32 m_random = 1;
    std::atomic_bool m_isCancelled{false};
};

} // namespace Cameras
