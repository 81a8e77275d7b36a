// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editorintake_p.h"

#include <platform/core/logging.h>

#include <cmath>

using Core::Logging::ELogLevel;

namespace EditorIntake {

void logWrongKind(const Core::GuardSite &site, const char *word)
{
    Core::Logging::createLogEntry(ELogLevel::Debug, site.category,
                                  QStringLiteral("%1 is called with non-%2 node????")
                                      .arg(QLatin1String(site.function), QLatin1String(word)));
}

void logInconsistency(const Core::GuardSite &site, const ParameterCollection::IParameter &parameter,
                      const ParameterCollection::FloatParameterData &data)
{
    const bool isValueGood = !data.isReadable || (data.minimum <= data.value && data.value <= data.maximum);
    if (std::isfinite(data.minimum) && std::isfinite(data.maximum) && data.minimum <= data.maximum
        && isValueGood) {
        return;
    }
    Core::Logging::createLogEntry(
        ELogLevel::Debug, site.category,
        QStringLiteral("%1: Feature %2: value %3 and limits %4..%5 do not fit together")
            .arg(QLatin1String(site.function), nodeName(&parameter))
            .arg(data.value)
            .arg(data.minimum)
            .arg(data.maximum));
}

QString nodeName(const ParameterCollection::IParameter *parameter)
{
    return parameter ? QString::fromUtf8(parameter->name().toUtf8()) : QString();
}

bool canBeChanged(const ParameterCollection::ParameterData &data)
{
    return data.isImplemented && data.isWritable;
}

} // namespace EditorIntake
