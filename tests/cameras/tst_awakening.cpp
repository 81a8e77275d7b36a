// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "descriptiontext.h"

#include <cameras/camera.h>

#include <platform/core/exception.h>
#include <platform/parametercollection/iparameter.h>
#include <support/table.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace ParameterCollection;
using namespace Cameras;

namespace {

QByteArray bits(const QByteArray &name, const QByteArray &address, const QByteArray &place,
                const QByteArray &endianess = "BigEndian")
{
    return "<MaskedIntReg Name=\"" + name + "\"><Address>" + address
        + "</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>" + place
        + "<Sign>Unsigned</Sign><Endianess>" + endianess + "</Endianess></MaskedIntReg>";
}

QByteArray bit(const QByteArray &name, const QByteArray &address, int number)
{
    return bits(name, address, "<Bit>" + QByteArray::number(number) + "</Bit>");
}

// Of what it depends on, each variable is called as its node.
QByteArray formula(const QByteArray &name, const QByteArray &variables, const QString &text)
{
    QByteArray knife = "<IntSwissKnife Name=\"" + name + "\">";
    for (const QByteArray &variable : variables.split(' ')) {
        knife += "<pVariable Name=\"" + variable + "\">" + variable + "</pVariable>";
    }
    return knife + "<Formula>" + text.toHtmlEscaped().toUtf8() + "</Formula></IntSwissKnife>";
}

QByteArray integer(const QByteArray &name, const QByteArray &elements)
{
    return "<Integer Name=\"" + name + "\">" + elements + "</Integer>";
}

QByteArray entry(const QByteArray &name, int value, const QByteArray &more = {})
{
    return "<EnumEntry Name=\"" + name + "\">" + more + "<Value>" + QByteArray::number(value)
        + "</Value></EnumEntry>";
}

} // namespace

/*! \brief What descriptions look like when they are opened on registers that nobody has set. */
class TestAwakening : public QObject
{
    Q_OBJECT

private slots:
    void conditionsAreFulfilled_data();
    void conditionsAreFulfilled();
    void theFirstInTheTreeWins();
    void enumerationsStartAtTheirFirstEntry_data();
    void enumerationsStartAtTheirFirstEntry();
    void enumerationsOfFormulasHaveAnEntry();
    void numbersHaveRoom_data();
    void numbersHaveRoom();
    void imagesFitTheirSensor();
    void zeroedStaysZeroed();
    void hostileDescriptionsOpenInTime_data();
    void hostileDescriptionsOpenInTime();
    void registersAreSavedAndLoaded();
    void brokenImagesAreRefused_data();
    void brokenImagesAreRefused();

private:
    QString saved(const QString &name, const QByteArray &contents);
    std::unique_ptr<Camera> opened(const QByteArray &nodes, Start start = Start::Alive,
                                   const QString &registers = {});
    static ParameterDataPtr data(const Camera &camera, const QString &name);
    static QString text(const Camera &camera, const QString &name) { return data(camera, name)->valueString; }

    QTemporaryDir m_directory;
};

