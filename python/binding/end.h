// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

/*! Has Python tell when it ends: open cameras are closed then, and nothing of Python is called or released
 * any more. Needs Python's lock. */
void initialiseEnd();

/*! Returns whether the interpreter is ending, or has ended. */
bool isPythonEnding();
