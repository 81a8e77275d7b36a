// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameters.h"

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>
#include <zeltoviewercomponents/settings/settingsreport.h>

#include <QList>

/*! Returns the settings of \a nodeMaps. Waits for the camera, without user input meanwhile. Needs Python's
 * lock. */
FeatureSettings readSettings(const QList<PythonNodeMap> &nodeMaps);

/*! Brings \a nodeMaps to \a settings. As readSettings(). */
SettingsReport applySettings(const FeatureSettings &settings, const QList<PythonNodeMap> &nodeMaps);
