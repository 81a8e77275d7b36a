// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameraaddress.h"

#include <cameras/camera.h>
#include <cameras/cameraopening.h>

#include <QFileInfo>

namespace {

// A saved state shall not be mixed with one that was made up.
Cameras::Start startOf(const CameraAddress &address)
{
    return address.zeroed || !address.registers.isEmpty() ? Cameras::Start::Zeroed : Cameras::Start::Alive;
}

} // namespace

QStringList CameraAddress::arguments() const
{
    QStringList arguments;
    const auto add = [&arguments](const char *option, const QString &value) {
        if (!value.isEmpty()) {
            arguments.append({QLatin1String("--") + QLatin1String(option), value});
        }
    };
    add("description", description.isEmpty() ? QString() : QFileInfo(description).absoluteFilePath());
    add("camera", camera);
    add("registers", registers.isEmpty() ? QString() : QFileInfo(registers).absoluteFilePath());
    if (zeroed) {
        arguments.append(QStringLiteral("--zeroed"));
    }
    return arguments;
}

std::unique_ptr<Cameras::Camera> cameraAt(const CameraAddress &address)
{
    if (!address.description.isEmpty()) {
        return Cameras::Camera::openDescription(address.description, startOf(address), address.registers);
    }
    return address.isLive() ? Cameras::Camera::openLive(address.camera) : Cameras::Camera::openEmbedded();
}

std::unique_ptr<Cameras::CameraOpening> openingAt(const CameraAddress &address)
{
    if (!address.description.isEmpty()) {
        return Cameras::Camera::openDescriptionAsync(address.description, startOf(address),
                                                     address.registers);
    }
    return address.isLive() ? Cameras::Camera::openLiveAsync(address.camera)
                            : Cameras::Camera::openEmbeddedAsync();
}
