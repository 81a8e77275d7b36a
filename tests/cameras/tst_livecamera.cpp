// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <cameras/deviceptr_p.h>

#include <platform/core/exception.h>
#include <platform/parametercollection/iparameter.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>
#include <QUdpSocket>

using namespace ParameterCollection;
using namespace Cameras;

/*! \brief Runs against the engine's own GigE Vision server on the loopback interface. */
class TestLiveCamera : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void unknownCameraIsRefused();
    void listsReadsAndWrites();
    void badDescriptionDoesNoHarm();
    void lossIsToldOnceAndReopeningWorks();
    void writeToALostCamera();
    void isReadOnlyInOtherHands();
    void seesThatTheOtherProgramDied();
    void controlLostWhileOpen_data();
    void controlLostWhileOpen();

private:
    void startServer(const QByteArray &description = {});
    QString id() const;
    DevicePtr otherProgram() const;

    ArvGvFakeCamera *m_server = nullptr;
};

void TestLiveCamera::startServer(const QByteArray &description)
{
    QTemporaryFile file;
    file.open();
    file.write(description);
    file.close();
    const QByteArray name = description.isEmpty() ? QByteArray() : file.fileName().toUtf8();
    m_server = arv_gv_fake_camera_new_full("127.0.0.1", "ZTEST", name.isEmpty() ? nullptr : name.constData());
    if (!m_server || !arv_gv_fake_camera_is_running(m_server)) {
        QSKIP("No GigE Vision server can be started on the loopback interface");
    }
}

void TestLiveCamera::init()
{
    startServer();
}

void TestLiveCamera::cleanup()
{
    g_clear_object(&m_server);
}

QString TestLiveCamera::id() const
{
    for (const auto &info : Camera::list()) {
        if (info->serialNumber() == "ZTEST") {
            return info->id();
        }
    }
    return {};
}

// The engine's own device takes the control and keeps it.
DevicePtr TestLiveCamera::otherProgram() const
{
    return DevicePtr(arv_open_device(id().toUtf8().constData(), nullptr));
}

void TestLiveCamera::unknownCameraIsRefused()
{
    for (const QString &name : QStringList{"Nobody-1234", "127.0.0.77"}) {
        try {
            Camera::openLive(name);
            QFAIL("opened");
        } catch (const Core::Exception::BaseException &exception) {
            const QString reason =
                name == "127.0.0.77" ? "no camera answers at 127.0.0.77" : "there is no such camera";
            QCOMPARE(exception.getMessage(), "Cannot open the camera " + name + ": " + reason);
        }
    }
}

void TestLiveCamera::listsReadsAndWrites()
{
    const QString camera = id();
    QVERIFY(!camera.isEmpty());
    const auto open = Camera::openLive(camera);
    QCOMPARE(open->info()->deviceClass(), "GEV");
    QCOMPARE(open->nodeMaps().size(), 1);
    QCOMPARE(open->nodeMaps().first().name, "@CameraDevice");
    const auto collection = open->nodeMaps().first().collection;
    const auto width = collection->parameter("Width");
    QVERIFY(width->isWritableNow());
    width->setValueFromString("256");
    QCOMPARE(width->parameterData()->valueString, "256");
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("-1"), std::exception);
    QVERIFY2(open->registerImage().contains("0x00000100 00 00 01 00"), open->registerImage());
    QVERIFY(!open->isLost());
}

// The engine would not survive it.
void TestLiveCamera::badDescriptionDoesNoHarm()
{
    cleanup();
    startServer(
        "<?xml version=\"1.0\"?><RegisterDescription ModelName=\"M\" VendorName=\"V\" "
        "SchemaMajorVersion=\"1\" "
        "SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\">"
        "<Category Name=\"Root\"><pFeature>Knife</pFeature><pFeature>Least</pFeature></Category>"
        "<IntSwissKnife Name=\"Knife\"><pVariable Name=\"L\">Least</pVariable><Formula>L / -1</Formula>"
        "</IntSwissKnife><Integer Name=\"Least\"><Value>-9223372036854775808</Value></Integer>"
        "<Port Name=\"Device\"/></RegisterDescription>");
    const auto open = Camera::openLive(id());
    const auto collection = open->nodeMaps().first().collection;
    QVERIFY(!collection->parameter("Knife")->parameterData()->isReadable);
    QCOMPARE(collection->parameter("Least")->parameterData()->valueString, "-9223372036854775808");
}

void TestLiveCamera::lossIsToldOnceAndReopeningWorks()
{
    const QString camera = id();
    auto open = Camera::openLive(camera);
    QSignalSpy lost(open.get(), SIGNAL(lost(QString)));
    const auto collection = open->nodeMaps().first().collection;
    const auto width = collection->parameter("Width");
    const QString before = width->parameterData()->valueString;
    collection->refresh();
    g_clear_object(&m_server);
    QTRY_VERIFY_WITH_TIMEOUT((collection->refresh(), !lost.isEmpty()), 20000);
    QTest::qWait(500);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost.first().first().toString(), "The camera at 127.0.0.1 does not answer.");
    QVERIFY(open->isLost());
    QCOMPARE(width->parameterData()->valueString, before);
    open.reset();

    startServer();
    open = Camera::openLive(camera);
    QVERIFY(!open->isLost());
    const auto again = open->nodeMaps().first().collection->parameter("Width");
    again->setValueFromString("128");
    QCOMPARE(again->parameterData()->valueString, "128");
}

void TestLiveCamera::writeToALostCamera()
{
    auto open = Camera::openLive(id());
    QSignalSpy lost(open.get(), SIGNAL(lost(QString)));
    const auto width = open->nodeMaps().first().collection->parameter("Width");
    g_clear_object(&m_server);
    QElapsedTimer timer;
    timer.start();
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("256"), std::exception);
    QVERIFY(timer.elapsed() < 1500);
    QVERIFY(lost.size() == 1 || lost.wait(1000));
    timer.restart();
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString("256"), std::exception);
    open.reset();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(lost.size(), 1);
}

