// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class FeatureTreeItem;

/*! \brief What is read out of a row. The rows' own texts leave values to the editors that show them. */
namespace AccessibleTexts {

/*! Returns the text of a cell: the name, or the value as it is seen; in both cells of rows that have a name
 * alone, that. */
QString text(FeatureTreeItem &item, int column);
/*! Returns the tool tip without its markup. */
QString description(FeatureTreeItem &item);
/*! Returns the value to write for one that was named as it is seen. */
QString valueNamed(FeatureTreeItem &item, const QString &text);

} // namespace AccessibleTexts
