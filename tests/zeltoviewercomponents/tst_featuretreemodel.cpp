// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <support/strictidentityproxy.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/featuretree/featuretreefavoritesitem.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>
#include <zeltoviewercomponents/featuretree/featuretreetext.h>

#include <QAbstractItemModelTester>
#include <QDataStream>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <stdexcept>

using namespace ParameterCollection;

class TestFeatureTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void topRowsStandInOrder();
    void headersAndFlags();
    void failingCollectionIsReported_data();
    void failingCollectionIsReported();
    void admitsChildren();
    void firstFillInsideRowCountIsSilent();
    void modelsPassTheTester();
    void searchRowMovesPersistentIndexes();

    void readFailureIsReportedOnce();
    void setDataRefusals();
    void setDataWritesChangesOnly();
    void setDataReportsFailures_data();
    void setDataReportsFailures();
    void updatesSignalTheTwoCells();
    void clearFromAnUpdate();
    void clearFromAWrite_data();
    void clearFromAWrite();
    void receiversMayClearAndRebuild_data();
    void receiversMayClearAndRebuild();
    void deadDeviceIsLeftAlone();

    void pollsTheFirstCollectionOnly();
    void pollFailureIsLogged_data();
    void pollFailureIsLogged();
    void deadDeviceEndsPolling();

    void specialRowsAreRefreshed();
    void clearLeavesNothing();

    void dragWritesAddresses();
    void dropAddsAndMovesFavorites();
    void dropFromAnotherTree();
    void hostileDropsChangeNothing_data();
    void hostileDropsChangeNothing();
    void randomDropsChangeNothing();

    void favoritesCanBeAddedMovedRemoved();
    void placeholdersAndLiveRows();
    void favoriteWritesWithItsCollectionsEncoding();
    void favoritesNeedNoCollection();
    void deferredListDoesNotMixUpRows();
    void exportsText();
    void modelMayOutliveTheApplication();
    void everyOperationMayThrow_data();
    void everyOperationMayThrow();

private:
    QModelIndex find(const QString &fullName, int column = 0) const;
    QModelIndex feature(const QString &name, int column = 1) const;
    QStringList favoriteNames() const;
    void addSample();

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model;
};

namespace {

const QString cameraDevice = QStringLiteral("@CameraDevice");

// Dies at the end of the process, after the application and all that was made later than this pointer.
std::unique_ptr<FeatureTreeModel> survivor;

QByteArray payloadOf(const QList<const void *> &addresses)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    for (const void *address : addresses) {
        stream << static_cast<qint64>(reinterpret_cast<qintptr>(address));
    }
    return payload;
}

std::unique_ptr<QMimeData> mimeOf(const QByteArray &payload,
                                  const QString &format = FeatureTreeModel::dragFormat())
{
    auto data = std::make_unique<QMimeData>();
    data->setData(format, payload);
    return data;
}

QStringList namesBelow(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names.append(index.data(FeatureTreeItem::FullNodeNameRole).toString());
        names.append(namesBelow(model, index));
    }
    return names;
}

} // namespace

void TestFeatureTreeModel::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreemodel"));
}

void TestFeatureTreeModel::init()
{
    QSettings().clear();
    m_collection = MemoryCollection::createSample();
    m_model = std::make_unique<FeatureTreeModel>();
    FavoritesData &favorites = m_model->GetFavorites();
    while (favorites.removeEntry(0)) { }
    favorites.setViewAll(true);
    GetTheGlobalAsyncErrorQueue()->clear();
}

void TestFeatureTreeModel::cleanup()
{
    m_model.reset();
    GetTheGlobalAsyncErrorQueue()->clear();
}

QModelIndex TestFeatureTreeModel::find(const QString &fullName, int column) const
{
    return m_model->findItemByFullName(fullName, nullptr, column);
}

QModelIndex TestFeatureTreeModel::feature(const QString &name, int column) const
{
    visitAll(*m_model);
    return find(cameraDevice + QLatin1Char('/') + name, column);
}

QStringList TestFeatureTreeModel::favoriteNames() const
{
    QStringList names;
    FavoritesData &favorites = m_model->GetFavorites();
    for (int i = 0; i < favorites.count(); ++i) {
        names.append(favorites.entryAt(i)->featureName);
    }
    return names;
}

void TestFeatureTreeModel::addSample()
{
    m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), cameraDevice, false);
}

void TestFeatureTreeModel::topRowsStandInOrder()
{
    const auto transport = MemoryCollection::createSample(QStringLiteral("@DeviceTransportLayer"));
    addSample();
    m_model->rebuildFavoriteItems();
    m_model->addParameterCollection(transport, QStringLiteral("Transport"), transport->name(), false);
    m_model->rebuildFavoriteItems();
    QStringList names;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        names.append(m_model->index(row, 0).data(FeatureTreeItem::FullNodeNameRole).toString());
    }
    QCOMPARE(
        names,
        QStringList({"Search", "FavoritesTopLevel", "@CameraDevice*Root", "@DeviceTransportLayer*Root"}));
    QCOMPARE(m_model->index(2, 0).data().toString(), QStringLiteral("Camera"));
    QCOMPARE(m_model->index(2, 0).data(FeatureTreeItem::IsFullRowItem), QVariant(true));
    QCOMPARE(m_model->index(2, 0).data(FeatureTreeItem::IsSpecialNode), QVariant(false));
    QCOMPARE(m_model->index(0, 0).data(FeatureTreeItem::GenicamVisibility), QVariant(3));
    QCOMPARE(m_model->GetFavoritesRootIndex().row(), 1);
    QCOMPARE(m_model->GetParameterCollectionName(m_collection), QString());
}

