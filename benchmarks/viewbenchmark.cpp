// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "windows.h"

#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTest>
#include <QWidget>

#include <malloc.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr int cameraRows = 350;
constexpr int manyRows = 10000;
constexpr int largest = 100000;

double usedBytes()
{
    return static_cast<double>(mallinfo2().uordblks);
}

// The picture of a window, as far as it is in the heap: that is where the platform without a display keeps
// it, while others share it with the display.
double pictureBytes(const QWidget &window)
{
    constexpr double bytesPerPixel = 4.0;
    const bool isInHeap = QGuiApplication::platformName() == QLatin1String("offscreen");
    return isInHeap ? bytesPerPixel * window.width() * window.height() : 0.0;
}

bool isCamera(const benchmark::State &state)
{
    return state.range(0) == cameraRows;
}

QSharedPointer<MemoryCollection> usualCamera(const benchmark::State &state)
{
    return makeCamera(featureNames(static_cast<int>(state.range(0))), Kinds::Usual);
}

// Both sizes that a gesture is measured at.
void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(cameraRows)
        ->Arg(manyRows)
        ->ArgName("rows")
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

// Opening the window on a camera, expanded and painted; what it holds of the heap when it is idle.
void openWindow(benchmark::State &state)
{
    const auto camera = usualCamera(state);
    Window first(camera); // what is made once in a process is made
    StockWindow stock(first, StockWindow::Editors::None);
    StockWindow stockWithEditors(first, StockWindow::Editors::All);
    Figure figure(state);
    double held = 0.0;
    for (auto _ : state) {
        const double before = usedBytes();
        std::unique_ptr<Window> window;
        figure.ours([&] { window = std::make_unique<Window>(camera); });
        QTest::qWait(50); // whatever is done when idle
        held = usedBytes() - before - pictureBytes(window->widget());
        figure.baseline("stock", [&] { stock.open(); });
        figure.baseline("stock_editors", [&] { stockWithEditors.open(); });
    }
    figure.wantAtMost(14.0);
    figure.wantShareOf("stock_editors", 1.0);
    state.counters["heap_mb"] = held / 1.0e6;
    state.counters["goal_heap_mb"] = 2.2;
}
BENCHMARK(openWindow)
    ->Arg(cameraRows)
    ->ArgName("rows")
    ->Iterations(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Filled and expanded while hidden.
void fillHidden(benchmark::State &state)
{
    const auto camera = usualCamera(state);
    Figure figure(state);
    for (auto _ : state) {
        FeatureTreeWidget widget(QStringLiteral("hidden"));
        figure.ours([&] {
            widget.addParameterCollection(camera, QStringLiteral("Camera"), camera->name(), true);
            widget.treeView()->expandEverything();
            settle();
        });
    }
    figure.wantAtMost(50.0);
}
BENCHMARK(fillHidden)
    ->Arg(manyRows)
    ->ArgName("rows")
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The first key in a fresh window, whose rows are loaded, with the index that the search needs.
void firstSearchKey(benchmark::State &state)
{
    const auto camera = usualCamera(state);
    Figure figure(state);
    for (auto _ : state) {
        Window window(camera);
        figure.ours([&] { window.search(QStringLiteral("t")); });
    }
    figure.wantAtMost(isCamera(state) ? 4.0 : 12.0);
}
BENCHMARK(firstSearchKey)->Apply(sizes)->Iterations(5);

/*! \brief A change of the search text. */
struct Gesture
{
    const char *name;
    QString before;
    QString after;
};

const Gesture &gesture(int i)
{
    static const std::vector<Gesture> gestures{
        {"t", QString(), QStringLiteral("t")},
        {"e", QString(), QStringLiteral("e")},
        {"none", QString(), QStringLiteral("zz")},
        {"tr", QStringLiteral("t"), QStringLiteral("tr")},
        {"trig", QStringLiteral("tri"), QStringLiteral("trig")},
        {"trigge", QStringLiteral("trigg"), QStringLiteral("trigge")},
        {"backspace to t", QStringLiteral("tr"), QStringLiteral("t")},
        {"clear", QStringLiteral("t"), QString()},
        {"clear none", QStringLiteral("zz"), QString()},
    };
    return gestures.at(static_cast<size_t>(i));
}
constexpr int gestureCount = 9;

// Each kind of key in the search, until painted. The stock view is measured on a camera's rows alone: beyond,
// a single key takes it seconds.
void searchGesture(benchmark::State &state)
{
    Window window(usualCamera(state));
    const Gesture &keys = gesture(static_cast<int>(state.range(1)));
    std::unique_ptr<StockWindow> stock;
    if (isCamera(state)) {
        stock = std::make_unique<StockWindow>(window, StockWindow::Editors::All);
    }
    Figure figure(state);
    for (auto _ : state) {
        window.search(keys.before);
        figure.ours([&] { window.search(keys.after); });
        if (stock) {
            stock->search(keys.before);
            figure.baseline("stock_editors", [&] { stock->search(keys.after); });
        }
    }
    state.SetLabel(keys.name);
    figure.wantAtMost(isCamera(state) ? 4.0 : 12.0);
}
BENCHMARK(searchGesture)
    ->ArgsProduct({{cameraRows, manyRows}, benchmark::CreateDenseRange(0, gestureCount - 1, 1)})
    ->ArgNames({"rows", "gesture"})
    ->Iterations(11)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A key that changes nothing of what is found: the marks in the rows in sight grow, or there is none. What
// marks grow in has to be painted, beside which stands the painting of a stock view's names.
void searchKeyWithoutChange(benchmark::State &state)
{
    const bool isMarked = state.range(1) != 0;
    Window window(usualCamera(state));
    std::unique_ptr<StockWindow> stock;
    if (isCamera(state) && isMarked) {
        stock = std::make_unique<StockWindow>(window, StockWindow::Editors::None);
    }
    Figure figure(state);
    for (auto _ : state) {
        window.search(isMarked ? QStringLiteral("trigge") : QStringLiteral("zz"));
        figure.ours([&] { window.search(isMarked ? QStringLiteral("trigger") : QStringLiteral("zzz")); });
        if (stock) {
            QTreeView &view = stock->view();
            figure.baseline("stock_names_painted", [&view] {
                view.viewport()->update(0, 0, view.columnWidth(0), view.viewport()->height());
                settle();
            });
        }
    }
    if (isCamera(state)) {
        figure.wantAtMost(0.3);
    }
}
BENCHMARK(searchKeyWithoutChange)
    ->ArgsProduct({{cameraRows, manyRows}, {0, 1}})
    ->ArgNames({"rows", "marked"})
    ->Iterations(11)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A key over three node maps, at a level that hides a fifth of the features.
void searchKeyOverNodeMaps(benchmark::State &state)
{
    const QStringList names = featureNames(static_cast<int>(state.range(0)) / 3);
    QList<QSharedPointer<MemoryCollection>> nodeMaps;
    for (const char *name : {"@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0"}) {
        nodeMaps.append(makeCamera(names, Kinds::Usual, QString::fromLatin1(name)));
    }
    Window window(nodeMaps);
    window.setLevel(GenApi::Beginner);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { window.search(QStringLiteral("t")); });
        window.search(QString());
    }
    figure.wantAtMost(isCamera(state) ? 4.0 : 12.0);
}
BENCHMARK(searchKeyOverNodeMaps)->Apply(sizes)->Iterations(11);

