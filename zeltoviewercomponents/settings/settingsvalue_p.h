// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/parameterdata.h>

#include <QString>

/*! \brief When two values are the same to a camera. */
namespace SettingsValue {

/*! Returns whether the value of \a data is what a camera would make of \a text, within what its register can
 * tell apart. */
bool isSame(const ParameterCollection::ParameterData &data, const QString &text);

/*! Returns whether \a data is what \a text may have become in a register of single precision, or in one that
 * does not tell apart what differs by less than \a resolution. */
bool isTaken(const ParameterCollection::ParameterData &data, const QString &text, double resolution);

/*! Returns whether two texts stand for the same value, whatever the kind of the feature. */
bool isSameText(const QString &left, const QString &right);

} // namespace SettingsValue
