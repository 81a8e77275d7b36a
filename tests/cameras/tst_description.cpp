// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "descriptiontext.h"

#include <cameras/camera.h>
#include <cameras/description_p.h>
#include <cameras/enginexml_p.h>

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
    void registersOfAllLengthsStayBounded();
    void costlyFeaturesAreUnreadable_data();
    void costlyFeaturesAreUnreadable();
    void formulasWithoutResultAreUnreadable_data();
    void formulasWithoutResultAreUnreadable();
    void failedConversionWritesNothing();
    void endlessNestingIsCut();
    void repeatedCategoriesStayBounded_data();
    void repeatedCategoriesStayBounded();
    void dependentsFollowTheLinks();
    void singlePrecisionIsShownAsItWasMeant();
    void groupsAndStructEntries();
    void currentEntryIsListed();
    void engineSeesWhatItNeeds_data();
    void engineSeesWhatItNeeds();

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
    return Camera::openDescription(saved(description(nodes)), Start::Zeroed);
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
    const auto zip = [](const char *digits) { return QByteArray::fromBase64(digits); };
    row("archive: the directory is far off",
        zip("UEsDBBQAAAAAAAAAAAAAAAAABAAAAAQAAAAFAAAAYy54bWw8YS8+UEsBAhQAFAAAAAAAAAAAAAAAAAAEAAAABAAA"
            "AAUAAAAAAAAAAAAAAAAAAAAAAGMueG1sUEsFBgAAAAABAAEAMwAAAP//fwAAAA=="),
        "archive is damaged");
    row("archive: more than there is",
        zip("UEsDBBQAAAAAAAAAAAAAAAAAAACADAAAgAwFAAAAYy54bWw8YS8+UEsBAhQAFAAAAAAAAAAAAAAAAAAAAIAMAACA"
            "DAUAAAAAAAAAAAAAAAAAAAAAAGMueG1sUEsFBgAAAAABAAEAMwAAACcAAAAAAA=="),
        "archive is damaged");
    row("broken declaration", QByteArray("<?xml verso=\"1.0\"?><a/>"), "line 1");
    const QByteArray nested =
        QByteArray("<Extension>").repeated(70) + QByteArray("</Extension>").repeated(70);
    row("deep", description(root("A") + integer + nested), "nest more than 64 deep");
    row("a long text", description(root("A") + integer + "<!---->" + QByteArray(2 << 20, 'x')),
        "a text is longer");
    row("many elements", description(root("A") + integer + QByteArray("<a/>").repeated(500001)),
        "more than 500000 elements");
    QByteArray nodes;
    QByteArray texts;
    for (int i = 0; i <= 100000; ++i) {
        const QByteArray number = QByteArray::number(i);
        nodes += "<Integer Name=\"N" + number + "\"/>";
        texts += i < 5 ? "<pFeature>S" + number + "</pFeature>" : QByteArray();
    }
    row("many nodes", description(root("A") + integer + nodes), "more than 100000 nodes");
    texts = "<Category Name=\"Root\">" + texts + "</Category>";
    for (int i = 0; i < 5; ++i) {
        texts += "<StringReg Name=\"S" + QByteArray::number(i)
            + "\"><Address>0</Address><Length>16777216</Length><pPort>Device</pPort></StringReg>";
    }
    row("large registers", description(texts), "registers take more than 64 MiB");
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
    row("an archive",
        QByteArray::fromBase64(
            "UEsDBBQAAAAIAMySdV0Ohc8YcwAAAKsAAAAFAAAAYS5YTUxtjjEKwzAQBL8i9AHh/nJgHAIpnMKFehEvRuDozPlc"
            "5PcRyEmVbnaZhaUJS94NesX+1LxZluIiyiz6SC9cfPRulBlrS6NnGpJhEX27Vk0iVtvthmSHgnsKP6bwlZnupRL0"
            "XPV1EtN6gDsKDSicSqU/r/gDUEsBAhQDFAAAAAgAzJJ1XQ6FzxhzAAAAqwAAAAUAAAAAAAAAAAAAAIABAAAAAGEu"
            "WE1MUEsFBgAAAAABAAEAMwAAAJYAAAAAAA=="));
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
        opened(root("Negative Empty Huge Long Odd Sized Size User Chained")
               + text("Negative", "<Length>-5</Length>") + text("Empty", "<Length>0</Length>")
               + text("Long", "<Length>9</Length>").replace("StringReg", "IntReg")
               + text("Odd", "<Length>6</Length>").replace("StringReg", "FloatReg")
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
    for (const char *name : {"Negative", "Empty", "Huge", "Long", "Odd", "Chained"}) {
        QVERIFY2(!isReadable(name), name);
    }
    parameter("Size")->setValueFromString("8");
    QTRY_VERIFY(isReadable("Sized") && isReadable("User"));
    parameter("User")->setValueFromString("abc");
    QCOMPARE(parameter("User")->parameterData()->valueString, "abc");
    parameter("Size")->setValueFromString("4294967295");
    QTRY_VERIFY(!isReadable("Sized") && !isReadable("User"));
    QVERIFY_EXCEPTION_THROWN(parameter("User")->setValueFromString("abc"), std::exception);
    QVERIFY(isReadable("Size"));
}

