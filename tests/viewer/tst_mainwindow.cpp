// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>

#include <cameras/aravis_p.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <exception>
#include <memory>

namespace {

QList<QAction *> leaves(const QMenu &menu)
{
    QList<QAction *> found;
    const auto actions = menu.actions();
    for (QAction *const action : actions) {
        action->menu() ? found.append(leaves(*action->menu())) : found.append(action);
    }
    return found;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ipConfigurationNeedsAnAbleCamera();
    void ipConfigurationIsWritten();
    void silencedMessageComesBack();
    void clickOnALockedEditorGoesToItsRow();
    void lostCameraIsReopened();
    void closingALiveCameraIsConfirmed();
    void standsGarbledSettings_data();
    void standsGarbledSettings();

private:
    QAction *action(const char *text) const;
    bool startServer();
    void openLiveCamera();
    bool closeCamera(QMessageBox::StandardButton answer);
    void enterIpConfiguration(const char *ip, bool silence);

    ArvGvFakeCamera *m_server = nullptr;
    std::unique_ptr<MainWindow> m_window;
    QHostAddress m_shownIp; // by the dialog, before anything was entered
    int m_boxes = 0; // message boxes that were seen and answered
};

void TestMainWindow::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_mainwindow"));
    QSettings().clear();
    m_boxes = 0;
    m_window = std::make_unique<MainWindow>();
    m_window->openCamera(Options());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    g_clear_object(&m_server);
}

QAction *TestMainWindow::action(const char *text) const
{
    const auto menus = m_window->menuBar()->findChildren<QMenu *>();
    for (const QMenu *const menu : menus) {
        const auto actions = leaves(*menu);
        for (QAction *const action : actions) {
            if (action->text().remove(QLatin1Char('&')).startsWith(QLatin1String(text))) {
                return action;
            }
        }
    }
    return nullptr;
}

void TestMainWindow::ipConfigurationNeedsAnAbleCamera()
{
    QVERIFY(action("IP Configuration")->isEnabled());
    m_window->closeCamera();
    QVERIFY(!action("IP Configuration")->isEnabled());
    QCOMPARE(action("IP Configuration")->toolTip(), QStringLiteral("No camera is open"));
    QCOMPARE(action("IP Configuration")->statusTip(), action("IP Configuration")->toolTip());
}

// Answers the dialog, and the message box after it when there is one.
void TestMainWindow::enterIpConfiguration(const char *ip, bool silence)
{
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [this, ip, silence] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (auto *const dialog = qobject_cast<IpAddressWidget *>(modal)) {
            m_shownIp = dialog->ipAddress();
            dialog->setIpAddress(QHostAddress(QString::fromLatin1(ip)));
            dialog->accept();
        } else if (auto *const box = qobject_cast<QMessageBox *>(modal)) {
            ++m_boxes;
            box->checkBox()->setChecked(silence);
            box->button(QMessageBox::Ok)->click();
        }
    });
    answer.start(0);
    action("IP Configuration")->trigger();
}

void TestMainWindow::ipConfigurationIsWritten()
{
    enterIpConfiguration("192.168.0.77", false);
    QCOMPARE(m_boxes, 1);
    QTest::qWait(50); // the camera's worker reads the value back
    enterIpConfiguration("192.168.0.78", false);
    QCOMPARE(m_shownIp, QHostAddress(QStringLiteral("192.168.0.77")));
}

void TestMainWindow::silencedMessageComesBack()
{
    enterIpConfiguration("192.168.0.77", true);
    enterIpConfiguration("192.168.0.78", false);
    QCOMPARE(m_boxes, 1);
    action("Show All Messages Again")->trigger();
    enterIpConfiguration("192.168.0.79", false);
    QCOMPARE(m_boxes, 2);
}

void TestMainWindow::clickOnALockedEditorGoesToItsRow()
{
    Options options;
    options.expand = true;
    options.visibility = GenApi::Guru;
    m_window->applyOptions(options);
    const FeatureTreeView *const view = m_window->featureTree()->treeView();
    int clicked = 0;
    for (QModelIndex row = view->indexAt({0, 0}); row.isValid() && view->visualRect(row).isValid();
         row = view->indexBelow(row)) {
        const QRect cell = view->visualRect(row.siblingAtColumn(1));
        const QWidget *const editor = view->indexWidget(row.siblingAtColumn(1));
        if (editor && !editor->isEnabled() && view->viewport()->rect().contains(cell)) {
            const QPoint place = view->viewport()->mapTo(m_window.get(), cell.center());
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
            QCOMPARE(view->currentIndex().siblingAtColumn(0), row);
            ++clicked;
        }
    }
    QVERIFY(clicked > 2);
}

// Starts a camera on the loopback interface.
bool TestMainWindow::startServer()
{
    m_server = arv_gv_fake_camera_new("127.0.0.1", "ZWINDOW");
    return m_server && arv_gv_fake_camera_is_running(m_server);
}

// Another test run may serve at the same address for a while, and answer in place of this one.
void TestMainWindow::openLiveCamera()
{
    QByteArray failure("not found");
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (!startServer()) {
            QSKIP("No GigE Vision server can be started on the loopback interface");
        }
        for (const auto &info : Cameras::Camera::list()) {
            if (info->serialNumber() != QLatin1String("ZWINDOW")) {
                continue;
            }
            Options options;
            options.camera = info->id();
            try {
                m_window->openCamera(options);
                return;
            } catch (const std::exception &exception) {
                failure = exception.what();
            }
        }
        g_clear_object(&m_server);
        QTest::qWait(1000);
    }
    QFAIL(failure.constData());
}

