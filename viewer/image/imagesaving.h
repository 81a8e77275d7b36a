// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frame.h>
#include <cameras/frameconversion.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QThreadPool>

class FrameRecorder;
class QAction;
class QWidget;

/*! \brief Saves the shown frame to files, and records the next ones. */
class ImageSaving : public QObject
{
    Q_OBJECT

public:
    /*! Dialogs belong to \a window. */
    explicit ImageSaving(QWidget *window);
    ~ImageSaving() override;

    /*! Returns Save Image and Record. */
    QList<QAction *> actions() const { return {m_save, m_record}; }
    FrameRecorder *recorder() const { return m_recorder; }
    /*! Names the camera, whose name files get. */
    void setCameraName(const QString &name);
    /*! Names what is to be saved, null when nothing is, and how it is shown. */
    void setFrame(const Cameras::FramePointer &frame, const Cameras::FrameConversion::Look &look);

public Q_SLOTS:
    void save();
    /*! Writes the frame to the new file \a fileName, whose end says as what. Returns at once; hint() or
     * failed() tells what came of it. */
    void saveTo(const QString &fileName);
    /*! Asks for a folder and begins to record, or ends that. */
    void toggleRecording();

Q_SIGNALS:
    /*! Frames are to come for what is recorded. */
    void framesWanted();
    /*! Something to be shown for a while. */
    void hint(const QString &text, int milliseconds);
    void failed(const QString &message, const QString &details);

private Q_SLOTS:
    void onProgress(int written, int wanted);
    void onRecorded(int written, int leftOut, const QString &failure);
    void onSaved(const QString &fileName, const QString &failure);

private:
    QString suggestedFile() const;
    void showTexts();
    void updateActions();

    QWidget *m_window;
    QAction *m_save;
    QAction *m_record;
    FrameRecorder *m_recorder;
    Cameras::FramePointer m_frame;
    Cameras::FrameConversion::Look m_look;
    QString m_cameraName;
    QString m_folder;
    QThreadPool m_threads; // the last member, so that its threads end first
};
