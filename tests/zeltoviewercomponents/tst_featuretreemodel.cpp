// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "rownames.h"

#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <support/strictidentityproxy.h>
#include <support/table.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/featuretree/featuretreefavoritesitem_p.h>
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

#include <algorithm>
#include <limits>
#include <stdexcept>

using namespace ParameterCollection;

class TestFeatureTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void topRowsStandInOrder();
    void headersAndFlags();
    void failingCollectionIsReported();
    void admitsChildren();
    void firstFillInsideRowCountIsSilent();
    void modelsPassTheTester();

    void readFailureIsReportedOnce();
    void setDataWritesChangesOnly();
    void lastWriteWins_data();
    void lastWriteWins();
    void setDataReportsFailures_data();
    void setDataReportsFailures();
    void updatesSignalTheTwoCells();
    void clearFromAWrite_data();
    void clearFromAWrite();
    void receiversMayClearAndRebuild_data();
    void receiversMayClearAndRebuild();

    void pollsTheFirstCollectionOnly();
    void pollFailureIsLogged();
    void deadDeviceIsLeftAlone();

    void specialRowsAreRefreshed();
    void clearLeavesNothing();

    void dragWritesAddresses();
    void dropAddsAndMovesFavorites();
    void dropFromAnotherTree();
    void hostileDropsChangeNothing();

    void favoritesAreGuarded();
    void placeholdersAndLiveRows();
    void favoriteWritesWithItsCollectionsEncoding();
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

const QString cameraDevice = "@CameraDevice";

// Dies at the end of the process, after the application and all that was made later than this pointer.
std::unique_ptr<FeatureTreeModel> survivor;

const char *const displayError =
    SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *));

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

} // namespace

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
    m_model->addParameterCollection(m_collection, "Camera", cameraDevice, false);
}

void TestFeatureTreeModel::topRowsStandInOrder()
{
    const auto transport = MemoryCollection::createSample("@DeviceTransportLayer");
    addSample();
    m_model->rebuildFavoriteItems();
    m_model->addParameterCollection(transport, "Transport", transport->name(), false);
    m_model->rebuildFavoriteItems();
    QStringList names;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        names.append(m_model->index(row, 0).data(FeatureTreeItem::FullNodeNameRole).toString());
    }
    QCOMPARE(
        names,
        QStringList({"Search", "FavoritesTopLevel", "@CameraDevice*Root", "@DeviceTransportLayer*Root"}));
    QCOMPARE(m_model->index(2, 0).data().toString(), "Camera");
    QCOMPARE(m_model->index(2, 0).data(FeatureTreeItem::IsFullRowItem), QVariant(true));
    QCOMPARE(m_model->index(2, 0).data(FeatureTreeItem::IsSpecialNode), QVariant(false));
    QCOMPARE(m_model->index(0, 0).data(FeatureTreeItem::GenicamVisibility), QVariant(3));
    QCOMPARE(m_model->GetFavoritesRootIndex().row(), 1);
    QCOMPARE(m_model->GetParameterCollectionName(m_collection), QString());
}

void TestFeatureTreeModel::headersAndFlags()
{
    QCOMPARE(m_model->headerData(1, Qt::Horizontal), QVariant("Value"));
    QVERIFY(!m_model->headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Vertical).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
    QCOMPARE(m_model->flags(QModelIndex()), Qt::ItemIsEnabled);
    QCOMPARE(m_model->supportedDropActions(), Qt::MoveAction);
    QVERIFY(m_model->hasChildren());
    QVERIFY(!m_model->data(QModelIndex()).isValid());
}

void TestFeatureTreeModel::failingCollectionIsReported()
{
    const QString noRoot = "Failed to get the node 'Root' from the node map";
    QSignalSpy spy(GetTheGlobalAsyncErrorQueue(), displayError);
    LogCapture log;
    m_model->addParameterCollection(m_collection, "Camera", "@Other", false);
    m_collection->before = [](const QString &) { throw std::runtime_error("cable"); };
    addSample();
    m_collection->before = [](const QString &) { throw 1; };
    addSample();
    QCOMPARE(m_model->rowCount(), 0);
    QTRY_COMPARE(spy.count(), 3);
    QCOMPARE(spy[0][1].toString(), noRoot);
    QCOMPARE(spy[1][1].toString(), "cable");
    QCOMPARE(spy[2][1].toString(), noRoot);
}

