// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>
#include <zeltoviewercomponents/plugin/Workbench/iworkbenchbaseinfo.h>
#include <zeltoviewercomponents/plugin/Workbench/iworkbenchservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcameracontrolservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

using namespace Plugin;

/*! \brief What plugins rely on when they find services by class and connect to signals by name. */
class TestPluginServices : public QObject
{
    Q_OBJECT

private slots:
    void servicesAreFoundByTheirBases_data();
    void servicesAreFoundByTheirBases();
    void signalsCarryTheirArguments();
};

void TestPluginServices::servicesAreFoundByTheirBases_data()
{
    columns<const QMetaObject *, QStringList, QStringList>({"metaObject", "bases", "signatures"});
    const auto rowOf = [](const QMetaObject &metaObject, const QStringList &bases,
                          const QStringList &signatures) {
        row(metaObject.className(), &metaObject, bases, signatures);
    };
    const QStringList service{"Core::Service::IService", "QObject"};
    rowOf(FeatureTree::IFeatureTreeControlService::staticMetaObject, service, {});
    rowOf(FeatureTree::IFeatureTreeStatusService::staticMetaObject, service,
          {"visibilityChanged(GenApi::EVisibility)",
           "currentChanged(QSharedPointer<ParameterCollection::IParameter>)", "newText(QString)"});
    rowOf(ZeltoViewer::IZeltoViewerControlledCameraControlService::staticMetaObject, service, {});
    rowOf(ZeltoViewer::IZeltoViewerControlledCameraStatusService::staticMetaObject, service,
          {"cameraFullyInitialized(Core::CameraPoolComponents::CameraInfoPtr)"});
    rowOf(Workbench::IWorkbenchBaseInfo::staticMetaObject,
          {"Core::AppCoreComponents::IBaseInfo", "Core::AppCoreComponents::CContextObject", "QObject"}, {});
    rowOf(Workbench::IWorkbenchService::staticMetaObject, service,
          {"selectedItemChanged(WorkbenchBaseInfoPtr)", "itemCreated(WorkbenchBaseInfoPtr)",
           "itemDestroyed(WorkbenchBaseInfoPtr)", "workbenchSelected(bool)"});
}

void TestPluginServices::servicesAreFoundByTheirBases()
{
    QFETCH(const QMetaObject *, metaObject);
    QStringList bases;
    for (const QMetaObject *base = metaObject->superClass(); base; base = base->superClass()) {
        bases.append(base->className());
    }
    QTEST(bases, "bases");
    QStringList signatures;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        if (metaObject->method(i).methodType() == QMetaMethod::Signal) {
            signatures.append(metaObject->method(i).methodSignature());
        }
    }
    QTEST(signatures, "signatures");
}

void TestPluginServices::signalsCarryTheirArguments()
{
    FeatureTree::IFeatureTreeStatusService tree;
    QSignalSpy level(&tree, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    emit tree.visibilityChanged(GenApi::Expert);
    QCOMPARE(level.constFirst().constFirst().value<GenApi::EVisibility>(), GenApi::Expert);
    ZeltoViewer::IZeltoViewerControlledCameraStatusService camera;
    QSignalSpy opened(&camera,
                      SIGNAL(cameraFullyInitialized(const Core::CameraPoolComponents::CameraInfoPtr &)));
    emit camera.cameraFullyInitialized({});
    QCOMPARE(opened.size(), 1);
}

QTEST_GUILESS_MAIN(TestPluginServices)
#include "tst_pluginservices.moc"
