// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>
#include <QStyleOption>

/*! \brief Gives \a option the palette of the last option that had the same colours.
 *
 * Styles keep pictures of what they draw by the palette's key. Below a view with colours of its own each
 * widget has another key for the same colours: every editor would have its own pictures drawn, and the cache
 * would never forget their names.
 */
inline void sharePalette(QStyleOption *option)
{
    static QPalette shared;
    if (shared != option->palette) {
        shared = option->palette;
    }
    const QPalette::ColorGroup group = option->palette.currentColorGroup(); // no part of what was compared
    option->palette = shared;
    option->palette.setCurrentColorGroup(group);
}