void TestMainWindow::lostCameraIsReopened()
{
    m_window->closeCamera();
    openLiveCamera();
    if (!m_window->isCameraOpen()) {
        return;
    }
    FeatureTreeWidget *const tree = m_window->featureTree();
    auto *const box = tree->findChild<QLineEdit *>(QStringLiteral("filterEdit"));
    auto *const bar = m_window->findChild<MessageBar *>();
    const auto text = [bar] {
        QStringList texts;
        const auto labels = bar->findChildren<QLabel *>();
        for (const QLabel *const label : labels) {
            texts.append(label->text());
        }
        return texts.join(QLatin1Char('\n'));
    };
    const auto reconnect = [bar] {
        const auto buttons = bar->findChildren<QToolButton *>();
        for (QToolButton *const button : buttons) {
            if (button->text() == QLatin1String("Reconnect") && button->isVisible()) {
                button->click();
                return true;
            }
        }
        return false;
    };
    action("Expert")->trigger();
    box->setText(QStringLiteral("Width"));
    tree->setPolling(true);
    const QString title = m_window->windowTitle();

    g_clear_object(&m_server);
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isCameraOpen() && bar->isVisible(), 20000);
    QTest::qWait(400); // time for another poll
    QCOMPARE(text().count(QStringLiteral("The camera was lost")), 1);
    QVERIFY(!tree->isEnabled() && !tree->getPolling());
    if (Cameras::Camera::list().isEmpty()) { // else another test run serves at the same address
        QVERIFY(reconnect());
        QVERIFY(!m_window->isCameraOpen() && !tree->isEnabled());
    }
    QVERIFY(startServer());
    // Opens it although the last search found nothing; what fails can be tried again.
    for (int attempt = 0; attempt < 5 && !m_window->isCameraOpen(); ++attempt) {
        QVERIFY(reconnect());
    }
    QVERIFY(m_window->isCameraOpen() && tree->isEnabled() && !bar->isVisible());
    QVERIFY(tree->getPolling());
    QCOMPARE(tree->visibility(), GenApi::Expert);
    QCOMPARE(box->text(), QStringLiteral("Width"));
    QCOMPARE(m_window->windowTitle(), title);
    tree->copyToClipboard();
    const QString rows = QApplication::clipboard()->text();
    QVERIFY(rows.contains(QStringLiteral("Width")) && !rows.contains(QStringLiteral("Gain")));
}

// Triggers the action and answers the message box, silencing it. Returns whether there was one.
bool TestMainWindow::closeCamera(QMessageBox::StandardButton answer)
{
    bool isAsked = false;
    QTimer::singleShot(0, this, [answer, &isAsked] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            isAsked = true;
            box->checkBox()->setChecked(true);
            box->button(answer)->click();
        }
    });
    action("Close Camera")->trigger();
    QCoreApplication::processEvents();
    return isAsked;
}

void TestMainWindow::closingALiveCameraIsConfirmed()
{
    QVERIFY(!closeCamera(QMessageBox::Cancel)); // nothing is lost with the embedded one
    QVERIFY(!m_window->isCameraOpen());
    openLiveCamera();
    if (!m_window->isCameraOpen()) {
        return;
    }
    QVERIFY(closeCamera(QMessageBox::Cancel));
    QVERIFY(m_window->isCameraOpen());
    QVERIFY(closeCamera(QMessageBox::Ok)); // a refusal is not remembered
    QVERIFY(!m_window->isCameraOpen());
    g_clear_object(&m_server);
    openLiveCamera();
    QVERIFY(!closeCamera(QMessageBox::Cancel));
    QVERIFY(!m_window->isCameraOpen());
}

void TestMainWindow::standsGarbledSettings_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("bytes") << QVariant(QByteArray("\0\0\0\xffgarbage", 11));
    QTest::newRow("text") << QVariant(QStringLiteral("@Rect(1 2"));
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("number") << QVariant(99);
}

void TestMainWindow::standsGarbledSettings()
{
    QFETCH(QVariant, value);
    m_window.reset();
    QSettings().clear();
    MainWindow fresh;
    fresh.show();
    QSettings settings;
    const QStringList keys{QStringLiteral("Geometry"), QStringLiteral("Splitter"), QStringLiteral("Panels"),
                           QStringLiteral("Tree"), QStringLiteral("Level")};
    for (const QString &key : keys) {
        settings.setValue(QStringLiteral("MainWindow/") + key, value);
    }
    MainWindow window;
    window.openCamera(Options());
    window.show();
    QCOMPARE(window.size(), fresh.size());
    QCOMPARE(window.featureTree()->visibility(), fresh.featureTree()->visibility());
    const auto nameWidth = [](const MainWindow &of) {
        return of.featureTree()->findChild<QHeaderView *>()->sectionSize(0);
    };
    QCOMPARE(nameWidth(window), nameWidth(fresh));
    const QList<int> parts = window.findChild<QSplitter *>()->sizes();
    QVERIFY(parts.size() == 2 && parts.at(0) > 0 && parts.at(1) > 0);
    // It is well again when it is closed.
    window.close();
    QVERIFY(settings.value(QStringLiteral("MainWindow/Geometry")) != value);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
