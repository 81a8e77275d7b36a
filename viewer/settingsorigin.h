// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camera.h>
#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>

/*! Returns what \a camera is, as settings that are read from it now tell. */
FeatureSettings::Origin settingsOrigin(const Cameras::Camera &camera);

/*! Returns the node maps of \a camera as tasks about settings take them. */
QList<SettingsNodeMap> settingsNodeMaps(const Cameras::Camera &camera);

/*! Returns whether \a settings are of the model that \a camera is, or do not tell. */
bool isOfModel(const FeatureSettings &settings, const Cameras::Camera &camera);
