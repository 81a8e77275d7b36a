// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingslock.h"

#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QString>

namespace {

constexpr int age = 1000; // ms, of which the lock counts whole seconds
constexpr int patience = 3000;

} // namespace

void Core::removeLeftLock(const QSettings &settings)
{
    const QString name = settings.fileName() + QLatin1String(".lock");
    if (QFile::exists(name)) {
        QLockFile lock(name);
        lock.setStaleLockTime(age);
        (void)lock.tryLock(patience);
    }
}
