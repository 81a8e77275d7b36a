// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "windows.h"

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <cameras/simulateddevice_p.h>
#include <cameras/simulatedregisters_p.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>
#include <zeltoviewercomponents/featuretree/featuretreetext.h>

#include <QFile>
#include <QTextStream>

namespace {

// Reads what a row shows of a feature, its value alone or also its access, limits and entries.
void readFeature(ArvGcNode *node, bool whole)
{
    auto *const feature = ARV_GC_FEATURE_NODE(node);
    const auto ignore = [](GError *error) { g_clear_error(&error); };
    GError *error = nullptr;
    if (!arv_gc_feature_node_is_available(feature, &error) || ARV_IS_GC_COMMAND(node)) {
        ignore(error);
        return;
    }
    benchmark::DoNotOptimize(arv_gc_feature_node_get_value_as_string(feature, &error));
    ignore(std::exchange(error, nullptr));
    if (!whole) {
        return;
    }
    benchmark::DoNotOptimize(arv_gc_feature_node_is_implemented(feature, nullptr));
    benchmark::DoNotOptimize(arv_gc_feature_node_is_locked(feature, nullptr));
    benchmark::DoNotOptimize(arv_gc_feature_node_get_actual_access_mode(feature));
    if (ARV_IS_GC_ENUMERATION(node)) {
        guint count = 0;
        g_free(arv_gc_enumeration_dup_available_string_values(ARV_GC_ENUMERATION(node), &count, nullptr));
        g_free(arv_gc_enumeration_dup_available_display_names(ARV_GC_ENUMERATION(node), &count, nullptr));
    } else if (ARV_IS_GC_FLOAT(node)) {
        auto *const number = ARV_GC_FLOAT(node);
        benchmark::DoNotOptimize(arv_gc_float_get_min(number, nullptr));
        benchmark::DoNotOptimize(arv_gc_float_get_max(number, nullptr));
        benchmark::DoNotOptimize(arv_gc_float_get_inc(number, nullptr));
    } else if (ARV_IS_GC_INTEGER(node)) {
        auto *const number = ARV_GC_INTEGER(node);
        benchmark::DoNotOptimize(arv_gc_integer_get_min(number, nullptr));
        benchmark::DoNotOptimize(arv_gc_integer_get_max(number, nullptr));
        benchmark::DoNotOptimize(arv_gc_integer_get_inc(number, nullptr));
    }
}

void readCategory(ArvGc *genicam, ArvGcNode *category, bool whole)
{
    for (const GSList *name = arv_gc_category_get_features(ARV_GC_CATEGORY(category)); name;
         name = name->next) {
        ArvGcNode *const node = arv_gc_get_node(genicam, static_cast<const char *>(name->data));
        if (ARV_IS_GC_CATEGORY(node)) {
            readCategory(genicam, node, whole);
        } else if (ARV_IS_GC_FEATURE_NODE(node)) {
            readFeature(node, whole);
        }
    }
}

void openWithEngine(const QString &fileName, bool whole)
{
    QFile file(fileName);
    (void)file.open(QIODevice::ReadOnly);
    const Cameras::DevicePtr device =
        Cameras::newSimulatedDevice(file.readAll(), std::make_shared<Cameras::SimulatedRegisters>());
    ArvGc *const genicam = arv_device_get_genicam(device.get());
    readCategory(genicam, arv_gc_get_node(genicam, "Root"), whole);
}

qsizetype openTree(const QString &fileName)
{
    const auto camera = Cameras::Camera::openDescription(fileName);
    FeatureTreeModel model;
    FeatureTreeProxyModel proxy;
    proxy.setSourceModel(&model);
    const auto nodeMaps = camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        proxy.addParameterCollection(nodeMap.collection, nodeMap.title, nodeMap.name, nodeMap.usesUtf8);
    }
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, proxy);
    return text.count(QLatin1Char('\n'));
}

// The file that the environment names; skips the benchmark without one.
QString descriptionFor(benchmark::State &state)
{
    const QString fileName = qEnvironmentVariable("ZELTO_BENCHMARK_DESCRIPTION");
    if (!QFile::exists(fileName)) {
        state.SkipWithError("ZELTO_BENCHMARK_DESCRIPTION names no camera description");
    }
    return fileName;
}

// From the file to a filled and dumped tree, beside the engine's own parsing and reading of the same file.
void openDescription(benchmark::State &state)
{
    const QString fileName = descriptionFor(state);
    qsizetype rows = 0;
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { rows = openTree(fileName); });
        figure.baseline("engine", [&] { openWithEngine(fileName, true); });
        figure.baseline("values", [&] { openWithEngine(fileName, false); });
    }
    figure.wantShareOf("engine", 1.3);
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(openDescription)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);

// One key of a search on that camera, with all its editors, beside the stock view without any.
void searchKeyOnDescription(benchmark::State &state)
{
    const QString fileName = descriptionFor(state);
    if (state.error_occurred()) {
        return;
    }
    const auto camera = Cameras::Camera::openDescription(fileName);
    const Cameras::NodeMap &nodeMap = camera->nodeMaps().constFirst();
    Window window(nodeMap.collection, nodeMap.name);
    measureSearchKey(state, window);
    state.counters["rows"] = visitRows(window.model());
    state.counters["editors"] =
        window.view().viewport()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly).size();
}
BENCHMARK(searchKeyOnDescription)->Iterations(25)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
