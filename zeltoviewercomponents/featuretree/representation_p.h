// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>

/*! Returns whether numbers of the GenICam \a representation are edited with a slider. */
inline bool isSliderRepresentation(const QString &representation)
{
    return representation == QLatin1String("Linear") || representation == QLatin1String("Logarithmic");
}
