// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/service.h>
#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>
#include <QString>

namespace Plugin::FeatureTree {

/*! \brief Tells plug-ins what happens in the feature tree. The provider of the tree emits the signals.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IFeatureTreeStatusService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IFeatureTreeStatusService(QObject *parent = nullptr);
    ~IFeatureTreeStatusService() override;

Q_SIGNALS:
    /*! The user level has changed. */
    void visibilityChanged(GenApi::EVisibility level);
    /*! Another row is current; \a parameter is null for a row without parameter. */
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! The description of the current row has changed. */
    void newText(QString text);
};

} // namespace Plugin::FeatureTree