void TestFeatureTreeModel::headersAndFlags()
{
    QCOMPARE(m_model->headerData(0, Qt::Horizontal), QVariant(QStringLiteral("Feature")));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal), QVariant(QStringLiteral("Value")));
    QVERIFY(!m_model->headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Vertical).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
    QCOMPARE(m_model->flags(QModelIndex()), Qt::ItemIsEnabled);
    QCOMPARE(m_model->supportedDropActions(), Qt::MoveAction);
    QVERIFY(m_model->hasChildren());
    QVERIFY(!m_model->data(QModelIndex()).isValid());
}

void TestFeatureTreeModel::failingCollectionIsReported_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("message");
    QTest::newRow("standard exception") << 0 << QStringLiteral("cable");
    QTest::newRow("anything else") << 1 << QStringLiteral("Failed to get the node 'Root' from the node map");
    QTest::newRow("no Root") << 2 << QStringLiteral("Failed to get the node 'Root' from the node map");
}

void TestFeatureTreeModel::failingCollectionIsReported()
{
    QFETCH(const int, failure);
    m_collection->before = [failure](const QString &) {
        if (failure == 0) {
            throw std::runtime_error("cable");
        }
        if (failure == 1) {
            throw 1;
        }
    };
    QSignalSpy spy(GetTheGlobalAsyncErrorQueue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    {
        LogCapture log;
        m_model->addParameterCollection(m_collection, QStringLiteral("Camera"),
                                        failure == 2 ? QStringLiteral("@Other") : cameraDevice, false);
    }
    QCOMPARE(m_model->rowCount(), 0);
    QTRY_COMPARE(spy.count(), 1);
    QTEST(spy[0][1].toString(), "message");
}

void TestFeatureTreeModel::admitsChildren()
{
    const auto hidden = m_collection->addCategory(QStringLiteral("HiddenCategory"));
    hidden->snapshot->visibility = GenApi::Invisible;
    const auto invisible =
        m_collection->addInteger(QStringLiteral("InvisibleFeature"), QStringLiteral("DeviceControl"));
    invisible->snapshot->visibility = GenApi::Invisible;
    const auto excluded =
        m_collection->addInteger(QStringLiteral("Excluded"), QStringLiteral("DeviceControl"));
    excluded->excluded = true;
    const auto broken = m_collection->addInteger(QStringLiteral("Broken"), QStringLiteral("DeviceControl"));
    broken->before = [](const QString &operation) {
        if (operation == QLatin1String("isExcluded")) {
            throw 1;
        }
    };
    m_collection->addCategory(QStringLiteral("Outer"));
    const auto inner = m_collection->addCategory(QStringLiteral("Inner"), QStringLiteral("Outer"));
    inner->MemoryNode::children.append(QStringLiteral("Outer"));
    LogCapture log;
    addSample();
    visitAll(*m_model);
    QCOMPARE(m_model->rowCount(find(QStringLiteral("@CameraDevice/Inner"))), 0);
    QVERIFY(!find(QStringLiteral("@CameraDevice/HiddenCategory")).isValid());
    QVERIFY(find(QStringLiteral("@CameraDevice/InvisibleFeature")).isValid());
    QVERIFY(!find(QStringLiteral("@CameraDevice/Excluded")).isValid());
    QVERIFY(!find(QStringLiteral("@CameraDevice/Broken")).isValid());
    QVERIFY(find(QStringLiteral("@CameraDevice/DeviceUserID")).isValid());
}

void TestFeatureTreeModel::firstFillInsideRowCountIsSilent()
{
    QSignalSpy inserted(m_model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    addSample();
    QCOMPARE(inserted.count(), 1); // the first level, filled outside any query
    QCOMPARE(inserted[0][2].toInt(), 2);
    const QModelIndex category = find(QStringLiteral("@CameraDevice/AcquisitionControl"));
    QVERIFY(m_model->hasChildren(category));
    QCOMPARE(m_model->getFeatureTreeItem(category)->existingChildCount(), 0);
    QCOMPARE(m_model->rowCount(category), 3);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(m_model->getFeatureTreeItem(find(QStringLiteral("@CameraDevice/DeviceControl")))->childCount(),
             1);
    QCOMPARE(inserted.count(), 2);
}

void TestFeatureTreeModel::modelsPassTheTester()
{
    addSample();
    m_model->rebuildFavoriteItems();
    StrictIdentityProxy strict;
    strict.setSourceModel(m_model.get());
    QSortFilterProxyModel plain;
    plain.setSourceModel(&strict);
    const QAbstractItemModelTester strictTester(&strict,
                                                QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester plainTester(&plain,
                                               QAbstractItemModelTester::FailureReportingMode::QtTest);
    const int rows = visitAll(plain);
    QCOMPARE(rows, 3 + 1 + 3 + 8);

    const auto transport = MemoryCollection::createSample(QStringLiteral("@DeviceTransportLayer"));
    m_model->addParameterCollection(transport, QStringLiteral("Transport"), transport->name(), false);
    QCOMPARE(visitAll(plain), rows + 1 + 3 + 8);
    QVERIFY(m_model->AddFavorite(m_collection->parameter(QStringLiteral("Gain")), 0));
    QVERIFY(m_model->AddFavorite(m_collection->parameter(QStringLiteral("Width")), 0));
    m_model->rebuildFavoriteItems();
    QCOMPARE(visitAll(plain), visitAll(*m_model));
    m_collection->parameter(QStringLiteral("Gain"))->setValueFromString(QStringLiteral("2"));
    QTRY_COMPARE(feature(QStringLiteral("Gain")).data(Qt::EditRole), QVariant(QStringLiteral("2")));
    m_model->GetFavorites().removeEntry(0);
    m_model->rebuildFavoriteItems();
    QCOMPARE(visitAll(plain), visitAll(*m_model));
}

void TestFeatureTreeModel::searchRowMovesPersistentIndexes()
{
    addSample();
    const QPersistentModelIndex camera = m_model->index(0, 0);
    const QPersistentModelIndex category = m_model->index(1, 0, camera);
    m_model->rebuildFavoriteItems();
    QCOMPARE(camera.row(), 2);
    QCOMPARE(camera.data().toString(), QStringLiteral("Camera"));
    QCOMPARE(category.row(), 1);
    QCOMPARE(QModelIndex(category.parent()), QModelIndex(camera));
}

void TestFeatureTreeModel::readFailureIsReportedOnce()
{
    class ThrowingItem : public FeatureTreeItem
    {
    public:
        using FeatureTreeItem::FeatureTreeItem;
        QVariant data(int, int) override
        {
            if (isGenICam) {
                throw GenICam::AccessException(QStringLiteral("momentarily"));
            }
            throw std::runtime_error("broken");
        }
        bool isGenICam = false;
    };
    addSample();
    FeatureTreeItem *const root = m_model->getFeatureTreeItem(m_model->index(0, 0))->parent();
    auto *const broken = new ThrowingItem(QString(), m_model.get(), QStringLiteral("broken"), root);
    root->appendChild(broken);
    const QModelIndex index = m_model->indexForItem(broken, 0);
    AsyncErrorQueue &queue = *GetTheGlobalAsyncErrorQueue();
    LogCapture log;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!m_model->data(index).isValid());
    }
    QCOMPARE(queue.count(), size_t(1));
    m_model->data(m_model->index(0, 0));
    QVERIFY(!m_model->data(index).isValid());
    QCOMPARE(queue.count(), size_t(2));
    m_model->data(m_model->index(0, 0));
    broken->isGenICam = true;
    QVERIFY(!m_model->data(index).isValid());
    QCOMPARE(queue.count(), size_t(2));
}

void TestFeatureTreeModel::setDataRefusals()
{
    addSample();
    const QModelIndex value = feature(QStringLiteral("OffsetX"));
    auto *const node = dynamic_cast<MemoryNode *>(m_collection->parameter(QStringLiteral("OffsetX")).data());
    QVERIFY(!m_model->setData(QModelIndex(), 5));
    QVERIFY(!m_model->setData(value.siblingAtColumn(0), 5));
    QVERIFY(!m_model->setData(value, 5, Qt::DisplayRole));
    QVERIFY(!m_model->setData(value, QVariant()));
    m_model->SetDeviceAlive(false);
    QVERIFY(!m_model->setData(value, 5));
    QCOMPARE(node->writes, QStringList());
    QCOMPARE(GetTheGlobalAsyncErrorQueue()->count(), size_t(0));
}

void TestFeatureTreeModel::setDataWritesChangesOnly()
{
    addSample();
    const QModelIndex value = feature(QStringLiteral("OffsetX"));
    auto *const node = dynamic_cast<MemoryNode *>(m_collection->parameter(QStringLiteral("OffsetX")).data());
    QVERIFY(m_model->setData(value, QStringLiteral("0")));
    QVERIFY(m_model->setData(value, 0));
    QCOMPARE(node->writes, QStringList());
    QVERIFY(m_model->setData(value, 12));
    QCOMPARE(node->writes, QStringList(QStringLiteral("12")));
    QTRY_COMPARE(value.data(Qt::EditRole), QVariant(QStringLiteral("12")));
}

void TestFeatureTreeModel::setDataReportsFailures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("standard");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("details");
    QTest::addColumn<int>("checks");
    const QString failed = QStringLiteral("Failed to set a feature value.");
    QTest::newRow("integer") << "OffsetX" << true << QStringLiteral("cable") << failed << 0;
    QTest::newRow("command is reset") << "TriggerSoftware" << true << QStringLiteral("cable") << failed << 1;
    QTest::newRow("unexpected") << "OffsetX" << false << failed << QString() << 0;
}

