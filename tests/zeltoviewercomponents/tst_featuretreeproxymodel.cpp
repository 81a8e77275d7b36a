// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "rownames.h"

#include <support/memorycollection.h>
#include <support/randomnodes.h>
#include <support/strictidentityproxy.h>
#include <support/table.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QItemSelectionModel>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace ParameterCollection;

namespace {

const QString cameraDevice = "@CameraDevice";

QStringList matchesIn(const FeatureTreeProxyModel &proxy)
{
    QStringList names;
    const auto rows = proxy.match(proxy.index(0, 0), FeatureTreeItem::FullNodeNameRole, QString(), -1,
                                  Qt::MatchContains | Qt::MatchRecursive);
    for (const QModelIndex &row : rows) {
        names += proxy.isMatch(row) ? QStringList(row.data().toString()) : QStringList();
    }
    return names;
}

} // namespace

class TestFeatureTreeProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void specialRowsInEveryOrder_data();
    void specialRowsInEveryOrder();
    void acceptanceFollowsTheRule();
    void loadsOnlyWhatShowingNeeds();
    void foreignPatternsWork();
    void flippedRowsAreFilteredOnce();
    void flippedRowsBelowCollapsedCategories_data();
    void flippedRowsBelowCollapsedCategories();
    void searchRowNeedsASearch();
    void invalidationJudgesAnew();
    void favoritesBranchStaysWithoutSearch();
    void lateBranchMakesItsParentsPass();
    void indexesAreTheProxys();
    void dropOnTheBranchAppends();
    void clearResets();
    void defaultsWithoutAFeatureTreeModel();
    void otherSources();

private:
    void addCamera();
    QModelIndex find(const QString &fullName) { return m_proxy->findItemByFullName(fullName, nullptr, 0); }

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<FeatureTreeProxyModel> m_proxy;
    FeatureTreeModel *m_model = nullptr;
};

void TestFeatureTreeProxyModel::init()
{
    QSettings().clear();
    m_collection = MemoryCollection::createSample();
    m_proxy = std::make_unique<FeatureTreeProxyModel>();
    m_model = new FeatureTreeModel(m_proxy.get());
    m_proxy->setSourceModel(m_model);
    m_proxy->setDynamicSortFilter(false);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setFilterKeyColumn(1);
    while (m_proxy->GetFavorites().removeEntry(0)) { }
    m_proxy->GetFavorites().setViewAll(true);
}

void TestFeatureTreeProxyModel::addCamera()
{
    m_proxy->addParameterCollection(m_collection, "Camera", cameraDevice, false);
}

void TestFeatureTreeProxyModel::specialRowsInEveryOrder_data()
{
    columns<QString>({"calls"});
    // c: add a collection, C: another one, f: rebuild the favorites, h: create their head alone, x: clear
    for (const char *const calls :
         {"cf", "fc", "cCf", "cfC", "fcC", "cfCf", "hcf", "chCf", "cfxcf", "fcxfcC"}) {
        row(calls, calls);
    }
}

void TestFeatureTreeProxyModel::specialRowsInEveryOrder()
{
    QFETCH(const QString, calls);
    QTreeView view;
    view.setModel(m_proxy.get());
    view.resize(400, 600);
    view.show();
    const QString category = "@CameraDevice/AcquisitionControl";
    bool hasCamera = false;
    for (const QChar call : calls) {
        switch (call.toLatin1()) {
        case 'c':
            addCamera();
            hasCamera = true;
            view.expand(find("@CameraDevice*Root"));
            view.expand(find(category));
            view.setCurrentIndex(find(category));
            break;
        case 'C': {
            const auto other = MemoryCollection::createSample("@Other");
            m_proxy->addParameterCollection(other, "Other", other->name(), false);
            break;
        }
        case 'f':
            m_proxy->rebuildFavoriteItems();
            break;
        case 'h':
            m_proxy->CreateFavoritesRoot();
            break;
        default:
            m_proxy->clear();
            hasCamera = false;
            QCOMPARE(m_proxy->rowCount(), 0);
        }
        QCoreApplication::processEvents();
        if (hasCamera) {
            QVERIFY(view.isExpanded(find("@CameraDevice*Root")));
            QVERIFY(view.isExpanded(find(category)));
            QVERIFY(!view.isExpanded(find("@CameraDevice/DeviceControl")));
            QCOMPARE(view.currentIndex(), find(category));
            QVERIFY(view.selectionModel()->isSelected(find(category)));
        }
    }
    m_proxy->setFilterFixedString("zzz");
    QCOMPARE(m_proxy->rowCount(), 0);
    m_proxy->setAcceptAll(true);
    m_proxy->invalidate();
    QCOMPARE(fullNames(*m_proxy), fullNames(*m_model));
    QCOMPARE(fullNames(*m_proxy).constFirst(), "Search");
}

