// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camera.h"

#include "threadbound.h"

#include <platform/genicam/genericexception.h>

#include <QThread>

#include <mutex>
#include <set>

using Cameras::Camera;

namespace {

/*! All that are there, so that those which nobody has closed are closed when Python ends. */
struct Registry
{
    std::mutex mutex;
    std::set<PythonCamera *> cameras;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

} // namespace

PythonCamera::PythonCamera(std::unique_ptr<Camera> camera)
    : m_camera(std::move(camera))
{
    const std::lock_guard lock(registry().mutex);
    registry().cameras.insert(this);
}

PythonCamera::~PythonCamera()
{
    {
        const std::lock_guard lock(registry().mutex);
        registry().cameras.erase(this);
    }
    if (m_camera && m_camera->thread() != QThread::currentThread()) {
        m_camera.release()->deleteLater();
    }
}

QList<PythonCameraInfo> PythonCamera::list()
{
    QList<PythonCameraInfo> found;
    for (const auto &info : Camera::list()) {
        found.append(PythonCameraInfo(info));
    }
    return found;
}

PythonCamera *PythonCamera::openEmbedded()
{
    return new PythonCamera(Camera::openEmbedded());
}

PythonCamera *PythonCamera::openDescription(const QString &fileName, bool zeroed, const QString &registers)
{
    const auto start = zeroed ? Cameras::Start::Zeroed : Cameras::Start::Alive;
    return new PythonCamera(Camera::openDescription(fileName, start, registers));
}

PythonCamera *PythonCamera::openLive(const QString &id)
{
    return new PythonCamera(Camera::openLive(id));
}

const Camera &PythonCamera::camera() const
{
    if (!m_camera) {
        throw GenICam::LogicalErrorException(QStringLiteral("The camera is closed"));
    }
    requireItsThread(*m_camera);
    return *m_camera;
}

PythonCameraInfo PythonCamera::info() const
{
    return PythonCameraInfo(camera().info());
}

QList<PythonNodeMap> PythonCamera::nodeMaps() const
{
    QList<PythonNodeMap> maps;
    for (const Cameras::NodeMap &map : camera().nodeMaps()) {
        maps.append(PythonNodeMap(map.name, PythonCollection(map.collection), map.title, map.usesUtf8));
    }
    return maps;
}

bool PythonCamera::isOpen() const
{
    return m_camera != nullptr;
}

bool PythonCamera::isLost() const
{
    return camera().isLost();
}

bool PythonCamera::isReadOnly() const
{
    return camera().isReadOnly();
}

void PythonCamera::close()
{
    if (m_camera) {
        requireItsThread(*m_camera);
        m_camera.reset();
    }
}

void PythonCamera::closeAll()
{
    const std::lock_guard lock(registry().mutex);
    for (PythonCamera *const camera : registry().cameras) {
        if (camera->m_camera && camera->m_camera->thread() == QThread::currentThread()) {
            camera->close();
        }
    }
}
