// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/randomnodes.h>
#include <support/table.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QRandomGenerator>
#include <QSettings>
#include <QTest>
#include <QTreeView>

#include <array>
#include <memory>

using namespace ParameterCollection;

namespace {

const QStringList mapNames{"@CameraDevice", "@StreamGrabber0", "@Other"};
const QStringList texts{"", "gain", "TRIGGER", "e", "1", "zzz", "fav", "off", ""};

QString nameOf(const QModelIndex &index)
{
    return index.data(FeatureTreeItem::FullNodeNameRole).toString();
}

QStringList outline(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex(), int depth = 0)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        lines.append(QString(depth, QLatin1Char(' ')) + nameOf(index));
        lines.append(outline(model, index, depth + 1));
    }
    return lines;
}

QModelIndex randomIndex(const QAbstractItemModel &model, QRandomGenerator &random)
{
    QModelIndex index;
    while (model.hasChildren(index) && model.rowCount(index) > 0
           && (!index.isValid() || random.bounded(5) > 0)) {
        index = model.index(random.bounded(model.rowCount(index)), 0, index);
    }
    return index;
}

} // namespace

/*! \brief A tree with what was done to it: in a plain view, in the real one, or in none. */
class Tree : public QObject
{
    Q_OBJECT

public:
    enum Kind { Unseen, Plain, Real };

    explicit Tree(Kind kind)
    {
        if (kind == Real) {
            m_view = std::make_unique<FeatureTreeView>();
            m_proxy = qobject_cast<FeatureTreeProxyModel *>(m_view->model());
        } else {
            m_proxy = new FeatureTreeProxyModel(this);
            m_proxy->setSourceModel(new FeatureTreeModel(m_proxy));
            m_proxy->setDynamicSortFilter(false);
            m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
        }
        if (kind == Plain) {
            m_view = std::make_unique<QTreeView>();
            m_view->setModel(m_proxy);
        }
        if (kind != Unseen) {
            m_view->resize(300, 400);
            m_view->show();
            connect(&m_proxy->GetFavorites(), SIGNAL(dataUpdated()), this, SLOT(onListChanged()));
        }
    }

    FeatureTreeProxyModel &proxy() { return *m_proxy; }
    QTreeView &view() { return *m_view; }

    QList<int> added;
    QString text;
    GenApi::EVisibility level = GenApi::Guru;
    bool hasBranch = false;

private slots:
    void onListChanged()
    {
        hasBranch = true;
        if (!qobject_cast<FeatureTreeView *>(m_view.get())) {
            m_proxy->rebuildFavoriteItems();
        }
    }

private:
    std::unique_ptr<QTreeView> m_view;
    FeatureTreeProxyModel *m_proxy = nullptr;
};

/*! \brief Does at random what users, cameras and applications do to a tree, and compares it with one that was
 * built afresh after each step.
 */
class TestFeatureTreeChurn : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QSettings().clear(); }
    void churn_data();
    void churn();
    void viewsShareTheList_data();
    void viewsShareTheList();

private:
    void fillCollections();
    void step(Tree &tree);
    void changeFavorites(Tree &tree);
    void flipFeature();
    void addCollection(Tree &tree);
    void check(Tree &tree, int number) const;

    QRandomGenerator m_random;
    QList<QSharedPointer<MemoryCollection>> m_collections;
    QList<QSharedPointer<MemoryInteger>> m_features;
    int m_lastStep = 0;
};

void TestFeatureTreeChurn::fillCollections()
{
    m_collections.clear();
    m_features.clear();
    for (const QString &mapName : mapNames) {
        m_collections.append(QSharedPointer<MemoryCollection>::create(mapName));
        m_features.append(addRandomNodes(*m_collections.constLast(), m_random, 14));
    }
}

void TestFeatureTreeChurn::addCollection(Tree &tree)
{
    const int next = m_random.bounded(m_collections.size());
    if (tree.added.contains(next)) {
        return;
    }
    tree.added.append(next);
    tree.proxy().addParameterCollection(m_collections[next], mapNames[next], mapNames[next], false);
}

void TestFeatureTreeChurn::changeFavorites(Tree &tree)
{
    FavoritesData &favorites = tree.proxy().GetFavorites();
    const QModelIndex branch = tree.proxy().GetFavoritesRootIndex();
    const int count = tree.proxy().rowCount(branch);
    const QModelIndex row = branch.isValid() && count > 0
        ? tree.proxy().index(m_random.bounded(count), 0, branch)
        : QModelIndex();
    tree.hasBranch = true;
    switch (m_random.bounded(7)) {
    case 0:
        tree.proxy().MoveFavorite(row, m_random.bounded(2) == 0);
        break;
    case 1:
        tree.proxy().RemoveFavorite(row);
        break;
    case 2:
        favorites.setViewAll(!favorites.viewAll());
        break;
    case 3: {
        const std::unique_ptr<QMimeData> data(tree.proxy().mimeData(
            {randomIndex(tree.proxy(), m_random), randomIndex(tree.proxy(), m_random)}));
        if (data) {
            tree.proxy().dropMimeData(data.get(), Qt::MoveAction, m_random.bounded(4), 0, branch);
        }
        break;
    }
    case 4:
        favorites.appendEntry({"Missing", "Missing gain", mapNames[0]});
        break;
    default:
        tree.proxy().AddFavorite(m_features[m_random.bounded(m_features.size())], m_random.bounded(5));
    }
    tree.proxy().rebuildFavoriteItems();
}

