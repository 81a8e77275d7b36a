// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>

/*! \brief One feature in which two FeatureSettings differ.
 *
 * \ingroup settings
 */
struct SettingsDifference
{
    /*! \brief Where there is a value. */
    enum class Kind { OnlyHere, OnlyThere, Different };

    Kind kind = Kind::Different; //!< where there is a value
    FeatureSettings::Setting here; //!< without a value when only there
    FeatureSettings::Setting there; //!< without a value when only here
};

/*! Returns in what \a here and \a there differ, in the order of \a here, what is only there at the end.
 * Numbers that are written differently are the same, and so are those that a single precision register cannot
 * tell apart. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT QList<SettingsDifference> compare(const FeatureSettings &here,
                                                                     const FeatureSettings &there);
