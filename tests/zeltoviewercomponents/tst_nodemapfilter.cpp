// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/featuretree/nodemapfilter.h>

#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <support/table.h>

#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QResource>
#include <QTest>

using namespace ParameterCollection;

namespace {

const QString resources = ":/zeltoviewercomponents/Resources/";

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
    void usableFiles_data();
    void usableFiles();
    void unusableFiles_data();
    void unusableFiles();
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
    columns<QString, int, bool>({"name", "entries", "compressed"});
    row("GEV stream", "GEV_StreamGrabber_Filter.xml", 3, false);
    row("Vexor stream", "Vexor_StreamGrabber_Filter.xml", 3, false);
    row("IIDC stream", "IIDC_StreamGrabber_Filter.xml", 1, false);
    row("GEV transport layer", "GEV_DeviceTransportLayer_Filter.xml", 4, false);
    row("U3V transport layer", "U3V_DeviceTransportLayer_Filter.xml", 1, false);
    row("converter", "ImageFormatConverter_Filter.xml", 2, false);
    row("U3V camera", "U3V_CameraDevice_Filter.xml", 26, true);
    row("camera", "Default_Filter.xml", 39, true);
}

void TestNodeMapFilter::embeddedDocuments()
{
    QFETCH(QString, name);
    QFETCH(int, entries);
    QFETCH(bool, compressed);
    QCOMPARE(QResource(resources + name).compressionAlgorithm(),
             compressed ? QResource::ZlibCompression : QResource::NoCompression);
    QFile file(resources + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&file));
    QCOMPARE(document.documentElement().tagName(), "Filter");
    const QStringList found = entriesOf(document);
    QCOMPARE(found.size(), entries);
    QCOMPARE(QSet<QString>(found.cbegin(), found.cend()).size(), entries);
    const QRegularExpression usable("^\\w+:(Expert|Guru|Invisible)?:(RO)?$");
    QCOMPARE(found.filter(usable), found);
}

void TestNodeMapFilter::candidates_data()
{
    columns<QString, QString, bool>({"nodeMap", "present", "found"});
    row("class and stem", "@StreamGrabber0", "GEV_StreamGrabber_Filter.xml", true);
    row("many at signs and digits", "@@Camera12", "GEV_Camera_Filter.xml", true);
    row("digits inside stay", "@A1b@2", "GEV_A1b@_Filter.xml", true);
    row("stem alone", "@Camera", "Camera_Filter.xml", true);
    row("stem of another class", "@Camera", "U3V_Camera_Filter.xml", false);
    row("no stem, class", "", "GEV_Filter.xml", true);
    row("digits only", "@12", "GEV_Filter.xml", true);
    row("no stem skips the second name", "", "Filter.xml", false);
    row("last resort", "@Unheard", "Default_Filter.xml", true);
    row("no stem, last resort", "", "Default_Filter.xml", true);
}

void TestNodeMapFilter::candidates()
{
    QFETCH(QString, nodeMap);
    QFETCH(QString, present);
    QFETCH(bool, found);
    place(present, filterOf(feature("Marker", "Guru")));
    const auto collection = QSharedPointer<MemoryCollection>::create(nodeMap);
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    // Otherwise the embedded last resort was taken.
    QCOMPARE(entriesOf(document) == QStringList{"Marker:Guru:"}, found);
}

void TestNodeMapFilter::fileBesideTheApplicationWins()
{
    const auto collection = QSharedPointer<MemoryCollection>::create();
    const QString nodeMap = "@StreamGrabber0";
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document).size(), 3);
    // A directory is no file, and a more special name wins over a nearer directory.
    const QString special = besideApplication("GEV_StreamGrabber_Filter.xml");
    QVERIFY(QDir().mkdir(special));
    const bool isFound = NodeMapFilter::createDocument(document, collection, nodeMap);
    QVERIFY(QDir().rmdir(special));
    QVERIFY(isFound);
    QCOMPARE(entriesOf(document).size(), 3);
    place("StreamGrabber_Filter.xml", filterOf(""));
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document).size(), 3);
    place("GEV_StreamGrabber_Filter.xml", filterOf("<!-- none --><any><Name>A</Name></any>"));
    QVERIFY(NodeMapFilter::createDocument(document, collection, nodeMap));
    QCOMPARE(entriesOf(document), QStringList{"A::"});
}

