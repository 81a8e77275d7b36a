// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "savefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Core {

namespace {

QString writeTo(QFileDevice &file, const QByteArray &contents, QIODevice::OpenMode mode)
{
    // QSaveFile::commit() does not look at what becomes of the bytes that it still holds.
    const bool isWritten = file.open(mode) && file.write(contents) == contents.size() && file.flush();
    return isWritten ? QString() : file.errorString();
}

} // namespace

QString saveFile(const QString &fileName, const QByteArray &contents)
{
    const QFileInfo present(fileName);
    if (present.exists() && !present.isFile() && !present.isDir()) {
        QFile device(fileName);
        return writeTo(device, contents, QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    QSaveFile file(fileName);
    const QString failure = writeTo(file, contents, QIODevice::WriteOnly);
    return failure.isEmpty() && !file.commit() ? file.errorString() : failure;
}

} // namespace Core
