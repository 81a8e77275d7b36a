// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/camera.h>
#include <cameras/description_p.h>

#include <platform/core/exception.h>
#include <platform/parametercollection/iparameter.h>
#include <support/logcapture.h>
#include <support/table.h>

#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace ParameterCollection;
using namespace Cameras;

namespace {

QByteArray description(const QByteArray &nodes)
{
    return QByteArray(
               "<?xml version=\"1.0\"?>\n<RegisterDescription ModelName=\"Model\" VendorName=\"Vendor\" "
               "StandardNameSpace=\"GEV\" SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" "
               "SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" "
               "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n")
        + nodes + "\n<Port Name=\"Device\"/></RegisterDescription>\n";
}

QByteArray root(const QByteArray &features)
{
    QByteArray text = "<Category Name=\"Root\">";
    for (const QByteArray &feature : features.split(' ')) {
        text += "<pFeature>" + feature + "</pFeature>";
    }
    return text + "</Category>";
}

QByteArray integerRegister(const QByteArray &name, const QByteArray &address, const QByteArray &more = {})
{
    return "<IntReg Name=\"" + name + "\">" + more + "<Address>" + address
        + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
          "<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>";
}

} // namespace

class TestDescription : public QObject
{
    Q_OBJECT

private slots:
    void refusesBrokenFiles_data();
    void refusesBrokenFiles();
    void linesAboveTheFirstTagAreSkipped_data();
    void linesAboveTheFirstTagAreSkipped();
    void oneBadFeatureLeavesTheTree();
    void circlesAreUnreadable();
    void impossibleLengthsAreUnreadable();
    void endlessNestingIsCut();
    void repeatedCategoriesStayBounded_data();
    void repeatedCategoriesStayBounded();
    void dependentsFollowTheLinks();
    void singlePrecisionIsShownAsItWasMeant();
    void groupsAndStructEntries();
    void currentEntryIsListed();

private:
    QString saved(const QByteArray &contents);
    std::unique_ptr<Camera> opened(const QByteArray &nodes);

    QTemporaryDir m_directory;
};

QString TestDescription::saved(const QByteArray &contents)
{
    QFile file(m_directory.filePath("camera.xml"));
    file.open(QIODevice::WriteOnly);
    file.write(contents);
    return file.fileName();
}

std::unique_ptr<Camera> TestDescription::opened(const QByteArray &nodes)
{
    return Camera::openDescription(saved(description(nodes)));
}

void TestDescription::refusesBrokenFiles_data()
{
    columns<QByteArray, QString>({"contents", "reason"});
    const QByteArray integer = "<Integer Name=\"A\"><Value>1</Value></Integer>";
    const QByteArray good = description(root("A") + integer);
    row("no xml", QByteArray("This is a letter."), "line 1");
    row("empty", QByteArray(), "end of document");
    row("truncated", good.left(good.size() / 2), "end of document");
    row("truncated at the end", good.chopped(8), "end of document");
    row("other xml", QByteArray("<html/>"), "no camera description");
    row("no root", description(integer), "\"Root\"");
    row("entities", "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>" + good, "document type");
    const QString wide = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<!DOCTYPE a>\n"
        + QString(good.mid(good.indexOf("<RegisterDescription")));
    QStringEncoder encoder(QStringEncoder::Utf16, QStringEncoder::Flag::WriteBom);
    row("entities in UTF-16", QByteArray(encoder.encode(wide)), "document type");
    row("broken archive", QByteArray("PK\3\4 and nothing else"), "archive");
}

void TestDescription::refusesBrokenFiles()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, reason);
    const QString fileName = saved(contents);
    for (const QString &name :
         {fileName, m_directory.path(), QString("/no/such/file.xml"), QString("/dev/zero")}) {
        try {
            Camera::openDescription(name);
            QFAIL("opened");
        } catch (const Core::Exception::BaseException &exception) {
            const QString message = exception.getMessage();
            QVERIFY2(message.contains(name), qPrintable(message));
            QVERIFY2(name != fileName || message.contains(reason), qPrintable(message));
            QVERIFY(!message.contains(QLatin1Char('\n')));
        }
    }
}

