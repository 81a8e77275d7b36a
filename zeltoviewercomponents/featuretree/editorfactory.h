// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>

#include <functional>

class QWidget;

/*! \brief Makes an editor for the value cell of \a parameter, or returns null to leave that to the tree.
 *
 * The editor is a widget with \a parent as its parent, and an AbstractItemEditor. Its signal edited(), if it
 * has one, says that the user has changed the value, which is then written; without one, it is written when
 * the editor loses the focus. The tree shows the editor as long as its row is in sight, and destroys it.
 *
 * \ingroup editors
 */
using EditorFactory = std::function<QWidget *(
    QWidget *parent, const QSharedPointer<ParameterCollection::IParameter> &parameter)>;
