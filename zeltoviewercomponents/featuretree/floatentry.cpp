// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floatentry_p.h"

#include <algorithm>

double FloatEntry::usable(double number) const
{
    return isFree || number == settled
        ? number
        : EditorNumbers::snappedToGrid(number, limits.minimum, limits.maximum, limits.increment);
}

EditorNumbers::FloatLimits FloatEntry::limitsAround(double value) const
{
    EditorNumbers::FloatLimits around = isFree ? EditorNumbers::FloatLimits() : limits;
    around.minimum = std::min(around.minimum, value);
    around.maximum = std::max(around.maximum, value);
    return around;
}
