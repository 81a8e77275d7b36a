// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <viewer/plugins/iviewerfeatures.h>

#include <QObject>

class SettingsActions;

/*! \brief Gives plug-ins the features of the viewer's camera. */
class FeatureService : public QObject, public IViewerFeatures
{
    Q_OBJECT
    Q_INTERFACES(IViewerFeatures)

public:
    /*! \a settings, which knows the camera's node maps, has to outlive the service. */
    explicit FeatureService(const SettingsActions *settings, QObject *parent = nullptr);
    ~FeatureService() override;

    QSharedPointer<ParameterCollection::IParameter> feature(const QString &fullName) const override;

private:
    const SettingsActions *m_settings;
};
