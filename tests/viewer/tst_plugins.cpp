// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/logcapture.h>
#include <viewer/mainwindow.h>
#include <viewer/plugins/pluginhost.h>
#include <viewer/settingsactions.h>

#include <platform/parametercollection/simplecollection.h>
#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>
#include <zeltoviewercomponents/plugin/Workbench/iworkbenchservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcameracontrolservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>
#include <zeltoviewercomponents/plugin/names.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <memory>

using namespace Plugin;

namespace {

QString feature(const char *name)
{
    return "@CameraDevice/" + QLatin1String(name);
}

} // namespace

class TestPlugins : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsFeatures_data();
    void showsFeatures();
    void searchGivesWay();
    void statusFollowsTheTree();
    void cameraClosesAndOpens();
    void visitsAreListed();
    void listIsLimitedToTwenty();
    void visitsLeadBack();
    void goneFeaturesAreSurvived();
    void watchGoesOnAfterReconnecting();
    void workbenchSelectsPages();
    void brokenPluginsAreLeftOut();
    void exampleFollowsTheFeature();
    void helpLinkFollowsTheFeature();

private:
    template <typename Service>
    Service *service() const
    {
        return m_window->services()->findChild<Service *>();
    }
    bool show(const char *name) const;
    QListWidget *visits() const;
    QStringList visitedNames() const;

    std::unique_ptr<MainWindow> m_window;
};

void TestPlugins::init()
{
    QCoreApplication::setOrganizationName("ZeltoTest");
    QCoreApplication::setApplicationName("tst_plugins");
    QSettings().clear();
    m_window = std::make_unique<MainWindow>();
    m_window->showCamera({}, cameraAt({}));
    m_window->findChild<QDockWidget *>("visitedFeaturesDock")->show();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestPlugins::cleanup()
{
    m_window.reset();
}

bool TestPlugins::show(const char *name) const
{
    return service<FeatureTree::IFeatureTreeControlService>()->showFeature(feature(name));
}

QListWidget *TestPlugins::visits() const
{
    return m_window->findChild<QWidget *>("visitedFeatures")->findChild<QListWidget *>();
}

QStringList TestPlugins::visitedNames() const
{
    QStringList names;
    for (int row = 0; row < visits()->count(); ++row) {
        names.append(visits()->item(row)->data(Qt::UserRole).toString());
    }
    return names;
}

void TestPlugins::showsFeatures_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("fullName");
    QTest::addColumn<bool>("isShown");

    const QString guruFeature = "@DeviceTransportLayer/GevPersistentIPAddress";
    QTest::newRow("usual") << int(GenApi::Beginner) << feature("Width") << true;
    QTest::newRow("another node map") << int(GenApi::Guru) << guruFeature << true;
    QTest::newRow("above the level") << int(GenApi::Beginner) << feature("DeviceReset") << false;
    QTest::newRow("unknown") << int(GenApi::Guru) << feature("Nothing") << false;
    QTest::newRow("empty") << int(GenApi::Guru) << QString() << false;
}

void TestPlugins::showsFeatures()
{
    QFETCH(int, level);
    QFETCH(QString, fullName);
    auto *const control = service<FeatureTree::IFeatureTreeControlService>();
    control->setVisibility(static_cast<GenApi::EVisibility>(level));
    QTEST(control->showFeature(fullName), "isShown");
    const auto node = m_window->featureTree()->GetCurrentNode();
    QTEST(node && node->fullName() == fullName, "isShown");
}

void TestPlugins::searchGivesWay()
{
    auto *const search = m_window->featureTree()->findChild<QLineEdit *>("filterEdit");
    search->setText("exposure");
    QVERIFY(show("ExposureTime"));
    QCOMPARE(search->text(), "exposure");
    QVERIFY(show("Width"));
    QCOMPARE(search->text(), QString());
    QCOMPARE(m_window->featureTree()->GetCurrentNode()->fullName(), feature("Width"));
}

