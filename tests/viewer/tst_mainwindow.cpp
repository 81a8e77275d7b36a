// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/descriptionpane.h>
#include <viewer/mainwindow.h>
#include <viewer/messagebar.h>

#include <cameras/aravis_p.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QHeaderView>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <utility>

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

QString plain(const QAction &action)
{
    return action.text().remove(QLatin1Char('&'));
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
    void cameraInOtherHandsOffersItsControl();
    void closingALiveCameraIsConfirmed();
    void paneDescribesTheCurrentRow();
    void commandsAreConfirmed_data();
    void commandsAreConfirmed();
    void messageGoesWithItsReason();
    void rowsHaveAMenu();
    void foldsTheTree();
    void standsGarbledSettings_data();
    void standsGarbledSettings();

private:
    QAction *action(const char *text) const;
    bool startServer();
    void openLiveCamera();
    bool closeCamera(QMessageBox::StandardButton answer);
    void enterIpConfiguration(const char *ip, bool silence);
    bool show(const char *feature) const;
    QString description() const;
    void chooseFromMenu(const QString &entry);
    QString describeCamera(const QString &command, const QString &operation) const;

    ArvGvFakeCamera *m_server = nullptr;
    std::unique_ptr<MainWindow> m_window;
    QHostAddress m_shownIp; // by the dialog, before anything was entered
    int m_boxes = 0; // message boxes that were seen and answered
    QTemporaryDir m_folder;
};

void TestMainWindow::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_mainwindow"));
    QSettings().clear();
    m_boxes = 0;
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
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
            if (plain(*action).startsWith(QLatin1String(text))) {
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
    FeatureTreeView *const view = m_window->featureTree()->treeView();
    m_window->featureTree()->onVisibilityChanged(GenApi::Guru);
    view->expandEverything();
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
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (!startServer()) {
            QSKIP("No GigE Vision server can be started on the loopback interface");
        }
        for (const auto &info : Cameras::Camera::list()) {
            if (info->serialNumber() != QLatin1String("ZWINDOW")) {
                continue;
            }
            m_window->openCamera(CameraAddress::ofCamera(info->id()));
            QTRY_VERIFY_WITH_TIMEOUT(!m_window->isOpening(), 10000);
            if (m_window->isCameraOpen()) {
                return;
            }
        }
        g_clear_object(&m_server);
        QTest::qWait(1000);
    }
    QFAIL("not opened");
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
    const auto reconnect = [this, bar] {
        const auto buttons = bar->findChildren<QToolButton *>();
        for (QToolButton *const button : buttons) {
            if (button->text() == QLatin1String("Reconnect") && button->isVisible()) {
                button->click();
                return QTest::qWaitFor([this] { return !m_window->isOpening(); }, 10000);
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
    QCOMPARE(text().count(QStringLiteral("The camera at 127.0.0.1 does not answer.")), 1);
    QVERIFY(!tree->isEnabled() && !tree->getPolling());
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

void TestMainWindow::cameraInOtherHandsOffersItsControl()
{
    openLiveCamera();
    if (!m_window->isCameraOpen()) {
        return;
    }
    m_window->closeCamera();
    ArvDevice *const other = arv_open_device("Aravis-Fake-ZWINDOW", nullptr);
    QVERIFY(ARV_IS_GV_DEVICE(other) && arv_gv_device_is_controller(ARV_GV_DEVICE(other)));
    m_window->reconnect();
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isOpening(), 10000);
    auto *const bar = m_window->findChild<MessageBar *>();
    const auto shows = [bar](const QString &text) {
        const auto labels = bar->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text().contains(text); });
    };
    QVERIFY(bar->isVisible() && shows(QStringLiteral("held by another program")));
    QVERIFY(!action("Take Control")->isEnabled());
    g_object_unref(other);
    QTRY_VERIFY_WITH_TIMEOUT(shows(QStringLiteral("No program controls it now")), 5000);
    QVERIFY(action("Take Control")->isEnabled());
    const auto buttons = bar->findChildren<QToolButton *>();
    for (QToolButton *const button : buttons) {
        if (button->isVisible() && button->text() == QLatin1String("Take Control")) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), 5000);
    QVERIFY(m_window->isCameraOpen() && !action("Take Control")->isEnabled());
    m_window->closeCamera();
    g_clear_object(&m_server);
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
    const QString title = m_window->windowTitle();
    QTimer::singleShot(0, this, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    m_window->openInstead({});
    QCOMPARE(m_window->windowTitle(), title);
    QVERIFY(closeCamera(QMessageBox::Ok)); // a refusal is not remembered
    QVERIFY(!m_window->isCameraOpen());
    g_clear_object(&m_server);
    openLiveCamera();
    QVERIFY(!closeCamera(QMessageBox::Cancel));
    QVERIFY(!m_window->isCameraOpen());
}