void TestFeatureTreeModel::setDataReportsFailures()
{
    QFETCH(const QString, name);
    QFETCH(const bool, standard);
    addSample();
    const QModelIndex value = feature(name);
    auto *const node = dynamic_cast<MemoryNode *>(m_collection->parameter(name).data());
    node->before = [standard](const QString &operation) {
        if (operation == QLatin1String("setValueFromString") || operation == QLatin1String("execute")) {
            if (standard) {
                throw std::runtime_error("cable");
            }
            throw 1;
        }
    };
    QSignalSpy spy(GetTheGlobalAsyncErrorQueue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    {
        LogCapture log;
        QVERIFY(!m_model->setData(value, QStringLiteral("1")));
    }
    QTRY_COMPARE(spy.count(), 1);
    QTEST(spy[0][1].toString(), "message");
    QTEST(spy[0][2].toString(), "details");
    QTEST(node->forcedChecks, "checks");
}

void TestFeatureTreeModel::updatesSignalTheTwoCells()
{
    addSample();
    const QModelIndex value = feature(QStringLiteral("Gain"));
    QSignalSpy spy(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_collection->parameter(QStringLiteral("Gain"))->scheduleParameterDataChangedCheck(true);
    QTRY_COMPARE(spy.count(), 2);
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(spy[column][0].toModelIndex(), value.siblingAtColumn(column));
        QCOMPARE(spy[column][1].toModelIndex(), value.siblingAtColumn(column));
        QVERIFY(spy[column][2].value<QList<int>>().isEmpty());
    }
}

void TestFeatureTreeModel::clearFromAnUpdate()
{
    addSample();
    feature(QStringLiteral("Gain"));
    int updates = 0;
    const auto clearTree = [this, &updates] {
        ++updates;
        m_model->clear();
    };
    connect(m_model.get(), &FeatureTreeModel::dataChanged, this, clearTree);
    m_collection->parameter(QStringLiteral("Gain"))->scheduleParameterDataChangedCheck(true);
    QTRY_COMPARE(updates, 1);
    QCoreApplication::processEvents();
    QCOMPARE(updates, 1);
}

void TestFeatureTreeModel::clearFromAWrite_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("fails");
    QTest::newRow("write") << "Width"
                           << "setValueFromString" << false;
    QTest::newRow("failing write") << "Width"
                                   << "setValueFromString" << true;
    QTest::newRow("failing command") << "TriggerSoftware"
                                     << "execute" << true;
    QTest::newRow("failing adjustment") << "Width"
                                        << "setValue" << true;
}

