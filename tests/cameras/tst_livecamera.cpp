// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/aravis_p.h>
#include <cameras/camera.h>

#include <platform/core/exception.h>
#include <platform/parametercollection/iparameter.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

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
    void lossIsToldOnceAndReopeningWorks();
    void writeToALostCamera();

private:
    void startServer();
    QString id() const;

    ArvGvFakeCamera *m_server = nullptr;
};

void TestLiveCamera::startServer()
{
    m_server = arv_gv_fake_camera_new("127.0.0.1", "ZTEST");
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

void TestLiveCamera::unknownCameraIsRefused()
{
    try {
        Camera::openLive("Nobody-1234");
        QFAIL("opened");
    } catch (const Core::Exception::BaseException &exception) {
        QVERIFY(exception.getMessage().contains("Nobody-1234"));
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
    QVERIFY(!open->isLost());
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

QTEST_GUILESS_MAIN(TestLiveCamera)
#include "tst_livecamera.moc"
