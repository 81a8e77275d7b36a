// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtPlugin>

class QObject;
class QWidget;

/*! \brief What a plug-in of the viewer implements: it contributes a panel to the viewer's window.
 *
 * Plug-ins are libraries in the folder "plugins" beside the viewer's program or in the installation's folder
 * for them. The object name, window title, tool tip and window icon of the panel stand for it in the window.
 */
class IViewerPlugin
{
public:
    virtual ~IViewerPlugin() = default;

    /*! Returns a new panel, or null when the plug-in has none to show. The viewer owns the panel.
     *
     * \param services the parent of the services that the viewer offers, which outlives the panel. A plug-in
     *     looks for what it needs by interface, services->findChild<Plugin::...::I...Service *>(), and does
     *     without what it does not find.
     */
    virtual QWidget *createPanel(QObject *services, QWidget *parent) = 0;

protected:
    IViewerPlugin() = default;
    Q_DISABLE_COPY_MOVE(IViewerPlugin)
};

Q_DECLARE_INTERFACE(IViewerPlugin, "zelto.viewer.IViewerPlugin/1")
