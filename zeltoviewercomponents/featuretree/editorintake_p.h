// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractitemeditor.h"

#include <platform/core/guard.h>
#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/parameterdata.h>

#include <QObject>
#include <QString>

/*! \brief How data comes into the editors: what is taken, and what is logged of the rest. */
namespace EditorIntake {

/*! \brief The kind of feature whose snapshots are \a Data: its interface and its name in log entries.
 *
 * \ingroup editors
 */
template <typename Data>
struct Kind;

template <>
struct Kind<ParameterCollection::IntegerParameterData>
{
    using Interface = ParameterCollection::IIntegerParameter;
    static constexpr auto type = ParameterCollection::ParameterType::Integer;
    static constexpr char word[] = "integer";
};

template <>
struct Kind<ParameterCollection::FloatParameterData>
{
    using Interface = ParameterCollection::IFloatParameter;
    static constexpr auto type = ParameterCollection::ParameterType::Float;
    static constexpr char word[] = "float";
};

template <>
struct Kind<ParameterCollection::CommandParameterData>
{
    using Interface = ParameterCollection::ICommandParameter;
    static constexpr auto type = ParameterCollection::ParameterType::Command;
    static constexpr char word[] = "command";
};

/*! Logs that the function of \a site got data that is not of the kind called \a word. */
void logWrongKind(const Core::GuardSite &site, const char *word);

/*! Returns the snapshot in \a data; null, with a log entry, where that or the parameter is of another kind.
 */
template <typename Data>
const Data *snapshotIn(const AbstractItemEditor::EditorData &data, const Core::GuardSite &site)
{
    const ParameterCollection::ParameterData *const snapshot = data.ptrParameterData.data();
    const bool isOfKind = snapshot && snapshot->type == Kind<Data>::type
        && qobject_cast<const typename Kind<Data>::Interface *>(data.ptrParameter.data());
    if (!isOfKind) {
        logWrongKind(site, Kind<Data>::word);
    }
    return isOfKind ? static_cast<const Data *>(snapshot) : nullptr;
}

/*! Logs limits of \a parameter that are not finite, not in order, or do not contain the value. */
void logInconsistency(const Core::GuardSite &site, const ParameterCollection::IParameter &parameter,
                      const ParameterCollection::FloatParameterData &data);

/*! Returns the name of \a parameter as log entries show it; empty for a null one. */
QString nodeName(const ParameterCollection::IParameter *parameter);

/*! Returns whether the tree may change what \a data shows: implemented and writable. */
bool canBeChanged(const ParameterCollection::ParameterData &data);

/*! Hands a floating-point editor its \a data: calls \a show with the snapshot, guarded. */
template <typename Show>
void takeFloatData(const Core::GuardSite &site, const AbstractItemEditor::EditorData &data, const Show &show)
{
    const auto *const snapshot = snapshotIn<ParameterCollection::FloatParameterData>(data, site);
    if (!snapshot) {
        return;
    }
    const auto headline = [&data] {
        return QStringLiteral("Failed to update the floating-point value editor for node %1")
            .arg(nodeName(data.ptrParameter.data()));
    };
    Core::guardedRun(site, headline, [&] {
        show(*snapshot);
        logInconsistency(site, *data.ptrParameter, *snapshot);
    });
}

} // namespace EditorIntake
