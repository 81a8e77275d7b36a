// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"
#include "trees.h"

#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>

#include <algorithm>
#include <array>

namespace {

// Few rows match, most of them do, none does.
const std::array searches{QStringLiteral("ExposureMode9"), QStringLiteral("e"), QStringLiteral("zzz"),
                          QStringLiteral("trigger")};

/*! \brief Model and proxy of the library over a synthetic camera, without a view. */
struct Tree
{
    explicit Tree(const QStringList &names)
        : camera(makeCamera(names, Kinds::Usual))
    {
        proxy.setSourceModel(&model);
        proxy.setDynamicSortFilter(false);
        proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        proxy.CreateFavoritesRoot();
        proxy.addParameterCollection(camera, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"), true);
        rows = visitRows(proxy);
    }

    QSharedPointer<MemoryCollection> camera;
    FeatureTreeModel model;
    FeatureTreeProxyModel proxy;
    int rows = 0;
};

void search(FeatureTreeProxyModel &proxy, const QString &text)
{
    proxy.setFilterFixedString(text);
    benchmark::DoNotOptimize(proxy.visibleMatchCount() + proxy.hiddenMatchCount());
}

qsizetype scan(const QStringList &names, const QString &text)
{
    return std::count_if(names.cbegin(), names.cend(),
                         [&text](const QString &name) { return name.contains(text, Qt::CaseInsensitive); });
}

// Setting the text and reading the counts, with all rows known to the proxy. The scan looks through the names
// once, as the stock proxy does.
void setSearchText(benchmark::State &state)
{
    const QStringList names = featureNames(static_cast<int>(state.range(0)));
    const QString text = searches.at(state.range(1));
    Tree tree(names);
    StockTree stock(tree.model);
    Figure figure(state);
    for (auto _ : state) {
        search(tree.proxy, QString());
        visitRows(tree.proxy);
        figure.ours([&] { search(tree.proxy, text); });
        stock.proxy()->setFilterFixedString(QString());
        visitRows(*stock.proxy());
        figure.baseline("stock", [&] { stock.proxy()->setFilterFixedString(text); });
        figure.baseline("scan", [&] { benchmark::DoNotOptimize(scan(names, text)); });
    }
    state.SetLabel(text.toStdString());
    state.counters["rows"] = tree.rows;
}
BENCHMARK(setSearchText)
    ->ArgsProduct({{10000}, {0, 1, 2, 3}})
    ->ArgNames({"features", "text"})
    ->Iterations(15)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The same with every row asked for afterwards, as a view with everything expanded does.
void setSearchTextAndVisit(benchmark::State &state)
{
    const QString text = searches.at(state.range(1));
    Tree tree(featureNames(static_cast<int>(state.range(0))));
    StockTree stock(tree.model);
    Figure figure(state);
    for (auto _ : state) {
        search(tree.proxy, QString());
        visitRows(tree.proxy);
        figure.ours([&] {
            search(tree.proxy, text);
            visitRows(tree.proxy);
        });
        stock.proxy()->setFilterFixedString(QString());
        visitRows(*stock.proxy());
        figure.baseline("stock", [&] {
            stock.proxy()->setFilterFixedString(text);
            visitRows(*stock.proxy());
        });
    }
    figure.wantShareOf("stock", 0.25);
    state.SetLabel(text.toStdString());
}
BENCHMARK(setSearchTextAndVisit)
    ->ArgsProduct({{10000}, {0, 1, 2, 3}})
    ->ArgNames({"features", "text"})
    ->Iterations(15)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// 100,000 features beside 10,000.
void growthOfSearch(benchmark::State &state)
{
    const QString text = searches.at(state.range(0));
    Tree large(featureNames(100000));
    Tree small(featureNames(10000));
    Figure figure(state);
    for (auto _ : state) {
        for (Tree *const tree : {&large, &small}) {
            search(tree->proxy, QString());
            visitRows(tree->proxy);
        }
        figure.ours([&] { search(large.proxy, text); });
        figure.baseline("tenth", [&] { search(small.proxy, text); });
    }
    figure.wantShareOf("tenth", 12.0);
    state.SetLabel(text.toStdString());
}
BENCHMARK(growthOfSearch)->DenseRange(0, 3)->Iterations(9)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
