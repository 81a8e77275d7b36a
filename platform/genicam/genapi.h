// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QMetaType>
#include <QObject>

/*! \brief Enumerations of the GenICam standard's GenApi, with the standard's numbers. */
namespace GenApi {
Q_NAMESPACE_EXPORT(ZELTO_PLATFORM_EXPORT)

/*! \brief The user level from which on a feature is shown. */
enum EVisibility : int {
    Beginner = 0,
    Expert = 1,
    Guru = 2,
    Invisible = 3, //!< shown at no user level
    UndefinedVisibility = 99,
};
Q_ENUM_NS(EVisibility)

/*! \brief What can be done with a feature now. */
enum EAccessMode : int {
    NI = 0, //!< not implemented
    NA = 1, //!< not available
    WO = 2, //!< write-only
    RO = 3, //!< read-only
    RW = 4, //!< readable and writable
    UndefinedAccessMode = 5,
};
Q_ENUM_NS(EAccessMode)

/*! Returns whether \a mode lets a value be read. */
constexpr bool isReadable(EAccessMode mode)
{
    return mode == RO || mode == RW;
}

/*! Returns whether \a mode lets a value be written. */
constexpr bool isWritable(EAccessMode mode)
{
    return mode == WO || mode == RW;
}

/*! \brief How a floating-point feature wants to be printed. */
enum EDisplayNotation : int {
    fnAutomatic = 0,
    fnFixed = 1,
    fnScientific = 2,
    UndefinedDisplayNotation = 3,
};
Q_ENUM_NS(EDisplayNotation)

} // namespace GenApi
