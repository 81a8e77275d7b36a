// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camera.h>
#include <cameras/cameras_export.h>

#include <QObject>
#include <QString>

#include <memory>

class QTimer;

namespace Cameras {

class Session;

/*! \brief How far the opening of a camera has come. */
struct OpeningProgress
{
    /*! \brief What is being done. */
    enum class Step {
        Waiting, //!< until the engine has ended with another camera, or the camera was given back
        Connecting,
        Describing, //!< the description is fetched and read
        Reading, //!< all features, one after the other
    };

    Step step = Step::Connecting; //!< what is being done now
    int done = 0; //!< features that are read
    int total = 0; //!< features there are, 0 while that is not known
};

/*! \brief A camera that is being opened while its thread goes on.
 *
 * Camera::openLiveAsync() and its like make one; it ends with opened() or failed(), or silently with cancel()
 * or its destruction, both of which return at once whatever the camera does. Cancelling leaves nothing
 * behind: what has been reached by then is given back in the background.
 */
class ZELTO_CAMERAS_EXPORT CameraOpening : public QObject
{
    Q_OBJECT

public:
    ~CameraOpening() override;

    /*! Returns how far it has come. */
    OpeningProgress progress() const;
    /*! Returns the open camera, once; null before opened() was sent. It belongs to the thread of this
     * object. */
    std::unique_ptr<Camera> takeCamera();

public Q_SLOTS:
    /*! Ends the opening. No signal is sent from then on. */
    void cancel();

Q_SIGNALS:
    /*! progress() has changed. */
    void progressed();
    /*! The camera is open; takeCamera() hands it over. */
    void opened();
    /*! The camera cannot be opened, for \a reason in one line that names it. */
    void failed(const QString &reason);

private Q_SLOTS:
    void update();
    void giveUp();

private:
    friend class Camera;

    CameraOpening(const QString &name, std::shared_ptr<Session> session);

    void fail(const QString &reason);

    QString m_name;
    std::shared_ptr<Session> m_session; // null when it has ended
    std::unique_ptr<Camera> m_camera;
    OpeningProgress m_progress;
    QTimer *m_patience;
};

} // namespace Cameras
