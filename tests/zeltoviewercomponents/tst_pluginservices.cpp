// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>
#include <zeltoviewercomponents/plugin/Workbench/iworkbenchbaseinfo.h>
#include <zeltoviewercomponents/plugin/Workbench/iworkbenchservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcameracontrolservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>
#include <zeltoviewercomponents/plugin/names.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Plugin;

namespace {

class TreeControl : public FeatureTree::IFeatureTreeControlService
{
public:
    using IFeatureTreeControlService::IFeatureTreeControlService;
    bool showFeature(const QString &fullName) override { return fullName == shown; }
    void setVisibility(GenApi::EVisibility level) override { visibility = level; }
    void setPolling(bool enable) override { polling = enable; }
    void refresh() override { ++refreshCount; }

    QString shown = QStringLiteral("@CameraDevice/Gain");
    GenApi::EVisibility visibility = GenApi::Beginner;
    bool polling = false;
    int refreshCount = 0;
};

class CameraControl : public ZeltoViewer::IZeltoViewerControlledCameraControlService
{
public:
    using IZeltoViewerControlledCameraControlService::IZeltoViewerControlledCameraControlService;
    bool setCameraOpen(bool open) override { return open; }
};

class Page : public Workbench::IWorkbenchBaseInfo
{
public:
    using IWorkbenchBaseInfo::IWorkbenchBaseInfo;
    QString id() const override { return QStringLiteral("page"); }
    QString title() const override { return QStringLiteral("Page"); }
    QString toolTip() const override { return QString(); }
    QIcon icon() const override { return QIcon(); }
    QWidget *widget() const override { return nullptr; }
};

class Pages : public Workbench::IWorkbenchService
{
public:
    using IWorkbenchService::IWorkbenchService;
    bool selectItem(const QString &id) override
    {
        if (id != page->id()) {
            return false;
        }
        emit selectedItemChanged(page);
        return true;
    }

    Workbench::WorkbenchBaseInfoPtr page{new Page};
};

QStringList basesOf(const QMetaObject *metaObject)
{
    QStringList bases;
    for (const QMetaObject *base = metaObject->superClass(); base; base = base->superClass()) {
        bases.append(QString::fromLatin1(base->className()));
    }
    return bases;
}

QStringList signalsOf(const QMetaObject *metaObject)
{
    QStringList signatures;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            signatures.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return signatures;
}

} // namespace

class TestPluginServices : public QObject
{
    Q_OBJECT

private slots:
    void basesAndSignals_data();
    void basesAndSignals();
    void treeControlThroughItsInterface();
    void signalsCarryTheirArguments();
    void workbenchSelection();
    void names();
};

void TestPluginServices::basesAndSignals_data()
{
    QTest::addColumn<const QMetaObject *>("metaObject");
    QTest::addColumn<QStringList>("bases");
    QTest::addColumn<QStringList>("signatures");
    const QStringList service{QStringLiteral("Core::Service::IService"), QStringLiteral("QObject")};
    const auto row = [](const QMetaObject &metaObject, const QStringList &bases,
                        const QStringList &signatures) {
        QTest::newRow(metaObject.className()) << &metaObject << bases << signatures;
    };
    row(FeatureTree::IFeatureTreeControlService::staticMetaObject, service, {});
    row(FeatureTree::IFeatureTreeStatusService::staticMetaObject, service,
        {QStringLiteral("visibilityChanged(GenApi::EVisibility)"),
         QStringLiteral("currentChanged(QSharedPointer<ParameterCollection::IParameter>)"),
         QStringLiteral("newText(QString)")});
    row(ZeltoViewer::IZeltoViewerControlledCameraControlService::staticMetaObject, service, {});
    row(ZeltoViewer::IZeltoViewerControlledCameraStatusService::staticMetaObject, service,
        {QStringLiteral("cameraFullyInitialized(Core::CameraPoolComponents::CameraInfoPtr)")});
    row(Workbench::IWorkbenchBaseInfo::staticMetaObject,
        {QStringLiteral("Core::AppCoreComponents::IBaseInfo"),
         QStringLiteral("Core::AppCoreComponents::CContextObject"), QStringLiteral("QObject")},
        {});
    row(Workbench::IWorkbenchService::staticMetaObject, service,
        {QStringLiteral("selectedItemChanged(WorkbenchBaseInfoPtr)"),
         QStringLiteral("itemCreated(WorkbenchBaseInfoPtr)"),
         QStringLiteral("itemDestroyed(WorkbenchBaseInfoPtr)"), QStringLiteral("workbenchSelected(bool)")});
}