void TestFeatureTreeModel::admitsChildren()
{
    m_collection->addCategory("HiddenCategory")->snapshot->visibility = GenApi::Invisible;
    m_collection->addInteger("InvisibleFeature", "DeviceControl")->snapshot->visibility = GenApi::Invisible;
    m_collection->addInteger("Excluded", "DeviceControl")->excluded = true;
    m_collection->addInteger("Broken", "DeviceControl")->fail({"isExcluded"}, 1);
    m_collection->addCategory("Outer");
    m_collection->addCategory("Inner", "Outer")->MemoryNode::children.append("Outer");
    LogCapture log;
    addSample();
    visitAll(*m_model);
    QCOMPARE(m_model->rowCount(find("@CameraDevice/Inner")), 0);
    QVERIFY(!find("@CameraDevice/HiddenCategory").isValid());
    QVERIFY(find("@CameraDevice/InvisibleFeature").isValid());
    QVERIFY(!find("@CameraDevice/Excluded").isValid());
    QVERIFY(!find("@CameraDevice/Broken").isValid());
    QVERIFY(find("@CameraDevice/DeviceUserID").isValid());
}

void TestFeatureTreeModel::firstFillInsideRowCountIsSilent()
{
    QSignalSpy inserted(m_model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    addSample();
    QCOMPARE(inserted.count(), 1); // the first level, filled outside any query
    QCOMPARE(inserted[0][2].toInt(), 2);
    const QModelIndex category = find("@CameraDevice/AcquisitionControl");
    QVERIFY(m_model->hasChildren(category));
    QCOMPARE(m_model->getFeatureTreeItem(category)->existingChildCount(), 0);
    QCOMPARE(m_model->rowCount(category), 3);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(m_model->getFeatureTreeItem(find("@CameraDevice/DeviceControl"))->childCount(), 1);
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

    const auto transport = MemoryCollection::createSample("@DeviceTransportLayer");
    m_model->addParameterCollection(transport, "Transport", transport->name(), false);
    QCOMPARE(visitAll(plain), rows + 1 + 3 + 8);
    QVERIFY(m_model->AddFavorite(m_collection->parameter("Gain"), 0));
    QVERIFY(m_model->AddFavorite(m_collection->parameter("Width"), 0));
    m_model->rebuildFavoriteItems();
    QCOMPARE(visitAll(plain), visitAll(*m_model));
    m_collection->parameter("Gain")->setValueFromString("2");
    QTRY_COMPARE(feature("Gain").data(Qt::EditRole), QVariant("2"));
    m_model->GetFavorites().removeEntry(0);
    m_model->rebuildFavoriteItems();
    QCOMPARE(visitAll(plain), visitAll(*m_model));
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
                throw GenICam::AccessException("momentarily");
            }
            throw std::runtime_error("broken");
        }
        bool isGenICam = false;
    };
    addSample();
    FeatureTreeItem *const root = m_model->getFeatureTreeItem(m_model->index(0, 0))->parent();
    auto *const broken = new ThrowingItem(QString(), m_model.get(), "broken", root);
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

void TestFeatureTreeModel::setDataWritesChangesOnly()
{
    addSample();
    const QModelIndex value = feature("OffsetX");
    const MemoryNode *const node = m_collection->node("OffsetX");
    QSignalSpy written(m_model.get(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)));
    QVERIFY(!m_model->setData(QModelIndex(), 5));
    QVERIFY(!m_model->setData(value.siblingAtColumn(0), 5));
    QVERIFY(!m_model->setData(value, 5, Qt::DisplayRole));
    QVERIFY(!m_model->setData(value, QVariant()));
    QVERIFY(m_model->setData(value, "0"));
    QVERIFY(m_model->setData(value, 0));
    node->snapshot->valueString = "0x0"; // as the camera writes it
    QVERIFY(m_model->setData(value, 0));
    QCOMPARE(node->writes, QStringList());
    QVERIFY(m_model->setData(value, 12));
    QCOMPARE(node->writes, QStringList("12"));
    QTRY_COMPARE(value.data(Qt::EditRole), QVariant("12"));
    node->snapshot->isWritable = false;
    QVERIFY(m_model->setData(value, 13));
    QVERIFY(m_model->setData(m_model->index(0, 1), 13)); // a row without a parameter
    QCOMPARE(written.count(), 1);
    QCOMPARE(GetTheGlobalAsyncErrorQueue()->count(), size_t(0));
}

