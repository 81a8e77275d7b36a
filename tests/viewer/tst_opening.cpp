// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/nothreads.h>
#include <support/playedcamera.h>
#include <support/table.h>
#include <viewer/cameradialog.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>
#include <viewer/openingpage.h>

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace {

constexpr int longestBlock = 1000; // what is promised is a tenth; the rest is for a loaded machine

/*! \brief Measures how long the event loop does not come round. */
class Ticker : public QTimer
{
public:
    Ticker()
    {
        connect(this, &QTimer::timeout, this, [this] { m_longest = qMax(m_longest, m_since.restart()); });
        m_since.start();
        start(2);
    }

    qint64 longest() { return qMax(m_longest, m_since.elapsed()); }

private:
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

PlayedCamera::Manner slow(int milliseconds)
{
    return [milliseconds](const QByteArray &, const QByteArray &answer) {
        QThread::msleep(milliseconds);
        return QList<QByteArray>{answer};
    };
}

// Falls silent when the engine takes the control, in the middle of its opening.
QList<QByteArray> silentOnceControlled(const QByteArray &request, const QByteArray &answer)
{
    static thread_local bool isSilent = false;
    const auto command = PlayedCamera::command(request);
    isSilent = command == 0x0082 || (isSilent && command != 0x0002);
    return isSilent ? QList<QByteArray>() : QList<QByteArray>{answer};
}

CameraAddress playedCamera()
{
    return CameraAddress::ofCamera("127.0.0.1");
}

} // namespace

/* The window goes on while cameras open, hang, get lost and come back. */
class TestOpening : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void windowGoesOn_data();
    void windowGoesOn();
    void cancelLeavesWhatWasOpen();
    void nextOneWaitsForItsTurn();
    void failureCanBeTriedAgain();
    void goesOnWithoutThreads();
    void comesBackWithWhatWasTyped_data();
    void comesBackWithWhatWasTyped();
    void unansweredWriteIsNotKnown();
    void processEnds_data();
    void processEnds();

private:
    bool play(const QByteArray &serialNumber = "ZPLAYED");
    bool openPlayed();
    QString page() const;
    QString bar() const;
    void type(const char *feature, const QString &digits);

    std::unique_ptr<PlayedCamera> m_camera;
    std::unique_ptr<MainWindow> m_window;
    QTemporaryDir m_folder;
};

void TestOpening::init()
{
    QSettings().clear();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestOpening::cleanup()
{
    m_window.reset();
    m_camera.reset();
}

bool TestOpening::play(const QByteArray &serialNumber)
{
    m_camera.reset();
    m_camera = std::make_unique<PlayedCamera>(serialNumber);
    return m_camera->isRunning();
}

bool TestOpening::openPlayed()
{
    m_window->openCamera(playedCamera());
    return QTest::qWaitFor([this] { return m_window->isCameraOpen(); }, 10000);
}

// What the page says while it is shown.
QString TestOpening::page() const
{
    const auto *const page = m_window->findChild<OpeningPage *>();
    QStringList texts;
    for (const QLabel *const label : page->findChildren<QLabel *>()) {
        texts.append(label->text());
    }
    return page->isVisible() ? texts.join(u' ') : QString();
}

QString TestOpening::bar() const
{
    const auto *const bar = m_window->findChild<MessageBar *>();
    return bar->isVisible() ? bar->findChildren<QLabel *>().last()->text() : QString();
}

// Types the digits over the value, without entering them.
void TestOpening::type(const char *feature, const QString &digits)
{
    QVERIFY(m_window->featureTree()->showFeature(QLatin1String("@CameraDevice/") + QLatin1String(feature)));
    m_window->featureTree()->treeView()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), digits);
}

void TestOpening::windowGoesOn_data()
{
    columns<QString, PlayedCamera::Manner>({"source", "manner"});
    row("embedded", "", PlayedCamera::Manner());
    row("large description", "large", PlayedCamera::Manner());
    row("camera", "camera", PlayedCamera::Manner());
    row("nobody", "nobody", PlayedCamera::Manner());
    row("silent camera", "camera", PlayedCamera::Manner(PlayedCamera::silence));
    row("slow camera", "camera", slow(300));
    row("falls silent", "camera", PlayedCamera::Manner(silentOnceControlled));
}

