// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "trees.h"

#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>

#include <QSignalSpy>

#include <malloc.h>

namespace {

constexpr int updatesPerTurn = 20000;

/*! \brief One category of features under the model, filled. */
struct Category
{
    explicit Category(int size)
    {
        const QString name = QStringLiteral("Category");
        camera.addCategory(name);
        const QStringList names = featureNames(size);
        for (const QString &feature : names) {
            parameters.append(camera.addInteger(feature, name));
        }
        const auto unowned = [](ParameterCollection::IParameterCollection *) {};
        model.addParameterCollection(
            QSharedPointer<ParameterCollection::IParameterCollection>(&camera, unowned),
            QStringLiteral("Camera"), camera.name(), true);
        visitRows(model);
    }

    // Publishes snapshots of ten features spread over the category: as many as the small one has, so that the
    // processor's caches serve both alike.
    void update()
    {
        for (int i = 0; i < updatesPerTurn; ++i) {
            parameters[i % 10 * (parameters.size() / 10)]->publish();
        }
    }

    MemoryCollection camera;
    QList<QSharedPointer<MemoryInteger>> parameters;
    FeatureTreeModel model;
};

// A value update through the model to dataChanged, in a category of 10,000 beside one of 10.
void updateOfValue(benchmark::State &state)
{
    Category large(10000);
    Category small(10);
    QSignalSpy changes(&large.model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    large.parameters.last()->publish();
    if (changes.isEmpty()) {
        state.SkipWithError("an update changes no data");
        return;
    }
    large.model.disconnect(&changes);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { large.update(); });
        figure.baseline("ten", [&] { small.update(); });
    }
    figure.wantShareOf("ten", 1.2);
    state.SetItemsProcessed(state.iterations() * updatesPerTurn);
}
BENCHMARK(updateOfValue)->Iterations(25)->UseManualTime()->Unit(benchmark::kMillisecond);

// What the model adds to a camera's own memory, and what proxy and search add to that.
void memoryPerRow(benchmark::State &state)
{
    const QStringList names = featureNames(10000);
    const auto camera = makeCamera(names, Kinds::Usual);
    const auto used = [] {
        const auto info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd); // long arrays have pages of their own
    };
    for (auto _ : state) {
        const double before = used();
        FeatureTreeModel model;
        model.addParameterCollection(camera, QStringLiteral("Camera"), camera->name(), true);
        const int rows = visitRows(model);
        const double filled = used();
        FeatureTreeProxyModel proxy;
        proxy.setSourceModel(&model);
        proxy.setFilterFixedString(QStringLiteral("e"));
        visitRows(proxy);
        state.counters["bytes_per_row"] = (filled - before) / rows;
        state.counters["with_search"] = (used() - before) / rows;
        state.counters["goal_with_search"] = 1200;
    }
}
BENCHMARK(memoryPerRow)->Iterations(1)->Unit(benchmark::kMillisecond);

/*! \brief Counts what the model tells while favorites change. */
struct FavoritesFigure
{
    explicit FavoritesFigure(const QStringList &names)
        : camera(makeCamera(names, Kinds::Usual))
        , updates(&model.GetFavorites(), SIGNAL(dataUpdated()))
    {
        model.CreateFavoritesRoot();
        model.addParameterCollection(camera, QStringLiteral("Camera"), camera->name(), true);
        for (int i = 0; i < 100; ++i) {
            model.AddFavorite(camera->parameter(names[i]), i);
        }
        // As a view does.
        QObject::connect(&model.GetFavorites(), &FavoritesData::dataUpdated, &model, [this] {
            ++rebuilds;
            model.rebuildFavoriteItems();
        });
        model.rebuildFavoriteItems();
        updates.clear();
    }
    ~FavoritesFigure()
    {
        while (model.GetFavorites().count() > 0) {
            model.GetFavorites().takeEntry(0);
        }
    }

    QModelIndex row(int i) { return model.index(i, 0, model.GetFavoritesRootIndex()); }

    QSharedPointer<MemoryCollection> camera;
    FeatureTreeModel model;
    QSignalSpy updates;
    int rebuilds = 0;
};

// Adding, moving ten places and removing one favorite among 100, under deferred updates and without.
void favorites(benchmark::State &state)
{
    const QStringList names = featureNames(200);
    FavoritesFigure tree(names);
    const bool isDeferred = state.range(0) != 0;
    FavoritesData &data = tree.model.GetFavorites();
    for (auto _ : state) {
        data.setDeferredUpdates(isDeferred);
        tree.model.AddFavorite(tree.camera->parameter(names[150]), 50);
        for (int i = 0; i < 10; ++i) {
            data.moveEntry(50 + i, 52 + i);
        }
        data.removeEntry(60);
        data.setDeferredUpdates(false);
    }
    const auto turns = static_cast<double>(state.iterations());
    state.counters["steps"] = 12;
    state.counters["signals"] = static_cast<double>(tree.updates.size()) / turns;
    state.counters["rebuilds"] = tree.rebuilds / turns;
}
BENCHMARK(favorites)->Arg(0)->Arg(1)->ArgName("deferred")->Unit(benchmark::kMillisecond);

} // namespace
