// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <QProcess>
#include <QTemporaryDir>

#include <sys/resource.h>

namespace {

double secondsOfChildren()
{
    constexpr double microsecondsPerSecond = 1e6;
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / microsecondsPerSecond;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

// From the start of the process to the picture of its window: the viewer with its simulated camera beside a
// program that shows as many rows in a stock view.
void startViewer(benchmark::State &state)
{
    const QString viewer = QStringLiteral(ZELTO_VIEWER_PROGRAM);
    const QString stock = QStringLiteral(ZELTO_STOCK_PROGRAM);
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("window.png"));
    const auto rows = outputOf(viewer, {QStringLiteral("--dump")}).count('\n');
    if (rows == 0) {
        state.SkipWithError("the viewer has to be built, too");
        return;
    }
    const auto run = [](const QString &program, const QStringList &arguments) {
        const double before = secondsOfChildren();
        outputOf(program, arguments);
        return secondsOfChildren() - before;
    };
    Figure figure(state);
    for (auto _ : state) {
        figure.oursTook(run(viewer, {QStringLiteral("--expand"), QStringLiteral("--screenshot"), picture}));
        figure.baselineTook("stock", run(stock, {QString::number(rows), picture}));
    }
    figure.wantShareOf("stock", 1.3);
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(startViewer)->Iterations(9)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
