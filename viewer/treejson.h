// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QModelIndex>

class QAbstractItemModel;

/*! Returns the rows of a feature tree below \a parent as writeFeatureTree() shows them, each as an object
 * with the name for people and, where it has them, "fullName", "value", and the "rows" below it. */
QJsonArray featureTreeJson(QAbstractItemModel &model, const QModelIndex &parent = QModelIndex());
