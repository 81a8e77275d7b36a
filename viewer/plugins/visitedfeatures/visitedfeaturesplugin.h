// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <viewer/plugins/iviewerplugin.h>

#include <QObject>

/*! \brief The plug-in that contributes the list of the features visited last. */
class VisitedFeaturesPlugin : public QObject, public IViewerPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zelto.viewer.IViewerPlugin/1")
    Q_INTERFACES(IViewerPlugin)

public:
    VisitedFeaturesPlugin();
    ~VisitedFeaturesPlugin() override;

    QWidget *createPanel(QObject *services, QWidget *parent) override;
};
