// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ibatchrunner.h"

namespace ParameterCollection {

IBatch::~IBatch() = default;

IBatchRunner::~IBatchRunner() = default;

} // namespace ParameterCollection
