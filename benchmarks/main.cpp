// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    // Windows need no display, and favorites stay out of the user's settings.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("zelto-benchmarks"));

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
