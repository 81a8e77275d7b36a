// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>

/*! \file
 * \brief The names by which plug-ins find services and tell device classes apart. */

namespace Plugin::ServiceName {

extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Device; //!< the camera
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Workbench; //!< the pages of the window

} // namespace Plugin::ServiceName

namespace Plugin::DeviceClass {

extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString CL; //!< Camera Link
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString CXP; //!< CoaXPress
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Vexor; //!< frame grabbers of that kind
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString Custom; //!< devices of the application
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString GEV; //!< GigE Vision
extern ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT const QString IPCam; //!< network cameras

} // namespace Plugin::DeviceClass