void TestPluginServices::basesAndSignals()
{
    QFETCH(const QMetaObject *, metaObject);
    QFETCH(QStringList, bases);
    QFETCH(QStringList, signatures);
    QCOMPARE(basesOf(metaObject), bases);
    QCOMPARE(signalsOf(metaObject), signatures);
}

void TestPluginServices::treeControlThroughItsInterface()
{
    QObject parent;
    auto *const control = new TreeControl(&parent);
    // As a consumer finds it: an object whose class it does not know.
    QObject *const found = parent.children().constFirst();
    auto *const service = qobject_cast<FeatureTree::IFeatureTreeControlService *>(found);
    QVERIFY(service);
    QVERIFY(qobject_cast<Core::Service::IService *>(found));
    QVERIFY(service->showFeature(QStringLiteral("@CameraDevice/Gain")));
    QVERIFY(!service->showFeature(QString()));
    service->setVisibility(GenApi::Guru);
    service->setPolling(true);
    service->refresh();
    QCOMPARE(control->visibility, GenApi::Guru);
    QVERIFY(control->polling);
    QCOMPARE(control->refreshCount, 1);

    ZeltoViewer::IZeltoViewerControlledCameraControlService *const camera = new CameraControl(&parent);
    QVERIFY(camera->setCameraOpen(true));
    QVERIFY(!camera->setCameraOpen(false));
}

void TestPluginServices::signalsCarryTheirArguments()
{
    FeatureTree::IFeatureTreeStatusService tree;
    QSignalSpy level(&tree, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    QSignalSpy current(&tree, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)));
    emit tree.visibilityChanged(GenApi::Expert);
    emit tree.currentChanged({});
    QCOMPARE(level.constFirst().constFirst().value<GenApi::EVisibility>(), GenApi::Expert);
    QVERIFY(
        current.constFirst().constFirst().value<QSharedPointer<ParameterCollection::IParameter>>().isNull());

    ZeltoViewer::IZeltoViewerControlledCameraStatusService camera;
    QSignalSpy opened(&camera,
                      SIGNAL(cameraFullyInitialized(const Core::CameraPoolComponents::CameraInfoPtr &)));
    emit camera.cameraFullyInitialized({});
    QCOMPARE(opened.size(), 1);
}

void TestPluginServices::workbenchSelection()
{
    Pages pages;
    QSignalSpy selected(&pages, SIGNAL(selectedItemChanged(WorkbenchBaseInfoPtr)));
    QVERIFY(!pages.selectItem(QStringLiteral("other")));
    QVERIFY(pages.selectItem(QStringLiteral("page")));
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.constFirst().constFirst().value<Workbench::WorkbenchBaseInfoPtr>(), pages.page);
}

void TestPluginServices::names()
{
    QCOMPARE(QStringList({ServiceName::Device, ServiceName::Workbench}),
             QStringList({QStringLiteral("Device"), QStringLiteral("Workbench")}));
    QCOMPARE(QStringList({DeviceClass::CL, DeviceClass::CXP, DeviceClass::Vexor, DeviceClass::Custom,
                          DeviceClass::GEV, DeviceClass::IPCam}),
             QStringList({QStringLiteral("CL"), QStringLiteral("CXP"), QStringLiteral("Vexor"),
                          QStringLiteral("Custom"), QStringLiteral("GEV"), QStringLiteral("IPCam")}));
}

QTEST_MAIN(TestPluginServices)
#include "tst_pluginservices.moc"