// A camera may be closed while a write waits for its answer.
void TestFeatureTreeModel::clearFromAWrite()
{
    QFETCH(const QString, name);
    QFETCH(const QString, operation);
    QFETCH(const bool, fails);
    addSample();
    const QModelIndex cell = feature(name);
    auto parameter = m_collection->parameter(name);
    int calls = 0;
    dynamic_cast<MemoryNode *>(parameter.data())->before = [&, fails](const QString &called) {
        if (called == operation) {
            ++calls;
            m_model->clear();
            m_collection.reset();
            if (fails) {
                throw std::runtime_error("closed");
            }
        }
    };
    if (operation == QLatin1String("setValue")) {
        auto &width = dynamic_cast<MemoryInteger &>(*parameter);
        width.edit<IntegerParameterData>([](auto &data) { data.value = data.maximum + 1; });
        width.publish();
    } else {
        parameter.reset();
        QCOMPARE(m_model->setData(cell, QStringLiteral("32")), !fails);
    }
    QCOMPARE(calls, 1);
    QCOMPARE(m_model->rowCount(), 0);
}

void TestFeatureTreeModel::receiversMayClearAndRebuild_data()
{
    QTest::addColumn<bool>("clears");
    QTest::newRow("clear") << true;
    QTest::newRow("rebuild") << false;
}

// Each of the signals in turn meets a receiver that calls back.
void TestFeatureTreeModel::receiversMayClearAndRebuild()
{
    QFETCH(const bool, clears);
    int emitted = 1;
    for (int chosen = 0; chosen < emitted; ++chosen) {
        init();
        emitted = 0;
        const auto callBack = [this, &emitted, clears, chosen] {
            if (emitted++ == chosen) {
                clears ? m_model->clear() : m_model->rebuildFavoriteItems();
            }
        };
        connect(m_model.get(), &FeatureTreeModel::dataChanged, this, callBack);
        connect(m_model.get(), &FeatureTreeModel::layoutChanged, this, callBack);
        connect(m_model.get(), &FeatureTreeModel::rowsInserted, this, callBack);
        connect(m_model.get(), &FeatureTreeModel::rowsRemoved, this, callBack);
        addSample();
        m_model->rebuildFavoriteItems();
        m_model->AddFavorite(m_collection->parameter(QStringLiteral("Width")), 0);
        m_model->AddFavorite(m_collection->parameter(QStringLiteral("Gain")), 0);
        m_model->rebuildFavoriteItems();
        m_model->rebuildFavoriteItems();
        disconnect(m_model.get(), nullptr, this, nullptr);
        if (clears) {
            m_model->rebuildFavoriteItems();
        }
        QStringList names = namesBelow(*m_model);
        QVERIFY2(clears || names.size() == 16, qPrintable(names.join(QLatin1Char(' '))));
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(names.contains(QStringLiteral("Fav*CameraDevice*Gain")));
    }
    QVERIFY(emitted > 20);
}

