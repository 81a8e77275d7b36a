// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/featuretree/nodemapfilter.h>

#include <support/logcapture.h>
#include <support/memorycollection.h>

#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QResource>
#include <QTest>

using namespace ParameterCollection;

namespace {

const QString resources = QStringLiteral(":/zeltoviewercomponents/Resources/");

QString besideApplication(const QString &name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
}

QByteArray filterOf(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Filter>" + entries + "</Filter>";
}

QByteArray feature(const QByteArray &name, const QByteArray &visibility)
{
    return "<Feature><Name>" + name + "</Name><Visibility>" + visibility + "</Visibility></Feature>";
}

QString textOf(const QDomElement &entry, const char *tag)
{
    return entry.firstChildElement(QLatin1String(tag)).text();
}

/* One "Name:Visibility:AccessMode" per entry. */
QStringList entriesOf(const QDomDocument &document)
{
    QStringList entries;
    for (QDomElement entry = document.documentElement().firstChildElement(); !entry.isNull();
         entry = entry.nextSiblingElement()) {
        entries.append(
            QStringList{textOf(entry, "Name"), textOf(entry, "Visibility"), textOf(entry, "AccessMode")}.join(
                QLatin1Char(':')));
    }
    return entries;
}

QStringList imposed(const QString &names, const char *visibility, const char *accessMode = "")
{
    QStringList entries;
    const QStringList split = names.split(QLatin1Char(' '));
    for (const QString &name : split) {
        entries.append(name + QLatin1Char(':') + QLatin1String(visibility) + QLatin1Char(':')
                       + QLatin1String(accessMode));
    }
    return entries;
}

QDomElement parsed(const QByteArray &entry, QDomDocument &keeper)
{
    keeper.setContent(entry);
    return keeper.documentElement();
}

} // namespace

class TestNodeMapFilter : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void embeddedDocuments_data();
    void embeddedDocuments();
    void candidates_data();
    void candidates();
    void fileBesideTheApplicationWins();
    void unusableFiles_data();
    void unusableFiles();
    void directoryIsPassedOver();
    void externalEntitiesStayOutside();
    void nothingFound();
    void processElement_data();
    void processElement();
    void refusedProperties_data();
    void refusedProperties();
    void applyImposesAllEntries();

private:
    void place(const QString &name, const QByteArray &contents);

    QStringList m_placed;
};

void TestNodeMapFilter::place(const QString &name, const QByteArray &contents)
{
    QFile file(besideApplication(name));
    m_placed.append(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(contents), contents.size());
}

void TestNodeMapFilter::cleanup()
{
    for (const QString &name : std::as_const(m_placed)) {
        QFile::remove(besideApplication(name));
    }
    m_placed.clear();
}

void TestNodeMapFilter::embeddedDocuments_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("compressed");
    const QStringList streamGrabber =
        imposed("Root", "Guru") + imposed("MaxNumBuffer MaxBufferSize", "Invisible");
    QTest::newRow("GEV stream") << "GEV_StreamGrabber_Filter.xml" << streamGrabber << false;
    QTest::newRow("Vexor stream") << "Vexor_StreamGrabber_Filter.xml" << streamGrabber << false;
    QTest::newRow("IIDC stream") << "IIDC_StreamGrabber_Filter.xml" << imposed("Root", "Invisible") << false;
    QTest::newRow("GEV transport layer")
        << "GEV_DeviceTransportLayer_Filter.xml"
        << imposed("Root ReadTimeout WriteTimeout HeartbeatTimeout", "Guru") << false;
    QTest::newRow("U3V transport layer")
        << "U3V_DeviceTransportLayer_Filter.xml" << imposed("MigrationModeEnable", "Invisible") << false;
    QTest::newRow("converter") << "ImageFormatConverter_Filter.xml"
                               << imposed("InconvertibleEdgeHandling OutputPaddingX", "Invisible") << false;

    const QString triggersToLuts =
        QStringLiteral("TriggerSelector TriggerMode TriggerSoftware TriggerSource TriggerActivation "
                       "ExposureMode ExposureTimeAbs ExposureTimeBaseAbs ExposureTimeBaseAbsEnable "
                       "TimerControls LUTControls");
    const QStringList scanType = imposed("DeviceScanType", "Expert", "RO");
    QTest::newRow("U3V camera")
        << "U3V_CameraDevice_Filter.xml"
        << imposed("AcquisitionMode AcquisitionStart AcquisitionStop AcquisitionAbort LUTValueAll FileAccess "
                   "FileAccessControl ChunkData",
                   "Invisible")
            + imposed(triggersToLuts, "Expert") + scanType + imposed("DigitalIO UserSets", "Expert")
            + imposed("DeviceReset ChunkDataStreams EventsGeneration ChunkDataControl", "Guru")
        << true;
    QTest::newRow("camera")
        << "Default_Filter.xml"
        << imposed("AcquisitionMode AcquisitionStart AcquisitionAbort AcquisitionStop LUTValueAll "
                   "GevStreamChannelSelector GevSCDA GevSCPSFireTestPacket FileAccess FileAccessControl",
                   "Invisible")
            + imposed(triggersToLuts, "Expert") + scanType
            + imposed("DigitalIO UserSets TransportLayer", "Expert")
            + imposed("DeviceReset ChunkData ChunkDataStreams EventsGeneration ChunkDataControl", "Guru")
            + imposed(
                "GevInterfaceSelector GevCurrentIPConfiguration GevPersistentIPAddress "
                "GevPersistentSubnetMask GevPersistentDefaultGateway GevSCPInterfaceIndex GevSCPHostPort "
                "GevSCPSBigEndian",
                "", "RO")
            + imposed("GevGVSPExtendedIDMode", "")
        << true;
}

