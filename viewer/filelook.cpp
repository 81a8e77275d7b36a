// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "filelook.h"

#include <QFileInfo>

#include <utility>

FileLook::FileLook(const QStringList &files)
    : m_files(files)
{
    connect(this, SIGNAL(finished()), this, SLOT(deleteLater()));
}

FileLook::~FileLook() = default;

void FileLook::run()
{
    for (const QString &file : std::as_const(m_files)) {
        if (!QFileInfo(file).isFile()) {
            emit missing(file);
        }
    }
}
