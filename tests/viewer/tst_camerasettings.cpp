// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <cameras/deviceptr_p.h>
#include <platform/parametercollection/iparameter.h>
#include <viewer/cameraaddress.h>
#include <viewer/cameradialog.h>
#include <viewer/comparison.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>
#include <viewer/settingsactions.h>
#include <viewer/settingsorigin.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>
#include <zeltoviewercomponents/settings/settingscomparisonwidget.h>
#include <zeltoviewercomponents/settings/settingsreader.h>
#include <zeltoviewercomponents/settings/settingsreportdialog.h>

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <memory>

using namespace ParameterCollection;
using namespace Cameras;

namespace {

bool finish(SettingsTask &task)
{
    QSignalSpy finished(&task, SIGNAL(finished()));
    if (!task.isRunning()) {
        task.start();
    }
    return finished.wait(30000);
}

FeatureSettings settingsOf(const Camera &camera)
{
    SettingsReader reader(settingsNodeMaps(camera));
    return finish(reader) ? reader.settings() : FeatureSettings();
}

QString value(const Camera &camera, const char *name)
{
    return camera.nodeMaps().constFirst().collection->parameter(name)->parameterData()->valueString;
}

} // namespace

/*! \brief Settings of the simulated camera and of one on the loopback interface, in the library and in the
 * window. */
class TestCameraSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void bringTheCameraBack_data();
    void bringTheCameraBack();
    void valuesBetweenTwoSteps();
    void nobodySeesTheSelectorsStep();
    void closedInTheMiddle();
    void lostInTheMiddle();
    void cameraInOtherHands();
    void windowSavesAndLoads();
    void windowNamesWhatIsWrong_data();
    void windowNamesWhatIsWrong();
    void windowAsksAboutAnotherModel_data();
    void windowAsksAboutAnotherModel();
    void windowClosesTheCameraMeanwhile();
    void windowComparesWithALiveCamera();
    void windowComparesNothingWithALostCamera();

private:
    void startServer();
    std::unique_ptr<Camera> open(bool live);
    QString write(const QByteArray &text) const;

    ArvGvFakeCamera *m_server = nullptr;
    QTemporaryDir m_dir;
};

void TestCameraSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_camerasettings"));
    QSettings().clear();
}

void TestCameraSettings::cleanup()
{
    g_clear_object(&m_server);
}

void TestCameraSettings::startServer()
{
    m_server = arv_gv_fake_camera_new("127.0.0.1", "ZTEST");
    if (!m_server || !arv_gv_fake_camera_is_running(m_server)) {
        QSKIP("No GigE Vision server can be started on the loopback interface");
    }
}

std::unique_ptr<Camera> TestCameraSettings::open(bool live)
{
    return live ? Camera::openLive("127.0.0.1") : Camera::openEmbedded();
}

QString TestCameraSettings::write(const QByteArray &text) const
{
    QFile file(m_dir.filePath("given.txt"));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
}

void TestCameraSettings::bringTheCameraBack_data()
{
    QTest::addColumn<bool>("live");
    QTest::addColumn<QStringList>("changes");
    QTest::newRow("embedded") << false
                              << QStringList{
                                     "Width=640",        "OffsetX=64",         "TriggerSelector=LineStart",
                                     "TriggerMode=On",   "LineSelector=Line1", "ExposureTime=1234.5",
                                     "DeviceUserID=a\tb"};
    QTest::newRow("loopback") << true << QStringList{"Width=256", "OffsetX=64", "BinningHorizontal=2"};
}