void TestNodeMapFilter::embeddedDocuments()
{
    QFETCH(QString, name);
    QFETCH(QStringList, expected);
    QFETCH(bool, compressed);
    QCOMPARE(QResource(resources + name).compressionAlgorithm(),
             compressed ? QResource::ZlibCompression : QResource::NoCompression);
    QFile file(resources + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&file));
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("Filter"));
    QCOMPARE(entriesOf(document), expected);
}

void TestNodeMapFilter::candidates_data()
{
    QTest::addColumn<QString>("deviceClass");
    QTest::addColumn<QString>("nodeMap");
    QTest::addColumn<QString>("present");
    QTest::addColumn<bool>("found");
    QTest::newRow("class and stem") << "GEV"
                                    << "@StreamGrabber0"
                                    << "GEV_StreamGrabber_Filter.xml" << true;
    QTest::newRow("many at signs and digits") << "GEV"
                                              << "@@Camera12"
                                              << "GEV_Camera_Filter.xml" << true;
    QTest::newRow("digits inside stay") << "GEV"
                                        << "@A1b@2"
                                        << "GEV_A1b@_Filter.xml" << true;
    QTest::newRow("stem alone") << "GEV"
                                << "@Camera"
                                << "Camera_Filter.xml" << true;
    QTest::newRow("stem of another class") << "GEV"
                                           << "@Camera"
                                           << "U3V_Camera_Filter.xml" << false;
    QTest::newRow("no stem, class") << "GEV"
                                    << ""
                                    << "GEV_Filter.xml" << true;
    QTest::newRow("digits only") << "GEV"
                                 << "@12"
                                 << "GEV_Filter.xml" << true;
    QTest::newRow("no stem skips the second name") << "GEV"
                                                   << ""
                                                   << "Filter.xml" << false;
    QTest::newRow("last resort") << "GEV"
                                 << "@Unheard"
                                 << "Default_Filter.xml" << true;
    QTest::newRow("no stem, last resort") << "GEV"
                                          << ""
                                          << "Default_Filter.xml" << true;
}

void TestNodeMapFilter::candidates()
{
    QFETCH(QString, deviceClass);
    QFETCH(QString, nodeMap);
    QFETCH(QString, present);
    QFETCH(bool, found);
    place(present, filterOf(feature("Marker", "Guru")));
    const auto collection = QSharedPointer<MemoryCollection>::create(nodeMap, deviceClass);
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    // Otherwise the embedded last resort was taken.
    QCOMPARE(entriesOf(document) == QStringList{QStringLiteral("Marker:Guru:")}, found);
}

void TestNodeMapFilter::fileBesideTheApplicationWins()
{
    const auto collection = QSharedPointer<MemoryCollection>::create();
    const QString nodeMap = QStringLiteral("@StreamGrabber0");
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document).size(), 3);
    // A more special name wins over a nearer directory.
    place(QStringLiteral("StreamGrabber_Filter.xml"), filterOf(""));
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document).size(), 3);
    place(QStringLiteral("GEV_StreamGrabber_Filter.xml"), filterOf("<!-- none --><any><Name>A</Name></any>"));
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document), QStringList{QStringLiteral("A::")});
}

