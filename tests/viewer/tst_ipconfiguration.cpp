// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <viewer/ipconfiguration.h>

#include <platform/core/exception.h>

#include <QRegularExpression>
#include <QTest>

using namespace ParameterCollection;

namespace {

constexpr qint64 maxAddress = 0xFFFFFFFF;
constexpr qint64 maxMac = 0xFFFFFFFFFFFF;

QHostAddress address(const char *text)
{
    return QHostAddress(QString::fromLatin1(text));
}

QString failureOfWriting(const IpConfiguration &configuration)
{
    try {
        configuration.write(address("10.1.2.3"), address("255.255.0.0"), address("10.1.0.1"));
    } catch (const Core::Exception::BaseException &exception) {
        return exception.getMessage();
    }
    return {};
}

} // namespace

class TestIpConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsValues_data();
    void showsValues();
    void writesTypedValues();
    void namesTheObstacle();
    void partOfTheFeaturesIsNotEnough();
    void refusedWriteLeavesThingsAsTheyWere_data();
    void refusedWriteLeavesThingsAsTheyWere();
    void failingFeaturesAreSurvived();
    void embeddedCameraThoughLocked();

private:
    IpConfiguration configuration() const;

    QSharedPointer<MemoryCollection> m_collection;
    QSharedPointer<MemoryInteger> m_ip;
    QSharedPointer<MemoryInteger> m_mask;
    QSharedPointer<MemoryInteger> m_gateway;
    QSharedPointer<MemoryInteger> m_mac;
};

void TestIpConfiguration::init()
{
    m_collection = MemoryCollection::createSample();
    const QString root = QStringLiteral("Root");
    m_ip =
        m_collection->addInteger(QStringLiteral("GevPersistentIPAddress"), root, 0xC0A8000A, 0, maxAddress);
    m_mask =
        m_collection->addInteger(QStringLiteral("GevPersistentSubnetMask"), root, 0xFFFFFF00, 0, maxAddress);
    m_gateway =
        m_collection->addInteger(QStringLiteral("GevPersistentDefaultGateway"), root, 0, 0, maxAddress);
    m_mac = m_collection->addInteger(QStringLiteral("GevMACAddress"), root, 0x00305301FF0A, 0, maxMac);
}

// A camera's configuration stands in any of its node maps.
IpConfiguration TestIpConfiguration::configuration() const
{
    const Cameras::NodeMap other{QStringLiteral("@Other"), QStringLiteral("Other"),
                                 MemoryCollection::createSample(QStringLiteral("@Other"))};
    const Cameras::NodeMap empty{QStringLiteral("@Empty"), QStringLiteral("Empty"), {}};
    return IpConfiguration({empty, other, {m_collection->name(), m_collection->name(), m_collection}});
}

void TestIpConfiguration::showsValues_data()
{
    QTest::addColumn<qint64>("ip");
    QTest::addColumn<qint64>("mac");
    QTest::addColumn<QHostAddress>("shownIp");
    QTest::addColumn<QString>("shownMac");

    QTest::newRow("usual") << qint64(0xC0A8000A) << qint64(0x00305301FF0A) << address("192.168.0.10")
                           << QStringLiteral("00:30:53:01:FF:0A");
    QTest::newRow("highest") << maxAddress << maxMac << address("255.255.255.255")
                             << QStringLiteral("FF:FF:FF:FF:FF:FF");
    QTest::newRow("lowest") << qint64(0) << qint64(0) << address("0.0.0.0")
                            << QStringLiteral("00:00:00:00:00:00");
    QTest::newRow("too long") << maxAddress + 1 << maxMac + 1 << QHostAddress() << QString();
    QTest::newRow("negative") << qint64(-1) << qint64(-1) << QHostAddress() << QString();
}

void TestIpConfiguration::showsValues()
{
    QFETCH(qint64, ip);
    QFETCH(qint64, mac);
    m_ip->edit<IntegerParameterData>([ip](IntegerParameterData &data) { data.value = ip; });
    m_mac->edit<IntegerParameterData>([mac](IntegerParameterData &data) { data.value = mac; });

    QTEST(configuration().ipAddress(), "shownIp");
    QTEST(configuration().macAddress(), "shownMac");
    QCOMPARE(configuration().subnetMask(), address("255.255.255.0"));
    QCOMPARE(configuration().defaultGateway(), address("0.0.0.0"));
}

void TestIpConfiguration::writesTypedValues()
{
    QStringList operations;
    m_ip->before = [&operations](const QString &operation) { operations.append(operation); };
    QCOMPARE(failureOfWriting(configuration()), QString());
    QVERIFY(operations.contains(QStringLiteral("setValue")));
    QVERIFY(!operations.contains(QStringLiteral("setValueFromString")));

    QCOMPARE(configuration().ipAddress(), address("10.1.2.3"));
    QCOMPARE(configuration().subnetMask(), address("255.255.0.0"));
    QCOMPARE(configuration().defaultGateway(), address("10.1.0.1"));
    QCOMPARE(m_mac->writes, QStringList());
}

