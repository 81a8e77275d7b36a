// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "plotcolours.h"

QColor plotColour(const QString &channel, const QPalette &palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    if (channel == QLatin1String("R")) {
        return isDark ? QColor(255, 110, 110) : QColor(200, 0, 0);
    }
    if (channel == QLatin1String("G")) {
        return isDark ? QColor(90, 220, 90) : QColor(0, 130, 0);
    }
    if (channel == QLatin1String("B") || channel == QLatin1String("U")) {
        return isDark ? QColor(120, 160, 255) : QColor(0, 70, 220);
    }
    if (channel == QLatin1String("V")) {
        return isDark ? QColor(255, 130, 220) : QColor(170, 0, 130);
    }
    return palette.color(QPalette::Text);
}