void TestNodeMapFilter::usableFiles_data()
{
    columns<QByteArray, QString>({"contents", "entry"});
    const QByteArray signs(2000, '=');
    row("equals signs that are no attributes",
        filterOf("<!-- '" + signs + " --><?x \"" + signs + "?><F a='>" + signs
                 + "'><Name>A</Name><![CDATA[<b " + signs + "]]>" + signs + "</F>"),
        "A::");
    QByteArray entries;
    for (int i = 0; i < 900; ++i) {
        entries += "<F note='a = b'/>";
    }
    row("fewer attributes than the bound, with signs in them", filterOf("<F><Name>A</Name></F>" + entries),
        "A::");
    const QString wide = QString::fromUtf8(filterOf("<F><Name>Ä</Name></F>"));
    row("UTF-16",
        QByteArray("\xff\xfe")
            + QByteArray(reinterpret_cast<const char *>(wide.utf16()), wide.size() * qsizetype(2)),
        "Ä::");
    row("Latin-1",
        QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><Filter><F><Name>\xc4</Name></F></Filter>"),
        "Ä::");
}

void TestNodeMapFilter::usableFiles()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, entry);
    place("GEV_Camera_Filter.xml", contents);
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, QSharedPointer<MemoryCollection>::create(), "@Camera"));
    QCOMPARE(entriesOf(document).value(0), entry);
}

void TestNodeMapFilter::unusableFiles_data()
{
    columns<QByteArray>({"contents"});
    row("empty", QByteArray());
    row("no XML", QByteArray("visibility = Guru"));
    row("truncated", filterOf(feature("Width", "Guru")).chopped(12));
    row("binary", QByteArray("\x7f\x45LF\0\0\xff\xfe", 8));
    row("50 MB", filterOf(QByteArray(50 * 1024 * 1024, ' ')));
    const QByteArray deep = QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000);
    row("deep", filterOf(deep));
    row("deep behind an unknown prefix", filterOf("<x:y/>" + deep));
    QByteArray attributes;
    for (int i = 0; attributes.size() < 900000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    row("attributes", filterOf("<Feature" + attributes + "/>"));
    row("attributes behind apostrophes", filterOf("<!-- ' --><?x '?><![CDATA[']]>'<F" + attributes + "/>"));
    row("declared to be wider", "<?xml version='1.0' encoding='UTF-16'?><Filter" + attributes + "/>");
    row("not UTF-8", filterOf("<F><Name>\xc4</Name></F>"));
    QByteArray laughs("<!DOCTYPE Filter [<!ENTITY a0 \"haha\">");
    for (int i = 1; i < 12; ++i) {
        const QByteArray below = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + below.repeated(10) + "\">";
    }
    row("entities of entities", laughs + "]><Filter><Feature><Name>&a11;</Name></Feature></Filter>");
    row("an entity many times",
        QByteArray("<!DOCTYPE Filter [<!ENTITY a \"" + QByteArray(4000, 'a') + "\">]><Filter><Feature><Name>"
                   + QByteArray("&a;").repeated(70000) + "</Name></Feature></Filter>"));
}

void TestNodeMapFilter::unusableFiles()
{
    QFETCH(QByteArray, contents);
    const QString name = "GEV_StreamGrabber_Filter.xml";
    place(name, contents);
    const auto collection = QSharedPointer<MemoryCollection>::create();
    LogCapture log;
    QDomDocument document;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!NodeMapFilter::createDocument(document, collection, "@StreamGrabber0"));
    QVERIFY(timer.elapsed() < 3000);
    QVERIFY(document.isNull());
    QCOMPARE(log.entries().size(), 1);
    const QRegularExpression failure(QString("^0 zelto.viewer.plugins.FeatureTreeWidget: "
                                             "NodeMapFilter::createDocument: failed to parse file %1: .+ "
                                             "\\(\\d+, \\d+\\)$")
                                         .arg(QRegularExpression::escape(besideApplication(name))));
    QVERIFY2(log.entries().constFirst().contains(failure), qPrintable(log.entries().constFirst()));
}

void TestNodeMapFilter::externalEntitiesStayOutside()
{
    place("Secret.txt", "secret");
    const QByteArray url = "file://" + besideApplication("Secret.txt").toUtf8();
    place("GEV_Camera_Filter.xml",
          "<!DOCTYPE Filter [<!ENTITY x SYSTEM \"" + url
              + "\">]>"
                "<Filter><Feature><Name>A&x;</Name></Feature></Filter>");
    QDomDocument document;
    NodeMapFilter::createDocument(document, QSharedPointer<MemoryCollection>::create(), "@Camera");
    QVERIFY(!document.documentElement().text().contains("secret"));
}

void TestNodeMapFilter::nothingFound()
{
    QDomDocument document;
    LogCapture log;
    QVERIFY(!NodeMapFilter::createDocument(document, {}, "@Camera"));
    NodeMapFilter::apply({}, "@Camera");
    QVERIFY(log.entries().isEmpty());

    auto failing = QSharedPointer<MemoryCollection>::create();
    failing->before = [](const QString &) { throw std::runtime_error("unplugged"); };
    QVERIFY(NodeMapFilter::createDocument(document, failing, "@Camera"));
    QCOMPARE(log.messages().value(1), "NodeMapFilter::createDocument: unplugged");
}

