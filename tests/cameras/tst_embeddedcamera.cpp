// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/camera.h>
#include <cameras/camerafactory_p.h>
#include <cameras/portdevice_p.h>
#include <cameras/session_p.h>
#include <cameras/simulatedregisters_p.h>

#include <platform/genicam/genericexception.h>
#include <platform/parametercollection/iparameter.h>

#include <support/table.h>

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTextStream>

#include <atomic>
#include <utility>

using namespace ParameterCollection;
using namespace Cameras;

namespace {

const char *const changed =
    SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>));

/*! \brief Serves registers and counts the reads of one of them. */
class WatchedPort : public DevicePort
{
public:
    explicit WatchedPort(std::shared_ptr<SimulatedRegisters> registers)
        : m_registers(std::move(registers))
    {
    }

    bool read(quint64 address, quint32 size, void *buffer, GError **) override
    {
        reads += address == watched ? 1 : 0;
        return m_registers->read(address, size, buffer);
    }

    bool write(quint64 address, quint32 size, const void *buffer, GError **) override
    {
        return m_registers->write(address, size, buffer);
    }

    static inline std::atomic<quint64> watched{0};
    static inline std::atomic_int reads{0};

private:
    std::shared_ptr<SimulatedRegisters> m_registers;
};

QByteArray resource(const char *name)
{
    QFile file(QStringLiteral(":/cameras/Resources/") + QLatin1String(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/* The first node map of the embedded camera, with its registers in the test's hands. */
struct Inside
{
    Inside()
        : registers(std::make_shared<SimulatedRegisters>())
        , description(std::make_shared<Description>(resource("cameradevice.xml")))
        , session(std::make_shared<Session>())
    {
        registers->load(resource("cameradevice.registers"));
        session->start([this](Session &) {
            Session::Source source;
            source.info = Camera::openEmbedded()->info();
            source.maps.push_back(
                {"@CameraDevice", "Camera",
                 newPortDevice(resource("cameradevice.xml"), std::make_unique<WatchedPort>(registers)),
                 description, registers});
            return source;
        });
    }

    // Returns 0 for what is no register.
    quint64 addressOf(const char *node) const
    {
        const QByteArray xml = resource("cameradevice.xml");
        const auto start = xml.indexOf("Reg Name=\"" + QByteArray(node) + '"');
        const auto address = start < 0 ? -1 : xml.indexOf("<Address>", start) + 9;
        return address < 0 ? 0
                           : xml.mid(address, xml.indexOf('<', address) - address).toULongLong(nullptr, 0);
    }

    std::shared_ptr<SimulatedRegisters> registers;
    std::shared_ptr<const Description> description;
    std::shared_ptr<Session> session;
};

QString failureOf(IParameter &parameter, const QString &text)
{
    try {
        parameter.setValueFromString(text);
    } catch (const GenICam::GenericException &exception) {
        return QString::fromUtf8(exception.what());
    }
    return {};
}

} // namespace

class TestEmbeddedCamera : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensWithThreeNodeMaps();
    void lookUps();
    void staticProperties();
    void accessOfNodes_data();
    void accessOfNodes();
    void writesText_data();
    void writesText();
    void refusesText_data();
    void refusesText();
    void typedWrites();
    void aliasFollowsItsFeature();
    void writeReadsExactlyWhatDependsOnIt();
    void selectorChangesWhatItSelects();
    void publishingRules();
    void orderIsKeptWhenAReceiverRunsAnEventLoop();
    void pollHonoursPollingTimes();
    void pollIsDroppedWhileOneRuns();
    void commandTakesItsTime();
    void userSetLoadPutsValuesBack();
    void imposingLimitsButNeverGrants();
    void imposingRefusesWrongTexts();
    void hangingWriteLosesTheCameraOnce();
    void parametersOutliveTheCamera();
    void closingWhileAReadHangs();
    void processEndsWhileAReadHangs();

private:
    QSharedPointer<IParameter> parameter(const char *name, int map = 0) const;
    QString text(const char *name, int map = 0) const;
    void write(const char *name, const QString &text);
    void settle() const;

    std::unique_ptr<Camera> m_camera;
};

void TestEmbeddedCamera::init()
{
    m_camera = Camera::openEmbedded();
}

void TestEmbeddedCamera::cleanup()
{
    m_camera.reset();
}

QSharedPointer<IParameter> TestEmbeddedCamera::parameter(const char *name, int map) const
{
    return m_camera->nodeMaps().at(map).collection->parameter(QString::fromLatin1(name));
}

QString TestEmbeddedCamera::text(const char *name, int map) const
{
    return parameter(name, map)->parameterData()->valueString;
}

void TestEmbeddedCamera::write(const char *name, const QString &text)
{
    parameter(name)->setValueFromString(text);
}

// Waits until the worker has read all that was asked for so far, and all is delivered.
void TestEmbeddedCamera::settle() const
{
    auto last = parameter("LargeCounter");
    QSignalSpy spy(last.data(), changed);
    last->scheduleParameterDataChangedCheck(true);
    QVERIFY(spy.wait());
}

void TestEmbeddedCamera::opensWithThreeNodeMaps()
{
    QStringList maps;
    int features = 0;
    QSet<ParameterType> types;
    QSet<GenApi::EVisibility> levels;
    for (const NodeMap &map : m_camera->nodeMaps()) {
        maps.append(map.name);
        QCOMPARE(map.collection->deviceClass(), "GEV");
        for (const QString &name : map.collection->childNames("Root", 9, true)) {
            const auto found = map.collection->parameter(name);
            QVERIFY2(found && found->parameterData(), qPrintable(name));
            QVERIFY(!found->isExcluded());
            QCOMPARE(found->fullName(), name);
            types.insert(found->type());
            levels.insert(found->visibility());
            features += found->type() != ParameterType::Category;
        }
    }
    QCOMPARE(maps, QStringList({"@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0"}));
    QVERIFY2(features >= 150, qPrintable(QString::number(features)));
    QCOMPARE(types.size(), 7);
    QCOMPARE(levels.size(), 4);
}

void TestEmbeddedCamera::lookUps()
{
    const auto collection = m_camera->nodeMaps().first().collection;
    QCOMPARE(collection->parameter("@CameraDevice/ExposureTime"), collection->parameter("ExposureTime"));
    const auto alias = collection->parameter("@CameraDevice/ExposureTime/Alias");
    QVERIFY(qSharedPointerObjectCast<IIntegerParameter>(alias));
    QVERIFY(alias->isExcluded());
    QCOMPARE(collection->parameter("ExposureTime/Alias"), alias);
    QVERIFY(collection->hasParameter("Gain/Alias"));
    for (const char *absent :
         {"", "Nothing", "@StreamGrabber0/ExposureTime", "Width/Alias", "/Alias", "WidthReg", "Device"}) {
        QVERIFY2(!collection->hasParameter(absent) && !collection->parameter(absent), absent);
    }
    const QStringList children{"TransportLayerControl", "DeviceEventControl"};
    const auto transport = m_camera->nodeMaps().at(1).collection;
    QCOMPARE(transport->childNames("Root", 0, false), children);
    QCOMPARE(transport->childNames("@DeviceTransportLayer/Root", 0, true),
             QStringList({"@DeviceTransportLayer/" + children[0], "@DeviceTransportLayer/" + children[1]}));
    QCOMPARE(transport->childNames("Root", 1, false).mid(0, 3), children + QStringList("GevMACAddress"));
    QVERIFY(transport->childNames("GevCCP", 0, true).isEmpty());
}

void TestEmbeddedCamera::staticProperties()
{
    const auto access = parameter("ExposureTime")->propertyAccess();
    QCOMPARE(access->property("DisplayName"), "Exposure Time");
    QCOMPARE(access->property("Unit"), "us");
    QCOMPARE(access->property("Tooltip"), "Duration of the exposure");
    QCOMPARE(access->property("Representation"), "Logarithmic");
    QVERIFY(access->property("DocuURL").startsWith("https://"));
    QCOMPARE(access->property("Nonsense", "none"), "none");
    const auto &data =
        static_cast<const FloatParameterData &>(*parameter("DeviceTemperature")->parameterData());
    QCOMPARE(data.displayNotation, GenApi::fnFixed);
    QCOMPARE(data.displayPrecision, 4);
    QCOMPARE(data.increment, 0.0);
    QCOMPARE(data.representation, "PureNumber");
}

void TestEmbeddedCamera::accessOfNodes_data()
{
    columns<QByteArray, GenApi::EAccessMode>({"name", "access"});
    row("writable", QByteArray("Width"), GenApi::RW);
    row("read-only", QByteArray("DeviceVendorName"), GenApi::RO);
    row("write-only", QByteArray("FileAccessPassword"), GenApi::WO);
    row("locked", QByteArray("AcquisitionFrameRate"), GenApi::RO);
    row("not available", QByteArray("ChunkEnable"), GenApi::NA);
    row("not implemented", QByteArray("BalanceWhiteAuto"), GenApi::NI);
    row("command", QByteArray("AcquisitionStart"), GenApi::WO);
    row("locked command", QByteArray("UserSetSave"), GenApi::NA);
}

void TestEmbeddedCamera::accessOfNodes()
{
    QFETCH(QByteArray, name);
    QFETCH(GenApi::EAccessMode, access);
    const auto found = parameter(name.constData());
    QCOMPARE(found->nodeAccessMode(), access);
    const auto data = found->parameterData();
    QCOMPARE(data->isImplemented, access != GenApi::NI);
    QCOMPARE(data->isReadable, access == GenApi::RO || access == GenApi::RW);
    QCOMPARE(data->isWritable, access == GenApi::WO || access == GenApi::RW);
    QCOMPARE(data->valueString.isEmpty(), !data->isReadable);
    QCOMPARE(found->isWritableNow(), data->isWritable);
    if (!data->isWritable) {
        QVERIFY_EXCEPTION_THROWN(found->setValueFromString("1"), GenICam::AccessException);
    }
}

void TestEmbeddedCamera::writesText_data()
{
    columns<int, QByteArray, QString, QString>({"map", "name", "written", "shown"});
    const auto row = [](int map, const char *name, const char *written, const char *shown) {
        QTest::addRow("%s = %s", name, written) << map << QByteArray(name) << written << shown;
    };
    row(0, "Width", "640", "640");
    row(0, "Width", " 0x280 ", "640");
    row(0, "UserOutputValueAll", "0xA5", "0xa5");
    row(0, "UserOutputValueAll", "17", "0x11");
    row(0, "FileAccessOffset", "6000000001", "6000000001");
    row(0, "TestBigRange", "9223372036854775807", "9223372036854775807");
    row(0, "TestBigRange", "-9223372036854775807", "-9223372036854775807");
    row(1, "GevPersistentIPAddress", "10.1.2.255", "10.1.2.255");
    row(1, "GevPersistentIPAddress", "0x0A000001", "10.0.0.1");
    row(1, "GevPersistentIPAddress", "4294967295", "255.255.255.255");
    row(1, "GevPersistentSubnetMask", "255.255.240.0", "255.255.240.0");
    row(1, "GevPersistentIPAddress", "0xa.1.2.3", "");
    row(1, "GevPersistentIPAddress", "10.1.2.+3", "");
    row(1, "GevPersistentIPAddress", "10.1. 2.3", "");
    row(1, "GevPersistentIPAddress", "10.1.2", "");
    row(0, "ExposureTime", "0x10", "");
    row(0, "ExposureTime", "1e3", "1000");
    row(0, "ExposureTime", "20.5", "20.5");
    row(0, "Gamma", "0.1", "0.1");
    row(0, "Gamma", "3.3333333333333335", "3.3333333333333335");
    row(0, "ReverseX", "true", "true");
    row(0, "ReverseX", "1", "true");
    row(0, "PixelFormat", "Mono12", "Mono12");
    row(0, "DeviceUserID", "Prüfstand 7", "Prüfstand 7");
    row(0, "DeviceUserID", "exactly as long as the register.", "exactly as long as the register.");
}

void TestEmbeddedCamera::writesText()
{
    QFETCH(int, map);
    QFETCH(QByteArray, name);
    QFETCH(QString, written);
    QFETCH(QString, shown);
    const auto found = parameter(name.constData(), map);
    if (shown.isEmpty()) {
        QVERIFY(!failureOf(*found, written).isEmpty());
        return;
    }
    QSignalSpy spy(found.data(), changed);
    found->setValueFromString(written);
    QCOMPARE(text(name.constData(), map), shown);
    QVERIFY2(spy.isEmpty(), "published from inside the call");
    QVERIFY(spy.wait());
    QCOMPARE(spy.size(), 1);
}

void TestEmbeddedCamera::refusesText_data()
{
    columns<QByteArray, QString, QString>({"name", "written", "allowed"});
    const auto row = [](const char *name, const char *written, const char *allowed) {
        QTest::addRow("%s = %s", name, written) << QByteArray(name) << written << allowed;
    };
    row("Width", "abc", "an integer");
    row("Width", "", "an integer");
    row("Width", "12.5", "an integer");
    row("LargeCounter", "99999999999999999999", "at most 64 bits");
    row("Width", "8", "16 to 5320");
    row("Width", "641", "multiple of 8");
    row("Width", "99999999999999999999", "an integer");
    row("UserOutputValueAll", "0x1ff", "0x0 to 0xff");
    row("Width", "0x0x280", "an integer");
    row("Width", "0x 280", "an integer");
    row("UserOutputValueAll", "0xg", "such as 0x1f");
    row("GevPersistentIPAddress", "10.1.2.3.4", "four numbers from 0 to 255");
    row("GevPersistentSubnetMask", "255.0.255.0", "a subnet mask");
    row("GevPersistentSubnetMask", "0xff00ff00", "a subnet mask");
    row("ExposureTime", "1,5", "a number");
    row("ExposureTime", "nan", "a number");
    row("ExposureTime", "5", "10 to 10000000");
    row("ReverseX", "yes", "true, false");
    row("PixelFormat", "RGB10p32", "Mono8, Mono10, Mono12");
    row("DeviceUserID", "a name that is much longer than the register", "32 bytes");
    row("AcquisitionStart", "go", "no text");
}

void TestEmbeddedCamera::refusesText()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, written);
    QFETCH(QString, allowed);
    const auto found = parameter(name.constData(), name.startsWith("Gev") ? 1 : 0);
    const QString before = found->parameterData()->valueString;
    const QString failure = failureOf(*found, written);
    QVERIFY2(failure.contains(QString::fromLatin1(name)), qPrintable(failure));
    QVERIFY2(failure.contains(QLatin1Char('"') + written + QLatin1Char('"')), qPrintable(failure));
    QVERIFY2(failure.contains(allowed), qPrintable(failure));
    QCOMPARE(found->parameterData()->valueString, before);
}