bool TestMainWindow::show(const char *feature) const
{
    return m_window->featureTree()->showFeature(QStringLiteral("@CameraDevice/") + QLatin1String(feature));
}

QString TestMainWindow::description() const
{
    return m_window->findChild<DescriptionPane *>()->findChild<QTextBrowser *>()->toPlainText();
}

void TestMainWindow::paneDescribesTheCurrentRow()
{
    FeatureTreeWidget *const tree = m_window->featureTree();
    QVERIFY(show("Gain"));
    QVERIFY(description().startsWith(QStringLiteral("Gain")));
    tree->treeView()->setCurrentIndex(tree->treeView()->model()->index(1, 0));
    QVERIFY(description().startsWith(QStringLiteral("Camera")));
    QVERIFY(!description().contains(QStringLiteral("Root")));

    QVERIFY(show("Gain"));
    tree->focusSearch();
    QWidget *const box = QApplication::focusWidget();
    QTest::keyClicks(box, QStringLiteral("exposure"));
    QCOMPARE(description(), QString());
    QVERIFY(show("ExposureTime"));
    QVERIFY(box->hasFocus());
    QVERIFY(description().startsWith(QStringLiteral("Exposure Time")));
    QTest::keyClick(box, Qt::Key_Z);
    QCOMPARE(description(), QString());
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QVERIFY(description().startsWith(QStringLiteral("Gain")));

    action("Guru")->trigger();
    QVERIFY(show("DeviceReset"));
    action("Beginner")->trigger();
    QTRY_COMPARE(description(), QString());
    action("Guru")->trigger();
    QTRY_COMPARE(description().startsWith(QStringLiteral("Device Reset")), tree->GetCurrentNode() != nullptr);
}

// A camera with one command and what tells what it is about.
QString TestMainWindow::describeCamera(const QString &command, const QString &operation) const
{
    const QString entry =
        QStringLiteral("<Enumeration Name='%1'><EnumEntry Name='%2'><Value>0</Value></EnumEntry>"
                       "<Value>0</Value></Enumeration>");
    QString xml = QStringLiteral("<RegisterDescription ModelName='M' VendorName='V'><Category Name='Root'>"
                                 "<pFeature>%1</pFeature><pFeature>UserSetSelector</pFeature>"
                                 "<pFeature>FileSelector</pFeature><pFeature>FileOperationSelector</pFeature>"
                                 "</Category><Command Name='%1'><Value>0</Value>"
                                 "<CommandValue>1</CommandValue></Command>")
                      .arg(command);
    xml += entry.arg(QStringLiteral("UserSetSelector"), QStringLiteral("UserSet7"))
        + entry.arg(QStringLiteral("FileSelector"), QStringLiteral("Firmware"))
        + entry.arg(QStringLiteral("FileOperationSelector"), operation)
        + QStringLiteral("</RegisterDescription>");
    QFile file(m_folder.filePath(QStringLiteral("camera.xml")));
    return file.open(QFile::WriteOnly) && file.write(xml.toUtf8()) > 0 ? file.fileName() : QString();
}

void TestMainWindow::commandsAreConfirmed_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("named"); // in the question, "-" when there is none
    const auto row = [](const char *command, const char *operation, const char *named) {
        QTest::addRow("%s %s", command, operation)
            << QString(command) << QString(operation) << QString(named);
    };
    row("DeviceReset", "Open", "Restart");
    row("DeviceFactoryReset", "Open", "factory settings");
    row("UserSetLoad", "Open", "UserSet7");
    row("UserSetSave", "Open", "UserSet7");
    row("FileOperationExecute", "Write", "Firmware");
    row("FileOperationExecute", "Delete", "Firmware");
    row("FileOperationExecute", "Read", "-");
    row("TimestampReset", "Open", "-");
}

void TestMainWindow::commandsAreConfirmed()
{
    QFETCH(QString, command);
    QFETCH(QString, operation);
    QFETCH(QString, named);
    m_window->openInstead(CameraAddress::ofDescription(describeCamera(command, operation)));
    QTRY_VERIFY(!m_window->isOpening());
    FeatureTreeView *const view = m_window->featureTree()->treeView();
    const QSignalSpy written(view->model(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)));
    QVERIFY(show(qPrintable(command)));
    const auto execute = [&](QMessageBox::StandardButton answer, bool byKey) {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                timer.stop();
                ++m_boxes;
                QVERIFY(box->text().contains(named));
                QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
                box->checkBox()->setChecked(true);
                answer == QMessageBox::Yes ? box->button(answer)->click()
                                           : QTest::keyClick(box, Qt::Key_Escape);
            }
        });
        timer.start(0);
        QWidget *const button = view->indexWidget(view->currentIndex().siblingAtColumn(1));
        byKey ? QTest::keyClick(view, Qt::Key_Return) : QTest::mouseClick(button, Qt::LeftButton);
        QTest::qWait(20);
    };
    const int asked = named == QLatin1String("-") ? 0 : 1;
    execute(QMessageBox::No, false);
    execute(QMessageBox::Yes, true); // a no is not remembered
    QCOMPARE(m_boxes, 2 * asked);
    QCOMPARE(written.size(), 2 - asked);
    execute(QMessageBox::No, false); // silenced
    QCOMPARE(m_boxes, 2 * asked);
    QCOMPARE(written.size(), 3 - asked);
}

