// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QColor;
class QPalette;

constexpr double legibleText = 4.5; // the contrast that text has with what it stands on, at least
constexpr double legibleShape = 3.0; // that of frames, marks and grooves

/*! Returns \a color when it has the contrast \a minimum with all \a backgrounds, else the nearest one towards
 * black or white that has a little more than that. Where none has, the end of the scale that comes closest.
 */
QColor legible(const QColor &color, const QList<QColor> &backgrounds, double minimum);

/*! Returns the surface of a button of the colour \a button where it is lightest: Fusion makes a gradient. */
QColor litButton(const QColor &button);

/*! Changes those texts of \a palette, and its highlight, that cannot be told from what they stand on. */
void makeLegible(QPalette &palette);