void TestEmbeddedCamera::typedWrites()
{
    const auto width = qSharedPointerObjectCast<IIntegerParameter>(parameter("Width"));
    width->setValue(800);
    QCOMPARE(text("Width"), "800");
    QVERIFY_EXCEPTION_THROWN(width->setValue(1), GenICam::OutOfRangeException);
    qSharedPointerObjectCast<IFloatParameter>(parameter("Gamma"))->setValue(0.5);
    QCOMPARE(text("Gamma"), "0.5");
    qSharedPointerObjectCast<IBooleanParameter>(parameter("ReverseY"))->setValue(true);
    QCOMPARE(text("ReverseY"), "true");
    qSharedPointerObjectCast<IEnumParameter>(parameter("TestPattern"))->setValue("Black");
    QCOMPARE(text("TestPattern"), "Black");
    const QString failure = failureOf(*parameter("DeviceUserID"), QStringLiteral("a\0b"));
    QVERIFY2(failure.contains("no null characters"), qPrintable(failure));
}

void TestEmbeddedCamera::aliasFollowsItsFeature()
{
    QCOMPARE(text("ExposureTime"), "5000");
    QCOMPARE(text("ExposureTime/Alias"), "5000000");
    QSignalSpy spy(parameter("ExposureTime").data(), changed);
    qSharedPointerObjectCast<IIntegerParameter>(parameter("ExposureTime/Alias"))->setValue(123000);
    QVERIFY(spy.wait());
    QCOMPARE(text("ExposureTime"), "123");
}

