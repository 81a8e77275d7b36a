// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "framefile.h"

#include <cameras/frame.h>

#include <QObject>
#include <QString>
#include <QThreadPool>

/*! \brief Keeps the next frames of a stream as files in a new folder, with a table of their numbers and
 * times.
 *
 * Files are written on a thread of their own. When the disk is too slow frames are left out, which is
 * counted, and the table tells.
 */
class FrameRecorder : public QObject
{
    Q_OBJECT

public:
    explicit FrameRecorder(QObject *parent = nullptr);
    ~FrameRecorder() override;

    bool isRecording() const { return m_left > 0 || m_waiting > 0; }
    /*! Begins to record \a count frames as files of \a kind, in a new folder in \a folder. Returns why that
     * failed, empty when it did not. */
    QString start(const QString &folder, int count, FrameFile::Kind kind);
    /*! Returns the folder that is, or was last, recorded to. */
    QString folder() const { return m_folder; }

public Q_SLOTS:
    /*! Records \a frame if it is among those that are wanted. */
    void add(Cameras::FramePointer frame);
    /*! Ends after the frames that are being written. */
    void stop();

Q_SIGNALS:
    /*! \a written frames of \a wanted are on the disk. */
    void progress(int written, int wanted);
    /*! The recording has ended: \a failure says in a sentence why too early, else it is empty. */
    void finished(int written, int leftOut, const QString &failure);

private:
    void write(const Cameras::FramePointer &frame, int number);
    void onWritten(qint64 bytes, const QString &failure);
    void finishIfDone();

    QString m_folder;
    FrameFile::Kind m_kind = FrameFile::Kind::Tiff;
    int m_wanted = 0;
    int m_left = 0; // to come
    int m_waiting = 0; // to be written
    int m_written = 0;
    int m_leftOut = 0;
    qint64 m_waitingBytes = 0;
    QString m_failure;
    QThreadPool m_threads; // the last member, so that its threads end first
};