void TestFeatureTreeChurn::flipFeature()
{
    for (int flips = m_random.bounded(1, 4); flips > 0; --flips) {
        const auto &feature = m_features[m_random.bounded(m_features.size())];
        const auto visibility = GenApi::EVisibility(m_random.bounded(4));
        const bool implemented = m_random.bounded(3) > 0;
        feature->update([visibility, implemented](auto &data) {
            data.visibility = visibility;
            data.isImplemented = implemented;
        });
    }
}

void TestFeatureTreeChurn::step(Tree &tree)
{
    const int choice = m_random.bounded(20);
    m_lastStep = choice;
    if (choice < 3) {
        tree.text = texts[m_random.bounded(texts.size())];
        tree.proxy().setFilterFixedString(tree.text);
    } else if (choice < 5) {
        tree.level = GenApi::EVisibility(m_random.bounded(4));
        tree.proxy().setVisibility(tree.level);
        tree.proxy().invalidate();
    } else if (choice < 8) {
        flipFeature();
    } else if (choice < 10) {
        addCollection(tree);
    } else if (choice < 14) {
        changeFavorites(tree);
    } else if (choice < 18) {
        const QModelIndex index = randomIndex(tree.proxy(), m_random);
        tree.view().setExpanded(index, m_random.bounded(4) > 0);
        tree.view().setCurrentIndex(index);
    } else if (choice == 18) {
        tree.view().expandAll();
    } else if (m_random.bounded(3) == 0) {
        tree.proxy().clear();
        tree.added.clear();
        tree.hasBranch = false;
    }
}

void TestFeatureTreeChurn::check(Tree &tree, int number) const
{
    Tree fresh(Tree::Unseen);
    for (const int added : std::as_const(tree.added)) {
        fresh.proxy().addParameterCollection(m_collections[added], mapNames[added], mapNames[added], false);
    }
    if (tree.hasBranch) {
        fresh.proxy().rebuildFavoriteItems();
    }
    fresh.proxy().setVisibility(tree.level);
    fresh.proxy().setFilterFixedString(tree.text);
    const QStringList expected = outline(fresh.proxy());
    const QStringList found = outline(tree.proxy());
    QVERIFY2(
        found == expected,
        qPrintable(QStringLiteral("step %1 (%2), level %3, text \"%4\"\n%5\n---\n%6")
                       .arg(number)
                       .arg(m_lastStep)
                       .arg(tree.level)
                       .arg(tree.text, found.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')))));
    QCOMPARE(tree.proxy().visibleMatches(), fresh.proxy().visibleMatches());
    QCOMPARE(tree.proxy().hiddenMatches(), fresh.proxy().hiddenMatches());
}

void TestFeatureTreeChurn::churn_data()
{
    columns<int, bool>({"seed", "isWatched"});
    for (int seed = 1; seed <= 40; ++seed) {
        // The tester visits all rows; without it branches stay unloaded until they are shown.
        QTest::addRow("%d", seed) << seed << (seed % 2 == 0);
    }
}

void TestFeatureTreeChurn::churn()
{
    QFETCH(const int, seed);
    QFETCH(const bool, isWatched);
    m_random.seed(seed);
    fillCollections();
    Tree tree(Tree::Plain);
    while (tree.proxy().GetFavorites().removeEntry(0)) { }
    std::unique_ptr<QAbstractItemModelTester> tester;
    if (isWatched) {
        tester = std::make_unique<QAbstractItemModelTester>(
            &tree.proxy(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    for (int number = 0; number < 60; ++number) {
        QList<QPair<QPersistentModelIndex, QString>> kept;
        for (int k = 0; k < 6; ++k) {
            const QModelIndex index = randomIndex(tree.proxy(), m_random);
            kept.append({index, nameOf(index)});
        }
        step(tree);
        QCoreApplication::processEvents();
        check(tree, number);
        if (QTest::currentTestFailed()) {
            return;
        }
        for (const auto &[index, name] : std::as_const(kept)) {
            QVERIFY2(!index.isValid() || nameOf(index) == name, qPrintable(name));
        }
    }
}

void TestFeatureTreeChurn::viewsShareTheList_data()
{
    columns<int>({"seed"});
    for (int seed = 1; seed <= 6; ++seed) {
        QTest::addRow("%d", seed) << seed;
    }
}

void TestFeatureTreeChurn::viewsShareTheList()
{
    QFETCH(const int, seed);
    m_random.seed(seed);
    fillCollections();
    std::array<std::unique_ptr<Tree>, 2> trees{std::make_unique<Tree>(Tree::Real),
                                               std::make_unique<Tree>(Tree::Real)};
    for (int number = 0; number < 50; ++number) {
        auto &tree = trees[m_random.bounded(2)];
        if (m_random.bounded(10) == 0) {
            tree.reset();
            tree = std::make_unique<Tree>(Tree::Real);
        } else if (m_random.bounded(20) == 0) {
            tree->proxy().GetFavorites().setSettingsGroup(QStringLiteral("Group%1").arg(m_random.bounded(3)));
        } else {
            step(*tree);
        }
        QCoreApplication::processEvents();
        for (const auto &each : trees) {
            check(*each, number);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
}

QTEST_MAIN(TestFeatureTreeChurn)
#include "tst_featuretreechurn.moc"
