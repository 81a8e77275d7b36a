// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/*! Returns the colour in which \a channel is plotted, legible on the base of \a palette. */
QColor plotColour(const QString &channel, const QPalette &palette);
