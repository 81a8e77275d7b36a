// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "servedcamera.h"
#include "soak.h"

#include <viewer/allocation.h>

#include <QApplication>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

// zelto-soak HOURS [SEED]
int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--serve") == 0) {
        return ServedCamera::serve();
    }
    returnMemoryOfImages();
    const QTemporaryDir folder; // for settings of its own
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("soak"));
    const QStringList arguments = QCoreApplication::arguments();
    const quint32 seed =
        arguments.size() > 2 ? arguments.at(2).toUInt() : QRandomGenerator::global()->generate();
    return Soak(arguments.value(1).toDouble(), seed).run();
}
