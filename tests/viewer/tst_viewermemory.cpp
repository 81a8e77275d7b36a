// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <viewer/mainwindow.h>

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <memory>

/* What the viewer keeps of the cameras and files that it had open, and the ways to them. */
class TestViewerMemory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dropOpensOneFile_data();
    void dropOpensOneFile();
    void recentFiles();
    void eachCameraIsShownAsItWasLeft();
    void scriptsLeaveNoTraces();
    void standsGarbledMemory_data();
    void standsGarbledMemory();
    void manyCamerasAreForgotten();
    void reconnectingDuringASearchKeepsTheRow();
    void levelStandsInTheStatusBar();

private:
    QString description(const QString &name);
    void open(const QString &fileName);
    QAction *action(const QString &text) const;
    QModelIndex feature(const QString &name) const;
    FeatureTreeView *view() const { return m_window->featureTree()->treeView(); }
    void restart();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestViewerMemory::init()
{
    QCoreApplication::setOrganizationName("ZeltoTest");
    QCoreApplication::setApplicationName("tst_viewermemory");
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    restart();
}

void TestViewerMemory::cleanup()
{
    m_window.reset();
}

// As the program starts.
void TestViewerMemory::restart()
{
    if (m_window) {
        m_window->close();
    }
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

QString TestViewerMemory::description(const QString &name)
{
    const QString path = m_folder->filePath(name);
    QFile::copy(DESCRIPTION_FILE, path);
    return path;
}

void TestViewerMemory::open(const QString &fileName)
{
    m_window->openCamera(CameraAddress::ofDescription(fileName));
    QTRY_VERIFY(!m_window->isOpening());
    QCoreApplication::processEvents(); // which fill the menu
}

QAction *TestViewerMemory::action(const QString &text) const
{
    const auto menus = m_window->findChildren<QMenu *>();
    for (const QMenu *const menu : menus) {
        const auto actions = menu->actions();
        for (QAction *const action : actions) {
            if (action->text().remove(u'&').contains(text)) {
                return action;
            }
        }
    }
    return nullptr;
}

QModelIndex TestViewerMemory::feature(const QString &name) const
{
    return view()
        ->model()
        ->match(view()->model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void TestViewerMemory::dropOpensOneFile_data()
{
    columns<QString, bool, bool>({"payload", "onSearchBox", "opens"});
    const QString file = "file://<dir>/a.xml";
    row("a file", file, false, true);
    row("a file on the search box", file, true, true);
    row("a name with blanks and signs", "file://<dir>/b%20%26%25.xml", false, true);
    row("two files", file + ' ' + "file://<dir>/b%20%26%25.xml", false, false);
    row("a folder", "file://<dir>", false, false);
    row("a file that is gone", "file://<dir>/gone.xml", false, false);
    row("on the web", "https://example.com/a.xml", false, false);
    row("on another computer", "file://elsewhere<dir>/a.xml", false, false);
    row("ten thousand", QString(file + ' ').repeated(10000), false, false);
    row("a device", "file:///dev/zero", false, false);
    row("text", "", false, false);
}

void TestViewerMemory::dropOpensOneFile()
{
    QFETCH(QString, payload);
    QFETCH(bool, onSearchBox);
    QFETCH(bool, opens);
    description("a.xml");
    description("b &%.xml");
    QMimeData data;
    if (payload.isEmpty()) {
        data.setText(m_folder->filePath("a.xml"));
    } else {
        QList<QUrl> urls;
        const QStringList texts = payload.replace("<dir>", m_folder->path()).split(' ', Qt::SkipEmptyParts);
        for (const QString &text : texts) {
            urls.append(QUrl(text));
        }
        data.setUrls(urls);
    }
    const QString title = m_window->windowTitle();
    QWidget *const target =
        onSearchBox ? static_cast<QWidget *>(m_window->findChild<QLineEdit *>("filterEdit")) : m_window.get();
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(target, &enter);
    QCOMPARE(enter.isAccepted(), opens);
    QDropEvent drop({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(target, &drop);
    QCOMPARE(drop.isAccepted(), opens);
    QVERIFY(!opens || drop.dropAction() == Qt::CopyAction); // nobody deletes the file
    QCOMPARE(m_window->windowTitle(), title); // the other program has not to wait
    QCoreApplication::processEvents();
    QCOMPARE(m_window->isOpening(), opens);
    QTRY_COMPARE(m_window->windowTitle() != title, opens);
    QCOMPARE(m_window->featureTree()->findChild<QLineEdit *>("filterEdit")->text(), QString());
}

void TestViewerMemory::recentFiles()
{
    QVERIFY(!action("Open Recent")->isEnabled());
    for (int i = 0; i < 12; ++i) {
        open(description(QString("camera%1&.xml").arg(i)));
    }
    open(m_folder->filePath("camera5&.xml"));
    restart();
    QMenu *const menu = action("Open Recent")->menu();
    QVERIFY(menu->isEnabled());
    QCOMPARE(menu->actions().size(), 10 + 2); // a separator, and clearing
    const auto file = [menu](int i) { return menu->actions().at(i)->toolTip(); };
    QCOMPARE(file(0), m_folder->filePath("camera5&.xml"));
    QCOMPARE(file(1), m_folder->filePath("camera11&.xml"));
    QCOMPARE(file(9), m_folder->filePath("camera2&.xml"));
    QVERIFY(QFile::remove(m_folder->filePath("camera11&.xml")));
    menu->popup({0, 0});
    QTRY_VERIFY(!menu->actions().at(1)->isEnabled());
    const QString title = m_window->windowTitle();
    QTest::keyClick(menu, Qt::Key_3);
    QTRY_VERIFY(m_window->windowTitle() != title);
    QTRY_COMPARE(file(0), m_folder->filePath("camera10&.xml"));
    action("Clear List")->trigger();
    QTRY_VERIFY(!action("Open Recent")->isEnabled());
    restart();
    QVERIFY(!action("Open Recent")->isEnabled());
}

void TestViewerMemory::eachCameraIsShownAsItWasLeft()
{
    view()->expand(feature("Analog Control"));
    view()->setCurrentIndex(feature("Gain Auto"));
    m_window->featureTree()->setPolling(true);
    action("Monitor Mode")->trigger();
    m_window->findChild<QLineEdit *>("filterEdit")->setText("exposure"); // belongs to the moment

    const QString file = description("other.xml");
    open(file);
    QVERIFY(!m_window->featureTree()->getPolling() && !action("Monitor Mode")->isChecked());
    QVERIFY(!view()->isExpanded(feature("Analog Control")));
    view()->expand(feature("Device Control"));

    restart();
    QVERIFY(m_window->featureTree()->getPolling() && action("Monitor Mode")->isChecked());
    QVERIFY(view()->isExpanded(feature("Analog Control")) && !view()->isExpanded(feature("Device Control")));
    QCOMPARE(view()->currentIndex().siblingAtColumn(0), feature("Gain Auto"));
    QCOMPARE(m_window->findChild<QLineEdit *>("filterEdit")->text(), QString());
    open(m_folder->path() + "/../" + m_folder->path().section('/', -1) + "/other.xml");
    QVERIFY(view()->isExpanded(feature("Device Control")) && !view()->isExpanded(feature("Analog Control")));
    m_window->closeCamera();
    m_window->reconnect();
    QTRY_VERIFY(!m_window->isOpening());
    QVERIFY(view()->isExpanded(feature("Device Control")));
}

void TestViewerMemory::scriptsLeaveNoTraces()
{
    view()->expand(feature("Analog Control"));
    m_window->close();
    const QStringList keys = QSettings().allKeys();
    m_window->setRemembering(false);
    open(description("script.xml"));
    m_window->closeCamera();
    QCOMPARE(QSettings().allKeys(), keys);
    m_window->showCamera({}, cameraAt({}));
    QVERIFY(!view()->isExpanded(feature("Analog Control")));
}

void TestViewerMemory::standsGarbledMemory_data()
{
    columns<QVariant>({"value"});
    row("bytes", QVariant(QByteArray("\0\0\xff", 3)));
    row("text", QVariant("@Rect(1 2"));
    row("long list", QVariant(QStringList(20000, "@CameraDevice*Root\n\n")));
    row("long text", QVariant("file:" + QString(1000000, u'/')));
    row("number", QVariant(-99));
}

void TestViewerMemory::standsGarbledMemory()
{
    QFETCH(QVariant, value);
    m_window->close();
    QSettings settings;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (key.startsWith("Cameras/") && !key.endsWith("/Name")) {
            settings.setValue(key, value);
        }
    }
    settings.setValue("Cameras/x/y", value);
    settings.setValue("MainWindow/Recent", value);
    restart();
    QVERIFY(view()->model()->rowCount() > 2);
    QVERIFY(!action("Open Recent")->isEnabled());
    view()->expand(feature("Analog Control").parent());
    view()->expand(feature("Analog Control"));
    restart();
    QVERIFY(view()->isExpanded(feature("Analog Control")));
}

void TestViewerMemory::manyCamerasAreForgotten()
{
    for (int i = 0; i < 80; ++i) {
        QSettings().setValue(QString("Cameras/%1/Used").arg(i), i);
    }
    m_window->close();
    QSettings settings;
    settings.beginGroup("Cameras");
    QCOMPARE(settings.childGroups().size(), 50);
    QVERIFY(settings.childGroups().contains("79") && !settings.childGroups().contains("30"));
}

void TestViewerMemory::reconnectingDuringASearchKeepsTheRow()
{
    view()->expand(feature("Analog Control"));
    view()->setCurrentIndex(feature("Gain Auto"));
    auto *const box = m_window->findChild<QLineEdit *>("filterEdit");
    box->setText("exposure");
    view()->setCurrentIndex(feature("Exposure Auto"));
    m_window->reconnect();
    QTRY_VERIFY(!m_window->isOpening());
    QCOMPARE(box->text(), "exposure");
    QCOMPARE(view()->currentIndex().data().toString(), "Exposure Auto");
    box->clear();
    QCOMPARE(view()->currentIndex().data().toString(), "Gain Auto");
    QVERIFY(view()->isExpanded(feature("Analog Control")) && !view()->isExpanded(feature("Device Control")));
}

void TestViewerMemory::levelStandsInTheStatusBar()
{
    const auto button = m_window->statusBar()->findChild<QToolButton *>();
    QVERIFY(button && button->isVisible());
    action("Guru")->trigger();
    QCOMPARE(button->text(), "Level: Guru");
    QTimer::singleShot(0, this, [button] {
        QTest::keyClick(button->menu(), Qt::Key_E);
        button->menu()->close();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_window->featureTree()->visibility(), GenApi::Expert);
    QCOMPARE(button->text(), "Level: Expert");
}

QTEST_MAIN(TestViewerMemory)
#include "tst_viewermemory.moc"
