// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/*! \brief While it lives, the system has no thread left. */
class NoThreads
{
public:
    NoThreads();
    ~NoThreads();
    Q_DISABLE_COPY_MOVE(NoThreads)
};