void TestCameraSettings::bringTheCameraBack()
{
    QFETCH(const bool, live);
    QFETCH(const QStringList, changes);
    if (live) {
        startServer();
    }
    const auto camera = open(live);
    const FeatureSettings before = settingsOf(*camera);
    QVERIFY(before.settings().size() > 5);
    before.save(m_dir.filePath("before.txt"));
    const FeatureSettings file = FeatureSettings::load(m_dir.filePath("before.txt"));

    SettingsApplier unchanged(file, settingsNodeMaps(*camera));
    QVERIFY(finish(unchanged));
    QCOMPARE(unchanged.report().count(SettingsReport::Result::Unchanged), before.settings().size());

    const auto collection = camera->nodeMaps().constFirst().collection;
    for (const QString &change : changes) {
        collection->parameter(change.section('=', 0, 0))->setValueFromString(change.section('=', 1));
    }
    const FeatureSettings changed = settingsOf(*camera);
    QVERIFY(compare(before, changed).size() >= changes.size() - 1);
    SettingsApplier applier(file, settingsNodeMaps(*camera));
    QVERIFY(finish(applier));
    QVERIFY2(applier.report().isSuccess(), qPrintable(applier.report().problems().join('\n')));
    QVERIFY(compare(before, settingsOf(*camera)).isEmpty());
    const auto back = applier.putBack();
    QVERIFY(finish(*back));
    QVERIFY2(back->report().isSuccess(), qPrintable(back->report().problems().join('\n')));
    QVERIFY(compare(changed, settingsOf(*camera)).isEmpty());
}

// What the register behind a converter cannot tell apart is no difference.
void TestCameraSettings::valuesBetweenTwoSteps()
{
    const auto camera = open(false);
    SettingsApplier applier(FeatureSettings::load(write("ExposureTime\t1234.56789\n")),
                            settingsNodeMaps(*camera));
    QVERIFY(finish(applier));
    QVERIFY2(applier.report().isSuccess(), qPrintable(applier.report().problems().join('\n')));
    QTRY_COMPARE(value(*camera, "ExposureTime"), "1234.567");
}

// A value that changes by itself in a tree would be taken for one of the camera.
void TestCameraSettings::nobodySeesTheSelectorsStep()
{
    const auto camera = open(false);
    const auto collection = camera->nodeMaps().constFirst().collection;
    collection->parameter("TriggerSelector")->setValueFromString("LineStart");
    collection->parameter("TriggerDelay")->setValueFromString("77");
    QTest::qWait(50);
    QStringList seen;
    for (const char *const name : {"TriggerSelector", "TriggerDelay"}) {
        const auto parameter = collection->parameter(name);
        connect(parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                [&seen](const ParameterDataPtr &data) { seen.append(data->valueString); });
    }
    const FeatureSettings settings = settingsOf(*camera);
    QVERIFY(settings.settings().size() > 50);
    QTest::qWait(50);
    QCOMPARE(seen, QStringList());
    QCOMPARE(value(*camera, "TriggerSelector"), "LineStart");
    QCOMPARE(value(*camera, "TriggerDelay"), "77");
}

void TestCameraSettings::closedInTheMiddle()
{
    auto camera = open(false);
    const FeatureSettings settings = settingsOf(*camera);
    SettingsApplier applier(settings, settingsNodeMaps(*camera));
    QSignalSpy finished(&applier, SIGNAL(finished()));
    applier.start();
    QTimer::singleShot(0, this, [&camera] { camera.reset(); });
    QVERIFY(finished.wait(5000));
    QVERIFY(applier.isLost() || applier.report().isSuccess());

    SettingsReader late(settingsNodeMaps(*open(false))); // whose camera has gone already
    QVERIFY(finish(late));
    QVERIFY(late.isLost());
    QVERIFY(late.settings().isEmpty());
}

void TestCameraSettings::lostInTheMiddle()
{
    startServer();
    const auto camera = open(true);
    const FeatureSettings settings = settingsOf(*camera);
    SettingsApplier applier(settings, settingsNodeMaps(*camera));
    connect(&applier, &SettingsTask::progress, this, [this] { g_clear_object(&m_server); }); // while it reads
    QVERIFY(finish(applier));
    QVERIFY(applier.isLost());
    const SettingsReport &report = applier.report();
    QCOMPARE(report.entries.size(), settings.settings().size());
    QVERIFY(report.count(SettingsReport::Result::NotTried) > 0);
    QVERIFY2(report.problems().join('\n').contains("not tried"), qPrintable(report.problems().join('\n')));
}

