// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/memorycollection.h>
#include <support/strictidentityproxy.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>

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

const QStringList mapNames{QStringLiteral("@CameraDevice"), QStringLiteral("@StreamGrabber0"),
                           QStringLiteral("@Other")};
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

struct Stack
{
    explicit Stack(QObject *parent = nullptr)
        : proxy(parent)
        , model(new FeatureTreeModel(&proxy))
    {
        proxy.setSourceModel(model);
        proxy.setDynamicSortFilter(false);
        proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    }

    FeatureTreeProxyModel proxy;
    FeatureTreeModel *model;
};

} // namespace

/*! \brief Rebuilds the branch when the list changes, as the tree's view does. */
class BranchKeeper : public QObject
{
    Q_OBJECT

public:
    explicit BranchKeeper(FeatureTreeProxyModel &proxy)
        : m_proxy(proxy)
    {
        connect(&proxy.GetFavorites(), SIGNAL(dataUpdated()), this, SLOT(rebuild()));
    }

public slots:
    void rebuild() { m_proxy.rebuildFavoriteItems(); }

private:
    FeatureTreeProxyModel &m_proxy;
};

/*! \brief Does at random what users, cameras and applications do to a tree, and compares it with one that was
 * built afresh after each step.
 */
class TestFeatureTreeChurn : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void churn_data();
    void churn();
    void sharedFavoritesDieInAnyOrder();

private:
    void fillCollections();
    void addNode(MemoryCollection &collection, QStringList &categories, int number);
    void step(Stack &stack, QTreeView &view);
    void changeFavorites(Stack &stack);
    void flipFeature();
    void addCollection(Stack &stack);
    QStringList expectedOutline(QSet<QString> &visible, QSet<QString> &hidden) const;

    QRandomGenerator m_random;
    QList<QSharedPointer<MemoryCollection>> m_collections;
    QList<QSharedPointer<MemoryInteger>> m_features;
    QList<int> m_added;
    QString m_text;
    GenApi::EVisibility m_level = GenApi::Guru;
    bool m_hasBranch = false;
    QString m_lastStep;
};

void TestFeatureTreeChurn::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreechurn"));
    QSettings().clear();
}

void TestFeatureTreeChurn::addNode(MemoryCollection &collection, QStringList &categories, int number)
{
    static const QStringList words{"Gain", "Exposure", "Trigger", "Line", "Offset"};
    const QString parent = categories[m_random.bounded(categories.size())];
    const QString name = words[m_random.bounded(words.size())] + QString::number(number);
    if (m_random.bounded(3) == 0) {
        const auto category = collection.addCategory(name, parent);
        category->snapshot->visibility = GenApi::EVisibility(m_random.bounded(3));
        categories.append(name);
        return;
    }
    const auto feature = collection.addInteger(name, parent);
    feature->snapshot->visibility = GenApi::EVisibility(m_random.bounded(4));
    feature->snapshot->isImplemented = m_random.bounded(4) > 0;
    m_features.append(feature);
}

void TestFeatureTreeChurn::fillCollections()
{
    m_collections.clear();
    m_features.clear();
    for (const QString &mapName : mapNames) {
        const auto collection = QSharedPointer<MemoryCollection>::create(mapName);
        QStringList categories{QStringLiteral("Root")};
        for (int number = 0; number < 14; ++number) {
            addNode(*collection, categories, number);
        }
        m_collections.append(collection);
    }
}

void TestFeatureTreeChurn::addCollection(Stack &stack)
{
    const int next = m_random.bounded(m_collections.size());
    if (m_added.contains(next)) {
        return;
    }
    m_added.append(next);
    stack.proxy.addParameterCollection(m_collections[next], mapNames[next], mapNames[next], false);
}

void TestFeatureTreeChurn::changeFavorites(Stack &stack)
{
    FavoritesData &favorites = stack.proxy.GetFavorites();
    const QModelIndex branch = stack.proxy.GetFavoritesRootIndex();
    const int count = stack.proxy.rowCount(branch);
    const QModelIndex row =
        branch.isValid() && count > 0 ? stack.proxy.index(m_random.bounded(count), 0, branch) : QModelIndex();
    m_hasBranch = true;
    switch (m_random.bounded(7)) {
    case 0:
        stack.proxy.MoveFavorite(row, m_random.bounded(2) == 0);
        break;
    case 1:
        stack.proxy.RemoveFavorite(row);
        break;
    case 2:
        favorites.setViewAll(!favorites.viewAll());
        break;
    case 3: {
        const std::unique_ptr<QMimeData> data(
            stack.proxy.mimeData({randomIndex(stack.proxy, m_random), randomIndex(stack.proxy, m_random)}));
        if (data) {
            stack.proxy.dropMimeData(data.get(), Qt::MoveAction, m_random.bounded(4), 0, branch);
        }
        break;
    }
    case 4:
        favorites.appendEntry({QStringLiteral("Missing"), QStringLiteral("Missing gain"), mapNames[0]});
        break;
    default:
        stack.proxy.AddFavorite(m_features[m_random.bounded(m_features.size())], m_random.bounded(5));
    }
    stack.proxy.rebuildFavoriteItems();
}