void TestOpening::windowGoesOn()
{
    QFETCH(QString, source);
    QFETCH(PlayedCamera::Manner, manner);
    CameraAddress address;
    if (source == "camera") {
        if (!play()) {
            QSKIP("the port is in use");
        }
        m_camera->setManner(manner);
        address = playedCamera();
    } else if (source == "nobody") {
        address = CameraAddress::ofCamera("Nobody-1");
    } else if (source == "large") {
        QString categories;
        QString nodes;
        for (int i = 0; i < 100; ++i) {
            categories += QString("<pFeature>C%1</pFeature>").arg(i);
            nodes += QString("<Category Name='C%1'>").arg(i);
            for (int j = 0; j < 50; ++j) {
                nodes += QString("<pFeature>N%1_%2</pFeature>").arg(i).arg(j);
            }
            nodes += "</Category>";
            for (int j = 0; j < 50; ++j) {
                nodes += QString("<Integer Name='N%1_%2'><Value>%2</Value></Integer>").arg(i).arg(j);
            }
        }
        QFile file(m_folder.filePath("large.xml"));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(("<RegisterDescription ModelName='M' VendorName='V'><Category Name='Root'>" + categories
                    + "</Category>" + nodes + "</RegisterDescription>")
                       .toUtf8());
        address = CameraAddress::ofDescription(file.fileName());
    }
    Ticker ticker;
    m_window->openCamera(address);
    QTRY_VERIFY_WITH_TIMEOUT(!page().isEmpty() || m_window->isCameraOpen(), 500);
    if (!QTest::qWaitFor([this] { return !m_window->isOpening(); }, 1500)) {
        QVERIFY(!page().isEmpty());
        QElapsedTimer cancelling;
        cancelling.start();
        QTest::mouseClick(m_window->findChild<OpeningPage *>()->findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY(!m_window->isOpening() && page().isEmpty());
        QVERIFY(cancelling.elapsed() < longestBlock);
    }
    m_window->closeCamera();
    QTest::qWait(20);
    qInfo("longest block %lld ms", static_cast<long long>(ticker.longest()));
    QVERIFY(ticker.longest() < longestBlock);
}

void TestOpening::cancelLeavesWhatWasOpen()
{
    m_window->showCamera({}, cameraAt({}));
    const QString title = m_window->windowTitle();
    if (!play()) {
        QSKIP("the port is in use");
    }
    m_camera->setManner(PlayedCamera::silence);
    m_window->openCamera(playedCamera());
    QTRY_VERIFY(page().contains("127.0.0.1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!m_window->isOpening() && m_window->isCameraOpen());
    QCOMPARE(m_window->windowTitle(), title);
    QVERIFY(m_window->featureTree()->isVisible());
    m_camera->setManner({});
    QVERIFY(openPlayed()); // what was cancelled holds nothing
    QCOMPARE(bar(), QString());
}

void TestOpening::nextOneWaitsForItsTurn()
{
    if (!play()) {
        QSKIP("the port is in use");
    }
    m_camera->setManner(silentOnceControlled);
    m_window->openCamera(playedCamera());
    QTest::qWait(300);
    m_window->openCamera(CameraAddress::ofCamera("Nobody-1"));
    QTRY_VERIFY(page().contains("Waiting"));
    CameraDialog dialog;
    dialog.show();
    QTRY_VERIFY(dialog.findChild<QLabel *>()->text().startsWith("Waiting"));
    // A description needs nobody's turn.
    m_window->openCamera({});
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isCameraOpen(), 2000);
    m_camera->setManner({});
    QTRY_COMPARE_WITH_TIMEOUT(dialog.findChild<QListWidget *>()->count(), 1, 15000);
    QVERIFY(dialog.cameraId().contains("ZPLAYED"));
}

void TestOpening::failureCanBeTriedAgain()
{
    m_window->openCamera(playedCamera());
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isOpening(), 10000);
    QVERIFY(bar().startsWith("Cannot open the camera 127.0.0.1: "));
    if (!play()) {
        QSKIP("the port is in use");
    }
    const auto buttons = m_window->findChild<MessageBar *>()->findChildren<QToolButton *>();
    for (QToolButton *const button : buttons) {
        if (button->text() == "Reconnect") {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isCameraOpen(), 10000);
    QCOMPARE(bar(), QString());
}

// As for a user who may start no more processes.
void TestOpening::goesOnWithoutThreads()
{
    m_window->showCamera({}, cameraAt({}));
    const NoThreads noThreads;
    m_window->openCamera({});
    QTRY_COMPARE(bar(), "Cannot open the embedded camera: the system has no thread left");
    CameraDialog dialog;
    dialog.show();
    QTRY_VERIFY(dialog.findChild<QLabel *>()->text().contains("the system has no thread left"));
    QVERIFY(m_window->featureTree()->showFeature("@CameraDevice/Width"));
    m_window->featureTree()->AddToFavourites_triggered();
    QTRY_VERIFY(QSettings().value("Favorites/0").toString().contains("Width"));
}

void TestOpening::comesBackWithWhatWasTyped_data()
{
    columns<QByteArray, QString>({"serialNumber", "news"});
    row("the same", QByteArray("ZPLAYED"), "The camera at 127.0.0.1 answers again.");
    row("another", QByteArray("ZOTHER"), "Another camera answers at 127.0.0.1: serial number ZOTHER.");
}

void TestOpening::comesBackWithWhatWasTyped()
{
    QFETCH(QByteArray, serialNumber);
    QFETCH(QString, news);
    if (!play() || !openPlayed()) {
        QSKIP("the port is in use");
    }
    type("Height", "48");
    Ticker ticker;
    m_camera->setManner(PlayedCamera::silence);
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isCameraOpen(), 15000);
    QTRY_VERIFY(bar().contains("does not answer"));
    QVERIFY(play(serialNumber));
    QTRY_COMPARE_WITH_TIMEOUT(bar(), news, 5000);
    m_window->reconnect();
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isCameraOpen(), 10000);
    QVERIFY(ticker.longest() < longestBlock);
    QTest::qWait(100);
    QCOMPARE(m_camera->value(0x8004), 480U); // nobody has entered it
    QTest::keyClicks(QApplication::focusWidget(), "8");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(m_camera->value(0x8004), 488U);
}

