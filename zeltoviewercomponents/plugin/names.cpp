// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "names.h"

namespace Plugin::ServiceName {

const QString Device = QStringLiteral("Device");
const QString Workbench = QStringLiteral("Workbench");

} // namespace Plugin::ServiceName

namespace Plugin::DeviceClass {

const QString CL = QStringLiteral("CL");
const QString CXP = QStringLiteral("CXP");
const QString Vexor = QStringLiteral("Vexor");
const QString Custom = QStringLiteral("Custom");
const QString GEV = QStringLiteral("GEV");
const QString IPCam = QStringLiteral("IPCam");

} // namespace Plugin::DeviceClass