void TestPlugins::statusFollowsTheTree()
{
    auto *const status = service<FeatureTree::IFeatureTreeStatusService>();
    QSignalSpy current(status, &FeatureTree::IFeatureTreeStatusService::currentChanged);
    QSignalSpy level(status, &FeatureTree::IFeatureTreeStatusService::visibilityChanged);
    QVERIFY(show("Width"));
    QCOMPARE(current.size(), 1);
    const auto parameter = current.first().first().value<QSharedPointer<ParameterCollection::IParameter>>();
    QCOMPARE(parameter->name(), "Width");
    QTest::keyClick(m_window->featureTree()->treeView(), Qt::Key_Home); // the favorites
    QCOMPARE(current.size(), 2);
    QVERIFY(current.last().first().value<QSharedPointer<ParameterCollection::IParameter>>().isNull());
    m_window->featureTree()->onVisibilityChanged(GenApi::Expert);
    QCOMPARE(level.size(), 1);
    service<FeatureTree::IFeatureTreeControlService>()->setPolling(true);
    QVERIFY(m_window->featureTree()->getPolling());
}

void TestPlugins::cameraClosesAndOpens()
{
    auto *const control = service<ZeltoViewer::IZeltoViewerControlledCameraControlService>();
    QCOMPARE(control->objectName(), ServiceName::Device);
    QSignalSpy opened(service<ZeltoViewer::IZeltoViewerControlledCameraStatusService>(),
                      &ZeltoViewer::IZeltoViewerControlledCameraStatusService::cameraFullyInitialized);
    QVERIFY(control->setCameraOpen(false));
    QVERIFY(!m_window->isCameraOpen());
    QVERIFY(control->setCameraOpen(false));
    QVERIFY(opened.isEmpty());
    QVERIFY(!show("Width"));

    QVERIFY(!control->setCameraOpen(true)); // not yet
    QVERIFY(!control->setCameraOpen(true));
    QVERIFY(opened.wait());
    QVERIFY(control->setCameraOpen(true));
    QCOMPARE(opened.size(), 1);
    QVERIFY(show("Width"));
}

void TestPlugins::visitsAreListed()
{
    QCOMPARE(visitedNames(), QStringList());
    for (const char *const name : {"Width", "Height", "Gain", "Width"}) {
        QVERIFY(show(name));
    }
    QCOMPARE(visitedNames(), QStringList({feature("Width"), feature("Gain"), feature("Height")}));
    QCOMPARE(visits()->item(0)->text(), "Width");

    m_window->closeCamera();
    m_window->showCamera({}, cameraAt({}));
    QCOMPARE(visits()->count(), 3);
}

void TestPlugins::listIsLimitedToTwenty()
{
    auto *const tree = m_window->featureTree();
    QVERIFY(show("Width"));
    QStringList walked;
    while (walked.size() < 25) {
        QTest::keyClick(tree->treeView(), Qt::Key_Down);
        const auto node = tree->GetCurrentNode();
        QVERIFY(node);
        walked.prepend(node->fullName());
    }
    QCOMPARE(visitedNames(), walked.mid(0, 20));
}