// What is read shows that its register has changed behind the program's back.
void TestEmbeddedCamera::writeReadsExactlyWhatDependsOnIt()
{
    const Inside inside;
    m_camera = CameraFactory::camera(inside.session);
    const QStringList names = m_camera->nodeMaps().first().collection->childNames("Root", 9, false);
    const auto texts = [&] {
        QMap<QString, QString> map;
        for (const QString &name : names) {
            map[name] = text(qPrintable(name));
        }
        return map;
    };
    const auto touchAll = [&] {
        int touched = 0;
        for (const QString &name : names) {
            const quint64 address = inside.addressOf(qPrintable(name + "Reg"));
            char bytes[8];
            if (parameter(qPrintable(name))->type() == ParameterType::Integer && address != 0
                && inside.registers->read(address, 8, bytes)) {
                bytes[7] = char(bytes[7] ^ 8);
                inside.registers->write(address, 8, bytes);
                ++touched;
            }
        }
        return touched;
    };
    const auto readsAfter = [&](const char *name, const QString &value) {
        const auto before = texts();
        touchAll();
        write(name, value);
        settle();
        const auto after = texts();
        QStringList reads;
        for (const QString &feature : names) {
            if (before[feature] != after[feature] && !reads.contains(feature)) {
                reads.append(feature);
            }
        }
        reads.sort();
        return reads.join(QLatin1Char(' '));
    };
    QVERIFY(touchAll() > 15);
    QSignalSpy refreshed(parameter("LargeCounter").data(), changed);
    m_camera->nodeMaps().first().collection->refresh();
    QVERIFY(refreshed.wait()); // else settle() could take that for its own
    settle();
    QCOMPARE(readsAfter("Width", "640"), "LargeCounter OffsetX PayloadSize ResultingFrameRate Width");
    const auto data = parameter("OffsetX")->parameterData();
    QCOMPARE(static_cast<const IntegerParameterData &>(*data).maximum, 5320 - 640);
    QCOMPARE(readsAfter("BinningHorizontal", "2"), "BinningHorizontal LargeCounter OffsetX Width WidthMax");
}