void TestCameraSettings::cameraInOtherHands()
{
    startServer();
    const FeatureSettings controlled = settingsOf(*open(true));
    const DevicePtr other(arv_open_device("127.0.0.1", nullptr));
    const auto camera = open(true);
    QVERIFY(camera->isReadOnly());
    SettingsApplier applier(controlled, settingsNodeMaps(*camera), SettingsApplier::Before::Forget);
    QVERIFY(finish(applier));
    QVERIFY2(applier.report().isSuccess(), qPrintable(applier.report().problems().join('\n')));
    FeatureSettings another = controlled;
    another.nodeMaps[0].assignments = {{"Width", "128", 3}};
    SettingsApplier refused(another, settingsNodeMaps(*camera), SettingsApplier::Before::Forget);
    QVERIFY(finish(refused));
    const QString problem = refused.report().problems().join('\n');
    QVERIFY2(problem.startsWith("line 3: Width: refused: held by another program"), qPrintable(problem));
}

void TestCameraSettings::windowSavesAndLoads()
{
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    SettingsActions *const actions = window.settings();
    const QString fileName = m_dir.filePath("saved.txt");
    QSignalSpy saved(actions, SIGNAL(saved(FeatureSettings, QString)));
    actions->saveTo(fileName);
    QVERIFY(actions->isBusy());
    QVERIFY(!actions->actions().constFirst()->isEnabled());
    QVERIFY(saved.wait());
    QVERIFY(!actions->isBusy());
    const FeatureSettings file = FeatureSettings::load(fileName);
    QCOMPARE(file.origin.model, "Simulated Camera");
    QCOMPARE(file.origin.serialNumber, "ZS-0001");

    const auto collection = actions->nodeMaps().constFirst().collection;
    collection->parameter("Width")->setValueFromString("320");
    QSignalSpy applied(actions, SIGNAL(applied(FeatureSettings, FeatureSettings, SettingsReport, QString)));
    actions->loadFrom(fileName);
    QVERIFY(applied.wait());
    QTRY_COMPARE(collection->parameter("Width")->parameterData()->valueString, "1920");

    // What the camera refuses is shown, and what was before can be had again.
    actions->loadFrom(write("Width\t800\nGain\tmuch\n"));
    QVERIFY(applied.wait());
    auto *const dialog = window.findChild<SettingsReportDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    QTRY_COMPARE(collection->parameter("Width")->parameterData()->valueString, "800");
    QMetaObject::invokeMethod(dialog, "putBack");
    QVERIFY(applied.wait());
    QTRY_COMPARE(collection->parameter("Width")->parameterData()->valueString, "1920");

    // It must not put anything back to another camera.
    actions->loadFrom(write("Gain\tmuch\n"));
    QVERIFY(applied.wait());
    const QPointer<QDialog> report = window.findChildren<SettingsReportDialog *>().constLast();
    QVERIFY(report && report->isVisible());
    window.showCamera({}, cameraAt({}));
    QVERIFY(!report || !report->isVisible());
}

void TestCameraSettings::windowNamesWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("named");
    QTest::newRow("no settings") << QByteArray("# nothing\n") << "no settings";
    QTest::newRow("bad line") << QByteArray("Width 1\n{\n") << "line 2";
}

void TestCameraSettings::windowNamesWhatIsWrong()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, named);
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    window.settings()->loadFrom(write(text));
    QVERIFY(!window.settings()->isBusy());
    QStringList texts;
    for (const QLabel *const label : window.findChild<MessageBar *>()->findChildren<QLabel *>()) {
        texts.append(label->text());
    }
    QVERIFY2(texts.join('\n').contains(named) && texts.join('\n').contains("given.txt"),
             qPrintable(texts.join('\n')));
}

