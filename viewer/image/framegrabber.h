// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frame.h>
#include <cameras/stream.h>

#include <QObject>
#include <QString>

/*! \brief Waits for images of a camera, for a program without a window. */
class FrameGrabber : public QObject
{
    Q_OBJECT

public:
    /*! Starts \a stream, which has to outlive this object. */
    explicit FrameGrabber(Cameras::Stream *stream);
    /*! Stops the stream. */
    ~FrameGrabber() override;

    /*! Returns the next complete frame; null when none came within \a milliseconds, the stream has ended or
     * interrupt() was called. */
    Cameras::FramePointer next(int milliseconds);
    /*! Takes frames for \a milliseconds. Returns what came of that. */
    Cameras::StreamStatistics watch(int milliseconds);
    /*! Returns why the stream has ended, empty when it has not. */
    QString failure() const { return m_failure; }

public Q_SLOTS:
    void interrupt();

Q_SIGNALS:
    void woken();

private Q_SLOTS:
    void take();
    void onStopped(const QString &reason);

private:
    Cameras::Stream *m_stream;
    Cameras::FramePointer m_frame;
    QString m_failure;
    bool m_hasEnded = false;
};
