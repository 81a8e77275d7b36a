// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "iparametercollection.h"

namespace ParameterCollection {

IParameterCollection::IParameterCollection(QObject *parent)
    : QObject(parent)
{
}

IParameterCollection::~IParameterCollection() = default;

} // namespace ParameterCollection