void TestFeatureTreeChurn::flipFeature()
{
    for (int flips = m_random.bounded(1, 4); flips > 0; --flips) {
        const auto &feature = m_features[m_random.bounded(m_features.size())];
        const auto visibility = GenApi::EVisibility(m_random.bounded(4));
        const bool implemented = m_random.bounded(3) > 0;
        feature->edit<IntegerParameterData>([visibility, implemented](auto &data) {
            data.visibility = visibility;
            data.isImplemented = implemented;
        });
        feature->publish();
    }
}

void TestFeatureTreeChurn::step(Stack &stack, QTreeView &view)
{
    const int choice = m_random.bounded(20);
    m_lastStep = QString::number(choice);
    if (choice < 3) {
        m_text = texts[m_random.bounded(texts.size())];
        stack.proxy.setFilterFixedString(m_text);
    } else if (choice < 5) {
        m_level = GenApi::EVisibility(m_random.bounded(4));
        stack.proxy.setVisibility(m_level);
        stack.proxy.invalidate();
    } else if (choice < 8) {
        flipFeature();
    } else if (choice < 10) {
        addCollection(stack);
    } else if (choice < 14) {
        changeFavorites(stack);
    } else if (choice < 18) {
        const QModelIndex index = randomIndex(stack.proxy, m_random);
        view.setExpanded(index, m_random.bounded(4) > 0);
        view.setCurrentIndex(index);
    } else if (choice == 18) {
        view.expandAll();
    } else if (m_random.bounded(3) == 0) {
        stack.proxy.clear();
        m_added.clear();
        m_hasBranch = false;
    }
}

QStringList TestFeatureTreeChurn::expectedOutline(QSet<QString> &visible, QSet<QString> &hidden) const
{
    Stack fresh;
    for (const int added : m_added) {
        fresh.proxy.addParameterCollection(m_collections[added], mapNames[added], mapNames[added], false);
    }
    if (m_hasBranch) {
        fresh.proxy.rebuildFavoriteItems();
    }
    fresh.proxy.setVisibility(m_level);
    fresh.proxy.setFilterFixedString(m_text);
    visible = fresh.proxy.visibleMatches();
    hidden = fresh.proxy.hiddenMatches();
    return outline(fresh.proxy);
}

void TestFeatureTreeChurn::churn_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<bool>("isWatched");
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
    m_added.clear();
    m_text.clear();
    m_level = GenApi::Guru;
    m_hasBranch = false;
    fillCollections();
    Stack stack;
    while (stack.proxy.GetFavorites().removeEntry(0)) { }
    const BranchKeeper keeper(stack.proxy);
    std::unique_ptr<QAbstractItemModelTester> tester;
    if (isWatched) {
        tester = std::make_unique<QAbstractItemModelTester>(
            &stack.proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    QTreeView view;
    view.setModel(&stack.proxy);
    view.resize(300, 400);
    view.show();
    for (int i = 0; i < 60; ++i) {
        QList<QPair<QPersistentModelIndex, QString>> kept;
        for (int k = 0; k < 6; ++k) {
            const QModelIndex index = randomIndex(stack.proxy, m_random);
            kept.append({index, nameOf(index)});
        }
        step(stack, view);
        QCoreApplication::processEvents();
        QSet<QString> visible;
        QSet<QString> hidden;
        const QStringList expected = expectedOutline(visible, hidden);
        const QStringList found = outline(stack.proxy);
        QVERIFY2(
            found == expected,
            qPrintable(QStringLiteral("step %1 (%2), level %3, text \"%4\"\n%5\n---\n%6")
                           .arg(i)
                           .arg(m_lastStep)
                           .arg(m_level)
                           .arg(m_text, found.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')))));
        QCOMPARE(stack.proxy.visibleMatches(), visible);
        QCOMPARE(stack.proxy.hiddenMatches(), hidden);
        for (const auto &[index, name] : std::as_const(kept)) {
            QVERIFY2(!index.isValid() || nameOf(index) == name, qPrintable(name + m_lastStep));
        }
    }
}

void TestFeatureTreeChurn::sharedFavoritesDieInAnyOrder()
{
    fillCollections();
    for (int first = 0; first < 2; ++first) {
        std::array<std::unique_ptr<Stack>, 2> stacks{std::make_unique<Stack>(), std::make_unique<Stack>()};
        std::array<std::unique_ptr<BranchKeeper>, 2> keepers;
        for (int i = 0; i < 2; ++i) {
            stacks[i]->proxy.addParameterCollection(m_collections[i], mapNames[i], mapNames[i], false);
            keepers[i] = std::make_unique<BranchKeeper>(stacks[i]->proxy);
        }
        FavoritesData &favorites = stacks[0]->proxy.GetFavorites();
        favorites.setSettingsGroup(QStringLiteral("Shared%1").arg(first));
        QVERIFY(stacks[0]->proxy.AddFavorite(m_features.constFirst(), 0));
        QVERIFY(stacks[1]->proxy.GetFavoritesRootIndex().isValid());
        keepers[first].reset();
        stacks[first].reset();
        QVERIFY(favorites.appendEntry({QStringLiteral("Late"), QStringLiteral("Late"), mapNames[1]}));
        const Stack &other = *stacks[1 - first];
        QCOMPARE(other.model->rowCount(other.model->index(1, 0)), 2);
        keepers[1 - first].reset();
        stacks[1 - first].reset();
        QCOMPARE(favorites.count(), 2);
        favorites.setSettingsGroup(QString());
        while (favorites.removeEntry(0)) { }
    }
}

QTEST_MAIN(TestFeatureTreeChurn)
#include "tst_featuretreechurn.moc"