void TestDescription::linesAboveTheFirstTagAreSkipped_data()
{
    columns<QByteArray>({"contents"});
    const QByteArray good = description(root("A") + "<Integer Name=\"A\"><Value>1</Value></Integer>");
    const QByteArray bare = good.mid(good.indexOf("<Register"));
    row("blank lines", "\r\n  \n" + good);
    row("a letter", "Content-Type: text/xml\n\n" + good);
    row("comments", "<!-- of 2026 -->\n<!-- <Register> -->\n" + good);
    row("a byte order mark, lines", "\xef\xbb\xbf\n\n" + good);
    row("lines, no declaration", "\n# saved\n" + bare);
    row("a comment, no declaration", "\n<!-- <?xml is missing -->\n" + bare);
    QStringEncoder encoder(QStringEncoder::Utf16, QStringEncoder::Flag::WriteBom);
    row("UTF-16", QByteArray(encoder.encode(QString(good).replace("1.0\"?", "1.0\" encoding=\"UTF-16\"?"))));
}

void TestDescription::linesAboveTheFirstTagAreSkipped()
{
    QFETCH(QByteArray, contents);
    const auto camera = Camera::openDescription(saved(contents));
    QVERIFY(camera->nodeMaps().at(0).collection->parameter("A"));
}

void TestDescription::oneBadFeatureLeavesTheTree()
{
    const auto camera =
        opened(root("NoEntry Ratio Lost Good Portless Nobody")
               + "<Enumeration Name=\"NoEntry\"><EnumEntry Name=\"One\"><Value>1</Value></EnumEntry>"
                 "<pValue>Zero</pValue></Enumeration>"
                 "<Float Name=\"Ratio\"><pValue>Knife</pValue></Float>"
                 "<SwissKnife Name=\"Knife\"><pVariable Name=\"N\">Zero</pVariable><Formula>1.0 / "
                 "N</Formula></SwissKnife>"
                 "<Integer Name=\"Lost\"><pValue>NotThere</pValue></Integer>"
                 "<Integer Name=\"Good\"><pInvalidator>Lost</pInvalidator><Value>7</Value></Integer>"
               + "<StringReg Name=\"Portless\"><Address>0x20</Address><Length>4</Length></StringReg>"
               + integerRegister("Zero", "0x10"));
    const auto collection = camera->nodeMaps().first().collection;
    QCOMPARE(collection->childNames("Root", 0, false),
             QStringList({"NoEntry", "Ratio", "Lost", "Good", "Portless"}));
    for (const char *name : {"Portless", "NoEntry", "Lost"}) {
        QVERIFY2(!collection->parameter(name)->parameterData()->isReadable, name);
    }
    const auto good = collection->parameter("Good");
    QCOMPARE(good->parameterData()->valueString, "7");
    QCOMPARE(good->propertyAccess()->property("DisplayName"), "Good");
    QCOMPARE(camera->info()->vendorName(), "Vendor");
    QCOMPARE(collection->deviceClass(), "GEV");
}

void TestDescription::circlesAreUnreadable()
{
    const auto camera = opened(
        root("A Limited Switched Good")
        + "<Integer Name=\"A\"><pValue>B</pValue></Integer><Integer Name=\"B\"><pValue>A</pValue></Integer>"
          "<Integer Name=\"Limited\"><Value>1</Value><pMax>B</pMax></Integer>"
          "<Integer Name=\"Switched\"><pIsAvailable>B</pIsAvailable><Value>1</Value></Integer>"
          "<Integer Name=\"Good\"><Value>7</Value></Integer>");
    const auto collection = camera->nodeMaps().first().collection;
    for (const char *name : {"A", "Limited", "Switched"}) {
        const auto bad = collection->parameter(name);
        QVERIFY2(!bad->parameterData()->isReadable, name);
        QVERIFY_EXCEPTION_THROWN(bad->setValueFromString("1"), std::exception);
    }
    QVERIFY(collection->parameter("Good")->parameterData()->isReadable);
}

