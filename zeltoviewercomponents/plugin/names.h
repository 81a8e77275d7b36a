// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>

/*! \file
 * \brief The names by which plug-ins find services and tell device classes apart. */

namespace Plugin::ServiceName {

extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Device;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Workbench;

} // namespace Plugin::ServiceName

namespace Plugin::DeviceClass {

extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString CL;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString CXP;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Vexor;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Custom;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString GEV;
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString IPCam;

} // namespace Plugin::DeviceClass