void TestEmbeddedCamera::selectorChangesWhatItSelects()
{
    QCOMPARE(text("Gain"), "0");
    write("GainSelector", "DigitalAll");
    settle();
    QCOMPARE(text("Gain"), "6");
    write("Gain", "7.5");
    write("GainSelector", "All");
    settle();
    QCOMPARE(text("Gain"), "0");
    write("GainSelector", "DigitalAll");
    settle();
    QCOMPARE(text("Gain"), "7.5");
    write("AcquisitionMode", "MultiFrame");
    settle();
    QCOMPARE(text("AcquisitionFrameCount"), "10");
}

void TestEmbeddedCamera::publishingRules()
{
    const auto gamma = parameter("Gamma");
    QSignalSpy spy(gamma.data(), changed);
    gamma->scheduleParameterDataChangedCheck(false);
    m_camera->nodeMaps().first().collection->refresh();
    settle();
    QCOMPARE(spy.size(), 0);
    gamma->scheduleParameterDataChangedCheck(true);
    settle();
    QCOMPARE(spy.size(), 1);
    write("Gamma", text("Gamma"));
    settle();
    QCOMPARE(spy.size(), 2);
    QVERIFY(!failureOf(*gamma, "-1").isEmpty());
    settle();
    QCOMPARE(spy.size(), 3);
}

