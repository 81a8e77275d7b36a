// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "visitedfeaturesplugin.h"

#include "visitedfeaturespanel.h"

#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreecontrolservice.h>
#include <zeltoviewercomponents/plugin/FeatureTree/ifeaturetreestatusservice.h>
#include <zeltoviewercomponents/plugin/ZeltoViewer/izeltoviewercontrolledcamerastatusservice.h>

using namespace Plugin;

VisitedFeaturesPlugin::VisitedFeaturesPlugin() = default;

VisitedFeaturesPlugin::~VisitedFeaturesPlugin() = default;

QWidget *VisitedFeaturesPlugin::createPanel(QObject *services, QWidget *parent)
{
    auto *const control = services->findChild<FeatureTree::IFeatureTreeControlService *>();
    const auto *const status = services->findChild<FeatureTree::IFeatureTreeStatusService *>();
    if (!control || !status) {
        return nullptr;
    }
    auto *const panel = new VisitedFeaturesPanel(control, parent);
    connect(status, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)), panel,
            SLOT(addVisit(QSharedPointer<ParameterCollection::IParameter>)));
    const auto *const camera =
        services->findChild<ZeltoViewer::IZeltoViewerControlledCameraStatusService *>();
    if (camera) {
        connect(camera, SIGNAL(cameraFullyInitialized(Core::CameraPoolComponents::CameraInfoPtr)), panel,
                SLOT(useCamera(Core::CameraPoolComponents::CameraInfoPtr)));
    }
    return panel;
}
