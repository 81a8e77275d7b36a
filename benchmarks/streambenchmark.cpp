// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "windows.h"

#include <cameras/camera.h>
#include <cameras/stream.h>
#include <viewer/image/imagepane.h>
#include <viewer/image/streamcontrol.h>
#include <viewer/mainwindow.h>
#include <viewer/settingsactions.h>

#include <platform/parametercollection/iparameter.h>

#include <soak/servedcamera.h>

#include <QAction>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <ctime>

using namespace Cameras;
using namespace std::chrono_literals;

namespace {

constexpr auto streamTime = 60s;
constexpr int cameraRows = 350;
constexpr int keysInTurn = 30; // so that images come in each
constexpr int patience = 10000; // milliseconds

// Of this thread, which is that of the window.
double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/*! \brief The viewer on a camera of 2 megapixels with 30 frames a second, which is another process and on the
 * loopback interface. */
class StreamingWindow
{
public:
    /*! Returns what went wrong, null when nothing did. */
    const char *open()
    {
        if (!m_server.start()) {
            return "no GigE Vision server can be started on the loopback interface";
        }
        m_window.setRemembering(false);
        m_window.resize(1400, 900);
        m_window.show();
        m_window.openCamera(CameraAddress::ofCamera(QStringLiteral("127.0.0.1")));
        if (!QTest::qWaitFor([this] { return m_window.isCameraOpen(); }, patience)) {
            return "the camera was not opened";
        }
        set("Width", QStringLiteral("2048"));
        set("Height", QStringLiteral("1024"));
        return nullptr;
    }

    /*! Starts images, and returns whether they come. */
    bool start()
    {
        pane().stream()->start();
        pane().parentWidget()->show();
        return QTest::qWaitFor([this] { return statistics().complete > 2; }, patience);
    }

    void stop()
    {
        pane().stream()->stop();
        QTest::qWait(200); // until the camera has stopped as well
    }

    void showHistogram()
    {
        const auto actions = pane().actions();
        const auto isHistogram = [](const QAction *action) { return action->shortcut() == Qt::Key_H; };
        (*std::find_if(actions.begin(), actions.end(), isHistogram))->setChecked(true);
    }

    StreamStatistics statistics() { return pane().stream()->camera()->stream()->statistics(); }

private:
    ImagePane &pane() { return *m_window.findChild<ImagePane *>(); }

    void set(const char *feature, const QString &value)
    {
        const auto nodeMap = m_window.settings()->nodeMaps().constFirst();
        nodeMap.collection->parameter(QLatin1String(feature))->setValueFromString(value);
    }

    ServedCamera m_server; // outlives the window
    MainWindow m_window;
};

// With the histogram, for a minute.
void streamFromLoopback(benchmark::State &state)
{
    StreamingWindow window;
    if (const char *const failure = window.open()) {
        state.SkipWithError(failure);
        return;
    }
    window.showHistogram();
    if (!window.start()) {
        state.SkipWithError("no images came");
        return;
    }
    double busy = 0;
    for (auto _ : state) {
        const double begin = threadSeconds();
        QEventLoop loop; // as in the program, without the naps of QTest::qWait()
        QTimer::singleShot(streamTime, &loop, SLOT(quit()));
        loop.exec();
        busy = (threadSeconds() - begin) / std::chrono::duration<double>(streamTime).count();
        state.SetIterationTime(busy);
    }
    const StreamStatistics statistics = window.statistics();
    window.stop();
    state.counters["frames"] = double(statistics.complete);
    state.counters["per_second"] = statistics.framesPerSecond;
    state.counters["lost"] = double(statistics.dropped + statistics.incomplete);
    state.counters["goal_lost"] = 0;
    state.counters["busy_percent"] = busy * 100;
    state.counters["goal_busy_percent"] = 30;
}
BENCHMARK(streamFromLoopback)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

// Returns what a key takes of this thread, in seconds; with what it does of images in between.
double typeKeys(Window &tree)
{
    double busy = 0;
    for (int i = 0; i < keysInTurn; ++i) {
        const double begin = threadSeconds();
        tree.search(QStringLiteral("t"));
        busy += threadSeconds() - begin;
        tree.search(QString());
        QTest::qWait(7); // another place between two frames
    }
    return busy / keysInTurn;
}

// A key in the tree of a camera, until painted, while images come beside the same while none do.
void searchKeyWhileStreaming(benchmark::State &state)
{
    StreamingWindow window;
    if (const char *const failure = window.open()) {
        state.SkipWithError(failure);
        return;
    }
    Window tree(makeCamera(featureNames(cameraRows), Kinds::Usual));
    typeKeys(tree); // what is made once is made
    Figure figure(state);
    for (auto _ : state) {
        if (!window.start()) {
            state.SkipWithError("no images came");
            return;
        }
        figure.oursTook(typeKeys(tree));
        window.stop();
        figure.baselineTook("still", typeKeys(tree));
    }
    figure.wantShareOf("still", 1.3);
}
BENCHMARK(searchKeyWhileStreaming)->Iterations(12)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