// Another level, without a search and during one.
void changeLevel(benchmark::State &state)
{
    Window window(usualCamera(state));
    window.search(state.range(1) != 0 ? QStringLiteral("t") : QString());
    Figure figure(state, Figure::Turn::Worst);
    for (auto _ : state) {
        figure.ours([&] { window.setLevel(GenApi::Beginner); });
        figure.ours([&] { window.setLevel(GenApi::Expert); });
    }
    figure.wantAtMost(isCamera(state) ? 8.0 : 50.0);
}
BENCHMARK(changeLevel)
    ->ArgsProduct({{cameraRows, manyRows}, {0, 1}})
    ->ArgNames({"rows", "search"})
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void expandAndCollapseAll(benchmark::State &state)
{
    Window window(usualCamera(state));
    Figure figure(state, Figure::Turn::Worst);
    for (auto _ : state) {
        figure.ours([&] {
            window.view().collapseAll();
            settle();
        });
        figure.ours([&] {
            window.view().expandEverything();
            settle();
        });
    }
    figure.wantAtMost(isCamera(state) ? 8.0 : 50.0);
}
BENCHMARK(expandAndCollapseAll)->Apply(sizes)->Iterations(5);

// One favorite among 200: added, moved up, taken away.
void changeFavorites(benchmark::State &state)
{
    constexpr int favoriteCount = 200;
    const auto camera = usualCamera(state);
    const QStringList names = featureNames(static_cast<int>(state.range(0)));
    Window window(camera);
    IFeatureTreeModelExtension *const tree = window.widget().getFeatureExtension();
    FavoritesData &favorites = tree->GetFavorites();
    favorites.setDeferredUpdates(true);
    for (int i = 0; i < favoriteCount; ++i) {
        tree->AddFavorite(camera->parameter(names[i]), i);
    }
    favorites.setDeferredUpdates(false);
    window.view().expand(tree->GetFavoritesRootIndex());
    settle();
    Figure figure(state, Figure::Turn::Worst);
    for (auto _ : state) {
        figure.ours([&] {
            tree->AddFavorite(camera->parameter(names[favoriteCount]), favoriteCount / 2);
            settle();
        });
        figure.ours([&] {
            favorites.setDeferredUpdates(true);
            favorites.moveEntry(favoriteCount / 2, 1);
            favorites.setDeferredUpdates(false);
            settle();
        });
        figure.ours([&] {
            favorites.removeEntry(1);
            settle();
        });
    }
    while (favorites.takeEntry(0)) { }
    figure.wantAtMost(isCamera(state) ? 8.0 : 16.0);
}
BENCHMARK(changeFavorites)->Apply(sizes)->Iterations(3);

