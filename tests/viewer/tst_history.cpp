// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/cameraaddress.h>
#include <viewer/mainwindow.h>
#include <viewer/settingsactions.h>

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/changehistorywidget.h>
#include <zeltoviewercomponents/settings/settingscomparisonwidget.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <memory>

class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void titleTellsOfChanges();
    void closingAsks();
    void goesToTheFeature();
    void comparesWithTheStateWhenOpened();
    void comparesWithFilesAndDescriptions_data();
    void comparesWithFilesAndDescriptions();

private:
    QAction *action(const QString &text) const;
    void enter(const QString &feature, const QString &text);
    QString value(const QString &feature) const;
    void save();

    std::unique_ptr<MainWindow> m_window;
    QTemporaryDir m_folder;
};

void TestHistory::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZeltoTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_history"));
    QSettings().clear();
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestHistory::cleanup()
{
    m_window.reset();
}

QAction *TestHistory::action(const QString &text) const
{
    const auto actions = m_window->findChildren<QAction *>();
    const auto found = std::find_if(actions.cbegin(), actions.cend(), [&text](const QAction *action) {
        return action->text().remove(QLatin1Char('&')) == text;
    });
    return found == actions.cend() ? nullptr : *found;
}

void TestHistory::enter(const QString &feature, const QString &text)
{
    FeatureTreeWidget *const tree = m_window->featureTree();
    QVERIFY(tree->showFeature(feature));
    tree->treeView()->setFocus();
    QTest::keyClick(tree->treeView(), Qt::Key_F2);
    QWidget *const input = QApplication::focusWidget();
    QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(input, text);
    QTest::keyClick(input, Qt::Key_Return);
    QTRY_COMPARE(value(feature), text);
}

QString TestHistory::value(const QString &feature) const
{
    const auto nodeMaps = m_window->settings()->nodeMaps();
    return nodeMaps.constFirst().collection->parameter(feature)->parameterData()->valueString;
}

void TestHistory::save()
{
    m_window->settings()->saveTo(m_folder.filePath(QStringLiteral("bench.txt")));
    QTRY_VERIFY2(m_window->windowTitle().startsWith(QLatin1String("bench.txt[*] ")),
                 qPrintable(m_window->windowTitle()));
}

void TestHistory::titleTellsOfChanges()
{
    enter(QStringLiteral("@CameraDevice/OffsetX"), QStringLiteral("16"));
    QVERIFY(!m_window->isWindowModified()); // from what?
    save();
    QVERIFY(!m_window->isWindowModified());
    enter(QStringLiteral("@CameraDevice/DeviceUserID"), QStringLiteral("lab"));
    QVERIFY(m_window->isWindowModified());
    QTest::keySequence(m_window->featureTree()->treeView(), QKeySequence::Undo);
    QTRY_VERIFY(!m_window->isWindowModified());
    QTRY_COMPARE(value(QStringLiteral("DeviceUserID")), QStringLiteral("bench"));
    m_window->closeCamera();
    QVERIFY(!m_window->windowTitle().contains(QLatin1String("bench.txt")));
    QVERIFY(!action(QStringLiteral("Undo"))->isEnabled());
}

void TestHistory::closingAsks()
{
    save();
    QVERIFY(m_window->close()); // nothing to lose
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    enter(QStringLiteral("@CameraDevice/DeviceUserID"), QStringLiteral("lab"));
    int questions = 0;
    for (const auto answer : {QMessageBox::Cancel, QMessageBox::Ok}) {
        QTimer::singleShot(0, this, [&questions, answer] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box && box->text().contains(QLatin1String("bench.txt")));
            ++questions;
            box->button(answer)->click();
        });
        QCOMPARE(m_window->close(), answer == QMessageBox::Ok);
    }
    QCOMPARE(questions, 2);
}

