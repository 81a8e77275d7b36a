// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewport.h"

#include <cameras/frame.h>
#include <cameras/frameconversion.h>

#include <QElapsedTimer>
#include <QImage>
#include <QMetaType>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

/*! \brief What a view paints of a frame. */
struct Picture
{
    Cameras::FramePointer frame;
    Viewport viewport; //!< that it is made for
    Cameras::FrameConversion::Look look;
    QImage image; //!< the visible part in device pixels; null when it cannot be shown
};

Q_DECLARE_METATYPE(Picture)

/*! \brief Makes pictures of frames, on a thread of its own and no faster than a screen shows them.
 *
 * A wish that comes while another one is carried out, or too early, waits; the newest does.
 */
class PictureMaker : public QObject
{
    Q_OBJECT

public:
    explicit PictureMaker(QObject *parent = nullptr);
    ~PictureMaker() override;

    /*! Has made() come with what \a wish says of a picture, at most once in \a milliseconds. */
    void want(const Picture &wish, int milliseconds);
    /*! Leaves out what waits, and what is being made. */
    void cancel();

Q_SIGNALS:
    void made(const Picture &picture);

private Q_SLOTS:
    void begin();

private:
    void beginSoon();
    void end(const Picture &picture, quint64 round);

    Picture m_wish;
    bool m_isWaiting = false;
    bool m_isRunning = false;
    quint64 m_round = 0; // counts what was cancelled
    int m_interval = 0;
    QElapsedTimer m_sinceBegin;
    QTimer m_timer;
    Cameras::FrameConversion m_conversion; // the thread's alone
    QThreadPool m_threads; // the last member, so that its threads end first
};