void TestLiveCamera::isReadOnlyInOtherHands()
{
    const QString camera = id();
    QCOMPARE(Camera::status(camera).state, CameraStatus::State::Available);
    DevicePtr other = otherProgram();
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(other.get())));
    QCOMPARE(Camera::status(camera).state, CameraStatus::State::ReadOnly);
    QCOMPARE(Camera::status(camera).address, "127.0.0.1");

    auto open = Camera::openLive(camera);
    QSignalSpy lost(open.get(), SIGNAL(lost(QString)));
    QSignalSpy available(open.get(), SIGNAL(controlAvailable()));
    QVERIFY(open->isReadOnly() && !open->isControlAvailable());
    QCOMPARE(open->info()->serialNumber(), "ZTEST");
    const auto collection = open->nodeMaps().first().collection;
    const auto width = collection->parameter("Width");
    arv_device_set_integer_feature_value(other.get(), "Width", 320, nullptr);
    collection->refresh();
    QTRY_COMPARE(width->parameterData()->valueString, "320");
    const QStringList names = collection->childNames("Root", 9, false);
    QVERIFY(names.size() > 5);
    for (const QString &name : names) {
        const auto parameter = collection->parameter(name);
        QVERIFY2(!parameter->isWritableNow() && parameter->nodeAccessMode() != GenApi::RW, qPrintable(name));
    }
    QElapsedTimer timer;
    timer.start();
    try {
        width->setValueFromString("640");
        QFAIL("written");
    } catch (const std::exception &exception) {
        QCOMPARE(QString(exception.what()), "Width: held by another program");
    }
    QVERIFY(timer.elapsed() < 500);
    open->takeControl();
    QSignalSpy refused(open.get(), SIGNAL(controlRefused(QString)));
    QVERIFY(refused.wait(3000));
    QCOMPARE(refused.first().first().toString(), "held by another program");
    // Closing gives back nothing that was not taken.
    open.reset();
    open = Camera::openLive(camera);
    auto *const server = arv_gv_fake_camera_get_fake_camera(m_server);
    QCOMPARE(arv_fake_camera_get_control_channel_privilege(server), 2U);
    arv_device_set_integer_feature_value(other.get(), "Width", 340, nullptr);

    QSignalSpy freed(open.get(), SIGNAL(controlAvailable()));
    other.reset();
    QVERIFY(freed.wait(4000));
    QVERIFY(open->isReadOnly() && open->isControlAvailable());
    QSignalSpy changed(open.get(), SIGNAL(accessChanged()));
    open->takeControl();
    QVERIFY(changed.wait(4000));
    QVERIFY(!open->isReadOnly());
    const auto again = open->nodeMaps().first().collection->parameter("Width");
    QVERIFY(again->isWritableNow());
    QTRY_COMPARE(again->parameterData()->valueString, "340");
    again->setValueFromString("512");
    QCOMPARE(again->parameterData()->valueString, "512");
    QVERIFY(lost.isEmpty() && available.isEmpty());
}

void TestLiveCamera::seesThatTheOtherProgramDied()
{
    const QString camera = id();
    // Takes the control as the standard has it, and is not heard of again.
    QUdpSocket other;
    const QByteArray takeControl = QByteArray::fromHex("42010082000800010000 0a00 00000002");
    other.writeDatagram(takeControl, QHostAddress(QHostAddress::LocalHost), 3956);
    QTRY_COMPARE(Camera::status(camera).state, CameraStatus::State::ReadOnly);
    const auto open = Camera::openLive(camera);
    QVERIFY(open->isReadOnly());
    QSignalSpy freed(open.get(), SIGNAL(controlAvailable()));
    QVERIFY(freed.wait(8000));
}

void TestLiveCamera::controlLostWhileOpen_data()
{
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("free") << false;
    QTest::newRow("taken by another program") << true;
}

void TestLiveCamera::controlLostWhileOpen()
{
    QFETCH(bool, isTaken);
    const auto open = Camera::openLive(id());
    QSignalSpy lost(open.get(), SIGNAL(lost(QString)));
    const auto width = open->nodeMaps().first().collection->parameter("Width");
    QVERIFY(width->isWritableNow());
    arv_fake_camera_set_control_channel_privilege(arv_gv_fake_camera_get_fake_camera(m_server), 0);
    const DevicePtr other = isTaken ? otherProgram() : nullptr;
    if (isTaken) {
        // The server leaves what it refuses without an answer.
        QVERIFY_EXCEPTION_THROWN(width->setValueFromString("320"), std::exception);
    }
    QTRY_VERIFY_WITH_TIMEOUT(open->isReadOnly(), 10000);
    QVERIFY(!width->isWritableNow() && width->parameterData()->isReadable);
    QTRY_COMPARE_WITH_TIMEOUT(open->isControlAvailable(), !isTaken, 3000);
    QVERIFY(!open->isLost() && lost.isEmpty());
    if (isTaken) {
        arv_device_set_integer_feature_value(other.get(), "Width", 640, nullptr);
        width->scheduleParameterDataChangedCheck(true);
        QTRY_COMPARE(width->parameterData()->valueString, "640");
        return;
    }
    open->takeControl();
    QTRY_VERIFY_WITH_TIMEOUT(width->isWritableNow(), 5000);
    width->setValueFromString("512");
    QCOMPARE(width->parameterData()->valueString, "512");
}

QTEST_GUILESS_MAIN(TestLiveCamera)
#include "tst_livecamera.moc"
