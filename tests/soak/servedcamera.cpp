// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "servedcamera.h"

#include <cameras/aravis_p.h>

#include <QCoreApplication>
#include <QTest>
#include <QTextStream>

#include <csignal>

namespace {

constexpr quint32 framePeriod = 33333; // microseconds

} // namespace

int ServedCamera::serve()
{
    ArvGvFakeCamera *const server = arv_gv_fake_camera_new("127.0.0.1", "ZSERVED");
    if (!server || !arv_gv_fake_camera_is_running(server)) {
        return 1;
    }
    arv_fake_camera_write_register(arv_gv_fake_camera_get_fake_camera(server),
                                   ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US, framePeriod);
    QTextStream(stdout) << "ready" << Qt::endl;
    QTextStream(stdin).readLine();
    return 0;
}

ServedCamera::~ServedCamera()
{
    m_process.kill();
    m_process.waitForFinished();
}

// Events are served meanwhile: a wait for the process would count as a block of the window.
bool ServedCamera::start()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--serve")});
    return QTest::qWaitFor([this] { return m_process.bytesAvailable() > 0; }, 10000);
}

void ServedCamera::kill()
{
    m_process.kill();
    (void)QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, 10000);
}

void ServedCamera::stop()
{
    signal(SIGSTOP);
}

void ServedCamera::goOn()
{
    signal(SIGCONT);
}

void ServedCamera::signal(int number)
{
    if (m_process.state() == QProcess::Running) {
        ::kill(static_cast<pid_t>(m_process.processId()), number);
    }
}
