// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editornumbers_p.h"
#include "numberstep_p.h"

/*! \brief What a floating-point editor makes of what the user enters: the limits, what the entry is compared
 * with, and the step under way.
 *
 * \ingroup editors
 */
struct FloatEntry
{
    /*! Returns \a number within the limits and on the grid. What the camera holds stays as it is when it is
     * typed again, whatever the limits are. */
    double usable(double number) const;
    /*! Returns the limits, widened to \a value, which is shown also where it lies outside. */
    EditorNumbers::FloatLimits limitsAround(double value) const;

    EditorNumbers::FloatLimits limits; //!< of what the user enters
    double settled = 0.0; //!< what was last shown or entered; NaN for none
    double stepWidth = 0.0; //!< of free steps since the first one in the editor; 0 before
    bool isFree = false; //!< numbers are entered as they are, whatever the limits
    NumberStep step{nullptr};
};