void TestEmbeddedCamera::orderIsKeptWhenAReceiverRunsAnEventLoop()
{
    const auto gamma = parameter("Gamma");
    const auto width = parameter("Width");
    QStringList seen;
    connect(gamma.data(), &IParameter::parameterDataChangedDecoupled, this,
            [&seen](const ParameterDataPtr &data) { seen.append(data->valueString); });
    const auto connection = connect(width.data(), &IParameter::parameterDataChangedDecoupled, this, [this] {
        write("Gamma", "3");
        settle();
    });
    write("Width", text("Width"));
    write("Gamma", "2");
    settle();
    disconnect(connection);
    QCOMPARE(seen, QStringList({"2", "3"}));
}

void TestEmbeddedCamera::pollHonoursPollingTimes()
{
    const Inside inside;
    m_camera = CameraFactory::camera(inside.session);
    const auto readsOf = [&](const char *node, int elapsed) {
        WatchedPort::watched = inside.addressOf(node);
        WatchedPort::reads = 0;
        m_camera->nodeMaps().first().collection->poll(elapsed);
        settle();
        return WatchedPort::reads.load();
    };
    QCOMPARE(readsOf("TimestampReg", 400), 0);
    QCOMPARE(readsOf("TimestampReg", 100), 1);
    QCOMPARE(readsOf("DeviceTemperatureReg", 400), 0);
    QCOMPARE(readsOf("DeviceTemperatureReg", 100), 1);
    QCOMPARE(readsOf("WidthReg", 1000), 0);
}

