// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchplugin.h"

#include "watchpanel.h"

#include <viewer/plugins/iviewerfeatures.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>

#include <QPointer>

using namespace Plugin;

namespace {

// Looks the service up anew at each call: it may be gone.
WatchPanel::Finder finderIn(QObject *services)
{
    return [services = QPointer<QObject>(services)](const QString &fullName) {
        const auto children = services ? services->children() : QObjectList();
        for (QObject *const child : children) {
            if (auto *const features = qobject_cast<IViewerFeatures *>(child)) {
                return features->feature(fullName);
            }
        }
        return QSharedPointer<ParameterCollection::IParameter>();
    };
}

} // namespace

WatchPlugin::WatchPlugin() = default;

WatchPlugin::~WatchPlugin() = default;

QWidget *WatchPlugin::createPanel(QObject *services, QWidget *parent)
{
    const auto *const status = services->findChild<FeatureTree::IFeatureTreeStatusService *>();
    if (!status) {
        return nullptr;
    }
    auto *const panel = new WatchPanel(finderIn(services), parent);
    connect(status, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)), panel,
            SLOT(setCurrent(QSharedPointer<ParameterCollection::IParameter>)));
    const auto *const camera =
        services->findChild<ZeltoViewer::IZeltoViewerControlledCameraStatusService *>();
    if (camera) {
        connect(camera, SIGNAL(cameraFullyInitialized(Core::CameraPoolComponents::CameraInfoPtr)), panel,
                SLOT(useCamera(Core::CameraPoolComponents::CameraInfoPtr)));
    }
    return panel;
}
