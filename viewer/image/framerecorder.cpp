// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framerecorder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMetaObject>
#include <QStringList>

#include <utility>

using namespace Cameras;

namespace {

constexpr qint64 mostWaiting = 512 * 1024 * 1024; // bytes

QString tableName()
{
    return QStringLiteral("frames.csv");
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\""))
        + QLatin1Char('"');
}

QByteArray lineOf(const Frame &frame, const QString &fileName)
{
    const QStringList cells{
        quoted(fileName),
        QString::number(frame.number),
        QString::number(frame.cameraTime),
        frame.arrival.toOffsetFromUtc(frame.arrival.offsetFromUtc()).toString(Qt::ISODateWithMs),
        QString::number(frame.width),
        QString::number(frame.height),
        pixelFormatName(frame.pixelFormat),
        quoted(frame.missing)};
    return (cells.join(QLatin1Char(',')) + QLatin1Char('\n')).toUtf8();
}

QString append(const QString &fileName, const QByteArray &line)
{
    QFile file(fileName);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Append)
        && file.write(line) == line.size() && file.flush();
    return isWritten ? QString() : FrameRecorder::tr("Cannot write %1: %2").arg(fileName, file.errorString());
}

QString newFolderIn(const QString &folder)
{
    const QString name = QDateTime::currentDateTime().toString(QStringLiteral("'frames-'yyyyMMdd-HHmmss"));
    for (int i = 1; i < 1000; ++i) {
        const QString path = QDir(folder).filePath(i == 1 ? name : QStringLiteral("%1-%2").arg(name).arg(i));
        if (QDir().mkdir(path)) { // fails where there is something
            return path;
        }
    }
    return {};
}

} // namespace

FrameRecorder::FrameRecorder(QObject *parent)
    : QObject(parent)
{
    m_threads.setMaxThreadCount(1);
}

FrameRecorder::~FrameRecorder()
{
    m_threads.clear();
    m_threads.waitForDone();
}

QString FrameRecorder::start(const QString &folder, int count, FrameFile::Kind kind)
{
    m_folder = newFolderIn(folder);
    if (m_folder.isEmpty()) {
        return tr("No folder can be made in %1.").arg(QDir::toNativeSeparators(folder));
    }
    const QString failure =
        FrameFile::writeNew(QDir(m_folder).filePath(tableName()),
                            "file,frame,camera_time_ns,arrival,width,height,pixel_format,missing\n");
    if (!failure.isEmpty()) {
        QDir().rmdir(m_folder); // as long as it is empty
        return failure;
    }
    m_kind = kind;
    m_wanted = m_left = count;
    m_written = m_leftOut = 0;
    m_failure.clear();
    Q_EMIT progress(0, m_wanted);
    return {};
}

void FrameRecorder::add(FramePointer frame)
{
    if (m_left == 0 || !frame) {
        return;
    }
    --m_left;
    if (m_waitingBytes > mostWaiting) {
        ++m_leftOut;
    } else {
        ++m_waiting;
        m_waitingBytes += frame->bytes.size();
        write(frame, m_wanted - m_left);
    }
    finishIfDone();
}

void FrameRecorder::write(const FramePointer &frame, int number)
{
    const FrameFile::Kind kind = FrameFile::possibleKind(m_kind, *frame);
    const QString name =
        QStringLiteral("%1%2").arg(number, 6, 10, QLatin1Char('0')).arg(FrameFile::suffix(kind, *frame));
    m_threads.start([this, frame, name, folder = QDir(m_folder)] {
        QString failure = FrameFile::save(*frame, folder.filePath(name));
        if (failure.isEmpty()) {
            failure = append(folder.filePath(tableName()), lineOf(*frame, name));
        }
        const auto tell = [this, bytes = frame->bytes.size(), failure] { onWritten(bytes, failure); };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

// The first failure ends the recording; what follows would fail as well.
void FrameRecorder::onWritten(qint64 bytes, const QString &failure)
{
    --m_waiting;
    m_waitingBytes -= bytes;
    if (failure.isEmpty()) {
        ++m_written;
        Q_EMIT progress(m_written, m_wanted);
    } else if (m_failure.isEmpty()) {
        m_failure = failure;
        m_left = 0;
    }
    finishIfDone();
}

void FrameRecorder::stop()
{
    if (std::exchange(m_left, 0) > 0) {
        finishIfDone();
    }
}

void FrameRecorder::finishIfDone()
{
    if (!isRecording() && m_wanted > 0) {
        m_wanted = 0;
        Q_EMIT finished(m_written, m_leftOut, m_failure);
    }
}
