// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "windows.h"

#include <QApplication>

#include <malloc.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int cameraRows = 350;

// The first key of a search until painted. The stock view is measured once; it takes a second.
void searchKey(benchmark::State &state)
{
    Window window(makeCamera(featureNames(10000), static_cast<int>(state.range(0))));
    Figure figure(state);
    StockWindow stock(window);
    figure.baseline("stock", [&] { stock.search(QStringLiteral("t")); });
    for (auto _ : state) {
        figure.ours([&] { window.search(QStringLiteral("t")); });
        window.search(QString());
    }
}
BENCHMARK(searchKey)
    ->Arg(0)
    ->Arg(4)
    ->ArgName("editors_of_10")
    ->Iterations(15)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Clearing the search, with the expanded rows and the current row as before.
void clearSearch(benchmark::State &state)
{
    Window window(makeCamera(featureNames(10000), static_cast<int>(state.range(0))));
    StockWindow stock(window);
    stock.search(QStringLiteral("t"));
    Figure figure(state);
    figure.baseline("stock", [&] { stock.search(QString()); });
    for (auto _ : state) {
        window.search(QStringLiteral("t"));
        figure.ours([&] { window.search(QString()); });
    }
}
BENCHMARK(clearSearch)
    ->Arg(0)
    ->Arg(4)
    ->ArgName("editors_of_10")
    ->Iterations(15)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A key, and clearing the search, on 100,000 rows beside 10,000.
void growthOfSearchKey(benchmark::State &state)
{
    const bool isClearing = state.range(0) != 0;
    Window large(makeCamera(featureNames(100000), 0));
    Window small(makeCamera(featureNames(10000), 0));
    const QString before = isClearing ? QStringLiteral("t") : QString();
    const QString after = isClearing ? QString() : QStringLiteral("t");
    Figure figure(state);
    for (auto _ : state) {
        large.search(before);
        figure.ours([&] { large.search(after); });
        small.search(before);
        figure.baseline("tenth", [&] { small.search(after); });
    }
}
BENCHMARK(growthOfSearchKey)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("clear")
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A camera of usual size with all its editors, beside the stock view without any.
void searchKeyOnCamera(benchmark::State &state)
{
    Window window(makeCamera(featureNames(cameraRows), 4));
    measureSearchKey(state, window);
}
BENCHMARK(searchKeyOnCamera)->Iterations(25)->UseManualTime()->Unit(benchmark::kMillisecond);

// Opening the window on a camera, expanded and painted, beside the same without editors.
void openWindow(benchmark::State &state)
{
    const auto camera = makeCamera(featureNames(cameraRows), 4);
    const auto withoutEditors = makeCamera(featureNames(cameraRows), 0);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { Window window(camera); });
        figure.baseline("no_editors", [&] { Window window(withoutEditors); });
    }
}
BENCHMARK(openWindow)->Iterations(9)->UseManualTime()->Unit(benchmark::kMillisecond);

// 1,000 updates a second over all rows, painted 60 times a second: the share of the GUI thread's time.
void updatesOfValues(benchmark::State &state)
{
    constexpr int framesPerSecond = 60;
    constexpr int updatesPerSecond = 1000;
    const QStringList names = featureNames(cameraRows);
    const auto camera = makeCamera(names, 4);
    Window window(camera);
    QList<QSharedPointer<ParameterCollection::IParameter>> parameters;
    for (const QString &name : names) {
        parameters.append(camera->parameter(name));
    }
    int next = 0;
    double busy = 0.0;
    for (auto _ : state) {
        const double seconds = Figure::secondsOf([&] {
            for (int i = 0; i < updatesPerSecond; ++i) {
                const auto &parameter = parameters[next++ % parameters.size()];
                emit parameter->parameterDataChangedDecoupled(parameter->parameterData());
                if (i % (updatesPerSecond / framesPerSecond) == 0) {
                    settle();
                }
            }
        });
        state.SetIterationTime(seconds);
        busy += seconds;
    }
    state.counters["busy_share"] = busy / static_cast<double>(state.iterations());
}
BENCHMARK(updatesOfValues)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

// Memory after the tenth of 200 fillings of the same widget and after the last. Caches fill and are emptied
// in cycles of some dozen fillings, so the lowest of fifty counts.
void refill(benchmark::State &state)
{
    const auto camera = makeCamera(featureNames(cameraRows), 4);
    Window window(camera);
    std::vector<double> used;
    for (auto _ : state) {
        window.widget().clear();
        window.fill(camera, camera->name());
        window.view().expandEverything();
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        used.push_back(static_cast<double>(mallinfo2().uordblks));
    }
    state.counters["bytes_early"] = *std::min_element(used.begin() + 10, used.begin() + 60);
    state.counters["bytes_late"] = *std::min_element(used.end() - 50, used.end());
}
BENCHMARK(refill)->Iterations(200)->Unit(benchmark::kMillisecond);

} // namespace