void TestNodeMapFilter::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("visibility = Guru");
    QTest::newRow("truncated") << filterOf(feature("Width", "Guru")).chopped(12);
    QTest::newRow("binary") << QByteArray("\x7f\x45LF\0\0\xff\xfe", 8);
    QTest::newRow("50 MB") << filterOf(QByteArray(50 * 1024 * 1024, ' '));
    const QByteArray deep = QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000);
    QTest::newRow("deep") << filterOf(deep);
    QTest::newRow("deep behind an unknown prefix") << filterOf("<x:y/>" + deep);
    QByteArray attributes;
    for (int i = 0; attributes.size() < 900000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    QTest::newRow("attributes") << filterOf("<Feature" + attributes + "/>");
    QByteArray laughs("<!DOCTYPE Filter [<!ENTITY a0 \"haha\">");
    for (int i = 1; i < 12; ++i) {
        const QByteArray below = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + below.repeated(10) + "\">";
    }
    QTest::newRow("entities of entities")
        << laughs + "]><Filter><Feature><Name>&a11;</Name></Feature></Filter>";
    QTest::newRow("an entity many times") << "<!DOCTYPE Filter [<!ENTITY a \"" + QByteArray(4000, 'a')
            + "\">]><Filter><Feature><Name>" + QByteArray("&a;").repeated(70000)
            + "</Name></Feature></Filter>";
}

void TestNodeMapFilter::unusableFiles()
{
    QFETCH(QByteArray, contents);
    const QString name = QStringLiteral("GEV_StreamGrabber_Filter.xml");
    place(name, contents);
    const auto collection = QSharedPointer<MemoryCollection>::create();
    LogCapture log;
    QDomDocument document;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!NodeMapFilter::createDocument(document, collection, QStringLiteral("@StreamGrabber0")));
    QVERIFY(timer.elapsed() < 3000);
    QVERIFY(document.isNull());
    QCOMPARE(log.entries().size(), 1);
    const QString start = QStringLiteral("0 zelto.viewer.plugins.FeatureTreeWidget: "
                                         "NodeMapFilter::createDocument: failed to parse file %1: ")
                              .arg(besideApplication(name));
    QVERIFY2(log.entries().constFirst().startsWith(start), qPrintable(log.entries().constFirst()));
    const QRegularExpression ending(QStringLiteral(": .+ \\(\\d+, \\d+\\)$"));
    QVERIFY(log.entries().constFirst().contains(ending));
}

void TestNodeMapFilter::directoryIsPassedOver()
{
    const QString name = QStringLiteral("GEV_StreamGrabber_Filter.xml");
    const auto collection = QSharedPointer<MemoryCollection>::create();
    QVERIFY(QDir().mkdir(besideApplication(name)));
    QDomDocument document;
    const bool found = NodeMapFilter::createDocument(document, collection, QStringLiteral("@StreamGrabber0"));
    QVERIFY(QDir().rmdir(besideApplication(name)));
    QVERIFY(found);
    QCOMPARE(entriesOf(document).size(), 3);
}

void TestNodeMapFilter::externalEntitiesStayOutside()
{
    place(QStringLiteral("Secret.txt"), "secret");
    const QByteArray url = "file://" + besideApplication(QStringLiteral("Secret.txt")).toUtf8();
    place(QStringLiteral("GEV_Camera_Filter.xml"),
          "<!DOCTYPE Filter [<!ENTITY x SYSTEM \"" + url
              + "\">]>"
                "<Filter><Feature><Name>A&x;</Name></Feature></Filter>");
    QDomDocument document;
    NodeMapFilter::createDocument(document, QSharedPointer<MemoryCollection>::create(),
                                  QStringLiteral("@Camera"));
    QVERIFY(!document.documentElement().text().contains(QLatin1String("secret")));
}

void TestNodeMapFilter::nothingFound()
{
    QDomDocument document;
    LogCapture log;
    QVERIFY(!NodeMapFilter::createDocument(document, {}, QStringLiteral("@Camera")));
    NodeMapFilter::apply({}, QStringLiteral("@Camera"));
    QVERIFY(log.entries().isEmpty());

    auto failing = QSharedPointer<MemoryCollection>::create();
    failing->before = [](const QString &operation) {
        if (operation == QLatin1String("deviceClass")) {
            throw std::runtime_error("unplugged");
        }
    };
    QVERIFY(NodeMapFilter::createDocument(document, failing, QStringLiteral("@Camera")));
    QCOMPARE(log.messages().value(1), QStringLiteral("NodeMapFilter::createDocument: unplugged"));
}

