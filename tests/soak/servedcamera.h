// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/*! \brief A GigE Vision camera on the loopback interface that sends 30 images a second. It is a program of
 * its own, and can therefore be stopped and killed, and takes nothing of the time of the one that watches it.
 */
class ServedCamera
{
public:
    /*! Serves the camera until the input ends; what the program of its own does. */
    static int serve();

    ServedCamera() = default;
    ~ServedCamera();
    Q_DISABLE_COPY_MOVE(ServedCamera)

    /*! Returns whether the camera could be started. */
    bool start();
    void kill();
    void stop();
    void goOn();

private:
    void signal(int number);

    QProcess m_process;
};
