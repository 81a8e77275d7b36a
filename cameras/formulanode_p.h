// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

using ArvGcNode = struct _ArvGcNode;

namespace Cameras {

/*! Puts a node of our own in the place of \a node, which has a formula or two, so that these are evaluated by
 * Formula from then on: who reads or writes the node gets an error where there is no result. Leaves other
 * nodes alone. */
void guardFormulas(ArvGcNode *node);

} // namespace Cameras
