// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frame.h>

#include <QObject>
#include <QPointer>
#include <QString>

namespace Cameras {
class Camera;
class Stream;
} // namespace Cameras

/*! \brief Starts and stops the images of the open camera, and hands them on.
 *
 * Knows whether a loss of the camera has ended them, so that they can be started again afterwards.
 */
class StreamControl : public QObject
{
    Q_OBJECT

public:
    explicit StreamControl(QObject *parent = nullptr);
    ~StreamControl() override;

    /*! Names the open camera, null when none is; what went before is forgotten. */
    void setCamera(Cameras::Camera *camera);
    Cameras::Camera *camera() const;
    /*! Returns whether the open camera can deliver images now. */
    bool isPossible() const;
    bool isRunning() const;
    /*! Returns whether images stopped for a moment only. */
    bool isPaused() const { return m_isPaused; }
    /*! Returns whether images were coming when the camera was lost. */
    bool wasInterrupted() const { return m_wasInterrupted; }
    /*! Returns frames per second and what was lost, for people; empty before the first start. */
    QString summary() const;

public Q_SLOTS:
    void start();
    void stop();
    /*! Starts when stopped, else stops. */
    void toggle();
    /*! Has one image come. */
    void takeOne();
    /*! Stops until resume(), if it is running. */
    void pause();
    void resume();

Q_SIGNALS:
    void frameArrived(Cameras::FramePointer frame);
    /*! What isRunning() and isPossible() return may have changed. */
    void stateChanged();
    /*! Images stopped for \a reason, a sentence, although the camera is there. */
    void failed(const QString &reason);

private Q_SLOTS:
    void takeFrame();
    void onStopped(const QString &reason);

private:
    void halt();

    QPointer<Cameras::Camera> m_camera;
    QPointer<Cameras::Stream> m_stream;
    bool m_wantsOne = false;
    bool m_isPaused = false;
    bool m_wasInterrupted = false;
    bool m_hasStarted = false;
};
