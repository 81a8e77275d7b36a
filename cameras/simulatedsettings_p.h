// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pixelformat.h"

#include <QString>
#include <QtGlobal>

#include <array>
#include <memory>

namespace Cameras {

class Description;
class Engine;
class SimulatedRegisters;

/*! \brief What the features of a simulated camera say about its images. */
struct SimulatedSettings
{
    qint64 sensorWidth = 0;
    qint64 sensorHeight = 0;
    qint64 width = 0;
    qint64 height = 0;
    qint64 offsetX = 0;
    qint64 offsetY = 0;
    int binningX = 1;
    int binningY = 1;
    int summed = 1; //!< how many pixels of the sensor add up in one of the image
    int decimationX = 1;
    int decimationY = 1;
    bool isReversedX = false;
    bool isReversedY = false;
    QString formatName;
    PixelFormat format;
    QString pattern; //!< by its standard name, "Off" for the scene
    double exposure = 0; //!< seconds
    double gain = 1; //!< factor
    std::array<double, 3> balance{1, 1, 1}; //!< factors of red, green and blue
    double blackLevel = 0; //!< in steps of the values
    double interval = 0; //!< seconds from one frame to the next
    bool isFrameTriggered = false; //!< each frame waits for a trigger
    bool isBurstTriggered = false; //!< each burst of frames does
    bool isBurstSelected = false; //!< a trigger by software is meant for bursts
    bool isSoftwareSource = true; //!< a trigger by software is listened to
    double triggerDelay = 0; //!< seconds
    qint64 burstFrames = 1;
    qint64 frames = -1; //!< after which the camera stops, less than 0 where it goes on
};

/*! Reads \a engine's features as far as they have standard names. What a selector hides is looked up and left
 * as it was. */
SimulatedSettings readSettings(Engine &engine, const Description &description, SimulatedRegisters &registers);

/*! Returns how many frames the camera sends before it stops by itself, less than 0 where it goes on. */
qint64 framesAskedFor(Engine &engine, const Description &description);

} // namespace Cameras