// 1,000 updates a second of the 20 values in sight, each different from the one before, painted 60 times a
// second: the share of the GUI thread's time.
void updatesOfValues(benchmark::State &state)
{
    constexpr int framesPerSecond = 60;
    constexpr int updatesPerSecond = 1000;
    constexpr int changing = 20;
    const auto camera = QSharedPointer<MemoryCollection>::create();
    camera->addCategory(QStringLiteral("Category"));
    QList<QSharedPointer<MemoryFloat>> floats;
    QList<QSharedPointer<MemoryInteger>> integers;
    for (int i = 0; i < changing; ++i) {
        const QString name = QStringLiteral("Value%1").arg(i);
        if (i % 4 == 0) {
            floats.append(camera->addFloat(name, QStringLiteral("Category"), 1.0, 0.0, 1.0e6));
        } else {
            integers.append(camera->addInteger(name, QStringLiteral("Category"), 1, 0, 1000000));
        }
    }
    Window window(camera);
    int next = 0;
    double busy = 0.0;
    const auto update = [&] {
        ++next;
        const auto change = [&next](auto &data) {
            data.value = 1000 + next / 7.0;
            data.valueString = QString::number(data.value);
        };
        if (next % 4 == 0) {
            floats[next / 4 % floats.size()]->update(change);
        } else {
            integers[next % integers.size()]->update(change);
        }
    };
    for (auto _ : state) {
        const double seconds = Figure::secondsOf([&] {
            for (int i = 0; i < updatesPerSecond; ++i) {
                update();
                if (i % (updatesPerSecond / framesPerSecond) == 0) {
                    settle();
                }
            }
        });
        state.SetIterationTime(seconds);
        busy += seconds;
    }
    state.counters["busy_share"] = busy / static_cast<double>(state.iterations());
    state.counters["goal_busy_share"] = 0.05;
}
BENCHMARK(updatesOfValues)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