void TestFeatureTreeModel::deadDeviceIsLeftAlone()
{
    addSample();
    feature(QStringLiteral("Gain"));
    QSignalSpy spy(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_model->SetDeviceAlive(false);
    m_collection->parameter(QStringLiteral("Gain"))->scheduleParameterDataChangedCheck(true);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
}

void TestFeatureTreeModel::pollsTheFirstCollectionOnly()
{
    const auto second = MemoryCollection::createSample(QStringLiteral("@StreamGrabber0"));
    addSample();
    m_model->addParameterCollection(second, QStringLiteral("Stream"), second->name(), false);
    m_model->refresh();
    QCOMPARE(m_collection->refreshes, 1);
    QCOMPARE(second->refreshes, 0);

    QCOMPARE(m_model->pollTimer()->interval(), 0);
    m_model->EnablePolling(true);
    QVERIFY(m_model->GetPolling());
    QCOMPARE(m_model->pollTimer()->interval(), 300);
    QTRY_COMPARE(m_collection->polls.size(), 2);
    QCOMPARE(m_collection->polls, QList<int>({300, 300}));
    QVERIFY(second->polls.isEmpty());
    m_model->setMonitorMode(true);
    m_model->onTimerPoll();
    QCOMPARE(m_collection->refreshes, 2);

    // The shot that is under way still comes; it is the last.
    m_model->EnablePolling(false);
    m_model->setMonitorMode(false);
    QVERIFY(m_model->pollTimer()->isActive());
    QTRY_COMPARE(m_collection->polls.size(), 3);
    QVERIFY(!m_model->pollTimer()->isActive());
}

void TestFeatureTreeModel::pollFailureIsLogged_data()
{
    QTest::addColumn<bool>("monitor");
    QTest::newRow("poll") << false;
    QTest::newRow("monitor mode") << true;
}

void TestFeatureTreeModel::pollFailureIsLogged()
{
    QFETCH(const bool, monitor);
    addSample();
    m_model->setMonitorMode(monitor);
    m_model->EnablePolling(true);
    m_collection->before = [](const QString &) { throw std::runtime_error("cable"); };
    LogCapture log;
    m_model->onTimerPoll();
    const QString category = QStringLiteral("2 zelto.viewer.libs.zeltoViewerComponents.featureTreeModel: ");
    QCOMPARE(log.entries(),
             QStringList({category + QStringLiteral("Failed to run feature polling."),
                          category + QStringLiteral("FeatureTreeModel::onTimerPoll: cable")}));
    QVERIFY(m_model->pollTimer()->isActive());
}

void TestFeatureTreeModel::deadDeviceEndsPolling()
{
    addSample();
    m_model->EnablePolling(true);
    m_model->SetDeviceAlive(false);
    QTRY_VERIFY(!m_model->GetPolling());
    QVERIFY(m_collection->polls.isEmpty());
    m_model->SetDeviceAlive(true);
    m_model->EnablePolling(true);
    QTRY_COMPARE(m_collection->polls.size(), 1);
}

void TestFeatureTreeModel::specialRowsAreRefreshed()
{
    addSample();
    m_model->rebuildFavoriteItems();
    QSignalSpy spy(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_model->refreshSpecialItems();
    QStringList names;
    for (const auto &emission : std::as_const(spy)) {
        QCOMPARE(emission[0].toModelIndex().column(), 0);
        names.append(emission[0].toModelIndex().data(FeatureTreeItem::FullNodeNameRole).toString());
    }
    QCOMPARE(
        names,
        QStringList({"Search", "FavoritesTopLevel", "@CameraDevice*Root", "@CameraDevice/ImageFormatControl",
                     "@CameraDevice/AcquisitionControl", "@CameraDevice/DeviceControl"}));
    const QModelIndex category = find(QStringLiteral("@CameraDevice/AcquisitionControl"));
    QCOMPARE(m_model->getFeatureTreeItem(category)->existingChildCount(), 0);
}

void TestFeatureTreeModel::clearLeavesNothing()
{
    for (int round = 0; round < 2; ++round) {
        addSample();
        m_model->rebuildFavoriteItems();
        const QPersistentModelIndex kept = feature(QStringLiteral("Gain"));
        QVERIFY(kept.isValid());
        m_collection->parameter(QStringLiteral("Gain"))->scheduleParameterDataChangedCheck(true);
        m_model->clear();
        QVERIFY(!kept.isValid());
        QCoreApplication::processEvents();
        QCOMPARE(m_model->rowCount(), 0);
        QCOMPARE(m_model->getSearchHelpItem(), nullptr);
        QVERIFY(!m_model->GetFavoritesRootIndex().isValid());
        m_model->refresh();
        m_model->onTimerPoll();
        m_model->replaceFavoritesZombies(m_collection, cameraDevice);
        QCOMPARE(m_collection->refreshes, 0);
        QVERIFY(m_collection->polls.isEmpty());
    }
}

void TestFeatureTreeModel::dragWritesAddresses()
{
    addSample();
    const QModelIndex gain = feature(QStringLiteral("Gain"));
    const QModelIndex width = feature(QStringLiteral("Width"));
    const QModelIndexList indexes{gain.siblingAtColumn(0), gain, width.siblingAtColumn(0), width};
    const std::unique_ptr<QMimeData> data(m_model->mimeData(indexes));
    QCOMPARE(data->data(FeatureTreeModel::dragFormat()),
             payloadOf({gain.internalPointer(), gain.internalPointer(), width.internalPointer(),
                        width.internalPointer()}));
    QVERIFY(data->hasFormat(QStringLiteral("application/x-qabstractitemmodeldatalist")));
    QCOMPARE(m_model->mimeData({}), nullptr);
}

void TestFeatureTreeModel::dropAddsAndMovesFavorites()
{
    addSample();
    m_model->rebuildFavoriteItems();
    QSignalSpy spy(&m_model->GetFavorites(), SIGNAL(dataUpdated()));
    const QModelIndexList dragged{feature(QStringLiteral("Gain"), 0), feature(QStringLiteral("Width"), 0),
                                  feature(QStringLiteral("OffsetX"), 0)};
    std::unique_ptr<QMimeData> data(m_model->mimeData(dragged));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, -1, -1, QModelIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Gain", "Width", "OffsetX"}));
    QCOMPARE(spy.count(), 1);

    m_model->rebuildFavoriteItems();
    data.reset(m_model->mimeData({find(QStringLiteral("Fav*CameraDevice*OffsetX"))}));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, m_model->GetFavoritesRootIndex()));
    QCOMPARE(favoriteNames(), QStringList({"OffsetX", "Gain", "Width"}));
    QCOMPARE(spy.count(), 2);
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, 99, 0, m_model->GetFavoritesRootIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Gain", "Width", "OffsetX"}));

    QVERIFY(m_model->dropMimeData(nullptr, Qt::IgnoreAction, 0, 0, QModelIndex()));
    data = mimeOf(QByteArrayLiteral("text"), QStringLiteral("text/plain"));
    QVERIFY(!m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
}

void TestFeatureTreeModel::dropFromAnotherTree()
{
    addSample();
    m_model->rebuildFavoriteItems();
    FeatureTreeModel other;
    other.addParameterCollection(m_collection, QStringLiteral("Camera"), cameraDevice, false);
    QVERIFY(other.AddFavorite(m_collection->parameter(QStringLiteral("Gain")), 0));
    QVERIFY(other.AddFavorite(m_collection->parameter(QStringLiteral("Width")), 1));
    other.rebuildFavoriteItems();
    visitAll(other);
    const std::unique_ptr<QMimeData> data(
        other.mimeData({other.findItemByFullName(QStringLiteral("Fav*CameraDevice*Width"), nullptr, 0),
                        other.findItemByFullName(QStringLiteral("@CameraDevice/OffsetX"), nullptr, 0)}));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Width", "OffsetX", "Gain"}));
}

void TestFeatureTreeModel::hostileDropsChangeNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("unknown address") << 0;
    QTest::newRow("cut integer") << 1;
    QTest::newRow("dead item") << 2;
    QTest::newRow("good and bad") << 3;
}

