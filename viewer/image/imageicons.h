// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QPalette>

/*! \brief Icons of the image pane, drawn in the colours of a palette and sharp at any scale. */
namespace ImageIcons {

enum class Symbol {
    Start,
    Stop,
    Single,
    Fit,
    PixelByPixel,
    Pan,
    Part,
    Line,
    Crosshair,
    Grid,
    Extremes,
    Histogram,
    FullFrame,
    Save,
    Record,
};

/*! Returns the icon of \a symbol in the text colour of \a palette, gray where it is disabled. */
QIcon icon(Symbol symbol, const QPalette &palette);

} // namespace ImageIcons
