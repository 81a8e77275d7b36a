// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QModelIndex>

class QAbstractItemModel;
class QTextStream;

/*! \brief Writes the rows of a feature tree below \a parent as text, expanded or not.
 *
 * One row a line: four blanks per level, the name with its unit, a tab, the value. \a model is a
 * FeatureTreeModel or FeatureTreeProxyModel; rows above its user level are left out with all below them.
 * Markup is removed.
 */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void writeFeatureTree(QTextStream &stream, QAbstractItemModel &model,
                                                         const QModelIndex &parent = QModelIndex());