void TestPlugins::visitsLeadBack()
{
    QVERIFY(show("Width"));
    QVERIFY(show("Height"));
    QVERIFY(show("Gain"));
    QListWidget *const list = visits();
    const QPoint last = list->visualItemRect(list->item(2)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, last);
    QCOMPARE(m_window->featureTree()->GetCurrentNode()->fullName(), feature("Width"));
    QCOMPARE(visitedNames().first(), feature("Width"));

    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(m_window->featureTree()->GetCurrentNode()->fullName(), feature("Gain"));
    QCOMPARE(list->currentRow(), 0);

    QTreeView *const tree = m_window->featureTree()->treeView();
    const QModelIndex top = tree->model()->index(1, 0);
    tree->setCurrentIndex(top);
    QCOMPARE(list->item(0)->text(), QStringLiteral("Camera"));
    QVERIFY(!list->item(0)->toolTip().contains(QStringLiteral("Root")));
    QVERIFY(show("Width"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
    QCOMPARE(tree->currentIndex(), top);
}

void TestPlugins::goneFeaturesAreSurvived()
{
    QVERIFY(show("Width"));
    m_window->closeCamera();
    QListWidget *const list = visits();
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(visitedNames(), QStringList{feature("Width")});
}

void TestPlugins::watchGoesOnAfterReconnecting()
{
    auto *const panel = m_window->findChild<QWidget *>("watch");
    const QAbstractItemModel *const rows = panel->findChild<QTreeView *>()->model();
    QVERIFY(show("Gain"));
    const auto buttons = panel->findChildren<QToolButton *>();
    buttons.first()->click(); // "Add"
    QTRY_COMPARE(rows->index(0, 1).data().toString(), "0");
    auto *const control = service<ZeltoViewer::IZeltoViewerControlledCameraControlService>();
    QVERIFY(control->setCameraOpen(false));
    control->setCameraOpen(true);
    QTRY_VERIFY(m_window->isCameraOpen());
    m_window->settings()->nodeMaps().first().collection->parameter("Gain")->setValueFromString("3");
    QTRY_COMPARE(rows->index(0, 1).data().toString(), "3");
    QVERIFY(m_window->isCameraOpen());
}

void TestPlugins::workbenchSelectsPages()
{
    auto *const workbench = service<Workbench::IWorkbenchService>();
    QCOMPARE(workbench->objectName(), ServiceName::Workbench);
    QSignalSpy selected(workbench, &Workbench::IWorkbenchService::selectedItemChanged);
    QSignalSpy destroyed(workbench, &Workbench::IWorkbenchService::itemDestroyed);
    auto *const dock = m_window->findChild<QDockWidget *>("visitedFeaturesDock");
    dock->hide();

    QVERIFY(workbench->selectItem("visitedFeatures"));
    QVERIFY(dock->isVisible());
    QVERIFY(visits()->hasFocus());
    const auto item = selected.last().first().value<Workbench::WorkbenchBaseInfoPtr>();
    QCOMPARE(item->title(), "Visited Features");
    QCOMPARE(item->widget(), visits()->parentWidget());

    QVERIFY(workbench->selectItem("featureTree"));
    QVERIFY(m_window->featureTree()->isAncestorOf(QApplication::focusWidget()));
    QVERIFY(!workbench->selectItem("nothing"));
    QCOMPARE(selected.last().first().value<Workbench::WorkbenchBaseInfoPtr>()->id(), "featureTree");

    delete dock;
    QCOMPARE(destroyed.size(), 1);
    QCOMPARE(item->widget(), nullptr);
    QVERIFY(!workbench->selectItem("visitedFeatures"));
}

void TestPlugins::brokenPluginsAreLeftOut()
{
    const QTemporaryDir folder;
    QFile broken(folder.filePath("libbroken.so"));
    QVERIFY(broken.open(QFile::WriteOnly));
    broken.write("no library");
    broken.close();
    QFile text(folder.filePath("readme.txt"));
    QVERIFY(text.open(QFile::WriteOnly));

    LogCapture log;
    QObject services; // none that the panel could do with
    QWidget parent;
    const QStringList folders{folder.path(), folder.filePath("missing")};
    QVERIFY(PluginHost::createPanels(folders + PluginHost::folders(), &services, &parent).isEmpty());
    QCOMPARE(log.messages().size(), 1);
    QVERIFY(log.messages().first().contains(QLatin1String("libbroken.so")));
}

void TestPlugins::exampleFollowsTheFeature()
{
    QObject services;
    Plugin::FeatureTree::IFeatureTreeStatusService status(&services);
    QWidget parent;
    const auto panels = PluginHost::createPanels({ZELTO_EXAMPLE_PLUGINS}, &services, &parent);
    QCOMPARE(panels.size(), 1);
    const auto *const label = qobject_cast<QLabel *>(panels.first());
    QVERIFY(label);
    const auto camera = QSharedPointer<ParameterCollection::SimpleCollection>::create("@CameraDevice");
    const auto width = camera->root().addInteger("Width", 640);
    emit status.currentChanged(width.parameter());
    QCOMPARE(label->text(), "640");
    width.setValue(320);
    QTRY_COMPARE(label->text(), "320");
}

void TestPlugins::helpLinkFollowsTheFeature()
{
    auto *const link = m_window->findChild<HelpLink *>();
    QVERIFY(!link->isVisible());
    QVERIFY(show("Width"));
    QVERIFY(link->isVisible());
    QCOMPARE(link->address(), QUrl("https://example.org/features/width"));
    QVERIFY(show("Height"));
    QVERIFY(!link->isVisible());
}

QTEST_MAIN(TestPlugins)
#include "tst_plugins.moc"