void TestFeatureTreeProxyModel::acceptanceFollowsTheRule()
{
    QRandomGenerator random(20260101);
    const QStringList texts{"",  "gain",   "GAIN",    "E", "a.b",     "*", "x*1",
                            "1", "straße", "strasse", "ü", "nothing", "t"};
    for (int round = 0; round < 60; ++round) {
        init();
        // One that has the roles alone judges row by row, without marks and passes.
        QIdentityProxyModel identity;
        identity.setSourceModel(m_model);
        FeatureTreeProxyModel behind;
        behind.setSourceModel(&identity);
        behind.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_collection = QSharedPointer<MemoryCollection>::create();
        const auto features = addRandomNodes(*m_collection, random, random.bounded(5, 60));
        for (int i = random.bounded(4); i > 0 && !features.isEmpty(); --i) {
            m_proxy->AddFavorite(features[random.bounded(features.size())], 0);
        }
        m_proxy->GetFavorites().appendEntry({"Missing", "Gain", cameraDevice});
        addCamera();
        m_proxy->rebuildFavoriteItems();
        for (int step = 0; step < 6; ++step) {
            const auto level = GenApi::EVisibility(random.bounded(4));
            const QString text = texts[random.bounded(texts.size())];
            for (FeatureTreeProxyModel *const proxy : {m_proxy.get(), &behind}) {
                proxy->setVisibility(level);
                proxy->setFilterFixedString(text);
            }
            const QStringList accepted = fullNames(*m_proxy);
            const QStringList expected = fullNames(behind);
            QVERIFY2(
                accepted == expected,
                qPrintable(QStringLiteral("round %1, level %2, text \"%3\"\n%4\n%5")
                               .arg(round)
                               .arg(level)
                               .arg(text, accepted.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')))));
            QCOMPARE(m_proxy->visibleMatches(), behind.visibleMatches());
            QCOMPARE(m_proxy->hiddenMatches(), behind.hiddenMatches());
            QCOMPARE(m_proxy->visibleMatchCount(), behind.visibleMatchCount());
            QCOMPARE(m_proxy->hiddenMatchCount(), behind.hiddenMatchCount());
            QCOMPARE(matchesIn(*m_proxy), matchesIn(behind));
        }
    }
}

void TestFeatureTreeProxyModel::loadsOnlyWhatShowingNeeds()
{
    m_collection->addCategory("Nested", "DeviceControl");
    m_collection->addInteger("Near", "Nested");
    m_collection->addCategory("Below", "Nested");
    m_collection->addInteger("Deep", "Below");
    addCamera();
    m_proxy->rebuildFavoriteItems();
    m_proxy->setFilterFixedString(QString());
    m_proxy->refreshSpecialItems();
    m_collection->get<MemoryPlain>("ImageFormatControl")->publish();
    const QModelIndex root = find("@CameraDevice*Root");
    QCOMPARE(m_proxy->rowCount(), 2);
    QVERIFY2(!find("@CameraDevice/Gain").isValid(), "one feature is enough for the top row");
    QCOMPARE(m_proxy->rowCount(root), 3);
    m_proxy->refreshSpecialItems();
    const QModelIndex device = find("@CameraDevice/DeviceControl");
    QVERIFY(m_proxy->hasChildren(device));
    // A category passes by its first feature; what lies deeper is not asked.
    QVERIFY(!find("@CameraDevice/Near").isValid());
    m_proxy->setFilterFixedString("deep");
    QVERIFY(find("@CameraDevice/Deep").isValid());
    QCOMPARE(m_proxy->visibleMatches(), QSet<QString>{"Deep"});
}

void TestFeatureTreeProxyModel::foreignPatternsWork()
{
    addCamera();
    visitAll(*m_proxy);
    QSortFilterProxyModel *const base = m_proxy.get();
    base->setFilterFixedString("gain");
    QVERIFY(find("@CameraDevice/Gain").isValid());
    QVERIFY(!find("@CameraDevice/Width").isValid());
    QCOMPARE(m_proxy->visibleMatches(), QSet<QString>{"Gain"});
    base->setFilterRegularExpression("^(Width|Gain)$");
    QVERIFY(find("@CameraDevice/Width").isValid());
    QVERIFY(!find("@CameraDevice/OffsetX").isValid());
    base->setFilterWildcard("Offset*");
    QVERIFY(!find("@CameraDevice/Width").isValid());
    base->setFilterRegularExpression(QRegularExpression("Width"));
    QCOMPARE(m_proxy->hiddenMatchCount() + m_proxy->visibleMatchCount(), 1);
    QVERIFY(!find("@CameraDevice/OffsetX").isValid());
    base->setFilterRegularExpression(QString());
    QVERIFY(find("@CameraDevice/OffsetX").isValid());
}

void TestFeatureTreeProxyModel::flippedRowsAreFilteredOnce()
{
    addCamera();
    visitAll(*m_proxy);
    const QList<QSharedPointer<MemoryInteger>> integers{m_collection->get<MemoryInteger>("Width"),
                                                        m_collection->get<MemoryInteger>("OffsetX")};
    QSignalSpy layout(m_proxy.get(), &QAbstractItemModel::layoutChanged);
    for (const bool implemented : {false, true}) {
        layout.clear();
        for (const auto &integer : integers) {
            integer->update([implemented](auto &data) { data.isImplemented = implemented; });
        }
        QCOMPARE(layout.count(), 0);
        QTRY_COMPARE(layout.count(), 1);
        QCOMPARE(find("@CameraDevice/Width").isValid(), implemented);
    }
    integers[0]->publish(); // nothing flipped
    QCoreApplication::processEvents();
    QCOMPARE(layout.count(), 1);
}

void TestFeatureTreeProxyModel::flippedRowsBelowCollapsedCategories_data()
{
    columns<bool>({"isBehindAnother"});
    row("over the model", false);
    row("over a proxy of the model", true);
}

void TestFeatureTreeProxyModel::flippedRowsBelowCollapsedCategories()
{
    QFETCH(const bool, isBehindAnother);
    QIdentityProxyModel identity;
    identity.setSourceModel(m_model);
    FeatureTreeProxyModel behind;
    behind.setSourceModel(&identity);
    FeatureTreeProxyModel &watched = isBehindAnother ? behind : *m_proxy;
    const QAbstractItemModelTester tester(&watched, QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_collection->addCategory("Outer");
    m_collection->addCategory("Inner", "Outer");
    const auto only = m_collection->addInteger("Only", "Inner");
    addCamera();
    const auto isOuterShown = [&watched] {
        return watched.rowCount(watched.index(0, 0)) == 4; // beside those of the sample
    };
    QVERIFY(isOuterShown());
    for (const bool implemented : {false, true, false}) {
        only->update([implemented](auto &data) { data.isImplemented = implemented; });
        QTRY_COMPARE(isOuterShown(), implemented);
    }
}

void TestFeatureTreeProxyModel::searchRowNeedsASearch()
{
    addCamera();
    m_proxy->rebuildFavoriteItems();
    FeatureTreeItem *const search = m_proxy->getSearchHelpItem();
    for (const auto level : {GenApi::Beginner, GenApi::Guru, GenApi::Invisible}) {
        search->setVisibility(GenApi::Invisible);
        m_proxy->setVisibility(level);
        m_proxy->setFilterFixedString("zzz");
        QCOMPARE(m_proxy->rowCount(), 0);
        search->setVisibility(GenApi::Beginner);
        m_proxy->setFilterFixedString("zzz");
        QCOMPARE(m_proxy->rowCount(), 1);
        QCOMPARE(m_proxy->indexForItem(search, 0), m_proxy->index(0, 0));
    }
}

void TestFeatureTreeProxyModel::invalidationJudgesAnew()
{
    addCamera();
    m_proxy->rebuildFavoriteItems();
    QSortFilterProxyModel &base = *m_proxy; // whoever knows no more of it
    for (const QString &text : {QString(), QStringLiteral("width"), QStringLiteral("nothing like it")}) {
        m_proxy->setFilterFixedString(text);
        const int rows = base.rowCount();
        m_proxy->getSearchHelpItem()->setVisibility(GenApi::Beginner);
        QCOMPARE(base.rowCount(), rows);
        base.invalidate();
        QCOMPARE(base.rowCount(), rows + 1);
        m_proxy->setAcceptAll(true);
        QCOMPARE(base.rowCount(), rows + 1);
        base.invalidate();
        QCOMPARE(base.rowCount(), base.sourceModel()->rowCount());
        m_proxy->setAcceptAll(false);
        m_proxy->getSearchHelpItem()->setVisibility(GenApi::Invisible);
        base.invalidate();
        QCOMPARE(base.rowCount(), rows);
    }
}

void TestFeatureTreeProxyModel::favoritesBranchStaysWithoutSearch()
{
    addCamera();
    FavoritesData &favorites = m_proxy->GetFavorites();
    favorites.setViewAll(false);
    favorites.appendEntry({"Missing", "Missing", cameraDevice});
    m_proxy->rebuildFavoriteItems();
    for (const auto level : {GenApi::Beginner, GenApi::Expert, GenApi::Guru}) {
        m_proxy->setVisibility(level);
        m_proxy->invalidate();
        QVERIFY(m_proxy->GetFavoritesRootIndex().isValid());
        QCOMPARE(m_proxy->rowCount(m_proxy->GetFavoritesRootIndex()), 0);
    }
    m_proxy->setFilterFixedString("gain");
    QVERIFY(!m_proxy->GetFavoritesRootIndex().isValid());
    QVERIFY(m_proxy->AddFavorite(m_collection->parameter("Gain"), 0));
    m_proxy->rebuildFavoriteItems();
    QVERIFY(m_proxy->GetFavoritesRootIndex().isValid());
    m_proxy->setFilterFixedString(QString());
    favorites.setViewAll(true);
    m_proxy->rebuildFavoriteItems();
    QVERIFY(find("Fav*CameraDevice*Missing").isValid());
}

void TestFeatureTreeProxyModel::lateBranchMakesItsParentsPass()
{
    const auto category = m_collection->addCategory("Late");
    m_collection->addInteger("LateFeature", "Late");
    const auto good = category->snapshot;
    category->snapshot.reset();
    addCamera();
    visitAll(*m_proxy);
    QVERIFY(!find("@CameraDevice/Late").isValid());
    category->snapshot = good;
    category->publish();
    QTRY_VERIFY(find("@CameraDevice/LateFeature").isValid());
}

void TestFeatureTreeProxyModel::indexesAreTheProxys()
{
    addCamera();
    m_proxy->rebuildFavoriteItems();
    visitAll(*m_proxy);
    const QModelIndex gain = find("@CameraDevice/Gain");
    QCOMPARE(gain.model(), m_proxy.get());
    FeatureTreeItem *const item = m_proxy->getFeatureTreeItem(gain);
    QCOMPARE(item->getFullName(), "@CameraDevice/Gain");
    QCOMPARE(m_proxy->indexForItem(item, 0), gain);
    QCOMPARE(m_proxy->findItem(item, nullptr, 1), gain.siblingAtColumn(1));
    QVERIFY(m_proxy->CanAddAsFavorite(gain));
    QVERIFY(m_proxy->flags(gain).testFlag(Qt::ItemNeverHasChildren));
    QVERIFY(!m_proxy->flags(gain.parent()).testFlag(Qt::ItemNeverHasChildren));
    QVERIFY(!m_proxy->hasChildren(gain.parent().siblingAtColumn(1)));

    QVERIFY(m_proxy->AddFavorite(m_collection->parameter("Gain"), 0));
    QVERIFY(m_proxy->AddFavorite(m_collection->parameter("Width"), 1));
    m_proxy->rebuildFavoriteItems();
    m_proxy->setFilterFixedString("width");
    const QModelIndex width = find("Fav*CameraDevice*Width");
    QCOMPARE(width.row(), 0); // the other favorite is filtered out
    QCOMPARE(m_proxy->getFavoritesIndexFromModelIndex(width), 1);
    QVERIFY(!m_proxy->CanMoveFavorite(width, false));
    QVERIFY(m_proxy->MoveFavorite(width, true));
    QVERIFY(!m_proxy->indexForItem(item, 0).isValid());
    QVERIFY(!m_proxy->findItemByRole(FeatureTreeItem::GenicamNameRole, "Gain", nullptr, 0).isValid());
    QVERIFY(m_proxy->RemoveFavorite(width));
    QCOMPARE(m_proxy->GetFavorites().count(), 1);
}

void TestFeatureTreeProxyModel::dropOnTheBranchAppends()
{
    addCamera();
    m_proxy->rebuildFavoriteItems();
    visitAll(*m_proxy);
    for (const char *const name : {"Gain", "Width", "OffsetX", "ReverseX", "PixelFormat"}) {
        const std::unique_ptr<QMimeData> data(
            m_proxy->mimeData({find("@CameraDevice/" + QString::fromLatin1(name))}));
        QVERIFY(m_proxy->dropMimeData(data.get(), Qt::MoveAction, -1, -1, m_proxy->GetFavoritesRootIndex()));
        m_proxy->rebuildFavoriteItems();
    }
    QCOMPARE(m_proxy->GetFavorites().entryAt(4)->featureName, "PixelFormat");
    // Between rows of a filtered branch the row is the source's.
    m_proxy->setFilterFixedString("offset");
    const std::unique_ptr<QMimeData> data(m_proxy->mimeData({find("Fav*CameraDevice*OffsetX")}));
    QVERIFY(m_proxy->dropMimeData(data.get(), Qt::MoveAction, 1, 0, m_proxy->GetFavoritesRootIndex()));
    QCOMPARE(m_proxy->GetFavorites().entryAt(4)->featureName, "OffsetX");
}

void TestFeatureTreeProxyModel::clearResets()
{
    QTreeView view;
    view.setModel(m_proxy.get());
    QSignalSpy reset(m_proxy.get(), SIGNAL(modelReset()));
    for (int round = 0; round < 3; ++round) {
        addCamera();
        m_proxy->rebuildFavoriteItems();
        view.expandAll();
        view.setCurrentIndex(find("@CameraDevice/Gain"));
        const QPersistentModelIndex kept = find("@CameraDevice/Width");
        m_proxy->setFilterFixedString(round == 1 ? "gain" : QString());
        m_proxy->clear();
        QCOMPARE(reset.count(), round + 1);
        QVERIFY(!kept.isValid());
        QVERIFY(!view.currentIndex().isValid());
        QCOMPARE(m_proxy->rowCount(), 0);
        QCoreApplication::processEvents();
    }
}

void TestFeatureTreeProxyModel::defaultsWithoutAFeatureTreeModel()
{
    FeatureTreeProxyModel empty;
    QCOMPARE(empty.GetParameterCollectionName(nullptr), "unknown NodeMap name");
    QCOMPARE(m_proxy->GetParameterCollectionName(nullptr), QString());
    QVERIFY(!empty.getFeatureTreeItem(QModelIndex()));
    QVERIFY(!empty.AddFavorite(nullptr, 0));
    QCOMPARE(empty.getFavoritesIndexFromModelIndex(QModelIndex()), -1);
    empty.rebuildFavoriteItems();
    empty.clear();
    empty.EnablePolling(true);
    QVERIFY(!empty.GetPolling());
    empty.setFilterFixedString("gain");
    QVERIFY(empty.visibleMatches().isEmpty() && empty.hiddenMatchCount() == 0);
    QCOMPARE(empty.rowCount(), 0);
}

void TestFeatureTreeProxyModel::otherSources()
{
    addCamera();
    FeatureTreeModel secondTree;
    const auto second = MemoryCollection::createSample();
    second->addInteger(QStringLiteral("GainRaw"), QStringLiteral("AcquisitionControl"));
    secondTree.addParameterCollection(second, QStringLiteral("Second"), cameraDevice, false);
    visitAll(secondTree);
    m_proxy->setFilterFixedString(QStringLiteral("gain"));
    QCOMPARE(m_proxy->visibleMatchCount(), 1);
    m_proxy->setSourceModel(&secondTree);
    QCOMPARE(m_proxy->visibleMatchCount(), 2);
    QVERIFY(find(QStringLiteral("@CameraDevice/GainRaw")).isValid());
    QVERIFY2(!find(QString()).isValid(), "the invisible root item is no row");

    QStandardItemModel foreign;
    foreign.appendRow(new QStandardItem(QStringLiteral("above")));
    foreign.item(0)->appendRow(new QStandardItem(QStringLiteral("below")));
    m_proxy->setSourceModel(&foreign);
    foreign.item(0)->appendRow(new QStandardItem(QStringLiteral("late")));
    QCOMPARE(m_proxy->rowCount(m_proxy->index(0, 0)), 2);
    m_proxy->setSourceModel(m_model);
}

QTEST_MAIN(TestFeatureTreeProxyModel)
#include "tst_featuretreeproxymodel.moc"
