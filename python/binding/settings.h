// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "parameters.h"

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>
#include <zeltoviewercomponents/settings/settingsreport.h>

#include <QList>
#include <QStringList>

/*! Returns the settings of \a nodeMaps, and in \a notes what of them could not be read. Waits for the camera,
 * without user input meanwhile, and throws when it is lost. Needs Python's lock. */
FeatureSettings readSettings(const QList<PythonNodeMap> &nodeMaps, QStringList &notes);

/*! Brings \a nodeMaps to \a settings. As readSettings(). */
SettingsReport applySettings(const FeatureSettings &settings, const QList<PythonNodeMap> &nodeMaps);
