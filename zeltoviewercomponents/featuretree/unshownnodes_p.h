// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparametercollection.h>

#include <QString>

class FeatureTreeINodeItem;

/*! \brief Says in the log why nodes are not shown, or not as their author will have meant it; once for each
 * node. What only a mistake explains is a warning, what cameras do is a diagnostic. */
namespace UnshownNodes {

/*! \a name is listed below \a parent, but stands for no parameter. */
void reportMissing(const ParameterCollection::IParameterCollection &collection, const QString &name,
                   const QString &parent);
/*! The category \a name has no visibility. */
void reportUndefined(const ParameterCollection::IParameterCollection &collection, const QString &name);
/*! Looks at the snapshot and the properties that \a item was made with. */
void report(const FeatureTreeINodeItem &item);

} // namespace UnshownNodes