// The engine would end the program over such an allocation.
void TestDescription::impossibleLengthsAreUnreadable()
{
    const auto text = [](const char *name, const QByteArray &length) {
        return QByteArray("<StringReg Name=\"") + name + "\"><Address>0x20</Address>" + length
            + "<AccessMode>RW</AccessMode><pPort>Device</pPort></StringReg>";
    };
    const auto camera =
        opened(root("Negative Huge Sized Size User Chained") + text("Negative", "<Length>-5</Length>")
               + text("Huge", "<Length>0x5af3107a3fff</Length>") + text("Sized", "<pLength>Size</pLength>")
               + "<Integer Name=\"Size\"><pValue>SizeRegister</pValue></Integer>"
                 "<String Name=\"User\"><pValue>Sized</pValue></String>"
                 "<IntReg Name=\"Chained\"><Address>0x80</Address><pLength>Sizing</pLength>"
                 "<AccessMode>RW</AccessMode><pPort>Device</pPort></IntReg>"
                 "<IntReg Name=\"Sizing\"><Address>0x80</Address><pLength>Size</pLength>"
                 "<AccessMode>RW</AccessMode><pPort>Device</pPort></IntReg>"
               + integerRegister("SizeRegister", "0x10"));
    const auto collection = camera->nodeMaps().first().collection;
    const auto parameter = [&collection](const char *name) { return collection->parameter(name); };
    const auto isReadable = [&parameter](const char *name) {
        return parameter(name)->parameterData()->isReadable;
    };
    QVERIFY(!isReadable("Negative"));
    QVERIFY(!isReadable("Huge"));
    QVERIFY(!isReadable("Chained"));
    parameter("Size")->setValueFromString("8");
    QTRY_VERIFY(isReadable("Sized") && isReadable("User"));
    parameter("User")->setValueFromString("abc");
    QCOMPARE(parameter("User")->parameterData()->valueString, "abc");
    parameter("Size")->setValueFromString("4294967295");
    QTRY_VERIFY(!isReadable("Sized") && !isReadable("User"));
    QVERIFY_EXCEPTION_THROWN(parameter("User")->setValueFromString("abc"), std::exception);
    QVERIFY(isReadable("Size"));
}

void TestDescription::endlessNestingIsCut()
{
    const Description parsed(description(
        root("Outer")
        + "<Category Name=\"Outer\"><pFeature>Inner</pFeature><pFeature>Value</pFeature></Category>"
          "<Category Name=\"Inner\"><pFeature>Outer</pFeature><pFeature>Value</pFeature></Category>"
          "<Integer Name=\"Value\"><Value>7</Value></Integer>"));
    const int inner = parsed.indexOf("Inner");
    const int value = parsed.indexOf("Value");
    QCOMPARE(parsed.children(inner), QList<int>({value}));
    QCOMPARE(parsed.children(parsed.indexOf("Outer")), QList<int>({inner, value}));

    const auto camera =
        opened(root("A") + "<Enumeration Name=\"A\">" + QByteArray("<EnumEntry Name=\"E\">").repeated(50000)
               + QByteArray("</EnumEntry>").repeated(50000) + "</Enumeration>");
    QVERIFY(camera->nodeMaps().first().collection->hasParameter("A"));
}

void TestDescription::repeatedCategoriesStayBounded_data()
{
    QTest::addColumn<QByteArray>("nodes");
    QTest::addColumn<int>("fewestRows");
    QTest::addColumn<int>("mostRows");
    const auto category = [](int number, const QByteArray &features) {
        return "<Category Name=\"C" + QByteArray::number(number) + "\">" + features + "</Category>";
    };
    const auto entry = [](int number) { return "<pFeature>C" + QByteArray::number(number) + "</pFeature>"; };
    const QByteArray leaf("<pFeature>Leaf</pFeature>");
    QByteArray lattice = "<Category Name=\"Root\">" + entry(0) + "</Category>";
    QByteArray ladder = "<Category Name=\"Root\">";
    QByteArray rungs;
    for (int i = 0; i < 60; ++i) {
        lattice += category(i, i < 30 ? entry(i + 1) + entry(i + 1) : leaf);
        ladder += entry(59 - i);
        rungs += category(i, leaf + (i < 59 ? entry(i + 1) : QByteArray()));
    }
    QTest::newRow("lattice") << lattice << 31 << 20000;
    QTest::newRow("each lists all that is below") << ladder + "</Category>" + rungs << 120 << 20000;
    QTest::newRow("a feature and a category in two places") << "<Category Name=\"Root\">" + entry(1)
            + entry(2) + leaf + "</Category>" + category(1, entry(2) + leaf)
            + category(2, leaf) << 7 << 7;
}