void TestOpening::unansweredWriteIsNotKnown()
{
    if (!play() || !openPlayed()) {
        QSKIP("the port is in use");
    }
    // It does what it is told, and says nothing.
    m_camera->setManner([](const QByteArray &request, const QByteArray &answer) {
        const auto command = PlayedCamera::command(request);
        const bool isWrite = command == 0x0082 || command == 0x0086;
        return isWrite ? QList<QByteArray>() : QList<QByteArray>{answer};
    });
    const auto width = [this] {
        const FeatureTreeView *const view = m_window->featureTree()->treeView();
        return view->currentIndex().siblingAtColumn(1).data().toString();
    };
    type("Width", "641");
    QElapsedTimer writing;
    writing.start();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY2(writing.elapsed() < 1100, qPrintable(QString::number(writing.elapsed())));
    QTRY_VERIFY(bar().contains("not known"));
    QTRY_COMPARE_WITH_TIMEOUT(width(), "641", 10000); // read, not believed
    QVERIFY(m_window->isCameraOpen());
}

void TestOpening::processEnds_data()
{
    columns<QString>({"state"});
    row("open", "open");
    row("opening", "opening");
    row("lost", "lost");
}

// With an engine that hangs on a camera, and what was to be saved in the file.
void TestOpening::processEnds()
{
    QFETCH(QString, state);
    if (!play()) {
        QSKIP("the port is in use");
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {"--live", state});
    QVERIFY(process.waitForReadyRead(20000)); // about to hang
    if (state != "open") {
        m_camera->setManner(silentOnceControlled);
    }
    if (state == "lost") {
        m_camera->setManner(PlayedCamera::silence);
    }
    process.write("\n");
    QVERIFY(process.waitForReadyRead(20000)); // about to end
    QElapsedTimer timer;
    timer.start();
    QVERIFY(process.waitForFinished(10000));
    qInfo("ended after %lld ms", static_cast<long long>(timer.elapsed()));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QSettings settings("ZeltoTest", "tst_opening_live");
    QVERIFY(settings.contains("MainWindow/Geometry"));
    settings.clear();
}

static int endWhile(const QString &state)
{
    QCoreApplication::setApplicationName("tst_opening_live");
    MainWindow window;
    window.show();
    if (state != "opening") {
        window.openCamera(playedCamera());
        if (!QTest::qWaitFor([&window] { return window.isCameraOpen(); }, 10000)) {
            return 1;
        }
    }
    QTextStream(stdout) << "ready" << Qt::endl;
    QTextStream(stdin).readLine();
    if (state == "opening") {
        window.openCamera(playedCamera());
    }
    QTest::qWait(state == "lost" ? 4000 : 500);
    QTextStream(stdout) << "ending" << Qt::endl;
    window.close();
    return 0;
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("ZeltoTest");
    QCoreApplication::setApplicationName("tst_opening");
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--live") {
        return endWhile(arguments.value(2));
    }
    TestOpening test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_opening.moc"