void TestEmbeddedCamera::pollIsDroppedWhileOneRuns()
{
    const Inside inside;
    m_camera = CameraFactory::camera(inside.session);
    const auto collection = m_camera->nodeMaps().first().collection;
    WatchedPort::watched = inside.addressOf("TimestampReg");
    WatchedPort::reads = 0;
    inside.registers->setDelay(5);
    for (int i = 0; i < 5; ++i) {
        collection->poll(1000);
    }
    inside.registers->setDelay(0);
    settle();
    QCOMPARE(WatchedPort::reads.load(), 1);
}

void TestEmbeddedCamera::commandTakesItsTime()
{
    const auto reset = qSharedPointerObjectCast<ICommandParameter>(parameter("DeviceReset"));
    const auto isDone = [&reset] {
        return static_cast<const CommandParameterData &>(*reset->parameterData()).isDone;
    };
    QVERIFY(isDone());
    QElapsedTimer timer;
    timer.start();
    reset->execute(true);
    QVERIFY(timer.elapsed() < 500);
    QVERIFY(!isDone());
    QVERIFY(reset->parameterData()->valueString.isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT((reset->scheduleParameterDataChangedCheck(false), isDone()), 3000);
    QVERIFY(timer.elapsed() >= 900);
    const auto start = qSharedPointerObjectCast<ICommandParameter>(parameter("AcquisitionStart"));
    start->execute(true);
    QVERIFY(static_cast<const CommandParameterData &>(*start->parameterData()).isDone);
}

void TestEmbeddedCamera::userSetLoadPutsValuesBack()
{
    write("Gamma", "2");
    write("Width", "640");
    qSharedPointerObjectCast<ICommandParameter>(parameter("UserSetLoad"))->execute(true);
    settle();
    QCOMPARE(text("Gamma"), "1");
    QCOMPARE(text("Width"), "1920");
    const auto data = parameter("OffsetX")->parameterData();
    QCOMPARE(static_cast<const IntegerParameterData &>(*data).maximum, 5320 - 1920);
}

void TestEmbeddedCamera::imposingLimitsButNeverGrants()
{
    const auto width = parameter("Width");
    QSignalSpy spy(width.data(), changed);
    width->propertyAccess()->setProperty("AccessMode", "RO");
    QVERIFY(spy.isEmpty());
    QVERIFY(!width->isWritableNow());
    QVERIFY(width->parameterData()->isReadable);
    QCOMPARE(width->nodeAccessMode(), GenApi::RW);
    QVERIFY(spy.wait());
    width->setValueFromString("640");
    QCOMPARE(text("Width"), "640");
    QVERIFY(!width->isWritableNow());
    width->propertyAccess()->setProperty("AccessMode", "RW");
    QVERIFY(width->isWritableNow());

    width->propertyAccess()->setProperty("Visibility", "Guru");
    QCOMPARE(width->visibility(), GenApi::Guru);
    QCOMPARE(width->parameterData()->visibility, GenApi::Guru);
    const auto hidden = parameter("TestInvisible");
    hidden->propertyAccess()->setProperty("Visibility", "Beginner");
    QCOMPARE(hidden->visibility(), GenApi::Invisible);
    const auto fixed = parameter("DeviceVendorName");
    fixed->propertyAccess()->setProperty("AccessMode", "RW");
    QVERIFY(!fixed->isWritableNow());
    fixed->propertyAccess()->setProperty("AccessMode", "NI");
    QVERIFY(!fixed->parameterData()->isImplemented);
    QVERIFY(fixed->parameterData()->valueString.isEmpty());
}

void TestEmbeddedCamera::imposingRefusesWrongTexts()
{
    const auto access = parameter("Width")->propertyAccess();
    for (const auto &[name, value] :
         {std::pair("Unit", "mm"), std::pair("Visibility", "Everybody"), std::pair("AccessMode", "")}) {
        QVERIFY_EXCEPTION_THROWN(access->setProperty(name, value), GenICam::InvalidArgumentException);
    }
    QVERIFY(parameter("Width")->isWritableNow());
}

void TestEmbeddedCamera::hangingWriteLosesTheCameraOnce()
{
    const Inside inside;
    m_camera = CameraFactory::camera(inside.session);
    QSignalSpy lost(m_camera.get(), SIGNAL(lost(QString)));
    inside.registers->setDelay(2500);
    const auto width = parameter("Width");
    QElapsedTimer timer;
    timer.start();
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("640"), GenICam::TimeoutException);
    QVERIFY(timer.elapsed() >= 900 && timer.elapsed() < 2000);
    QVERIFY(m_camera->isLost());
    QVERIFY(lost.isEmpty());
    timer.restart();
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("640"), GenICam::GenericException);
    width->scheduleParameterDataChangedCheck(true);
    m_camera->nodeMaps().first().collection->poll(5000);
    m_camera->nodeMaps().first().collection->refresh();
    QVERIFY(timer.elapsed() < 200);
    QVERIFY(lost.wait(500));
    QTest::qWait(100);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(text("Width"), "1920");
}

