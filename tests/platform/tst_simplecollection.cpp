// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/logcapture.h>
#include <support/table.h>

#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/simplecollection.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>
#include <stdexcept>

using namespace ParameterCollection;

class TestSimpleCollection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writes_data();
    void writes();
    void writeReachesTheDevice();
    void readFollowsTheDevice();
    void commandShowsThatItRuns();
    void selectors();
    void imposedLimits();
    void changesFromAnotherThread();
    void misuseIsToldAtOnce();
    void handlesDoNotKeepTheirFeature();

private:
    QSharedPointer<IParameter> parameter(const QString &name) const { return m_lamp->parameter(name); }
    QString shown(const QString &name) const { return parameter(name)->parameterData()->valueString; }

    QSharedPointer<SimpleCollection> m_lamp;
    std::unique_ptr<SimpleCategory> m_light;
};

void TestSimpleCollection::init()
{
    m_lamp = QSharedPointer<SimpleCollection>::create("@Lamp");
    m_light = std::make_unique<SimpleCategory>(m_lamp->addCategory("Light"));
    m_light->addInteger("Pulse", 500).setRange(10, 1000).setIncrement(10);
    m_light->addInteger("Address", 0xc0a80001).setRepresentation("IPV4Address");
    m_light->addInteger("Any");
    m_light->addFloat("Power", 0.1).setRange(0.0, 1.0).setIncrement(0.1);
    m_light->addFloat("Offset");
    m_light->addBoolean("On");
    m_light->addEnumeration("Colour", {"White", "Red"});
    m_light->addString("Label", "left");
    m_light->addString("Serial", "17").setAccess(GenApi::RO);
}

void TestSimpleCollection::writes_data()
{
    columns<QString, QString, QString, QString>({"feature", "text", "value", "refusal"});
    row("integer", "Pulse", "510", "510", "");
    row("hexadecimal", "Pulse", "0x1f4", "500", "");
    row("no octal number", "Pulse", "0100", "100", "");
    row("no number", "Pulse", "5x", "500", "Pulse: \"5x\" is not allowed, expected an integer");
    row("out of range", "Pulse", "1001", "500", "Pulse: \"1001\" is out of range, allowed are 10 to 1000");
    row("off the grid", "Pulse", "15", "500",
        "Pulse: \"15\" is not allowed, expected 10 plus a multiple of 10");
    row("address", "Address", "192.168.0.2", "192.168.0.2", "");
    row("all of 64 bits", "Any", "-9223372036854775808", "-9223372036854775808", "");
    row("decimal increments", "Power", "0.7", "0.7", "");
    row("float off the grid", "Power", "0.75", "0.75", "");
    row("all digits", "Offset", "0.30000000000000004", "0.30000000000000004", "");
    row("not finite", "Offset", "nan", "0", "Offset: \"nan\" is not allowed, expected a number");
    row("boolean", "On", "1", "true", "");
    row("entry", "Colour", "Red", "Red", "");
    row("no entry", "Colour", "red", "White", "Colour: \"red\" is not allowed, expected White, Red");
    row("text", "Label", " ä ", " ä ", "");
    row("locked", "Serial", "18", "17", "Serial cannot be written now");
}

void TestSimpleCollection::writes()
{
    QFETCH(QString, feature);
    QFETCH(QString, text);
    const auto written = parameter(feature);
    QSignalSpy changes(written.data(), &IParameter::parameterDataChangedDecoupled);
    const auto before = written->parameterData();
    QString refusal;
    try {
        written->setValueFromString(text);
    } catch (const GenICam::GenericException &exception) {
        refusal = QString::fromUtf8(exception.what());
    }
    QTEST(refusal, "refusal");
    QTEST(shown(feature), "value");
    QVERIFY(changes.isEmpty()); // never from inside the call
    QCoreApplication::processEvents();
    QCOMPARE(changes.size(), refusal.isEmpty() ? 1 : 0);
    QCOMPARE(written->parameterData() == before, !refusal.isEmpty());
}

void TestSimpleCollection::writeReachesTheDevice()
{
    QStringList device;
    const auto gain = m_light->addFloat("Gain").onWrite([&device](double value) {
        if (value > 5.0) {
            throw std::runtime_error("too hot");
        }
        device.append(QString::number(value));
    });
    gain.setValue(2.0); // the device's own doing
    parameter("Gain")->setValueFromString("4.5");
    QVERIFY_EXCEPTION_THROWN(parameter("Gain")->setValueFromString("6"), std::runtime_error);
    qSharedPointerObjectCast<IFloatParameter>(parameter("Gain"))->setValue(3.0);
    QCOMPARE(device, (QStringList{"4.5", "3"}));
    QCOMPARE(gain.value(), 3.0);
}

void TestSimpleCollection::readFollowsTheDevice()
{
    LogCapture log;
    double device = 20.5;
    bool isBroken = false;
    const auto temperature = m_light->addFloat("Temperature").setPollingTime(1000).onRead([&] {
        return isBroken ? throw std::runtime_error("no sensor") : device;
    });
    QCOMPARE(temperature.value(), 20.5);
    device = 21.0;
    m_lamp->poll(600);
    QCOMPARE(temperature.value(), 20.5);
    m_lamp->poll(600);
    QCOMPARE(temperature.value(), 21.0);
    isBroken = true;
    m_lamp->refresh();
    m_lamp->refresh();
    QVERIFY(!parameter("Temperature")->parameterData()->isReadable);
    QCOMPARE(log.messages(),
             (QStringList{"@Lamp/Temperature could not be read", "SimpleCollection::read: no sensor"}));
    isBroken = false;
    parameter("Temperature")->scheduleParameterDataChangedCheck(true);
    QCoreApplication::processEvents();
    QVERIFY(parameter("Temperature")->parameterData()->isReadable);
    QCOMPARE(shown("Temperature"), "21");
}

