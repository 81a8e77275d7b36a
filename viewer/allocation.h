// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

/*!
\brief Has what images took go back to the system when they are gone; the first call of a program.

The C library raises the size from which it asks the system for memory of its own to that of the largest block
that was freed, and keeps a heap for each thread: memory of images then stays with whichever of them it was
cut from.
*/
void returnMemoryOfImages();