void TestDescription::registersOfAllLengthsStayBounded()
{
    QByteArray nodes = root("Size S0 S1 S2 S3 S4 S5") + integerRegister("Size", "0x10");
    for (int i = 0; i < 6; ++i) {
        nodes += "<StringReg Name=\"S" + QByteArray::number(i)
            + "\"><Address>0x100</Address><pLength>Size</pLength><pPort>Device</pPort></StringReg>";
    }
    const auto camera = opened(nodes);
    const auto collection = camera->nodeMaps().first().collection;
    const auto readable = [&collection] {
        int count = 0;
        for (const char *name : {"S0", "S1", "S2", "S3", "S4", "S5"}) {
            count += collection->parameter(name)->parameterData()->isReadable ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(readable(), 6);
    collection->parameter("Size")->setValueFromString("0xffff00");
    QTRY_COMPARE(readable(), 4);
    QVERIFY(collection->parameter("Size")->parameterData()->isReadable);
}

void TestDescription::costlyFeaturesAreUnreadable_data()
{
    columns<QByteArray, int, bool>({"link", "levels", "isReadable"});
    const QByteArray twice = "<pVariable Name=\"A\">K%</pVariable><pVariable Name=\"B\">K%</pVariable>";
    row("formulas, 2^30", twice + "<Formula>A+B</Formula>", 30, false);
    row("formulas, 2^10", twice + "<Formula>A+B</Formula>", 10, true);
    row("formulas that divide, 2^30", twice + "<Formula>A/(B+1)</Formula>", 30, false);
    const QByteArray expression =
        "<Expression Name=\"E\">1" + QByteArray("+1").repeated(20000) + "</Expression>";
    row("a long text many times", expression + "<Formula>E" + QByteArray("+E").repeated(20000) + "</Formula>",
        1, false);
}

void TestDescription::costlyFeaturesAreUnreadable()
{
    QFETCH(QByteArray, link);
    QFETCH(int, levels);
    QFETCH(bool, isReadable);
    QByteArray nodes = root("K0 Limited Good") + "<Integer Name=\"Good\"><Value>7</Value></Integer>"
        + "<Integer Name=\"Limited\"><Value>7</Value><pMax>K0</pMax></Integer>";
    for (int i = 0; i < levels; ++i) {
        nodes += "<IntSwissKnife Name=\"K" + QByteArray::number(i) + "\">"
            + QByteArray(link).replace('%', QByteArray::number(i + 1)) + "</IntSwissKnife>";
    }
    nodes += "<Integer Name=\"K" + QByteArray::number(levels) + "\"><Value>1</Value></Integer>";
    LogCapture log;
    const auto collection = opened(nodes)->nodeMaps().first().collection;
    QCOMPARE(collection->parameter("K0")->parameterData()->isReadable, isReadable);
    QCOMPARE(collection->parameter("Limited")->parameterData()->isReadable, isReadable);
    QVERIFY(collection->parameter("Good")->parameterData()->isReadable);
    QCOMPARE(log.messages().filter("2 feature(s) of Model not read").isEmpty(), isReadable);
}

// The quotients that the processor refuses would end the program.
void TestDescription::formulasWithoutResultAreUnreadable_data()
{
    columns<QString, QString, QString>({"type", "formula", "value"});
    row("least / -1", "IntSwissKnife", "LEAST / ONE * 2", QString());
    row("least % -1", "IntSwissKnife", "LEAST%ONE", QString());
    row("least % -1 of floats", "SwissKnife", "LEAST % ONE", QString());
    row("in an expression", "IntSwissKnife", "E + 1", QString());
    row("integer / 0", "IntSwissKnife", "7 / ZERO", QString());
    row("integer % 0", "IntSwissKnife", "7 % ZERO", QString());
    row("float / 0", "SwissKnife", "7 / ZERO", QString());
    row("float % less than 1", "SwissKnife", "7 % 0.5", QString());
    row("no formula", "IntSwissKnife", "7 / (2", QString());
    row("no variable", "IntSwissKnife", "7 / UNKNOWN", QString());
    row("too large", "IntSwissKnife", "2 ** 70 / 2", QString());
    row("an integer", "IntSwissKnife", "-7 / 2 + 0x10 % 6", "1");
    row("all digits", "IntSwissKnife", "9007199254740993 * 3 / 3", "9007199254740993");
    row("a float", "SwissKnife", "1 / 4 + 1e-1", "0.35");
    row("operators", "IntSwissKnife", "(1 + 2 << 3 & 0xff | 1) / 1 = 25 && 7 <> 6 ? 2 ** 3 ** 2 : 0", "512");
    row("an unknown function", "SwissKnife", "HYPOT(3, 4)", QString());
    row("too large, no division", "IntSwissKnife", "2 ** 70", QString());
    row("no formula, no division", "IntSwissKnife", "7 + (2", QString());
    row("no variable, no division", "IntSwissKnife", "7 + UNKNOWN", QString());
    row("not a number", "SwissKnife", "SQRT(-1)", QString());
    row("functions", "SwissKnife", "ROUND(2.567, 1) + SQRT(4) + ABS(-3) * TRUNC(2.7) / 2 - FLOOR(PI)", "4.6");
}

void TestDescription::formulasWithoutResultAreUnreadable()
{
    QFETCH(QString, type);
    QFETCH(QString, formula);
    QFETCH(QString, value);
    const QByteArray tag = type.toUtf8();
    const QByteArray knife = "<" + tag + " Name=\"Knife\">"
        + "<pVariable Name=\"LEAST\">Least</pVariable><pVariable Name=\"ONE\">One</pVariable>"
          "<pVariable Name=\"ZERO\">Zero</pVariable><Expression Name=\"E\">LEAST / ONE</Expression><Formula>"
        + formula.toHtmlEscaped().toUtf8() + "</Formula></" + tag + ">";
    const auto camera = opened(root("Number One Knife Good") + knife
                               + "<Integer Name=\"Least\"><Value>-9223372036854775808</Value></Integer>"
                                 "<Integer Name=\"One\"><Value>-1</Value></Integer>"
                                 "<Integer Name=\"Zero\"><Value>0</Value></Integer>"
                                 "<Integer Name=\"Good\"><Value>7</Value></Integer>"
                                 "<Float Name=\"Number\"><pValue>Knife</pValue></Float>");
    const auto collection = camera->nodeMaps().first().collection;
    const auto knifeData = [&collection] { return collection->parameter("Knife")->parameterData(); };
    QCOMPARE(knifeData()->isReadable, !value.isNull());
    QCOMPARE(knifeData()->valueString, value);
    QVERIFY(!knifeData()->isWritable);
    QCOMPARE(collection->parameter("Good")->parameterData()->valueString, "7");
    if (formula.contains("ONE")) {
        collection->parameter("One")->setValueFromString("1");
        QTRY_VERIFY(knifeData()->isReadable);
        collection->parameter("One")->setValueFromString("-1");
        QTRY_VERIFY(!knifeData()->isReadable);
    }
}

void TestDescription::failedConversionWritesNothing()
{
    const auto camera = opened(
        root("Rate Whole Power Zero Register")
        + "<Converter Name=\"Rate\"><pVariable Name=\"Z\">Zero</pVariable><FormulaTo>1000 / FROM</FormulaTo>"
          "<FormulaFrom>1000 / TO</FormulaFrom><pValue>Register</pValue></Converter>"
          "<IntConverter Name=\"Whole\"><pVariable Name=\"Z\">Zero</pVariable><FormulaTo>FROM / Z</FormulaTo>"
          "<FormulaFrom>TO * 2</FormulaFrom><pValue>Register</pValue></IntConverter>"
          "<IntConverter Name=\"Power\"><FormulaTo>2 ** FROM</FormulaTo><FormulaFrom>TO</FormulaFrom>"
          "<pValue>Register</pValue></IntConverter>"
        + integerRegister("Zero", "0x10") + integerRegister("Register", "0x14"));
    const auto collection = camera->nodeMaps().first().collection;
    const auto text = [&collection](const char *name) {
        return collection->parameter(name)->parameterData()->valueString;
    };
    QVERIFY(!collection->parameter("Rate")->parameterData()->isReadable);
    collection->parameter("Register")->setValueFromString("8");
    QTRY_COMPARE(text("Rate"), "125");
    QVERIFY_EXCEPTION_THROWN(collection->parameter("Rate")->setValueFromString("0"), std::exception);
    QVERIFY_EXCEPTION_THROWN(collection->parameter("Whole")->setValueFromString("6"), std::exception);
    QVERIFY_EXCEPTION_THROWN(collection->parameter("Power")->setValueFromString("70"), std::exception);
    QCOMPARE(text("Register"), "8");
    collection->parameter("Rate")->setValueFromString("250");
    QCOMPARE(text("Rate"), "250");
    QTRY_COMPARE(text("Register"), "4");
    collection->parameter("Zero")->setValueFromString("2");
    collection->parameter("Whole")->setValueFromString("6");
    QTRY_COMPARE(text("Register"), "3");
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

void TestDescription::engineSeesWhatItNeeds_data()
{
    columns<QByteArray, QByteArray>({"xml", "expected"});
    const auto needs = [](const char *name, const QByteArray &xml, const QByteArray &expected) {
        row(name, xml, expected);
    };
    const auto same = [](const char *name, const QByteArray &xml) { row(name, xml, xml); };
    needs("blanks between tags", " <a>\r\n\t<b/> <c></c>\n</a>\n", " <a><b/><c></c></a>\n");
    needs("a bracket in quotes", "<a b='\">' c=\"'> \">  <d/></a>", "<a b='\">' c=\"'> \"><d/></a>");
    needs("unused", "<a>\n<ToolTip>  x > y\n</ToolTip>\n<b>1</b> <pInvalidator>c</pInvalidator></a>",
          "<a><b>1</b></a>");
    same("blanks are the value", "<a><Value>  </Value></a>");
    same("blanks beside text", "<a> x <b/> y </a>");
    same("a comment", "<a> <!-- > <b>  <c> --> <d/></a>");
    same("verbatim", "<a><![CDATA[ <b>  <c> ]]> </a>");
    same("unused ones that hold more", "<a><Description><![CDATA[</Description>]]></Description></a>");
    same("broken off", "<a><b x='>");
    same("another encoding", "<a> \x1b <b/></a>");
}

void TestDescription::engineSeesWhatItNeeds()
{
    QFETCH(const QByteArray, xml);
    QTEST(engineXml(xml), "expected");
}

QTEST_GUILESS_MAIN(TestDescription)
#include "tst_description.moc"
