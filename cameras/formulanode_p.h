// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>

#include <optional>

using ArvGc = struct _ArvGc;
using ArvGcNode = struct _ArvGcNode;

namespace Cameras {

class Description;

/*! Puts nodes of our own in the place of those of \a genicam that have formulas, so that these are evaluated
 * by Formula from then on: who reads or writes such a node gets an error where there is no result. */
void guardFormulas(ArvGc *genicam, const Description &description);

/*! Returns the numbers that a guarded formula of \a node names beside its variables, by the names of the
 * nodes that these stand for; nothing for other nodes. */
QHash<QByteArray, QList<qint64>> formulaHints(ArvGcNode *node);

/*! Returns by how much the value of the guarded converter \a node changes with one step of the integer behind
 * it, 0 when there is none; nothing for other nodes. */
std::optional<double> converterStep(ArvGcNode *node);

} // namespace Cameras
