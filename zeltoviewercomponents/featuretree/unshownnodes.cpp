// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "unshownnodes_p.h"

#include "featuretreeinodeitem.h"
#include "featuretreenames.h"

#include <platform/core/logging.h>

#include <QHash>
#include <QSet>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.unshownNodes")

namespace UnshownNodes {

namespace {

// Trees are built again and again over the same collection.
bool isNew(const IParameterCollection &collection, const QString &name)
{
    static QHash<const QObject *, QSet<QString>> told;
    auto names = told.find(&collection);
    if (names == told.end()) {
        names = told.insert(&collection, {});
        QObject::connect(&collection, &QObject::destroyed,
                         [](const QObject *destroyed) { told.remove(destroyed); });
    }
    const auto count = names->size();
    names->insert(name);
    return names->size() > count;
}

void tell(const IParameterCollection &collection, ELogLevel level, const QString &name,
          const QString &problem)
{
    if (isNew(collection, name)) {
        Core::Logging::createLogEntry(level, logCategory(), name + QLatin1String(": ") + problem);
    }
}

} // namespace

void reportMissing(const IParameterCollection &collection, const QString &name, const QString &parent)
{
    const bool isCategory = !collection.childNames(name, 0, true).isEmpty();
    tell(collection, ELogLevel::Warning, name,
         isCategory ? QStringLiteral("is not shown: the category has children, but parameter() knows none of "
                                     "that name; childNames() lists it below %1")
                          .arg(parent)
                    : QStringLiteral("is not shown: parameter() knows none of that name, which childNames() "
                                     "lists below %1")
                          .arg(parent));
}

void reportUndefined(const IParameterCollection &collection, const QString &name)
{
    tell(collection, ELogLevel::Warning, name,
         QStringLiteral("is not shown: the visibility in its ParameterData is undefined"));
}

void report(const FeatureTreeINodeItem &item)
{
    const auto tellOf = [&item](ELogLevel level, const QString &problem) {
        tell(*item.collection(), level, item.node()->fullName(), problem);
    };
    const ParameterDataPtr data = item.getParameterData();
    if (!data) {
        tellOf(ELogLevel::Warning, QStringLiteral("is not shown: parameterData() is null"));
    } else if (data->visibility == GenApi::UndefinedVisibility) {
        reportUndefined(*item.collection(), item.node()->fullName());
    } else if (!data->isImplemented) {
        const bool isTop = item.node()->name() == FeatureTreeNames::root;
        tellOf(isTop ? ELogLevel::Warning : ELogLevel::Debug,
               QStringLiteral("is not shown: isImplemented in its ParameterData is false"));
    } else if (item.getDisplayedName() == QLatin1String("<unknown>")) {
        tellOf(ELogLevel::Warning,
               QStringLiteral("is shown without a name: it lacks the property DisplayName"));
    }
}

} // namespace UnshownNodes
