// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "goalreporter.h"

#ifdef ZELTO_VIEWER_PROGRAM
#include <soak/servedcamera.h>
#endif

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
#ifdef ZELTO_VIEWER_PROGRAM
    if (argc == 2 && qstrcmp(argv[1], "--serve") == 0) {
        return ServedCamera::serve();
    }
#endif
    // Windows need no display, and favorites stay out of the user's settings.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // That platform says at each resizing that it has no window manager to tell.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("zelto-benchmarks"));

    benchmark::Initialize(&argc, argv);
    const bool isAboutGoals = argc == 2 && qstrcmp(argv[1], "--goals") == 0;
    if (!isAboutGoals) {
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
            return 1;
        }
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }
    GoalReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.areAllMet() ? 0 : 1;
}