void TestFeatureTreeModel::hostileDropsChangeNothing()
{
    QFETCH(const int, kind);
    addSample();
    const void *const gain = feature(QStringLiteral("Gain")).internalPointer();
    QByteArray payload = payloadOf({gain});
    int local = 0;
    if (kind == 0) {
        payload = payloadOf({&local});
    } else if (kind == 1) {
        payload.append(3, '\x01');
    } else if (kind == 2) {
        m_model->clear();
    } else {
        payload += payloadOf({&local});
    }
    const auto data = mimeOf(payload);
    QVERIFY(!m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(favoriteNames(), QStringList());
}

void TestFeatureTreeModel::randomDropsChangeNothing()
{
    addSample();
    visitAll(*m_model);
    QRandomGenerator random(4711);
    for (int i = 0; i < 500; ++i) {
        QByteArray payload(random.bounded(1, 64), Qt::Uninitialized);
        for (char &byte : payload) {
            byte = static_cast<char>(random.bounded(1, 256));
        }
        QVERIFY(!m_model->dropMimeData(mimeOf(payload).get(), Qt::MoveAction, random.bounded(-1, 5), 0,
                                       QModelIndex()));
    }
    QCOMPARE(favoriteNames(), QStringList());
}

void TestFeatureTreeModel::favoritesCanBeAddedMovedRemoved()
{
    addSample();
    m_model->rebuildFavoriteItems();
    dynamic_cast<MemoryNode *>(m_collection->parameter(QStringLiteral("Gain")).data())->properties.clear();
    for (const char *const name : {"Gain", "Width", "OffsetX"}) {
        const QModelIndex row = feature(QString::fromLatin1(name), 0);
        QVERIFY(m_model->CanAddAsFavorite(row));
        const auto parameter = m_collection->parameter(QString::fromLatin1(name));
        QVERIFY(m_model->AddFavorite(parameter, 99));
        QVERIFY(!m_model->AddFavorite(parameter, 0));
        QVERIFY(!m_model->CanAddAsFavorite(row));
    }
    QCOMPARE(m_model->GetFavorites().entryAt(0)->displayName, QStringLiteral("Gain"));
    QVERIFY(!m_model->CanAddAsFavorite(feature(QStringLiteral("DeviceControl"), 0)));
    QVERIFY(!m_model->AddFavorite(nullptr, 0));
    QVERIFY(!m_model->AddFavorite(m_collection->parameter(QStringLiteral("ReverseX")), -1));
    m_model->rebuildFavoriteItems();

    const auto favorite = [this](const char *name) {
        return find(QStringLiteral("Fav*CameraDevice*") + QString::fromLatin1(name));
    };
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(favorite("Width")), 1);
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(feature(QStringLiteral("Width"))), 1);
    QVERIFY(!m_model->CanMoveFavorite(feature(QStringLiteral("Width"), 0), true));
    QVERIFY(!m_model->RemoveFavorite(feature(QStringLiteral("Width"), 0)));
    QVERIFY(!m_model->CanMoveFavorite(favorite("Gain"), true));
    QVERIFY(!m_model->MoveFavorite(favorite("Gain"), true));
    QVERIFY(m_model->MoveFavorite(favorite("Width"), false));
    QCOMPARE(favoriteNames(), QStringList({"Gain", "OffsetX", "Width"}));
    QVERIFY(!m_model->CanMoveFavorite(favorite("Width"), false));
    QVERIFY(m_model->MoveFavorite(favorite("OffsetX"), true));
    QCOMPARE(favoriteNames(), QStringList({"OffsetX", "Gain", "Width"}));
    QVERIFY(m_model->RemoveFavorite(favorite("Gain")));
    QCOMPARE(favoriteNames(), QStringList({"OffsetX", "Width"}));
}

