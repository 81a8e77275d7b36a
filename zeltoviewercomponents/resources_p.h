// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

/*! Makes sure that the library's resources are there, which a static library leaves out unless they are
 * named. Included by what reads them. */
bool initZeltoResources();

namespace {
[[maybe_unused]] const bool zeltoResourcesAreThere = initZeltoResources();
}