void TestEmbeddedCamera::parametersOutliveTheCamera()
{
    const auto width = parameter("Width");
    const auto collection = m_camera->nodeMaps().first().collection;
    width->scheduleParameterDataChangedCheck(true);
    m_camera.reset();
    QCOMPARE(width->parameterData()->valueString, "1920");
    QCOMPARE(width->propertyAccess()->property("DisplayName"), "Width");
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("640"), GenICam::GenericException);
    collection->refresh();
    collection->poll(1000);
    width->scheduleParameterDataChangedCheck(true);
    QCOMPARE(collection->childNames("Root", 0, true).size(), 13);
    QCoreApplication::processEvents();
}

void TestEmbeddedCamera::closingWhileAReadHangs()
{
    const Inside inside;
    m_camera = CameraFactory::camera(inside.session);
    inside.registers->setDelay(2500);
    parameter("Width")->scheduleParameterDataChangedCheck(true);
    QTest::qWait(50);
    QElapsedTimer timer;
    timer.start();
    m_camera.reset();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    m_camera = Camera::openEmbedded();
    QCOMPARE(text("Width"), "1920");
}

void TestEmbeddedCamera::processEndsWhileAReadHangs()
{
    QProcess process;
    QElapsedTimer timer;
    process.start(QCoreApplication::applicationFilePath(), {"--hang"});
    QVERIFY(process.waitForReadyRead());
    timer.start();
    QVERIFY(process.waitForFinished(10000));
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

static int closeWhileAReadHangs()
{
    const Inside inside;
    const auto camera = CameraFactory::camera(inside.session);
    inside.registers->setDelay(3600 * 1000);
    camera->nodeMaps().first().collection->refresh();
    QTextStream(stdout) << "closing" << Qt::endl;
    return 0;
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (application.arguments().contains("--hang")) {
        return closeWhileAReadHangs();
    }
    TestEmbeddedCamera test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_embeddedcamera.moc"
