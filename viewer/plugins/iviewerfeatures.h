// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>
#include <QString>
#include <QtPlugin>

/*! \brief The features of the viewer's camera, for plug-ins.
 *
 * One of the children of the services that a plug-in gets is a QObject of this interface; qobject_cast()
 * finds it.
 */
class IViewerFeatures
{
public:
    virtual ~IViewerFeatures() = default;

    /*! Returns the feature of that full name, such as "@CameraDevice/Gain"; null when the open camera has
     * none.
     */
    virtual QSharedPointer<ParameterCollection::IParameter> feature(const QString &fullName) const = 0;

protected:
    IViewerFeatures() = default;
    Q_DISABLE_COPY_MOVE(IViewerFeatures)
};

Q_DECLARE_INTERFACE(IViewerFeatures, "zelto.viewer.IViewerFeatures/1")