void TestNodeMapFilter::processElement_data()
{
    columns<QByteArray, bool, QString, QString, QStringList>(
        {"entry", "result", "visibility", "accessMode", "messages"});
    const QStringList silent;
    const QString function = "NodeMapFilter::processElement: ";
    const auto entry = [](const QByteArray &contents) { return "<F>" + contents + "</F>"; };
    const QByteArray width = "<Name>Width</Name>";
    const QByteArray guru = "<Visibility>Guru</Visibility>";
    row("both", entry(width + guru + "<AccessMode>RO</AccessMode>"), true, "Guru", "RO", silent);
    row("nested and repeated",
        entry("<x>" + width + "</x><y><z>" + guru
              + "</z></y><Visibility>Expert</Visibility><Name>Gain</Name>"),
        true, "Guru", "", silent);
    row("neither", entry(width), true, "", "", silent);
    row("no name", entry(guru), false, "", "",
        QStringList(function + "failed to get the name of a filter item"));
    row("empty name", entry("<Name></Name>" + guru), false, "", "",
        QStringList(function + "empty name found"));
    row("absent", entry("<Name>Absent</Name>" + guru), false, "", "", silent);
    row("excluded", entry("<Name>OffsetX</Name>" + guru), false, "", "", silent);
    row("excluded, imposing allowed", entry("<Name>PixelFormat</Name>" + guru), true, "", "", silent);
}

void TestNodeMapFilter::processElement()
{
    QFETCH(QByteArray, entry);
    QFETCH(bool, result);
    const auto collection = MemoryCollection::createSample();
    const auto imposed = [&collection](const char *name, const char *property) {
        return collection->node(name)->properties.value(property);
    };
    collection->node("OffsetX")->excluded = true;
    collection->node("PixelFormat")->excluded = true;
    collection->node("PixelFormat")->imposingAllowed = true;
    QDomDocument keeper;
    LogCapture log;
    QCOMPARE(NodeMapFilter::processElement(parsed(entry, keeper), collection), result);
    QTEST(log.messages(), "messages");
    QTEST(imposed("Width", "Visibility"), "visibility");
    QTEST(imposed("Width", "AccessMode"), "accessMode");
    QCOMPARE(imposed("OffsetX", "Visibility"), QString());
    QCOMPARE(imposed("PixelFormat", "Visibility"), entry.contains("PixelFormat") ? "Guru" : QString());
    QVERIFY(!NodeMapFilter::processElement(keeper.documentElement(), {}));
    QVERIFY(!NodeMapFilter::processElement({}, collection));
}

void TestNodeMapFilter::refusedProperties_data()
{
    columns<int, QString>({"refusedWrite", "headline"});
    row("visibility", 1, "Failed to impose the visibility of node Width");
    row("access mode", 2, "Failed to impose the access mode of node Width");
}

void TestNodeMapFilter::refusedProperties()
{
    QFETCH(int, refusedWrite);
    QFETCH(QString, headline);
    const auto collection = MemoryCollection::createSample();
    MemoryNode *const width = collection->node("Width");
    int writes = 0;
    width->before = [&](const QString &operation) {
        if (operation == "setProperty" && ++writes == refusedWrite) {
            throw GenICam::InvalidArgumentException("not that");
        }
    };
    QDomDocument keeper;
    LogCapture log;
    QVERIFY(!NodeMapFilter::processElement(
        parsed("<F><Name>Width</Name><Visibility>Guru</Visibility><AccessMode>RO</AccessMode></F>", keeper),
        collection));
    const QString prefix = "2 zelto.viewer.plugins.FeatureTreeWidget: ";
    QCOMPARE(log.entries(),
             QStringList({prefix + headline, prefix + "NodeMapFilter::processElement: not that"}));
    QCOMPARE(writes, refusedWrite);
}

void TestNodeMapFilter::applyImposesAllEntries()
{
    const auto collection = MemoryCollection::createSample();
    place("GEV_Camera_Filter.xml",
          filterOf(feature("Absent", "Guru") + feature("Width", "Expert") + "<Feature/>"
                   + feature("Gain", "Guru") + feature("Width", "Invisible")));
    NodeMapFilter::apply(collection, "@Camera0");
    const auto visibility = [&collection](const char *name) {
        return collection->node(name)->properties.value("Visibility");
    };
    QCOMPARE(visibility("Width"), "Invisible");
    QCOMPARE(visibility("Gain"), "Guru");
    QCOMPARE(visibility("OffsetX"), QString());
}

QTEST_GUILESS_MAIN(TestNodeMapFilter)
#include "tst_nodemapfilter.moc"
