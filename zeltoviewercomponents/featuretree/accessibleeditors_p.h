// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

/*! \brief What assistive technology is told of editors and controls, where Qt tells it something else.
 *
 * Qt names a list by its entry and a part of a composite not at all, takes a command for a check box, and
 * sets numbers and texts without entering them. Here, editors are named by their feature, and a value that
 * is set is entered as if it had been typed: it reaches the camera, or is refused, by the same way.
 */
namespace AccessibleEditors {

/*! Has QAccessible ask for these interfaces. Cheap when it does already. */
void install();

} // namespace AccessibleEditors
