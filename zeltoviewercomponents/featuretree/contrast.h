// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class QColor;

/*! Returns the contrast of two opaque colours, from 1 (the same lightness) to 21 (black and white), as the
 * Web Content Accessibility Guidelines define it. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT double contrastRatio(const QColor &a, const QColor &b);