void TestMainWindow::messageGoesWithItsReason()
{
    auto *const bar = m_window->findChild<MessageBar *>();
    FeatureTreeView *const view = m_window->featureTree()->treeView();
    const auto enter = [this, view](const char *feature, const char *text) {
        QSignalSpy written(view->model(), SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)));
        QVERIFY(show(feature));
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        written.wait(100);
    };
    action("Guru")->trigger();
    enter("DeviceLinkThroughputLimit", "1");
    enter("DeviceManifestEntrySelector", "1");
    QVERIFY(bar->isVisible()); // another feature
    enter("DeviceManifestEntrySelector", "99");
    enter("DeviceLinkThroughputLimit", "100000000");
    QVERIFY(bar->isVisible());
    QVERIFY(bar->findChildren<QLabel *>().last()->text().startsWith(QStringLiteral("DeviceManifest")));
    // What a screen reader reads out, as it hears of it.
    QAccessibleInterface *const notification = QAccessible::queryAccessibleInterface(bar);
    QCOMPARE(notification->role(), QAccessible::Notification);
    QVERIFY(notification->text(QAccessible::Name).startsWith(QStringLiteral("Message: DeviceManifest")));
    enter("DeviceManifestEntrySelector", "0");
    QVERIFY(!bar->isVisible());
    QCOMPARE(notification->text(QAccessible::Name), QStringLiteral("Messages"));
}

// Opens the menu of the current row by the key, and chooses from it.
void TestMainWindow::chooseFromMenu(const QString &entry)
{
    FeatureTreeView *const view = m_window->featureTree()->treeView();
    bool isChosen = false;
    QTimer::singleShot(0, this, [view, &entry, &isChosen] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        const QPoint place = view->viewport()->mapFromGlobal(menu->pos());
        QCOMPARE(view->indexAt(place).row(), view->currentIndex().row());
        const auto actions = menu->actions();
        for (QAction *const action : actions) {
            if (plain(*action) == entry && action->isEnabled()) {
                isChosen = true;
                action->trigger();
            }
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {0, 0}, view->mapToGlobal(QPoint(0, 0)));
    QApplication::sendEvent(view->viewport(), &event);
    QVERIFY2(isChosen, qPrintable(entry));
}

void TestMainWindow::rowsHaveAMenu()
{
    FeatureTreeWidget *const tree = m_window->featureTree();
    QVERIFY(show("PixelFormat"));
    QTest::keyClick(tree->treeView(), Qt::Key_D, Qt::ControlModifier);
    const QList<std::pair<const char *, const char *>> copies{
        {"Copy Name", "PixelFormat"},
        {"Copy Value", "Mono8"},
        {"Copy Full Name", "@CameraDevice/PixelFormat"}};
    for (const auto &[entry, copied] : copies) {
        chooseFromMenu(QString(entry));
        QCOMPARE(QApplication::clipboard()->text(), QString(copied));
    }
    for (const bool isFavorite : {false, true}) {
        tree->treeView()->collapseAll();
        tree->setSearchText(QStringLiteral("pixel"));
        QVERIFY(show("PixelFormat"));
        if (isFavorite) {
            tree->treeView()->setCurrentIndex(tree->getFeatureExtension()->GetFavoritesRootIndex());
            QTest::keyClick(tree->treeView(), Qt::Key_Down);
        }
        QCOMPARE(tree->IsCurrentFavorite(), isFavorite);
        chooseFromMenu(QStringLiteral("Go To Feature"));
        QCOMPARE(tree->searchText(), QString());
        QVERIFY(!tree->IsCurrentFavorite() && tree->GetCurrentNode());
        QCOMPARE(tree->GetCurrentNode()->name(), QStringLiteral("PixelFormat"));
        QVERIFY(tree->treeView()->visualRect(tree->GetCurrentIndex()).isValid());
    }
}

void TestMainWindow::foldsTheTree()
{
    FeatureTreeView *const view = m_window->featureTree()->treeView();
    const QModelIndex top = view->model()->index(1, 0);
    QVERIFY(show("Gain"));
    QTest::keyClick(view, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!view->isExpanded(top));
    QCOMPARE(view->currentIndex(), top);
    QTest::keyClick(view, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(view->isExpanded(top) && view->isExpanded(view->model()->index(0, 0, top)));
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
    window.showCamera({}, cameraAt({}));
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
