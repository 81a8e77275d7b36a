// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>
#include <cameras/frame.h>

#include <QObject>
#include <QString>

#include <memory>

namespace Cameras {

class Camera;
class FrameMailbox;
class Session;

/*! \brief What came of a stream since it was started. */
struct StreamStatistics
{
    double framesPerSecond = 0; //!< of the last seconds
    quint64 complete = 0; //!< frames
    quint64 incomplete = 0; //!< frames that lack packets
    quint64 dropped = 0; //!< came too fast for the reader, or not at all
    double bytesPerSecond = 0; //!< of the last seconds
};

/*! \brief The images of an open camera.
 *
 * Belongs to the thread that opened the camera. One frame waits here, the newest: a reader who is too slow
 * for the camera misses some, which are counted, and never falls behind. Frames stay what they are however
 * long they are kept.
 *
 * While it runs the camera is told so with TLParamsLocked, and its features for the format are locked. A
 * stream ends with stop(), with the camera, or by itself where the camera sends a limited number of images.
 */
class ZELTO_CAMERAS_EXPORT Stream : public QObject
{
    Q_OBJECT

public:
    ~Stream() override;

    /*! Returns whether start() was called, and neither stop() since then nor has it ended otherwise. */
    bool isRunning() const;
    /*! Returns what came since it was started. Once it has ended this no longer changes. */
    StreamStatistics statistics() const;
    /*! Returns the newest frame that was not taken yet, null when there is none; older ones count as
     * dropped. */
    FramePointer takeNewest();

public Q_SLOTS:
    /*! Has the camera send images. Returns at once; started() or stopped() tells what came of it. */
    void start();
    /*! Ends that. Returns at once; no frame comes from then on, and stopped() tells when the camera has
     * ended. */
    void stop();

Q_SIGNALS:
    /*! The camera sends images. */
    void started();
    /*! There is a frame. Not sent again until takeNewest() was called. */
    void frameArrived();
    /*! The stream has ended: \a reason is empty after stop(), else it says in a sentence what ended it. A
     * camera that is lost tells so itself as well, with the same reason. */
    void stopped(const QString &reason);

private Q_SLOTS:
    void reportStart(quint64 run);
    void reportFrame(quint64 run);
    void reportStop(quint64 run, const QString &reason);

private:
    friend class Camera;

    explicit Stream(std::shared_ptr<Session> session);

    std::shared_ptr<Session> m_session;
    std::shared_ptr<FrameMailbox> m_mailbox;
    quint64 m_run = 0; //!< counts the starts
    bool m_isRunning = false;
};

} // namespace Cameras