void TestFeatureTreeModel::placeholdersAndLiveRows()
{
    m_model->rebuildFavoriteItems();
    const QModelIndex root = m_model->GetFavoritesRootIndex();
    QCOMPARE(m_model->rowCount(root), 1);
    QCOMPARE(m_model->index(0, 0, root).data(FeatureTreeItem::FullNodeNameRole).toString(),
             QStringLiteral("Dummy"));
    QCOMPARE(m_model->getFeatureTreeItem(root)->GetToolTip(), QString());

    FavoritesData &favorites = m_model->GetFavorites();
    favorites.appendEntry({QStringLiteral("ExposureTime"), QStringLiteral("Old name"), cameraDevice});
    favorites.appendEntry({QStringLiteral("Missing"), QStringLiteral("Missing"), cameraDevice});
    favorites.appendEntry({QStringLiteral("Gain"), QStringLiteral("Gain"), QStringLiteral("@Other")});
    m_model->rebuildFavoriteItems();
    const QModelIndex first = m_model->index(0, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(first.data().toString(), QStringLiteral("Old name"));
    addSample();
    const QModelIndex live = m_model->index(0, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(live.data().toString(), QStringLiteral("Exposure Time [us]"));
    QCOMPARE(live.data(FeatureTreeItem::FullNodeNameRole).toString(),
             QStringLiteral("Fav*CameraDevice*ExposureTime"));
    QCOMPARE(m_model->getFeatureTreeItem(m_model->GetFavoritesRootIndex())->GetToolTip(),
             QStringLiteral("3 Favorites (2 are unavailable for the current camera)"));

    m_model->EnableViewAllFavorites(false);
    m_model->rebuildFavoriteItems();
    const QModelIndex missing = m_model->index(1, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(missing.data(FeatureTreeItem::GenicamVisibility), QVariant(3));
    favorites.removeEntry(2);
    favorites.removeEntry(1);
    m_model->rebuildFavoriteItems();
    QCOMPARE(m_model->getFeatureTreeItem(m_model->GetFavoritesRootIndex())->GetToolTip(),
             QStringLiteral("1 Favorite"));
    const QModelIndex value = find(QStringLiteral("Fav*CameraDevice*ExposureTime"), 1);
    QVERIFY(m_model->setData(value, QStringLiteral("20")));
    QTRY_COMPARE(value.data(Qt::EditRole), QVariant(QStringLiteral("20")));
}

void TestFeatureTreeModel::favoriteWritesWithItsCollectionsEncoding()
{
    m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), cameraDevice, true);
    const auto second = MemoryCollection::createSample(QStringLiteral("@Other"));
    m_model->addParameterCollection(second, QStringLiteral("Other"), second->name(), false);
    const auto name = m_collection->parameter(QStringLiteral("DeviceUserID"));
    QVERIFY(m_model->AddFavorite(name, 0));
    m_model->rebuildFavoriteItems();
    QVERIFY(
        m_model->setData(find(QStringLiteral("Fav*CameraDevice*DeviceUserID"), 1), QStringLiteral("5 €")));
    QCOMPARE(dynamic_cast<MemoryNode *>(name.data())->writes, QStringList(QStringLiteral("5 €")));
}

void TestFeatureTreeModel::favoritesNeedNoCollection()
{
    QVERIFY(!m_model->RemoveFavorite(QModelIndex()));
    QVERIFY(!m_model->MoveFavorite(QModelIndex(), true));
    QCOMPARE(m_model->getFavoritesIndexFromFeatureTreeItem(nullptr), -1);
    QVERIFY(!m_model->IsFavoriteTreeRoot(nullptr));
    addSample();
    QVERIFY(!m_model->IsFavoriteTreeRoot(m_model->getFeatureTreeItem(m_model->index(0, 0))));
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(m_model->index(0, 0)), -1);
}