void TestFeatureTreeModel::lastWriteWins_data()
{
    columns<QString, QStringList, bool>({"feature", "values", "followsAnswers"});
    for (const bool followsAnswers : {true, false}) {
        const auto add = [followsAnswers](const char *feature, const QStringList &values) {
            QTest::addRow("%s %s", feature, followsAnswers ? "" : "without callbacks")
                << QString(feature) << values << followsAnswers;
        };
        add("OffsetX", {"0", "12", "40"});
        add("Gain", {"1.5", "2", "3"});
        add("ReverseX", {"0", "1", "0"});
        add("PixelFormat", {"Mono8", "Mono12", "Mono8"});
        add("DeviceUserID", {"left", "right", "middle"});
    }
}

// The camera answers late: the snapshot stays what it was until then.
void TestFeatureTreeModel::lastWriteWins()
{
    QFETCH(const QString, feature);
    QFETCH(const QStringList, values);
    QFETCH(const bool, followsAnswers);
    m_model->GetFavorites().appendEntry({feature, feature, cameraDevice});
    addSample();
    m_model->rebuildFavoriteItems();
    m_model->setGenICamCallbacksEnable(followsAnswers);
    const QModelIndex value = this->feature(feature);
    const QModelIndex favorite = find("Fav*CameraDevice*" + feature, 1);
    MemoryNode *const node = m_collection->node(feature);
    const auto parameter = m_collection->parameter(feature);
    const auto write = [&](const QModelIndex &index, const QString &text) {
        const auto before = node->snapshot;
        QVERIFY(m_model->setData(index, text));
        QCoreApplication::removePostedEvents(parameter.data()); // the answer
        node->snapshot = before;
    };
    const auto answer = [&](const QString &text) {
        const QStringList writes = node->writes;
        node->writeText(text);
        QCoreApplication::removePostedEvents(parameter.data());
        node->writes = writes;
        emit parameter->parameterDataChangedDecoupled(node->snapshot);
    };
    write(value, values[0]);
    QCOMPARE(node->writes, QStringList()); // has it
    write(value, values[1]);
    write(value, values[1]);
    QCOMPARE(node->writes, QStringList(values[1]));
    write(favorite, values[0]);
    QCOMPARE(node->writes, QStringList({values[1], values[0]}));
    answer(values[1]); // to the first
    write(value, values[1]);
    QCOMPARE(node->writes.size(), 3);
    answer(values[0]);
    answer(values[1]);
    write(value, values[1]);
    QCOMPARE(node->writes.size(), 3);
    // The camera stores something else, and that is the value then.
    write(value, values[0]);
    answer(values[2]);
    write(favorite, values[0]);
    QCOMPARE(node->writes.constLast(), values[0]);
}

void TestFeatureTreeModel::setDataReportsFailures_data()
{
    columns<QString, bool, QString, QString, int>({"name", "standard", "message", "details", "checks"});
    const QString failed = "Failed to set a feature value.";
    row("integer", "OffsetX", true, "cable", failed, 0);
    row("command is reset", "TriggerSoftware", true, "cable", failed, 1);
    row("unexpected", "OffsetX", false, failed, "", 0);
}

void TestFeatureTreeModel::setDataReportsFailures()
{
    QFETCH(const QString, name);
    QFETCH(const bool, standard);
    addSample();
    const QModelIndex value = feature(name);
    MemoryNode *const node = m_collection->node(name);
    if (standard) {
        node->fail({"setValueFromString", "execute"}, std::runtime_error("cable"));
    } else {
        node->fail({"setValueFromString"}, 1);
    }
    QSignalSpy spy(GetTheGlobalAsyncErrorQueue(), displayError);
    LogCapture log;
    QVERIFY(!m_model->setData(value, "1"));
    QTRY_COMPARE(spy.count(), 1);
    QTEST(spy[0][1].toString(), "message");
    QTEST(spy[0][2].toString(), "details");
    QTEST(node->forcedChecks, "checks");
}