// The worst frame of random jumps of the scroll bar, and of resizing.
void scrollAndResize(benchmark::State &state)
{
    Window window(usualCamera(state));
    QScrollBar *const bar = window.view().verticalScrollBar();
    std::mt19937 random(7);
    int width = window.widget().width();
    Figure figure(state, Figure::Turn::Worst);
    for (auto _ : state) {
        figure.ours([&] {
            bar->setValue(std::uniform_int_distribution(bar->minimum(), bar->maximum())(random));
            settle();
        });
        figure.ours([&] {
            width = width == 500 ? 510 : 500;
            window.widget().resize(width, 700 + width % 100);
            settle();
        });
    }
    figure.wantAtMost(8.0);
}
BENCHMARK(scrollAndResize)->Apply(sizes)->Iterations(100);

// Tab from editor to editor.
void tabThroughEditors(benchmark::State &state)
{
    Window window(usualCamera(state));
    QApplication::setActiveWindow(&window.widget());
    window.view().setFocus();
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
            QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
            settle();
        });
    }
    figure.wantAtMost(2.0);
}
BENCHMARK(tabThroughEditors)->Apply(sizes)->Iterations(50);

// Gestures on 100,000 rows beside 10,000.
void growth(benchmark::State &state)
{
    enum { Key, Clear, Level, Collapse };
    Window large(makeCamera(featureNames(largest), Kinds::Usual));
    Window small(makeCamera(featureNames(manyRows), Kinds::Usual));
    const auto act = [&state](Window &window, bool forth) {
        switch (state.range(0)) {
        case Key:
        case Clear:
            window.search(forth == (state.range(0) == Key) ? QStringLiteral("t") : QString());
            break;
        case Level:
            window.setLevel(forth ? GenApi::Beginner : GenApi::Expert);
            break;
        default:
            forth ? window.view().collapseAll() : window.view().expandEverything();
            settle();
        }
    };
    Figure figure(state);
    for (auto _ : state) {
        act(large, false);
        figure.ours([&] { act(large, true); });
        act(small, false);
        figure.baseline("tenth", [&] { act(small, true); });
    }
    figure.wantShareOf("tenth", 12.0);
}
BENCHMARK(growth)
    ->DenseRange(0, 3)
    ->ArgName("key_clear_level_collapse")
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Memory after the tenth of 200 fillings of the same widget and after the last. Caches fill and are emptied
// in cycles of some dozen fillings, so the lowest of fifty counts.
void refill(benchmark::State &state)
{
    const auto camera = makeCamera(featureNames(cameraRows), Kinds::Usual);
    camera->addCommand(QStringLiteral("Run"), QStringLiteral("Category0"));
    camera->addInteger(QStringLiteral("Slider"), QStringLiteral("Category0"), 5, 0, 100, 1,
                       QStringLiteral("Linear"));
    camera->addFloat(QStringLiteral("FloatSlider"), QStringLiteral("Category0"), 5, 0, 100, 0.0,
                     QStringLiteral("Logarithmic"));
    camera->setAlias(QStringLiteral("FloatSlider"), QStringLiteral("Slider"));
    Window window(camera);
    std::vector<double> used;
    for (auto _ : state) {
        window.widget().clear();
        window.fill(camera, camera->name());
        window.view().expandEverything();
        settle();
        used.push_back(usedBytes());
    }
    const double early = *std::min_element(used.begin() + 10, used.begin() + 60);
    const double late = *std::min_element(used.end() - 50, used.end());
    state.counters["growth_of_heap"] = late / early;
    state.counters["goal_growth_of_heap"] = 1.01;
}
BENCHMARK(refill)->Iterations(200)->Unit(benchmark::kMillisecond);

} // namespace