void TestFeatureTreeModel::deferredListDoesNotMixUpRows()
{
    addSample();
    m_model->rebuildFavoriteItems();
    FavoritesData &favorites = m_model->GetFavorites();
    favorites.setDeferredUpdates(true);
    QVERIFY(m_model->AddFavorite(m_collection->parameter(QStringLiteral("Gain")), 0));
    m_model->replaceFavoritesZombies(m_collection, m_collection->name());
    const QModelIndex branch = m_model->GetFavoritesRootIndex();
    QVERIFY(!qobject_cast<FeatureTreeINodeItem *>(m_model->getFeatureTreeItem(m_model->index(0, 0, branch))));
    QVERIFY(favorites.insertEntry(0, {QStringLiteral("Missing"), QStringLiteral("Missing"), cameraDevice}));
    m_model->rebuildFavoriteItems();
    QVERIFY(m_model->AddFavorite(m_collection->parameter(QStringLiteral("Width")), 0));
    m_model->replaceFavoritesZombies(m_collection, m_collection->name());
    QCOMPARE(m_model->index(0, 0, branch).data().toString(), QStringLiteral("Missing"));
    favorites.setDeferredUpdates(false);
}

void TestFeatureTreeModel::exportsText()
{
    addSample();
    m_model->rebuildFavoriteItems();
    dynamic_cast<MemoryNode *>(m_collection->parameter(QStringLiteral("OffsetX")).data())
        ->snapshot->visibility = GenApi::Guru;
    dynamic_cast<MemoryNode *>(m_collection->parameter(QStringLiteral("DeviceUserID")).data())
        ->snapshot->valueString = QStringLiteral("two\nlines");
    m_model->setVisibility(GenApi::Expert);
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, *m_model);
    QCOMPARE(text,
             QStringLiteral("Favorites\t\n"
                            "    Add favorites by right-clicking a feature below.\t\n"
                            "Camera\t\n"
                            "    ImageFormatControl\t\n"
                            "        Width\t640\n"
                            "        PixelFormat\tMono8\n"
                            "        ReverseX\tfalse\n"
                            "    AcquisitionControl\t\n"
                            "        Exposure Time [us]\t5000\n"
                            "        Gain\t1.5\n"
                            "        TriggerSoftware\t\n"
                            "    DeviceControl\t\n"
                            "        DeviceUserID\ttwo lines\n"));
}

void TestFeatureTreeModel::modelMayOutliveTheApplication()
{
    survivor = std::move(m_model);
    survivor->addParameterCollection(m_collection, QStringLiteral("Camera"), cameraDevice, false);
    survivor->rebuildFavoriteItems();
    QVERIFY(survivor->AddFavorite(m_collection->parameter(QStringLiteral("Gain")), 0));
    visitAll(*survivor);
}

void TestFeatureTreeModel::everyOperationMayThrow_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<bool>("fromTheStart");
    for (const char *operation : {"isExcluded", "isWritableNow", "visibility", "type", "fullName", "name",
                                  "propertyAccess", "property", "parameterData",
                                  "scheduleParameterDataChangedCheck", "setValueFromString", "execute"}) {
        for (const bool fromTheStart : {true, false}) {
            QTest::addRow("%s %s", operation, fromTheStart ? "always" : "later")
                << QString::fromLatin1(operation) << fromTheStart;
        }
    }
}

void TestFeatureTreeModel::everyOperationMayThrow()
{
    QFETCH(const QString, failing);
    QFETCH(const bool, fromTheStart);
    LogCapture log;
    const auto breakAll = [this, &failing] {
        for (const QString &name :
             m_collection->childNames(cameraDevice + QStringLiteral("/Root"), 9, true)) {
            dynamic_cast<MemoryNode *>(m_collection->parameter(name).data())->before =
                [&failing](const QString &operation) {
                    if (operation == failing) {
                        throw 1;
                    }
                };
        }
    };
    if (fromTheStart) {
        breakAll();
    }
    addSample();
    m_model->rebuildFavoriteItems();
    visitAll(*m_model);
    breakAll();
    for (const char *name : {"Gain", "ReverseX", "TriggerSoftware", "AcquisitionControl"}) {
        const QString fullName = cameraDevice + QLatin1Char('/') + QString::fromLatin1(name);
        const QModelIndex value = find(fullName, 1);
        FeatureTreeItem *const item = m_model->getFeatureTreeItem(value);
        m_model->setData(value, QStringLiteral("1"));
        m_model->scheduleForcedParameterDataChangedCheck(item);
        m_model->CanAddAsFavorite(value);
        const std::unique_ptr<QMimeData> dragged(m_model->mimeData({value}));
        m_model->dropMimeData(dragged.get(), Qt::MoveAction, -1, 0, QModelIndex());
        m_model->AddFavorite(m_collection->parameter(fullName), 0);
        m_model->flags(value);
    }
    m_model->rebuildFavoriteItems();
    m_model->setGenICamCallbacksEnable(false);
    m_model->setGenICamCallbacksEnable(true);
    QCoreApplication::processEvents();
    visitAll(*m_model);
    QCOMPARE(m_model->rowCount(), 3);
}

QTEST_MAIN(TestFeatureTreeModel)
#include "tst_featuretreemodel.moc"