QString TestAwakening::saved(const QString &name, const QByteArray &contents)
{
    QFile file(m_directory.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(contents);
    return file.fileName();
}

std::unique_ptr<Camera> TestAwakening::opened(const QByteArray &nodes, Start start, const QString &registers)
{
    return Camera::openDescription(saved("camera.xml", description(nodes)), start, registers);
}

ParameterDataPtr TestAwakening::data(const Camera &camera, const QString &name)
{
    return camera.nodeMaps().at(0).collection->parameter(name)->parameterData();
}

void TestAwakening::conditionsAreFulfilled_data()
{
    columns<QByteArray, QByteArray>({"condition", "nodes"});
    const QByteArray implemented = "<pIsImplemented>C</pIsImplemented>";
    const QByteArray available = "<pIsAvailable>C</pIsAvailable>";
    const QByteArray locked = "<pIsLocked>C</pIsLocked>";
    const QByteArray one = integerRegister("R", "0x10");
    const QByteArray more = one + integerRegister("S", "0x14") + integerRegister("T", "0x18");
    row("a bit", implemented, bit("C", "0x10", 31));
    row("a bit, little endian", available, bits("C", "0x10", "<Bit>9</Bit>", "LittleEndian"));
    row("a field", available, bits("C", "0x10", "<LSB>12</LSB><MSB>5</MSB>"));
    row("an entry of a structure", implemented,
        QByteArray("<StructReg><Address>0x10</Address><Length>4</Length><AccessMode>RO</AccessMode>"
                   "<pPort>Device</pPort><Endianess>BigEndian</Endianess><StructEntry Name=\"C\"><Bit>3</Bit>"
                   "</StructEntry></StructReg>"));
    row("an integer", implemented, integer("C", "<pValue>R</pValue>") + one);
    row("a Boolean", available,
        "<Boolean Name=\"C\"><pValue>R</pValue><OnValue>6</OnValue><OffValue>5</OffValue></Boolean>" + one);
    row("a value without a register", implemented, integer("C", "<Value>0</Value>"));
    row("unlocked by a register", locked, formula("C", "R", "R = 0") + one);
    row("a version", implemented, formula("C", "R", "R >= 0x01020304") + one);
    row("a bit in a formula", available, formula("C", "R", "(R >> 17) & 1") + one);
    row("two that go together", available, formula("C", "R S", "(R = 17) && (S = 4)") + more);
    row("three that go together", implemented, formula("C", "R S T", "R && S && T") + more);
    row("one and not the other", available,
        formula("C", "R S", "(R = 3) && (S <> 0) && (S <> 1) ? 1 : 0") + more);
    row("formulas of formulas", implemented,
        formula("C", "D E", "D && E") + formula("D", "R", "R > 5") + formula("E", "R", "R < 8") + one);
    row("an enumeration", available,
        formula("C", "Mode", "Mode = 2") + "<Enumeration Name=\"Mode\">" + entry("Off", 0) + entry("Timed", 2)
            + entry("Width", 1) + "<pValue>R</pValue></Enumeration>" + one);
    row("a register that is selected", available,
        "<IntReg Name=\"C\"><Address>0x40</Address><pIndex Offset=\"4\">R</pIndex><Length>4</Length>"
        "<AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian"
        "</Endianess></IntReg>"
            + one);
    row("cached", implemented,
        QByteArray("<IntReg Name=\"C\"><Address>0x40</Address><Length>2</Length><AccessMode>RO</AccessMode>"
                   "<pPort>Device</pPort><Cachable>WriteAround</Cachable><Sign>Unsigned</"
                   "Sign><Endianess>LittleEndian"
                   "</Endianess></IntReg>"));
}

void TestAwakening::conditionsAreFulfilled()
{
    QFETCH(QByteArray, condition);
    QFETCH(QByteArray, nodes);
    const auto camera = opened(root("Feature") + integer("Feature", condition + "<pValue>Value</pValue>")
                               + integerRegister("Value", "0x20") + nodes);
    QVERIFY(data(*camera, "Feature")->isReadable);
    QVERIFY(data(*camera, "Feature")->isWritable);
    const auto parameter = camera->nodeMaps().at(0).collection->parameter("Feature");
    parameter->setValueFromString("7");
    QCOMPARE(text(*camera, "Feature"), "7");
}

void TestAwakening::theFirstInTheTreeWins()
{
    const auto camera =
        opened(root("A B C D E") + integer("A", "<pIsAvailable>IsOne</pIsAvailable><Value>1</Value>")
               + integer("B", "<pIsAvailable>IsTwo</pIsAvailable><Value>1</Value>")
               + integer("C", "<pIsLocked>Shared</pIsLocked><Value>1</Value>")
               + integer("D", "<pIsImplemented>Shared</pIsImplemented><Value>1</Value>")
               + integer("E", "<pIsImplemented>Beside</pIsImplemented><Value>1</Value>")
               + formula("IsOne", "Mode", "Mode = 1") + formula("IsTwo", "Mode", "Mode = 2")
               + integerRegister("Mode", "0x10") + bit("Shared", "0x20", 7) + bit("Beside", "0x20", 6));
    QVERIFY(data(*camera, "A")->isReadable);
    QVERIFY(!data(*camera, "B")->isReadable);
    QVERIFY(data(*camera, "C")->isWritable);
    QVERIFY(!data(*camera, "D")->isImplemented);
    QVERIFY(data(*camera, "E")->isReadable);
}

void TestAwakening::enumerationsStartAtTheirFirstEntry_data()
{
    columns<QByteArray, QByteArray, QString>({"entries", "nodes", "value"});
    row("values without 0", entry("One", 5) + entry("Two", 9), QByteArray(), "One");
    row("0 is not the first", entry("One", 1) + entry("Two", 0), QByteArray(), "One");
    row("entries become available",
        entry("One", 1, "<pIsAvailable>C</pIsAvailable>")
            + entry("Two", 2, "<pIsImplemented>D</pIsImplemented>"),
        bit("C", "0x40", 1) + bit("D", "0x40", 2), "One");
    row("the first is never available", entry("One", 1, "<pIsAvailable>C</pIsAvailable>") + entry("Two", 2),
        formula("C", "Register", "Register > 0xffffffff"), "Two");
}

void TestAwakening::enumerationsStartAtTheirFirstEntry()
{
    QFETCH(QByteArray, entries);
    QFETCH(QByteArray, nodes);
    QFETCH(QString, value);
    const auto camera =
        opened(root("Mode") + "<Enumeration Name=\"Mode\">" + entries
               + "<pValue>Register</pValue></Enumeration>" + integerRegister("Register", "0x10") + nodes);
    QCOMPARE(text(*camera, "Mode"), value);
    const auto entriesNow = data(*camera, "Mode").dynamicCast<const EnumParameterData>()->symbolicNames;
    QCOMPARE(entriesNow.contains("One"), value == "One");
    QVERIFY(entriesNow.contains("Two"));
}

void TestAwakening::enumerationsOfFormulasHaveAnEntry()
{
    const auto camera = opened(root("Mode") + "<Enumeration Name=\"Mode\">" + entry("One", 5)
                               + entry("Two", 9) + "<pValue>Knife</pValue></Enumeration>"
                               + formula("Knife", "R", "R + 2") + integerRegister("R", "0x10"));
    QVERIFY(QStringList({"One", "Two"}).contains(text(*camera, "Mode")));
}

void TestAwakening::numbersHaveRoom_data()
{
    columns<QByteArray, QByteArray>({"feature", "nodes"});
    const QByteArray value = integerRegister("Value", "0x10");
    const QByteArray limits =
        integerRegister("Max", "0x14") + integerRegister("Min", "0x18") + integerRegister("Inc", "0x1c");
    const auto converter = [](const QByteArray &to, const QByteArray &from) {
        return "<Converter Name=\"Converter\"><pVariable Name=\"CLOCK\">Max</pVariable><FormulaTo>" + to
            + "</FormulaTo><FormulaFrom>" + from + "</FormulaFrom><pValue>Value</pValue></Converter>";
    };
    const auto real = [](const QByteArray &name, const QByteArray &address) {
        return "<FloatReg Name=\"" + name + "\"><Address>" + address
            + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
              "<Endianess>BigEndian</Endianess></FloatReg>";
    };
    row("a register", integer("Number", "<pValue>Value</pValue><pMax>Max</pMax>"), value + limits);
    row("all of them",
        integer("Number", "<pValue>Value</pValue><pMin>Min</pMin><pMax>Max</pMax><pInc>Inc</pInc>"),
        value + limits);
    row("above a least value", integer("Number", "<pValue>Value</pValue><Min>70000</Min><pMax>Max</pMax>"),
        value + limits);
    row("in steps", integer("Number", "<pValue>Value</pValue><Min>3</Min><pMax>Max</pMax><Inc>8</Inc>"),
        value + limits);
    row("a formula", integer("Number", "<pValue>Value</pValue><pMax>Limit</pMax>"),
        value + limits + formula("Limit", "Max Inc", "Max / Inc - 16"));
    row("eight bits", integer("Number", "<pValue>Value</pValue><pMax>Limit</pMax>"),
        value + bits("Limit", "0x30", "<LSB>31</LSB><MSB>24</MSB>"));
    row("a float",
        QByteArray("<Float Name=\"Number\"><pValue>Value</pValue><pMin>Min</pMin><pMax>Max</pMax></Float>"),
        real("Value", "0x10") + real("Min", "0x14") + real("Max", "0x18"));
    row("a float above 10",
        QByteArray("<Float Name=\"Number\"><pValue>Value</pValue><Min>10</Min><Max>90</Max></Float>"),
        real("Value", "0x10"));
    row("a converter", QByteArray("<Float Name=\"Number\"><pValue>Converter</pValue></Float>"),
        value + limits + converter("FROM * CLOCK", "TO / CLOCK"));
    row("a reciprocal",
        QByteArray("<Float Name=\"Number\"><pValue>Converter</pValue><Min>1</Min><Max>500</Max></Float>"),
        value + limits + converter("1000000 / FROM", "1000000 / TO"));
}

void TestAwakening::numbersHaveRoom()
{
    QFETCH(QByteArray, feature);
    QFETCH(QByteArray, nodes);
    const auto camera = opened(root("Number") + feature + nodes);
    const auto parameter = camera->nodeMaps().at(0).collection->parameter("Number");
    const ParameterDataPtr number = parameter->parameterData();
    QVERIFY(number->isReadable && number->isWritable);
    double value = 0.0;
    double other = 0.0;
    if (const auto integer = number.dynamicCast<const IntegerParameterData>()) {
        QVERIFY(integer->minimum <= integer->value && integer->value <= integer->maximum);
        QCOMPARE((integer->value - integer->minimum) % integer->increment, 0);
        value = double(integer->value);
        other = value + double(integer->value < integer->maximum ? integer->increment : -integer->increment);
    } else {
        const auto real = number.dynamicCast<const FloatParameterData>();
        QVERIFY(real->minimum <= real->value && real->value <= real->maximum);
        value = real->value;
        other = real->value < real->maximum ? qMin(real->value + 1.0, real->maximum) : real->minimum;
    }
    QVERIFY(value != other);
    parameter->setValueFromString(QString::number(other, 'g', 17));
    QVERIFY(qAbs(parameter->parameterData()->valueString.toDouble() - other) < 0.5);
}

void TestAwakening::imagesFitTheirSensor()
{
    const auto camera =
        opened(root("OffsetX Width WidthMax SensorWidth Binning")
               + integer("Width", "<pValue>WidthReg</pValue><Min>16</Min><pMax>WidthMax</pMax><Inc>16</Inc>")
               + integer("OffsetX", "<pValue>OffsetReg</pValue><pMax>OffsetMax</pMax>")
               + integer("Binning", "<pValue>BinningReg</pValue><Min>1</Min><Max>4</Max>")
               + integer("SensorWidth", "<pValue>SensorReg</pValue>")
               + formula("WidthMax", "SensorWidth Binning", "SensorWidth / Binning")
               + formula("OffsetMax", "WidthMax Width", "WidthMax - Width")
               + integerRegister("WidthReg", "0x10") + integerRegister("OffsetReg", "0x14")
               + integerRegister("SensorReg", "0x18") + integerRegister("BinningReg", "0x1c"));
    const int sensor = text(*camera, "SensorWidth").toInt();
    const int most = text(*camera, "WidthMax").toInt();
    const int width = text(*camera, "Width").toInt();
    QVERIFY2(sensor >= 640 && most <= sensor && width < most && width >= 16,
             qPrintable(QString("%1 %2 %3").arg(sensor).arg(most).arg(width)));
    QCOMPARE(width % 16, 0);
    const auto collection = camera->nodeMaps().at(0).collection;
    collection->parameter("OffsetX")->setValueFromString("1");
    QCOMPARE(text(*camera, "OffsetX"), "1");
}

void TestAwakening::zeroedStaysZeroed()
{
    const auto camera = opened(
        root("Feature Mode Number") + integer("Feature", "<pIsImplemented>C</pIsImplemented><Value>1</Value>")
            + "<Enumeration Name=\"Mode\">" + entry("One", 1) + "<pValue>Register</pValue></Enumeration>"
            + integer("Number", "<pValue>Register</pValue><pMax>C</pMax>") + bit("C", "0x40", 0)
            + integerRegister("Register", "0x10"),
        Start::Zeroed);
    QVERIFY(!data(*camera, "Feature")->isImplemented);
    QVERIFY(!data(*camera, "Mode")->isReadable);
    QCOMPARE(text(*camera, "Number"), "0");
}

void TestAwakening::hostileDescriptionsOpenInTime_data()
{
    columns<QByteArray>({"nodes"});
    QByteArray features;
    QByteArray variables;
    QByteArray registers;
    QString never = "0";
    for (int i = 0; i < 60; ++i) {
        const QByteArray number = QByteArray::number(i);
        registers += integerRegister("R" + number, QByteArray::number(0x100 + 4 * i));
        variables += (i > 0 ? " R" : "R") + number;
        never += " || (R" + number + " > 0xffffffff)";
    }
    QByteArray nodes;
    for (int i = 0; i < 200; ++i) {
        const QByteArray number = QByteArray::number(i);
        features += (i > 0 ? " F" : "F") + number;
        nodes += integer("F" + number, "<pIsAvailable>C" + number + "</pIsAvailable><Value>1</Value>")
            + formula("C" + number, variables, never);
    }
    row("what can never be", root(features) + nodes + registers);
    QByteArray twice = formula("C0", "R0", "R0 > 0xffffffff");
    for (int i = 1; i < 16; ++i) {
        const QByteArray before = "C" + QByteArray::number(i - 1);
        twice += "<IntSwissKnife Name=\"C" + QByteArray::number(i) + "\"><pVariable Name=\"A\">" + before
            + "</pVariable><pVariable Name=\"B\">" + before
            + "</pVariable><Formula>A + B</Formula></IntSwissKnife>";
    }
    row("a long way to what can never be",
        root(features) + nodes.replace("C199<", "C15<") + registers + twice);
    row("a circle",
        root("A B") + integer("A", "<pIsAvailable>B</pIsAvailable><pValue>C</pValue>")
            + integer("B", "<pIsLocked>A</pIsLocked><pValue>C</pValue>") + formula("C", "D", "D")
            + formula("D", "C", "C"));
    row("no registers at all",
        root("A") + integer("A", "<pIsAvailable>None</pIsAvailable><pMax>None</pMax>"));
}

void TestAwakening::hostileDescriptionsOpenInTime()
{
    QFETCH(QByteArray, nodes);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(opened(nodes));
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

void TestAwakening::registersAreSavedAndLoaded()
{
    const QByteArray nodes = root("Number Mode Text Hidden")
        + integer("Number", "<pIsImplemented>Bit</pIsImplemented><pValue>R</pValue><pMax>Max</pMax>")
        + integer("Hidden", "<pIsAvailable>Other</pIsAvailable><pValue>R</pValue>")
        + "<Enumeration Name=\"Mode\">" + entry("One", 0) + entry("Two", 7)
        + "<pValue>M</pValue></Enumeration>"
        + "<StringReg Name=\"Text\"><Address>0x80</Address><Length>40</Length><AccessMode>RW</AccessMode>"
          "<pPort>Device</pPort></StringReg>"
        + integerRegister("R", "0x10") + integerRegister("Max", "0x14") + integerRegister("M", "0x200000000")
        + bit("Bit", "0x30", 5) + formula("Other", "O", "O > 0xffffffff") + integerRegister("O", "0x34");
    QByteArray image;
    {
        const auto camera = opened(nodes);
        const auto collection = camera->nodeMaps().at(0).collection;
        collection->parameter("Number")->setValueFromString("1234");
        collection->parameter("Mode")->setValueFromString("Two");
        collection->parameter("Text")->setValueFromString("a text of more than one line");
        image = camera->registerImage();
    }
    QVERIFY2(image.contains("0x00000010 00 00 04 d2"), image);
    const auto camera = opened(nodes, Start::Zeroed, saved("image", image));
    QCOMPARE(text(*camera, "Number"), "1234");
    QCOMPARE(text(*camera, "Mode"), "Two");
    QCOMPARE(text(*camera, "Text"), "a text of more than one line");
    QVERIFY(!data(*camera, "Hidden")->isReadable);
    const auto other = opened(nodes, Start::Alive, saved("image", "# one\n\n0x12 0005 # a number\n"));
    QCOMPARE(text(*other, "Number"), "5");
}

void TestAwakening::brokenImagesAreRefused_data()
{
    columns<QByteArray, QString>({"image", "reason"});
    row("words", QByteArray("0x10 00\nfirst second\n"), "line 2:");
    row("half a byte", QByteArray("0x10 0\n"), "line 1:");
    row("no bytes", QByteArray("# none\n0x10\n"), "line 2:");
    row("beyond the last address", QByteArray("0xffffffffffffffff 00 01\n"), "line 1:");
    row("binary", QByteArray("\0\1\2\3\n", 5), "line 1:");
    QByteArray far;
    for (int i = 0; i < 80000; ++i) {
        far += "0x" + QByteArray::number(i, 16) + "00000 00\n";
    }
    row("spread", far, "64 MiB");
}

void TestAwakening::brokenImagesAreRefused()
{
    QFETCH(QByteArray, image);
    QFETCH(QString, reason);
    const QString fileName = saved("image", image);
    try {
        opened(root("A") + integer("A", "<Value>1</Value>"), Start::Zeroed, fileName);
        QFAIL("opened");
    } catch (const Core::Exception::BaseException &exception) {
        QVERIFY2(exception.getMessage().contains(fileName) && exception.getMessage().contains(reason),
                 qPrintable(exception.getMessage()));
    }
}

QTEST_GUILESS_MAIN(TestAwakening)
#include "tst_awakening.moc"
