// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nodepropertyaccess.h"

namespace ParameterCollection {

NodePropertyAccess::NodePropertyAccess(QObject *parent)
    : QObject(parent)
{
}

NodePropertyAccess::~NodePropertyAccess() = default;

QString NodePropertyAccess::property(const QString &name) const
{
    return property(name, QString());
}

} // namespace ParameterCollection
