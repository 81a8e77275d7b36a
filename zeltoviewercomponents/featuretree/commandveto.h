// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>

#include <functional>

/*! Returns true to keep a command, which the user has asked for in the tree, from being executed. It may show
 * a dialog: it is called from the event loop, with no editor at work. */
using CommandVeto = std::function<bool(const QSharedPointer<ParameterCollection::IParameter> &command)>;
