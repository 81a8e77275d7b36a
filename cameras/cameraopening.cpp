// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameraopening.h"

#include "camerafactory_p.h"
#include "session_p.h"

#include <QTimer>

#include <exception>
#include <utility>

namespace Cameras {

CameraOpening::CameraOpening(const QString &name, std::shared_ptr<Session> session)
    : m_name(name)
    , m_session(std::move(session))
    , m_patience(new QTimer(this))
{
    m_patience->setSingleShot(true);
    m_patience->setInterval(Session::openTime);
    connect(m_patience, SIGNAL(timeout()), this, SLOT(giveUp()));
    m_patience->start();
    m_session->setOpeningListener(this);
}

CameraOpening::~CameraOpening()
{
    cancel();
}

OpeningProgress CameraOpening::progress() const
{
    return m_progress;
}

std::unique_ptr<Camera> CameraOpening::takeCamera()
{
    return std::move(m_camera);
}

void CameraOpening::cancel()
{
    m_patience->stop();
    m_camera.reset();
    if (const auto session = std::exchange(m_session, nullptr)) {
        session->setOpeningListener(nullptr);
        session->close();
    }
}

void CameraOpening::update()
{
    if (!m_session) {
        return;
    }
    const Session::Opening opening = m_session->opening();
    if (!opening.failure.isEmpty()) {
        fail(opening.failure);
        return;
    }
    if (opening.isOpen) {
        m_patience->stop();
        m_session->setOpeningListener(nullptr);
        m_camera = CameraFactory::camera(std::exchange(m_session, nullptr));
        emit opened();
        return;
    }
    m_progress = opening.progress;
    if (m_progress.step == OpeningProgress::Step::Waiting) {
        m_patience->stop(); // others may take as long as they need
    } else {
        m_patience->start();
    }
    emit progressed();
}

void CameraOpening::giveUp()
{
    fail(Session::noAnswerInTime());
}

void CameraOpening::fail(const QString &reason)
{
    cancel();
    emit failed(Camera::tr("Cannot open %1: %2").arg(m_name, reason));
}

} // namespace Cameras