void TestIpConfiguration::namesTheObstacle()
{
    QCOMPARE(configuration().obstacle(), QString());

    m_gateway->edit<IntegerParameterData>([](IntegerParameterData &data) { data.isWritable = false; });
    QCOMPARE(configuration().obstacle(),
             QStringLiteral("The camera does not allow its IP configuration to be changed now"));

    const QString missing = QStringLiteral("This camera has no features for an IP configuration");
    QCOMPARE(IpConfiguration({}).obstacle(), missing);
    QCOMPARE(failureOfWriting(IpConfiguration({})), missing);
}

void TestIpConfiguration::partOfTheFeaturesIsNotEnough()
{
    const auto partial = QSharedPointer<MemoryCollection>::create(QStringLiteral("@Partial"));
    partial->addInteger(QStringLiteral("GevPersistentIPAddress"), QStringLiteral("Root"), 1, 0, maxAddress);
    partial->addString(QStringLiteral("GevPersistentSubnetMask"), QStringLiteral("Root"),
                       QStringLiteral("255.0.0.0"));
    partial->addInteger(QStringLiteral("GevPersistentDefaultGateway"), QStringLiteral("Root"), 1, 0,
                        maxAddress);
    const IpConfiguration alone({{partial->name(), partial->name(), partial}});
    QVERIFY(!alone.obstacle().isEmpty());
    QVERIFY(alone.ipAddress().isNull());

    const IpConfiguration both({{partial->name(), partial->name(), partial},
                                {m_collection->name(), m_collection->name(), m_collection}});
    QCOMPARE(both.obstacle(), QString());
    QCOMPARE(both.ipAddress(), address("192.168.0.10"));
}

void TestIpConfiguration::refusedWriteLeavesThingsAsTheyWere_data()
{
    QTest::addColumn<int>("refusing");
    QTest::newRow("ip") << 0;
    QTest::newRow("mask") << 1;
    QTest::newRow("gateway") << 2;
}

void TestIpConfiguration::refusedWriteLeavesThingsAsTheyWere()
{
    QFETCH(int, refusing);
    const auto feature = QList{m_ip, m_mask, m_gateway}.at(refusing);
    feature->before = [](const QString &operation) {
        if (operation == QLatin1String("setValue")) {
            throw GenICam::TimeoutException(QStringLiteral("The camera does not answer"));
        }
    };
    QCOMPARE(failureOfWriting(configuration()),
             QStringLiteral("The IP configuration was not changed. The camera does not answer"));
    QCOMPARE(configuration().ipAddress(), address("192.168.0.10"));
    QCOMPARE(configuration().subnetMask(), address("255.255.255.0"));
    QCOMPARE(configuration().defaultGateway(), address("0.0.0.0"));
}

void TestIpConfiguration::failingFeaturesAreSurvived()
{
    LogCapture log;
    const auto fail = [](const QString &) { throw 1; };
    m_ip->before = fail;
    m_mac->before = fail;
    QVERIFY(configuration().ipAddress().isNull());
    QCOMPARE(configuration().macAddress(), QString());
    QCOMPARE(failureOfWriting(configuration()),
             QStringLiteral("The IP configuration was not changed. The reason is not known."));
    QCOMPARE(configuration().subnetMask(), address("255.255.255.0"));
    QVERIFY(!log.entries().isEmpty());

    m_collection->before = fail;
    QVERIFY(!configuration().obstacle().isEmpty());
}

void TestIpConfiguration::embeddedCameraThoughLocked()
{
    const auto camera = Cameras::Camera::openEmbedded();
    const auto nodeMaps = camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        if (const auto locked = nodeMap.collection->parameter(QStringLiteral("GevPersistentIPAddress"))) {
            locked->propertyAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
            QVERIFY(!locked->isWritableNow());
        }
    }
    const IpConfiguration configuration(nodeMaps);
    QCOMPARE(configuration.obstacle(), QString());
    QCOMPARE(configuration.ipAddress(), address("192.168.0.10"));
    QVERIFY(QRegularExpression(QStringLiteral("^([0-9A-F]{2}:){5}[0-9A-F]{2}$"))
                .match(configuration.macAddress())
                .hasMatch());

    QCOMPARE(failureOfWriting(configuration), QString());
    QTRY_COMPARE(configuration.ipAddress(), address("10.1.2.3"));
    QTRY_COMPARE(configuration.subnetMask(), address("255.255.0.0"));
    QTRY_COMPARE(configuration.defaultGateway(), address("10.1.0.1"));
}

QTEST_GUILESS_MAIN(TestIpConfiguration)
#include "tst_ipconfiguration.moc"
