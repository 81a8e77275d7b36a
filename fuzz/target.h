// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/*! \brief What a fuzz target is made of, and what it finds there.
 *
 * A target defines prepare() and run(). It is linked to libFuzzer, which makes up inputs, or, with any
 * compiler, to a program that replays those kept in files. Anything the sanitizers see, an exception that
 * leaves run() and a broken promise end the process.
 */
namespace Fuzz {

/*! Makes what all inputs share. Called once, when there is an application object. */
void prepare();
/*! Hands \a input to the code under test. */
void run(const QByteArray &input);

/*! Ends the process, naming \a promise, unless \a isKept. */
void require(bool isKept, const char *promise);

/*! Returns a folder of this process, in memory, for files that the code under test reads. Removed at exit. */
QString scratchFolder();
/*! Makes \a contents those of the file \a name. */
void writeFile(const QString &name, const QByteArray &contents);

/*! Carries out what is queued, deferred deletions included. */
void settle();

/*! Starts an application without display, settings of others or log output, and calls prepare(). */
void start();

} // namespace Fuzz
