// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <cameras/stream.h>

#include <platform/parametercollection/iparameter.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QObject>

#include <chrono>
#include <ctime>
#include <memory>

using namespace Cameras;
using namespace std::chrono_literals;

namespace {

constexpr auto streamTime = 60s;
constexpr quint32 framePeriod = 33333; // microseconds

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/* The engine's own GigE Vision server, with a camera of 2 megapixels. */
struct Server
{
    Server()
    {
        if (isRunning()) {
            ArvFakeCamera *const camera = arv_gv_fake_camera_get_fake_camera(server);
            arv_fake_camera_write_register(camera, ARV_FAKE_CAMERA_REGISTER_ACQUISITION_FRAME_PERIOD_US,
                                           framePeriod);
        }
    }
    ~Server() { g_clear_object(&server); }
    Q_DISABLE_COPY_MOVE(Server)

    bool isRunning() const { return server && arv_gv_fake_camera_is_running(server); }

    ArvGvFakeCamera *server = arv_gv_fake_camera_new("127.0.0.1", "ZBENCH");
};

void set(const Camera &camera, const char *feature, const QString &value)
{
    camera.nodeMaps().constFirst().collection->parameter(QLatin1String(feature))->setValueFromString(value);
}

// Returns the part of its time that this thread, which takes each frame, was busy.
double follow(Stream &stream, std::chrono::seconds time)
{
    const double begin = threadSeconds();
    const QDeadlineTimer deadline(time);
    stream.start();
    while (!deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        stream.takeNewest();
    }
    stream.stop();
    return (threadSeconds() - begin) / std::chrono::duration<double>(time).count();
}

// A camera on the loopback interface with 2 megapixels at 30 frames a second, for a minute.
void streamFromLoopback(benchmark::State &state)
{
    const Server server;
    if (!server.isRunning()) {
        state.SkipWithError("no GigE Vision server can be started on the loopback interface");
        return;
    }
    const auto camera = Camera::openLive(QStringLiteral("127.0.0.1"));
    set(*camera, "Width", QStringLiteral("2048"));
    set(*camera, "Height", QStringLiteral("1024"));
    double busy = 0;
    for (auto _ : state) {
        busy = follow(*camera->stream(), streamTime);
        state.SetIterationTime(busy);
    }
    const StreamStatistics statistics = camera->stream()->statistics();
    state.counters["frames"] = double(statistics.complete);
    state.counters["per_second"] = statistics.framesPerSecond;
    state.counters["lost"] = double(statistics.dropped + statistics.incomplete);
    state.counters["goal_lost"] = 0;
    state.counters["busy_percent"] = busy * 100;
    state.counters["goal_busy_percent"] = 30;
}
BENCHMARK(streamFromLoopback)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
