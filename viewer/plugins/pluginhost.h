// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QObject;
class QWidget;

/*! \brief Loads the viewer's plug-ins and has them make their panels. */
class PluginHost
{
public:
    /*! Returns the folders in which plug-ins are looked for. */
    static QStringList folders();

    /*! Loads the plug-ins in \a folders, each file name once, the first that is found; a plug-in that fails
     * is logged and left out. Returns the panels, which belong to \a parent. */
    static QList<QWidget *> createPanels(const QStringList &folders, QObject *services, QWidget *parent);
};