void TestFeatureTreeModel::updatesSignalTheTwoCells()
{
    addSample();
    const QModelIndex value = feature("Gain");
    QSignalSpy spy(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_collection->parameter("Gain")->scheduleParameterDataChangedCheck(true);
    QTRY_COMPARE(spy.count(), 2);
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(spy[column][0].toModelIndex(), value.siblingAtColumn(column));
        QCOMPARE(spy[column][1].toModelIndex(), value.siblingAtColumn(column));
        QVERIFY(spy[column][2].value<QList<int>>().isEmpty());
    }
}

void TestFeatureTreeModel::clearFromAWrite_data()
{
    columns<QString, QString, bool>({"name", "operation", "fails"});
    row("write", "Width", "setValueFromString", false);
    row("failing write", "Width", "setValueFromString", true);
    row("failing command", "TriggerSoftware", "execute", true);
    row("failing adjustment", "Width", "setValue", true);
    row("update", "Gain", "dataChanged", false);
}

// A camera may be closed while a write waits for its answer, and by whoever hears of a value.
void TestFeatureTreeModel::clearFromAWrite()
{
    QFETCH(const QString, name);
    QFETCH(const QString, operation);
    QFETCH(const bool, fails);
    addSample();
    const QModelIndex cell = feature(name);
    auto parameter = m_collection->parameter(name);
    int calls = 0;
    connect(m_model.get(), &FeatureTreeModel::dataChanged, this, [this, &calls] {
        ++calls;
        m_model->clear();
    });
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
    if (operation == "setValue") {
        dynamic_cast<MemoryInteger &>(*parameter).update([](auto &data) { data.value = data.maximum + 1; });
    } else if (operation == "dataChanged") {
        dynamic_cast<MemoryFloat &>(*parameter).publish(); // of two signals the second finds no row
    } else {
        parameter.reset();
        QCOMPARE(m_model->setData(cell, "32"), !fails);
    }
    QCOMPARE(calls, 1);
    QCOMPARE(m_model->rowCount(), 0);
}

void TestFeatureTreeModel::receiversMayClearAndRebuild_data()
{
    columns<bool>({"clears"});
    row("clear", true);
    row("rebuild", false);
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
        m_model->AddFavorite(m_collection->parameter("Width"), 0);
        m_model->AddFavorite(m_collection->parameter("Gain"), 0);
        m_model->rebuildFavoriteItems();
        m_model->rebuildFavoriteItems();
        disconnect(m_model.get(), nullptr, this, nullptr);
        if (clears) {
            m_model->rebuildFavoriteItems();
        }
        QStringList names = fullNames(*m_model);
        QVERIFY2(clears || names.size() == 16, qPrintable(names.join(QLatin1Char(' '))));
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(names.contains("Fav*CameraDevice*Gain"));
    }
    QVERIFY(emitted > 20);
}

