// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

// A GLib header has a member called "signals", which is a macro of Qt.
#pragma push_macro("signals")
#undef signals
#include <arv.h>
#pragma pop_macro("signals")