void TestNodeMapFilter::processElement_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("visibility");
    QTest::addColumn<QString>("accessMode");
    QTest::addColumn<QString>("message");
    const QString none;
    QTest::newRow("both") << QByteArray("<F><Name>Width</Name><Visibility>Expert</Visibility>"
                                        "<AccessMode>RO</AccessMode></F>")
                          << true << "Expert"
                          << "RO" << none;
    QTest::newRow("nested and repeated")
        << QByteArray("<F><x><Name>Width</Name></x><y><z><Visibility>Guru</Visibility></z></y>"
                      "<Visibility>Expert</Visibility><Name>Gain</Name></F>")
        << true << "Guru" << none << none;
    QTest::newRow("neither") << QByteArray("<F><Name>Width</Name></F>") << true << none << none << none;
    QTest::newRow("no name") << QByteArray("<F><Visibility>Guru</Visibility></F>") << false << none << none
                             << "NodeMapFilter::processElement: failed to get the name of a filter item";
    QTest::newRow("empty name") << QByteArray("<F><Name></Name><Visibility>Guru</Visibility></F>") << false
                                << none << none << "NodeMapFilter::processElement: empty name found";
    QTest::newRow("absent") << QByteArray("<F><Name>Absent</Name><Visibility>Guru</Visibility></F>") << false
                            << none << none << none;
    QTest::newRow("excluded") << QByteArray("<F><Name>OffsetX</Name><Visibility>Guru</Visibility></F>")
                              << false << none << none << none;
    QTest::newRow("excluded, imposing allowed")
        << QByteArray("<F><Name>PixelFormat</Name><Visibility>Guru</Visibility></F>") << true << none << none
        << none;
}

void TestNodeMapFilter::processElement()
{
    QFETCH(QByteArray, entry);
    QFETCH(bool, result);
    QFETCH(QString, visibility);
    QFETCH(QString, accessMode);
    QFETCH(QString, message);
    const auto collection = MemoryCollection::createSample();
    const auto node = [&collection](const char *name) {
        return dynamic_cast<MemoryNode *>(collection->parameter(QLatin1String(name)).data());
    };
    node("OffsetX")->excluded = true;
    node("PixelFormat")->excluded = true;
    node("PixelFormat")->imposingAllowed = true;
    QDomDocument keeper;
    LogCapture log;
    QCOMPARE(NodeMapFilter::processElement(parsed(entry, keeper), collection), result);
    QCOMPARE(log.messages(), message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(node("Width")->properties.value(QStringLiteral("Visibility")), visibility);
    QCOMPARE(node("Width")->properties.value(QStringLiteral("AccessMode")), accessMode);
    QVERIFY(!node("OffsetX")->properties.contains(QStringLiteral("Visibility")));
    QCOMPARE(node("PixelFormat")->properties.contains(QStringLiteral("Visibility")),
             result && entry.contains("PixelFormat"));
    QVERIFY(!NodeMapFilter::processElement(keeper.documentElement(), {}));
    QVERIFY(!NodeMapFilter::processElement({}, collection));
}

void TestNodeMapFilter::refusedProperties_data()
{
    QTest::addColumn<int>("refusedWrite");
    QTest::addColumn<QString>("headline");
    QTest::newRow("visibility") << 1 << "Failed to impose the visibility of node Width";
    QTest::newRow("access mode") << 2 << "Failed to impose the access mode of node Width";
}

void TestNodeMapFilter::refusedProperties()
{
    QFETCH(int, refusedWrite);
    QFETCH(QString, headline);
    const auto collection = MemoryCollection::createSample();
    auto *const width = dynamic_cast<MemoryNode *>(collection->parameter(QStringLiteral("Width")).data());
    int writes = 0;
    width->before = [&](const QString &operation) {
        if (operation == QLatin1String("setProperty") && ++writes == refusedWrite) {
            throw GenICam::InvalidArgumentException(QStringLiteral("not that"));
        }
    };
    QDomDocument keeper;
    LogCapture log;
    QVERIFY(!NodeMapFilter::processElement(
        parsed("<F><Name>Width</Name><Visibility>Odd</Visibility><AccessMode>Odd</AccessMode></F>", keeper),
        collection));
    const QString prefix = QStringLiteral("2 zelto.viewer.plugins.FeatureTreeWidget: ");
    QCOMPARE(
        log.entries(),
        QStringList({prefix + headline, prefix + QStringLiteral("NodeMapFilter::processElement: not that")}));
    QCOMPARE(writes, refusedWrite);
}

void TestNodeMapFilter::applyImposesAllEntries()
{
    const auto collection = MemoryCollection::createSample();
    place(QStringLiteral("GEV_Camera_Filter.xml"),
          filterOf(feature("Absent", "Guru") + feature("Width", "Expert") + "<Feature/>"
                   + feature("Gain", "Guru") + feature("Width", "Invisible")));
    NodeMapFilter::apply(collection, QStringLiteral("@Camera0"));
    const auto visibility = [&collection](const char *name) {
        return collection->parameter(QLatin1String(name))
            ->propertyAccess()
            ->property(QStringLiteral("Visibility"));
    };
    QCOMPARE(visibility("Width"), QStringLiteral("Invisible"));
    QCOMPARE(visibility("Gain"), QStringLiteral("Guru"));
    QCOMPARE(visibility("OffsetX"), QString());
}

QTEST_GUILESS_MAIN(TestNodeMapFilter)
#include "tst_nodemapfilter.moc"
