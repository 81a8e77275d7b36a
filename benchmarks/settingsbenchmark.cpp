// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <cameras/aravis_p.h>
#include <cameras/awakening_p.h>
#include <cameras/camera.h>
#include <cameras/description_p.h>
#include <cameras/simulateddevice_p.h>
#include <cameras/simulatedregisters_p.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingsreader.h>

#include <QEventLoop>
#include <QFile>

#include <memory>

namespace {

void finish(SettingsTask &task)
{
    QEventLoop loop;
    QObject::connect(&task, SIGNAL(finished()), &loop, SLOT(quit()));
    task.start();
    loop.exec();
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! \brief A camera of ours, and the same description with the engine alone. */
class Pair
{
public:
    Pair()
    {
        const QString fileName = qEnvironmentVariable("ZELTO_BENCHMARK_DESCRIPTION");
        const auto registers = std::make_shared<Cameras::SimulatedRegisters>();
        if (QFile::exists(fileName)) {
            const QByteArray xml = contents(fileName);
            m_camera = Cameras::Camera::openDescription(fileName);
            m_engine = Cameras::newSimulatedDevice(xml, registers);
            Cameras::awaken(m_engine.get(), Cameras::Description(xml), *registers);
        } else {
            const QString resource = QStringLiteral(":/cameras/Resources/cameradevice");
            m_camera = Cameras::Camera::openEmbedded();
            registers->load(contents(resource + QLatin1String(".registers")));
            m_engine = Cameras::newSimulatedDevice(contents(resource + QLatin1String(".xml")), registers);
        }
    }

    QList<SettingsNodeMap> nodeMaps() const
    {
        const Cameras::NodeMap nodeMap = m_camera->nodeMaps().constFirst();
        return {{nodeMap.name, nodeMap.collection}};
    }

    FeatureSettings settings() const
    {
        SettingsReader reader(nodeMaps());
        finish(reader);
        return reader.settings();
    }

    /*! Reads with the engine alone what \a settings hold: sets selectors, asks all others for their value. */
    void readWithEngine(const FeatureSettings::NodeMap &settings) const
    {
        ArvGc *const genicam = arv_device_get_genicam(m_engine.get());
        for (const FeatureSettings::Assignment &assignment : settings.assignments) {
            const QByteArray name = assignment.name.toUtf8();
            auto *const node = ARV_GC_FEATURE_NODE(arv_gc_get_node(genicam, name.constData()));
            GError *error = nullptr;
            if (settings.selected.contains(assignment.name)) {
                arv_gc_feature_node_set_value_from_string(node, assignment.value.toUtf8().constData(),
                                                          &error);
            } else {
                benchmark::DoNotOptimize(arv_gc_feature_node_get_value_as_string(node, &error));
            }
            g_clear_error(&error);
        }
    }

private:
    std::unique_ptr<Cameras::Camera> m_camera;
    Cameras::DevicePtr m_engine;
};

// All settings of a camera, beside the engine's own reading of the same values.
void readSettings(benchmark::State &state)
{
    const Pair cameras;
    const FeatureSettings settings = cameras.settings();
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { benchmark::DoNotOptimize(cameras.settings().nodeMaps.size()); });
        figure.baseline("engine", [&] { cameras.readWithEngine(settings.nodeMaps.constFirst()); });
    }
    figure.wantShareOf("engine", 3.0);
    state.counters["values"] = static_cast<double>(settings.settings().size());
}
BENCHMARK(readSettings)->Iterations(40)->UseManualTime()->Unit(benchmark::kMillisecond);

// A file that changes nothing, beside the engine's own reading of its values.
void applyUnchangedSettings(benchmark::State &state)
{
    const Pair cameras;
    const FeatureSettings settings = cameras.settings();
    int written = 0;
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] {
            SettingsApplier applier(settings, cameras.nodeMaps(), SettingsApplier::Before::Forget);
            finish(applier);
            written += int(applier.report().entries.size())
                - applier.report().count(SettingsReport::Result::Unchanged);
        });
        figure.baseline("engine", [&] { cameras.readWithEngine(settings.nodeMaps.constFirst()); });
    }
    state.counters["written"] = written;
    state.counters["goal_written"] = 0;
}
BENCHMARK(applyUnchangedSettings)->Iterations(40)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