void TestCameraSettings::windowAsksAboutAnotherModel_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<int>("answer"); // 0 for no question
    QTest::newRow("this one") << QByteArray("Simulated Camera") << 0;
    QTest::newRow("another, no") << QByteArray("<b>X</b>") << int(QMessageBox::Cancel);
    QTest::newRow("another, yes") << QByteArray("X") << int(QMessageBox::Ok);
}

void TestCameraSettings::windowAsksAboutAnotherModel()
{
    QFETCH(const QByteArray, model);
    QFETCH(const int, answer);
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    QString question;
    QTimer::singleShot(0, this, [&] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            question = box->text();
            QTest::mouseClick(box->button(QMessageBox::StandardButton(answer)), Qt::LeftButton);
        }
    });
    window.settings()->loadFrom(write("# Camera settings 1\n# Model: " + model + "\nWidth\t800\n"));
    QCOMPARE(question.isEmpty(), answer == 0);
    QVERIFY(answer == 0 || question.contains(model));
    QCOMPARE(window.settings()->isBusy(), answer != int(QMessageBox::Cancel));
    QTRY_VERIFY(!window.settings()->isBusy());
}

void TestCameraSettings::windowClosesTheCameraMeanwhile()
{
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    window.settings()->saveTo(m_dir.filePath("never.txt"));
    window.closeCamera();
    QVERIFY(!window.settings()->isBusy());
    QTest::qWait(100);
    QVERIFY(!QFile::exists(m_dir.filePath("never.txt")));
    window.showCamera({}, cameraAt({}));
    QVERIFY(window.featureTree()->isEnabled());
}

void TestCameraSettings::windowComparesWithALiveCamera()
{
    startServer();
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    int turns = 100;
    QTimer choosing;
    connect(&choosing, &QTimer::timeout, this, [&window, &turns] {
        auto *const dialog = window.findChild<CameraDialog *>();
        if (dialog && (dialog->cameraId().contains("ZTEST") || --turns == 0)) {
            dialog->done(turns == 0 ? QDialog::Rejected : QDialog::Accepted);
        }
    });
    choosing.start(100);
    auto *const comparison = window.findChild<Comparison *>();
    QSignalSpy compared(comparison, SIGNAL(compared()));
    QMetaObject::invokeMethod(comparison, "askForCamera");
    choosing.stop();
    QVERIFY(turns > 0);
    QVERIFY(compared.wait(15000));
    QVERIFY(comparison->panel()->findChild<QLabel *>()->text().contains("ZTEST"));
    QVERIFY(comparison->panel()->findChild<QTreeView *>()->model()->rowCount() > 20);
    QVERIFY(window.featureTree()->isEnabled());
}

void TestCameraSettings::windowComparesNothingWithALostCamera()
{
    startServer();
    MainWindow window;
    window.show();
    window.openCamera(CameraAddress::ofCamera("127.0.0.1"));
    QTRY_VERIFY_WITH_TIMEOUT(window.isCameraOpen(), 10000);
    auto *const comparison = window.findChild<Comparison *>();
    QSignalSpy compared(comparison, SIGNAL(compared()));
    comparison->compareWithFile(write("Width\t800\n"));
    QVERIFY(compared.wait(5000));
    const auto possible = [&window, comparison] {
        QStringList names;
        for (const QMenu *const menu : window.findChildren<QMenu *>()) {
            names += menu->title().startsWith("Compare") && menu->isEnabled() ? menu->title() : QString();
        }
        for (const QToolButton *const button : comparison->panel()->findChildren<QToolButton *>()) {
            names += button->defaultAction() && button->isEnabled() ? button->text() : QString();
        }
        names.removeAll(QString());
        return names.size();
    };
    QCOMPARE(possible(), 3); // with others, again, and taking all over
    g_clear_object(&m_server);
    window.featureTree()->Refresh();
    QTRY_VERIFY_WITH_TIMEOUT(!window.isCameraOpen(), 15000);
    QTRY_COMPARE(possible(), 0); // as soon as the window has heard of it
}

QTEST_MAIN(TestCameraSettings)
#include "tst_camerasettings.moc"