void TestFeatureTreeModel::pollsTheFirstCollectionOnly()
{
    const auto second = MemoryCollection::createSample("@StreamGrabber0");
    addSample();
    m_model->addParameterCollection(second, "Stream", second->name(), false);
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

void TestFeatureTreeModel::pollFailureIsLogged()
{
    addSample();
    m_model->EnablePolling(true);
    m_collection->before = [](const QString &) { throw std::runtime_error("cable"); };
    const QString category = "2 zelto.viewer.libs.zeltoViewerComponents.featureTreeModel: ";
    for (const bool monitor : {false, true}) {
        m_model->setMonitorMode(monitor);
        LogCapture log;
        m_model->onTimerPoll();
        QCOMPARE(log.entries(),
                 QStringList({category + "Failed to run feature polling.",
                              category + "FeatureTreeModel::onTimerPoll: cable"}));
        QVERIFY(m_model->pollTimer()->isActive());
    }
}

void TestFeatureTreeModel::deadDeviceIsLeftAlone()
{
    addSample();
    const QModelIndex value = feature("OffsetX");
    m_model->EnablePolling(true);
    QSignalSpy spy(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    m_model->SetDeviceAlive(false);
    QVERIFY(!m_model->setData(value, 5));
    QCOMPARE(m_collection->node("OffsetX")->writes, QStringList());
    m_collection->node("OffsetX")->snapshot->valueString = "7";
    m_collection->parameter("OffsetX")->scheduleParameterDataChangedCheck(true);
    QTRY_VERIFY(!m_model->GetPolling());
    QVERIFY(m_collection->polls.isEmpty());
    QCOMPARE(spy.count(), 0);
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
    const QModelIndex category = find("@CameraDevice/AcquisitionControl");
    QCOMPARE(m_model->getFeatureTreeItem(category)->existingChildCount(), 0);
}

void TestFeatureTreeModel::clearLeavesNothing()
{
    for (int round = 0; round < 2; ++round) {
        addSample();
        m_model->rebuildFavoriteItems();
        const QPersistentModelIndex kept = feature("Gain");
        QVERIFY(kept.isValid());
        m_collection->parameter("Gain")->scheduleParameterDataChangedCheck(true);
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
    const QModelIndex gain = feature("Gain");
    const QModelIndex width = feature("Width");
    const QModelIndexList indexes{gain.siblingAtColumn(0), gain, width.siblingAtColumn(0), width};
    const std::unique_ptr<QMimeData> data(m_model->mimeData(indexes));
    QCOMPARE(data->data(FeatureTreeModel::dragFormat()),
             payloadOf({gain.internalPointer(), gain.internalPointer(), width.internalPointer(),
                        width.internalPointer()}));
    QVERIFY(data->hasFormat("application/x-qabstractitemmodeldatalist"));
    QCOMPARE(m_model->mimeData({}), nullptr);
}

void TestFeatureTreeModel::dropAddsAndMovesFavorites()
{
    addSample();
    m_model->rebuildFavoriteItems();
    QSignalSpy spy(&m_model->GetFavorites(), SIGNAL(dataUpdated()));
    const QModelIndexList dragged{feature("Gain", 0), feature("Width", 0), feature("OffsetX", 0)};
    std::unique_ptr<QMimeData> data(m_model->mimeData(dragged));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, -1, -1, QModelIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Gain", "Width", "OffsetX"}));
    QCOMPARE(spy.count(), 1);

    m_model->rebuildFavoriteItems();
    data.reset(m_model->mimeData({find("Fav*CameraDevice*Gain")}));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, 99, 0, m_model->GetFavoritesRootIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Width", "OffsetX", "Gain"}));
    QCOMPARE(spy.count(), 2);

    QVERIFY(m_model->dropMimeData(nullptr, Qt::IgnoreAction, 0, 0, QModelIndex()));
    data = mimeOf(QByteArrayLiteral("text"), "text/plain");
    QVERIFY(!m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
}

void TestFeatureTreeModel::dropFromAnotherTree()
{
    addSample();
    m_model->rebuildFavoriteItems();
    FeatureTreeModel other;
    other.addParameterCollection(m_collection, "Camera", cameraDevice, false);
    QVERIFY(other.AddFavorite(m_collection->parameter("Gain"), 0));
    QVERIFY(other.AddFavorite(m_collection->parameter("Width"), 1));
    other.rebuildFavoriteItems();
    visitAll(other);
    const std::unique_ptr<QMimeData> data(
        other.mimeData({other.findItemByFullName("Fav*CameraDevice*Width", nullptr, 0),
                        other.findItemByFullName("@CameraDevice/OffsetX", nullptr, 0)}));
    QVERIFY(m_model->dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(favoriteNames(), QStringList({"Width", "OffsetX", "Gain"}));
}

void TestFeatureTreeModel::hostileDropsChangeNothing()
{
    addSample();
    const void *const gain = feature("Gain").internalPointer();
    int local = 0;
    QRandomGenerator random(4711);
    QList<QByteArray> payloads{payloadOf({&local}), payloadOf({gain}) + QByteArray(3, '\x01'),
                               payloadOf({gain, &local})};
    for (int i = 0; i < 500; ++i) {
        QByteArray payload(random.bounded(1, 64), Qt::Uninitialized);
        std::generate(payload.begin(), payload.end(), [&random] { return char(random.bounded(1, 256)); });
        payloads.append(payload);
    }
    for (const QByteArray &payload : std::as_const(payloads)) {
        QVERIFY2(!m_model->dropMimeData(mimeOf(payload).get(), Qt::MoveAction, random.bounded(-1, 5), 0, {}),
                 payload.toHex());
    }
    for (const int row : {-2, std::numeric_limits<int>::min()}) {
        QVERIFY(!m_model->dropMimeData(mimeOf(payloadOf({gain})).get(), Qt::MoveAction, row, 0, {}));
    }
    m_model->clear(); // and with it the dragged item
    QVERIFY(!m_model->dropMimeData(mimeOf(payloadOf({gain})).get(), Qt::MoveAction, 0, 0, {}));
    QCOMPARE(favoriteNames(), QStringList());
}

void TestFeatureTreeModel::favoritesAreGuarded()
{
    addSample();
    m_model->rebuildFavoriteItems();
    m_collection->node("Gain")->properties.clear();
    for (const char *const name : {"Gain", "Width", "OffsetX"}) {
        const QModelIndex row = feature(QString::fromLatin1(name), 0);
        QVERIFY(m_model->CanAddAsFavorite(row));
        const auto parameter = m_collection->parameter(QString::fromLatin1(name));
        QVERIFY(m_model->AddFavorite(parameter, 99));
        QVERIFY(!m_model->AddFavorite(parameter, 0));
        QVERIFY(!m_model->CanAddAsFavorite(row));
    }
    QCOMPARE(m_model->GetFavorites().entryAt(0)->displayName, "Gain");
    QVERIFY(!m_model->CanAddAsFavorite(feature("DeviceControl", 0)));
    QVERIFY(!m_model->AddFavorite(nullptr, 0));
    QVERIFY(!m_model->AddFavorite(m_collection->parameter("ReverseX"), -1));
    m_model->rebuildFavoriteItems();

    const auto favorite = [this](const char *name) {
        return find("Fav*CameraDevice*" + QString::fromLatin1(name));
    };
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(favorite("Width")), 1);
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(feature("Width")), 1);
    QVERIFY(!m_model->CanMoveFavorite(feature("Width", 0), true));
    QVERIFY(!m_model->RemoveFavorite(feature("Width", 0)));
    QVERIFY(!m_model->RemoveFavorite(QModelIndex()));
    QVERIFY(!m_model->MoveFavorite(QModelIndex(), true));
    QCOMPARE(m_model->getFavoritesIndexFromModelIndex(m_model->index(0, 0)), -1);
    QCOMPARE(m_model->getFavoritesIndexFromFeatureTreeItem(nullptr), -1);
    QVERIFY(!m_model->IsFavoriteTreeRoot(nullptr));
    QVERIFY(!m_model->CanMoveFavorite(favorite("Gain"), true));
    QVERIFY(!m_model->MoveFavorite(favorite("OffsetX"), false));
    QCOMPARE(favoriteNames(), QStringList({"Gain", "Width", "OffsetX"}));
}

void TestFeatureTreeModel::placeholdersAndLiveRows()
{
    m_model->rebuildFavoriteItems();
    const QModelIndex root = m_model->GetFavoritesRootIndex();
    QCOMPARE(m_model->rowCount(root), 1);
    QCOMPARE(m_model->index(0, 0, root).data(FeatureTreeItem::FullNodeNameRole).toString(), "Dummy");
    QCOMPARE(m_model->getFeatureTreeItem(root)->GetToolTip(), QString());

    FavoritesData &favorites = m_model->GetFavorites();
    favorites.appendEntry({"ExposureTime", "Old name", cameraDevice});
    favorites.appendEntry({"Missing", "Missing", cameraDevice});
    favorites.appendEntry({"Gain", "Gain", "@Other"});
    m_model->rebuildFavoriteItems();
    const QModelIndex first = m_model->index(0, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(first.data().toString(), "Old name");
    addSample();
    const QModelIndex live = m_model->index(0, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(live.data().toString(), "Exposure Time [us]");
    QCOMPARE(live.data(FeatureTreeItem::FullNodeNameRole).toString(), "Fav*CameraDevice*ExposureTime");
    QCOMPARE(m_model->getFeatureTreeItem(m_model->GetFavoritesRootIndex())->GetToolTip(),
             "3 Favorites (2 are unavailable for the current camera)");

    m_model->EnableViewAllFavorites(false);
    m_model->rebuildFavoriteItems();
    const QModelIndex missing = m_model->index(1, 0, m_model->GetFavoritesRootIndex());
    QCOMPARE(missing.data(FeatureTreeItem::GenicamVisibility), QVariant(3));
    favorites.removeEntry(2);
    favorites.removeEntry(1);
    m_model->rebuildFavoriteItems();
    QCOMPARE(m_model->getFeatureTreeItem(m_model->GetFavoritesRootIndex())->GetToolTip(), "1 Favorite");
    const QModelIndex value = find("Fav*CameraDevice*ExposureTime", 1);
    QVERIFY(m_model->setData(value, "20"));
    QTRY_COMPARE(value.data(Qt::EditRole), QVariant("20"));
}

void TestFeatureTreeModel::favoriteWritesWithItsCollectionsEncoding()
{
    m_model->addParameterCollection(m_collection, "Camera", cameraDevice, true);
    const auto second = MemoryCollection::createSample("@Other");
    m_model->addParameterCollection(second, "Other", second->name(), false);
    QVERIFY(m_model->AddFavorite(m_collection->parameter("DeviceUserID"), 0));
    m_model->rebuildFavoriteItems();
    QVERIFY(m_model->setData(find("Fav*CameraDevice*DeviceUserID", 1), "5 €"));
    QCOMPARE(m_collection->node("DeviceUserID")->writes, QStringList("5 €"));
}

void TestFeatureTreeModel::deferredListDoesNotMixUpRows()
{
    addSample();
    m_model->rebuildFavoriteItems();
    FavoritesData &favorites = m_model->GetFavorites();
    favorites.setDeferredUpdates(true);
    QVERIFY(m_model->AddFavorite(m_collection->parameter("Gain"), 0));
    m_model->replaceFavoritesZombies(m_collection, m_collection->name());
    const QModelIndex branch = m_model->GetFavoritesRootIndex();
    QVERIFY(!qobject_cast<FeatureTreeINodeItem *>(m_model->getFeatureTreeItem(m_model->index(0, 0, branch))));
    QVERIFY(favorites.insertEntry(0, {"Missing", "Missing", cameraDevice}));
    m_model->rebuildFavoriteItems();
    QVERIFY(m_model->AddFavorite(m_collection->parameter("Width"), 0));
    m_model->replaceFavoritesZombies(m_collection, m_collection->name());
    QCOMPARE(m_model->index(0, 0, branch).data().toString(), "Missing");
    favorites.setDeferredUpdates(false);
}

void TestFeatureTreeModel::exportsText()
{
    addSample();
    m_model->rebuildFavoriteItems();
    m_collection->node("OffsetX")->snapshot->visibility = GenApi::Guru;
    m_collection->node("DeviceUserID")->snapshot->valueString = "two\nlines";
    m_model->setVisibility(GenApi::Expert);
    QString text;
    QTextStream stream(&text);
    writeFeatureTree(stream, *m_model);
    QCOMPARE(text,
             "Favorites\t\n"
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
             "        DeviceUserID\ttwo lines\n");
}

void TestFeatureTreeModel::modelMayOutliveTheApplication()
{
    survivor = std::move(m_model);
    survivor->addParameterCollection(m_collection, "Camera", cameraDevice, false);
    survivor->rebuildFavoriteItems();
    QVERIFY(survivor->AddFavorite(m_collection->parameter("Gain"), 0));
    visitAll(*survivor);
}

void TestFeatureTreeModel::everyOperationMayThrow_data()
{
    columns<QString, bool>({"failing", "fromTheStart"});
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
        for (const QString &name : m_collection->childNames(cameraDevice + "/Root", 9, true)) {
            m_collection->node(name)->fail({failing}, 1);
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
        m_model->setData(value, "1");
        m_model->scheduleForcedParameterDataChangedCheck(item);
        m_model->CanAddAsFavorite(value);
        const std::unique_ptr<QMimeData> dragged(m_model->mimeData({value}));
        m_model->dropMimeData(dragged.get(), Qt::MoveAction, -1, 0, QModelIndex());
        m_model->AddFavorite(m_collection->parameter(fullName), 0);
        m_model->flags(value);
        for (int role = 0; item && role <= FeatureTreeItem::FullNodeNameRole; ++role) {
            item->data(0, role);
            item->data(1, role);
        }
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
