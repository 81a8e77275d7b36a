// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "callbacks.h"
#include "parameters.h"

#include <platform/parametercollection/simplecollection.h>

#include <QSharedPointer>
#include <QString>

using ParameterCollection::SimpleBoolean;
using ParameterCollection::SimpleCategory;
using ParameterCollection::SimpleCommand;
using ParameterCollection::SimpleEnumeration;
using ParameterCollection::SimpleFloat;
using ParameterCollection::SimpleInteger;
using ParameterCollection::SimpleString;

/*! \brief A SimpleCollection as Python has it: shared with the trees that show it. */
class PythonSimpleCollection : public PythonCollection
{
public:
    explicit PythonSimpleCollection(const QString &name);

    QString name() const;
    SimpleCategory root() const;
    SimpleCategory addCategory(const QString &name) const;
    void setDeviceClass(const QString &word) const;

private:
    QSharedPointer<ParameterCollection::SimpleCollection> simple() const;
};
