// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <zeltoviewercomponents/settings/changehistory.h>

#include <QCoreApplication>

#include <memory>

namespace {

constexpr int writes = 200; // in each turn

/*! \brief A camera on the loopback interface, with the server that plays it. */
class LoopbackCamera
{
public:
    LoopbackCamera()
        : m_server(arv_gv_fake_camera_new("127.0.0.1", "ZBENCH"))
    {
        const auto cameras =
            m_server ? Cameras::Camera::list() : QList<Core::CameraPoolComponents::CameraInfoPtr>();
        for (const auto &camera : cameras) {
            if (camera->serialNumber() == QLatin1String("ZBENCH")) {
                m_camera = Cameras::Camera::openLive(camera->id());
            }
        }
    }
    ~LoopbackCamera()
    {
        m_camera.reset();
        g_clear_object(&m_server);
    }
    LoopbackCamera(const LoopbackCamera &) = delete;
    LoopbackCamera &operator=(const LoopbackCamera &) = delete;

    const Cameras::Camera *operator->() const { return m_camera.get(); }
    explicit operator bool() const { return m_camera && !m_camera->isReadOnly(); }

private:
    ArvGvFakeCamera *m_server;
    std::unique_ptr<Cameras::Camera> m_camera;
};

// What a history does about each write, beside the writing. Two features in turns, so that each is a step.
void recordChanges(benchmark::State &state)
{
    const LoopbackCamera camera;
    if (!camera) {
        state.SkipWithError("No camera can be served on the loopback interface");
        return;
    }
    const Cameras::NodeMap nodeMap = camera->nodeMaps().constFirst();
    const auto offsets = {nodeMap.collection->parameter(QStringLiteral("OffsetX")),
                          nodeMap.collection->parameter(QStringLiteral("OffsetY"))};
    ChangeHistory history;
    history.open({{nodeMap.name, nodeMap.collection}});
    int value = 0;
    Figure figure(state);
    for (auto _ : state) {
        figure.baseline("writing", [&] {
            for (int i = 0; i < writes; i += 2) {
                const QString text = QString::number(++value % 16);
                for (const auto &parameter : offsets) {
                    parameter->setValueFromString(text);
                }
            }
        });
        QCoreApplication::processEvents();
        figure.ours([&] {
            for (int i = 0; i < writes; i += 2) {
                const QString before = QString::number(value % 16);
                const QString text = QString::number(++value % 16);
                for (const auto &parameter : offsets) {
                    history.record(parameter, before, text, {});
                }
            }
            QCoreApplication::processEvents(); // the list of changes is told
        });
    }
    figure.wantShareOf("writing", 0.05);
}
BENCHMARK(recordChanges)->Iterations(30)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