void TestHistory::goesToTheFeature()
{
    enter(QStringLiteral("@CameraDevice/DeviceUserID"), QStringLiteral("lab"));
    m_window->featureTree()->setSearchText(QStringLiteral("gain"));
    auto *const list = m_window->findChild<ChangeHistoryWidget *>();
    auto *const view = list->findChild<QTreeView *>();
    QTRY_COMPARE(view->model()->rowCount(), 1);
    view->setCurrentIndex(view->model()->index(0, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_window->featureTree()->GetCurrentNode()->name(), QStringLiteral("DeviceUserID"));
}

void TestHistory::comparesWithTheStateWhenOpened()
{
    enter(QStringLiteral("@CameraDevice/DeviceUserID"), QStringLiteral("lab"));
    enter(QStringLiteral("@CameraDevice/Gain"), QStringLiteral("2.5"));
    action(QStringLiteral("The State When Opened"))->trigger();
    auto *const panel = m_window->findChild<SettingsComparisonWidget *>();
    const QAbstractItemModel *const rows = panel->findChild<QTreeView *>()->model();
    QTRY_COMPARE(rows->rowCount(), 2);
    QVERIFY(panel->isVisible());
    QCOMPARE(rows->index(1, 0).data().toString(), QStringLiteral("Gain [GainSelector=All]"));
    QStringList shown; // by the tree, whenever the camera is about to be written or read
    FeatureTreeWidget *const tree = m_window->featureTree();
    QVERIFY(tree->showFeature(QStringLiteral("@CameraDevice/DeviceUserID")));
    const auto shownValue = [tree] {
        return tree->treeView()->currentIndex().siblingAtColumn(1).data().toString();
    };
    QTRY_COMPARE(shownValue(), QStringLiteral("lab"));
    connect(tree, &FeatureTreeWidget::restingChanged, this, [&shown, &shownValue](bool isResting) {
        shown += isResting ? shownValue() : QStringLiteral("-");
    });
    const auto buttons = panel->findChildren<QToolButton *>();
    for (QToolButton *const button : buttons) {
        if (button->text() == QLatin1String("Take Over All")) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QTRY_COMPARE(rows->rowCount(), 0);
    QCOMPARE(shown, QStringList({"lab", "-", "bench", "-"}));
    QCOMPARE(value(QStringLiteral("DeviceUserID")), QStringLiteral("bench"));
    QTest::keySequence(m_window->featureTree()->treeView(), QKeySequence::Undo); // one step
    QTRY_COMPARE(value(QStringLiteral("DeviceUserID")), QStringLiteral("lab"));
    QTRY_COMPARE(value(QStringLiteral("Gain")), QStringLiteral("2.5"));
}

void TestHistory::comparesWithFilesAndDescriptions_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("title");
    const QString file = m_folder.filePath(QStringLiteral("lab.txt"));
    QFile settings(file);
    QVERIFY(settings.open(QFile::WriteOnly));
    settings.write("DeviceUserID\tlab\n");
    QTest::newRow("file") << QStringLiteral("A File…") << file << QStringLiteral("Differences from lab.txt");
    QTest::newRow("description") << QStringLiteral("Another Description…") << QStringLiteral(DESCRIPTION_FILE)
                                 << QStringLiteral("Differences from SimulatedCamera");
}

void TestHistory::comparesWithFilesAndDescriptions()
{
    QFETCH(const QString, entry);
    QFETCH(const QString, fileName);
    QFETCH(const QString, title);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&timer, &fileName] {
        if (auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            timer.stop();
            dialog->findChild<QLineEdit *>()->setText(fileName);
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
    timer.start(50);
    action(entry)->trigger();
    auto *const panel = m_window->findChild<SettingsComparisonWidget *>();
    const QAbstractItemModel *const rows = panel->findChild<QTreeView *>()->model();
    QTRY_VERIFY(rows->rowCount() > 0);
    const auto labels = panel->findChildren<QLabel *>();
    QVERIFY2(labels.constFirst()->text().startsWith(title), qPrintable(labels.constFirst()->text()));
    bool isUserIdSeen = false;
    for (int row = 0; row < rows->rowCount(); ++row) {
        isUserIdSeen = isUserIdSeen || rows->index(row, 0).data() == QStringLiteral("DeviceUserID");
    }
    QVERIFY(isUserIdSeen);
    QVERIFY(!m_window->featureTree()->isResting());
}

QTEST_MAIN(TestHistory)
#include "tst_history.moc"
