// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "iparameter.h"

// A static library leaves resources out that nothing names.
static bool initResources()
{
    Q_INIT_RESOURCE(zelto_platform_translations);
    return true;
}
[[maybe_unused]] static const bool resourcesAreThere = initResources();

namespace ParameterCollection {

IParameter::IParameter(QObject *parent)
    : QObject(parent)
{
    // Queued connections look the argument's type up by the name that the signal's signature has.
    static const int id = qRegisterMetaType<QSharedPointer<const ParameterData>>(
        "QSharedPointer<const ParameterCollection::ParameterData>");
    Q_UNUSED(id)
}

IParameter::~IParameter() = default;
IIntegerParameter::~IIntegerParameter() = default;
IFloatParameter::~IFloatParameter() = default;
IEnumParameter::~IEnumParameter() = default;
ICommandParameter::~ICommandParameter() = default;
IBooleanParameter::~IBooleanParameter() = default;

} // namespace ParameterCollection
