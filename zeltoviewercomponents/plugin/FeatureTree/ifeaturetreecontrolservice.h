// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <platform/core/service.h>
#include <platform/genicam/genapi.h>

#include <QString>

namespace Plugin::FeatureTree {

/*! \brief Lets plug-ins drive the feature tree, as its user does.
 *
 * \ingroup plugins
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT IFeatureTreeControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IFeatureTreeControlService(QObject *parent = nullptr);
    ~IFeatureTreeControlService() override;

    /*! Makes the feature current and scrolls to it. \a fullName is the full name of its parameter. Returns
     * false when the tree has no such feature or shows it at no level that is set now. */
    virtual bool showFeature(const QString &fullName) = 0;
    /*! Sets the user level from which on features are shown. */
    virtual void setVisibility(GenApi::EVisibility level) = 0;
    /*! Switches the periodic reading of volatile features on or off. */
    virtual void setPolling(bool enable) = 0;
    /*! Reads all features anew. */
    virtual void refresh() = 0;
};

} // namespace Plugin::FeatureTree
