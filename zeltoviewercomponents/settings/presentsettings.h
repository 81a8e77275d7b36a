// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingstask.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>

/*! Returns the settings that the snapshots of \a nodeMaps tell. The camera is not asked and no selector is
 * moved: of the features that others select, the settings have what is selected now. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureSettings presentSettings(const QList<SettingsNodeMap> &nodeMaps);
