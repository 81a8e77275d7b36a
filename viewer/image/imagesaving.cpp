// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "imagesaving.h"

#include "framefile.h"
#include "framerecorder.h"
#include "recorddialog.h"

#include <platform/core/livetexts.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMetaObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QWidget>

using namespace Cameras;

namespace {

constexpr int hintTime = 5000;

} // namespace

ImageSaving::ImageSaving(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_save(new QAction(this))
    , m_record(new QAction(this))
    , m_recorder(new FrameRecorder(this))
    , m_folder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
{
    m_threads.setMaxThreadCount(1);
    connect(m_save, SIGNAL(triggered()), this, SLOT(save()));
    connect(m_record, SIGNAL(triggered()), this, SLOT(toggleRecording()));
    connect(m_recorder, SIGNAL(progress(int, int)), this, SLOT(onProgress(int, int)));
    connect(m_recorder, SIGNAL(finished(int, int, QString)), this, SLOT(onRecorded(int, int, QString)));
    (new Core::LiveTexts(window))->add([this] { showTexts(); });
}

// What the user has saved is whole before the program ends.
ImageSaving::~ImageSaving()
{
    m_threads.waitForDone();
}

void ImageSaving::setCameraName(const QString &name)
{
    static const QRegularExpression odd(QStringLiteral("[^\\w.-]+"));
    m_cameraName = QString(name).replace(odd, QStringLiteral("_"));
    m_recorder->stop();
    updateActions();
}

void ImageSaving::setFrame(const FramePointer &frame, const FrameConversion::Look &look)
{
    m_frame = frame;
    m_look = look;
    updateActions();
}

void ImageSaving::showTexts()
{
    m_save->setText(tr("Save I&mage…"));
    m_save->setToolTip(tr("Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM"));
    m_record->setToolTip(tr("Keeps the next images as files, with a table of their numbers and times"));
    for (QAction *const action : {m_save, m_record}) {
        action->setStatusTip(action->toolTip());
    }
    updateActions();
}

void ImageSaving::updateActions()
{
    m_save->setEnabled(m_frame != nullptr);
    m_record->setEnabled(!m_cameraName.isEmpty() || m_recorder->isRecording());
    m_record->setText(m_recorder->isRecording() ? tr("Stop &Recording") : tr("&Record Images…"));
}

// One that is free, since nothing is overwritten.
QString ImageSaving::suggestedFile() const
{
    const QString suffix =
        FrameConversion::canConvert(m_frame->pixelFormat) ? QStringLiteral(".png") : QStringLiteral(".raw");
    const QString name = QStringLiteral("%1-%2").arg(m_cameraName).arg(m_frame->number);
    const QDir folder(m_folder);
    for (int i = 1;; ++i) {
        const QString file = i == 1 ? name + suffix : QStringLiteral("%1-%2%3").arg(name).arg(i).arg(suffix);
        if (!folder.exists(file)) {
            return folder.filePath(file);
        }
    }
}

void ImageSaving::save()
{
    const FramePointer frame = m_frame; // as it was when the user wanted it
    if (!frame) {
        return;
    }
    const QString fileName =
        QFileDialog::getSaveFileName(m_window, tr("Save Image"), suggestedFile(),
                                     tr("As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm "
                                        "*.ppm);;Bytes (*.raw);;All files (*)"),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!fileName.isEmpty()) {
        m_frame = frame;
        saveTo(fileName);
    }
}

void ImageSaving::saveTo(const QString &fileName)
{
    if (!m_frame) {
        return;
    }
    m_folder = QFileInfo(fileName).path();
    m_threads.start([this, frame = m_frame, fileName, look = m_look] {
        const QString failure = FrameFile::save(*frame, fileName, look);
        const auto tell = [this, fileName, failure] { onSaved(fileName, failure); };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void ImageSaving::onSaved(const QString &fileName, const QString &failure)
{
    if (failure.isEmpty()) {
        Q_EMIT hint(tr("The image was saved to %1.").arg(QDir::toNativeSeparators(fileName)), hintTime);
    } else {
        Q_EMIT failed(failure, QString());
    }
}

void ImageSaving::toggleRecording()
{
    if (m_recorder->isRecording()) {
        m_recorder->stop();
        return;
    }
    RecordDialog dialog(m_folder, m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    m_folder = dialog.folder();
    const QString failure = m_recorder->start(m_folder, dialog.count(), dialog.kind());
    updateActions();
    if (failure.isEmpty()) {
        Q_EMIT framesWanted();
    } else {
        Q_EMIT failed(failure, QString());
    }
}

void ImageSaving::onProgress(int written, int wanted)
{
    updateActions();
    Q_EMIT hint(tr("Images recorded: %1 of %2").arg(written).arg(wanted), hintTime);
}

void ImageSaving::onRecorded(int written, int leftOut, const QString &failure)
{
    updateActions();
    const QString folder = QDir::toNativeSeparators(m_recorder->folder());
    if (!failure.isEmpty()) {
        Q_EMIT failed(tr("The recording ended after %n image(s). %1", nullptr, written).arg(failure),
                      QString());
    } else if (leftOut > 0) {
        Q_EMIT failed(tr("%n image(s) were left out, since the disk was too slow.", nullptr, leftOut),
                      folder);
    } else {
        Q_EMIT hint(tr("%n image(s) were recorded to %1.", nullptr, written).arg(folder), hintTime);
    }
}
