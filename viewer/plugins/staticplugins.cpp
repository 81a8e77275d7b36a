// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Where the libraries are static, the program has its plug-ins built in: one that is loaded would bring the
// libraries along a second time.

#include <QtPlugin>

Q_IMPORT_PLUGIN(VisitedFeaturesPlugin)
Q_IMPORT_PLUGIN(WatchPlugin)
