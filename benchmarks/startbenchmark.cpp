// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace {

// Returns 0 for a program that never paints a tree with so many rows.
double startOf(const QString &program, const QStringList &arguments, int rows)
{
    const QTemporaryDir settings;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       settings.path()); // as if started for the first time
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(ZELTO_START_PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("firstpaint:%1").arg(rows));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
    }
    return process.readAllStandardOutput().toDouble() / 1000.0;
}

int rowsOf(const QString &viewer)
{
    QProcess process;
    process.start(viewer, {QStringLiteral("--dump")});
    process.waitForFinished();
    return static_cast<int>(process.readAllStandardOutput().count('\n'));
}

// From the start of the process until its window is painted with all rows: the viewer with its simulated
// camera beside a program that shows as many rows in a stock view.
void startViewer(benchmark::State &state)
{
    const QString viewer = QStringLiteral(ZELTO_VIEWER_PROGRAM);
    const QStringList options{QStringLiteral("--expand"), QStringLiteral("--visibility"),
                              QStringLiteral("guru")};
    const int rows = rowsOf(viewer);
    Figure figure(state);
    for (auto _ : state) {
        const double ours = startOf(viewer, options, rows);
        const double stock = startOf(QStringLiteral(ZELTO_STOCK_PROGRAM), {QString::number(rows)}, rows);
        if (ours == 0.0 || stock == 0.0) {
            state.SkipWithError("the rows of --dump were not painted");
            break;
        }
        figure.oursTook(ours);
        figure.baselineTook("stock", stock);
    }
    figure.wantShareOf("stock", 1.3);
    state.counters["rows"] = rows;
}
BENCHMARK(startViewer)->Iterations(9)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