void TestSimpleCollection::commandShowsThatItRuns()
{
    const auto flash = m_light->addCommand("Flash");
    flash.onExecute([flash] { flash.setDone(false); });
    const auto isDone = [this] {
        return parameter("Flash")->parameterData().staticCast<const CommandParameterData>()->isDone;
    };
    qSharedPointerObjectCast<ICommandParameter>(parameter("Flash"))->execute(true);
    QVERIFY(!isDone());
    flash.setDone(true);
    QVERIFY(isDone());
    flash.setAccess(GenApi::NA);
    const auto command = qSharedPointerObjectCast<ICommandParameter>(parameter("Flash"));
    QVERIFY_EXCEPTION_THROWN(command->execute(true), GenICam::AccessException);
}

void TestSimpleCollection::selectors()
{
    const auto colour = m_light->addEnumeration("Channel", {"Left", "Right"}).select({"Colour", "Power"});
    QCOMPARE(parameter("Channel")->propertyAccess()->property("pSelected"), "Colour\tPower");
    parameter("Power")->setValueFromString("0.5");
    parameter("Channel")->setValueFromString("Right");
    QCOMPARE(shown("Power"), "0.1");
    parameter("Power")->setValueFromString("0.9");
    colour.setValue("Left");
    QCOMPARE(shown("Power"), "0.5");
    colour.setValue("Right");
    QCOMPARE(shown("Power"), "0.9");
}

void TestSimpleCollection::imposedLimits()
{
    const auto pulse = parameter("Pulse");
    pulse->propertyAccess()->setProperty("Visibility", "Guru");
    pulse->propertyAccess()->setProperty("AccessMode", "RO");
    QCOMPARE(pulse->parameterData()->visibility, GenApi::Guru);
    QVERIFY(!pulse->isWritableNow() && pulse->parameterData()->isReadable);
    QCOMPARE(pulse->nodeAccessMode(), GenApi::RW);
    pulse->setValueFromString("20");
    QVERIFY_EXCEPTION_THROWN(pulse->propertyAccess()->setProperty("Unit", "s"),
                             GenICam::InvalidArgumentException);
}

void TestSimpleCollection::changesFromAnotherThread()
{
    const auto count = m_light->addInteger("Count");
    QSignalSpy changes(count.parameter().data(), &IParameter::parameterDataChangedDecoupled);
    const std::unique_ptr<QThread> thread(QThread::create([count] {
        for (int i = 1; i <= 100; ++i) {
            count.setValue(i);
        }
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(count.value(), 0);
    QTRY_COMPARE(changes.size(), 100);
    QCOMPARE(count.value(), 100);

    bool isRefused = false;
    const std::unique_ptr<QThread> wrong(QThread::create([count, &isRefused] {
        try {
            count.setRange(0, 1);
        } catch (const GenICam::LogicalErrorException &) {
            isRefused = true;
        }
    }));
    wrong->start();
    QVERIFY(wrong->wait());
    QVERIFY(isRefused);
}

void TestSimpleCollection::misuseIsToldAtOnce()
{
    QVERIFY_EXCEPTION_THROWN(m_light->addBoolean("On"), GenICam::InvalidArgumentException);
    QVERIFY_EXCEPTION_THROWN(m_light->addBoolean("a/b"), GenICam::InvalidArgumentException);
    const auto colour = m_light->addEnumeration("Mode", {"A"});
    QVERIFY_EXCEPTION_THROWN(colour.select({"Nothing"}), GenICam::InvalidArgumentException);
    LogCapture log;
    m_light->addInteger("Level").setRange(0, 10).setValue(11);
    QCOMPARE(log.messages().value(0), "@Lamp/Level shows a value that it could not be given");
}

void TestSimpleCollection::handlesDoNotKeepTheirFeature()
{
    const auto pulse = m_light->addInteger("Late");
    int reads = 0;
    pulse.onRead([this, &reads] {
        m_light->addBoolean(QStringLiteral("Read%1").arg(++reads)); // also while all are refreshed
        return reads;
    });
    m_lamp->refresh();
    QCOMPARE(pulse.value(), 2);

    const QSharedPointer<IParameter> kept = pulse.parameter();
    m_lamp.reset();
    QCOMPARE(pulse.setRange(0, 10).value(), 2);
    QVERIFY_EXCEPTION_THROWN(pulse.select({"On"}), GenICam::LogicalErrorException);
    QVERIFY_EXCEPTION_THROWN(m_light->addInteger("More"), GenICam::LogicalErrorException);
    QVERIFY_EXCEPTION_THROWN(m_light->name(), GenICam::LogicalErrorException);
    QVERIFY(!m_light->parameter());
}

QTEST_GUILESS_MAIN(TestSimpleCollection)
#include "tst_simplecollection.moc"
