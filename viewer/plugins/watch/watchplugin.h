// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <viewer/plugins/iviewerplugin.h>

#include <QObject>

/*! \brief The plug-in that watches chosen features over time. */
class WatchPlugin : public QObject, public IViewerPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zelto.viewer.IViewerPlugin/1")
    Q_INTERFACES(IViewerPlugin)

public:
    WatchPlugin();
    ~WatchPlugin() override;

    QWidget *createPanel(QObject *services, QWidget *parent) override;
};