void TestDescription::repeatedCategoriesStayBounded()
{
    QFETCH(QByteArray, nodes);
    QFETCH(int, fewestRows);
    QFETCH(int, mostRows);
    LogCapture log;
    const Description parsed(description(nodes + "<Integer Name=\"Leaf\"><Value>7</Value></Integer>"));
    const bool isWhole = fewestRows == mostRows;
    int rows = 0;
    int depth = 0;
    QList<int> generation{parsed.indexOf(QStringLiteral("Root"))};
    for (; !generation.isEmpty() && rows <= mostRows; ++depth) {
        QList<int> next;
        for (const int node : std::as_const(generation)) {
            next.append(parsed.children(node));
        }
        rows += int(next.size());
        generation = next;
    }
    QVERIFY2(rows >= fewestRows && rows <= mostRows, qPrintable(QString::number(rows)));
    QVERIFY2(depth <= 33, qPrintable(QString::number(depth)));
    QCOMPARE(log.messages().filter(QStringLiteral("left out")).isEmpty(), isWhole);
}

void TestDescription::dependentsFollowTheLinks()
{
    const Description parsed(description(
        root("Written Same Limited Chosen Selector Unrelated Kept Polled")
        + "<Integer Name=\"Written\"><pValue>Register</pValue></Integer>"
          "<Float Name=\"Same\"><pValue>Converted</pValue></Float>"
          "<Converter Name=\"Converted\"><FormulaTo>FROM</FormulaTo><FormulaFrom>TO</FormulaFrom>"
          "<pValue>Register</pValue></Converter>"
          "<Integer Name=\"Limited\"><Value>1</Value><pMax>Knife</pMax></Integer>"
          "<IntSwissKnife Name=\"Knife\"><pVariable Name=\"V\">Written</pVariable><Formula>V</Formula>"
          "</IntSwissKnife>"
          "<Enumeration Name=\"Selector\"><EnumEntry Name=\"E\"><pIsAvailable>Register</pIsAvailable>"
          "<Value>0</Value></EnumEntry><Value>0</Value><pSelected>Chosen</pSelected></Enumeration>"
          "<Integer Name=\"Chosen\"><Value>1</Value></Integer>"
          "<Integer Name=\"Unrelated\"><pValue>Other</pValue></Integer>"
          "<Integer Name=\"Kept\"><pValue>Invalidated</pValue></Integer>"
          "<Integer Name=\"Polled\"><pValue>Clock</pValue></Integer>"
        + integerRegister("Register", "0x10") + integerRegister("Other", "0x14")
        + integerRegister("Clock", "0x18", "<PollingTime>250</PollingTime>")
        + integerRegister("Invalidated", "0x1c", "<pInvalidator>Unrelated</pInvalidator>")));
    const auto namesAfter = [&parsed](const char *written) {
        QStringList names;
        for (const int node : parsed.dependents(parsed.indexOf(written))) {
            names.append(parsed.name(node));
        }
        names.sort();
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(namesAfter("Written"), "Chosen Limited Same Selector");
    QCOMPARE(namesAfter("Same"), "Chosen Limited Selector Written");
    QCOMPARE(namesAfter("Selector"), "Chosen");
    QCOMPARE(namesAfter("Chosen"), QString());
    QCOMPARE(namesAfter("Unrelated"), "Kept");
    QCOMPARE(parsed.pollingTime(parsed.indexOf("Polled")), 250);
    QCOMPARE(parsed.pollingTime(parsed.indexOf("Kept")), 0);
}

void TestDescription::singlePrecisionIsShownAsItWasMeant()
{
    const auto floatRegister = [](const char *name, const char *address, const char *length) {
        return QByteArray("<FloatReg Name=\"") + name + "\"><Address>" + address + "</Address><Length>"
            + length
            + "</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Endianess>LittleEndian</Endianess>"
              "</FloatReg>";
    };
    const auto camera = opened(root("Single Double Large") + floatRegister("Single", "0x10", "4")
                               + floatRegister("Double", "0x18", "8") + floatRegister("Large", "0x20", "4"));
    const auto collection = camera->nodeMaps().first().collection;
    const auto written = [&collection](const char *name, const char *text) {
        const auto parameter = collection->parameter(name);
        parameter->setValueFromString(text);
        return parameter->parameterData()->valueString;
    };
    QCOMPARE(written("Single", "0.1"), "0.1");
    QCOMPARE(written("Single", "46.099998"), "46.1");
    QCOMPARE(written("Double", "0.30000000000000004"), "0.30000000000000004");
    QCOMPARE(written("Double", "131072.015625"), "131072.015625");
    QCOMPARE(written("Large", "123456792"), "123456792");
}

void TestDescription::groupsAndStructEntries()
{
    const auto camera = opened(
        "<Group Comment=\"all\">" + root("Low High")
        + "<Integer Name=\"Low\"><pValue>LowBits</pValue></Integer>"
          "<Integer Name=\"High\"><pValue>HighBits</pValue></Integer></Group>"
          "<StructReg Comment=\"bits\"><Address>0x20</Address><Length>4</Length><AccessMode>RW</AccessMode>"
          "<pPort>Device</pPort><Endianess>LittleEndian</Endianess>"
          "<StructEntry Name=\"LowBits\"><LSB>0</LSB><MSB>7</MSB></StructEntry>"
          "<StructEntry Name=\"HighBits\"><LSB>8</LSB><MSB>15</MSB></StructEntry></StructReg>");
    const auto collection = camera->nodeMaps().first().collection;
    collection->parameter("High")->setValueFromString("3");
    QCOMPARE(collection->parameter("High")->parameterData()->valueString, "3");
    QCOMPARE(collection->parameter("Low")->parameterData()->valueString, "0");
}

// As real descriptions have it: the value that stands in the register is not offered now.
void TestDescription::currentEntryIsListed()
{
    const auto entry = [](const QByteArray &name, int value, const QByteArray &availability = {}) {
        return "<EnumEntry Name=\"" + name + "\">" + availability + "<Value>" + QByteArray::number(value)
            + "</Value></EnumEntry>";
    };
    const QByteArray missing = "<pIsAvailable>Switch</pIsAvailable>";
    const auto camera = opened(root("Selector Switch") + "<Enumeration Name=\"Selector\">" + entry("Far", 7)
                               + entry("Red", 0, missing) + entry("Green", 1) + entry("Hidden", 2, missing)
                               + "<pValue>Register</pValue></Enumeration>"
                               + integerRegister("Register", "0x100") + integerRegister("Switch", "0x104"));
    const auto collection = camera->nodeMaps().first().collection;
    const auto selector = collection->parameter("Selector");
    const auto entries = [&selector] {
        const auto data = qSharedPointerDynamicCast<const EnumParameterData>(selector->parameterData());
        return data->symbolicNames + data->displayTexts + QStringList{data->valueString};
    };
    QCOMPARE(entries(), QStringList({"Far", "Red", "Green", "Far", "Red (not available)", "Green", "Red"}));
    QVERIFY_EXCEPTION_THROWN(selector->setValueFromString("Hidden"), std::exception);
    selector->setValueFromString("Green");
    QVERIFY_EXCEPTION_THROWN(selector->setValueFromString("Red"), std::exception);
    QCOMPARE(entries(), QStringList({"Far", "Green", "Far", "Green", "Green"}));
}

QTEST_GUILESS_MAIN(TestDescription)
#include "tst_description.moc"
