// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <string>

namespace {

/*! \brief What a program said of its start. */
struct Start
{
    double seconds = 0.0;
    int rows = 0;
};

Start startOf(const QString &program, const QStringList &arguments)
{
    const QTemporaryDir settings;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       settings.path()); // as if started for the first time
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(ZELTO_START_PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("firstpaint"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    const QByteArrayList words = process.readAllStandardOutput().simplified().split(' ');
    return words.size() == 2 ? Start{words.first().toDouble() / 1000.0, words.last().toInt()} : Start{};
}

// From the start of the process until its window is painted with all rows: the viewer with its simulated
// camera beside a program that shows as many rows in a stock view.
void startViewer(benchmark::State &state)
{
    const QString viewer = QStringLiteral(ZELTO_VIEWER_PROGRAM);
    const QStringList options{QStringLiteral("--expand"), QStringLiteral("--visibility"),
                              QStringLiteral("guru")};
    const QString stock = QStringLiteral(ZELTO_STOCK_PROGRAM);
    const int rows = startOf(viewer, options).rows;
    const QStringList asManyRows{QString::number(rows)};
    if (rows < 100 || startOf(stock, asManyRows).rows != rows) {
        const std::string error =
            "the viewer shows " + std::to_string(rows) + " rows, a stock view not as many";
        state.SkipWithError(error.c_str());
        return;
    }
    Figure figure(state);
    for (auto _ : state) {
        figure.oursTook(startOf(viewer, options).seconds);
        figure.baselineTook("stock", startOf(stock, asManyRows).seconds);
    }
    figure.wantShareOf("stock", 1.3);
    state.counters["rows"] = rows;
}
BENCHMARK(startViewer)->Iterations(9)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
