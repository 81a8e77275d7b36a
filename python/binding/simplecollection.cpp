// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simplecollection.h"

using ParameterCollection::SimpleCollection;

PythonSimpleCollection::PythonSimpleCollection(const QString &name)
    : PythonCollection(QSharedPointer<SimpleCollection>::create(name))
{
}

QString PythonSimpleCollection::name() const
{
    return simple()->name();
}

SimpleCategory PythonSimpleCollection::root() const
{
    return simple()->root();
}

SimpleCategory PythonSimpleCollection::addCategory(const QString &name) const
{
    return simple()->addCategory(name);
}

void PythonSimpleCollection::setDeviceClass(const QString &word) const
{
    simple()->setDeviceClass(word);
}

QSharedPointer<SimpleCollection> PythonSimpleCollection::simple() const
{
    return qSharedPointerObjectCast<SimpleCollection>(shared());
}
