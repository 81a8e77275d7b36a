// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/mainwindow.h>

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QHostAddress>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QWindow>

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
    void reconnectingKeepsTheTree();
    void clickOnALockedEditorGoesToItsRow();

private:
    QAction *action(const char *text) const;
    void enterIpConfiguration(const char *ip, bool silence);

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

void TestMainWindow::reconnectingKeepsTheTree()
{
    FeatureTreeWidget *const tree = m_window->featureTree();
    const auto row = [tree](int category, int feature) {
        const QAbstractItemModel *const model = tree->treeView()->model();
        return model->index(feature, 0, model->index(category, 0, model->index(1, 0)));
    };
    tree->treeView()->expand(row(1, 0).parent());
    tree->treeView()->setCurrentIndex(row(1, 2));
    const QString current = row(1, 2).data().toString();
    auto *const box = tree->findChild<QLineEdit *>(QStringLiteral("filterEdit"));
    box->setText(QStringLiteral("exposure"));

    m_window->reconnect();
    QCOMPARE(box->text(), QStringLiteral("exposure"));
    box->clear();
    QCOMPARE(tree->treeView()->currentIndex().data().toString(), current);
    QVERIFY(tree->treeView()->isExpanded(row(1, 0).parent()));
    QVERIFY(!tree->treeView()->isExpanded(row(0, 0).parent()));

    m_window->closeCamera();
    m_window->reconnect();
    QVERIFY(tree->treeView()->isExpanded(row(1, 0).parent().parent()));
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

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
