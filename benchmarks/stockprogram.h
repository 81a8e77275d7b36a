// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/*! \brief What a program costs that shows nothing but a stock view: a baseline that runs as its own process.
 */
namespace StockProgram {

/*! Returns the option that makes this program be it: the number of rows and a picture's file name follow. */
QString option();
/*! Shows the window, saves its picture and returns the exit code. */
int run(const QStringList &arguments);

} // namespace StockProgram
