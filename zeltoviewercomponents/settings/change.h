// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"

#include <platform/parametercollection/parameterdata.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QString>

/*! \brief One line of a history of changes: a value that was written, a command, or a file that was applied.
 *
 * \ingroup settings
 */
struct ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT Change
{
    /*! \brief What was changed: a value, something by a command, or many values by a file. */
    enum class Kind { Value, Command, File };
    /*! \brief What came of it. */
    enum class Result {
        Done, //!< the value holds
        Undone, //!< the value before was written back
        Refused, //!< nothing was written, for the reason given
    };

    Kind kind = Kind::Value; //!< what was changed
    Result result = Result::Done; //!< what came of it
    ParameterCollection::ParameterType type =
        ParameterCollection::ParameterType::Unknown; //!< of the parameter
    qint64 time = 0; //!< in milliseconds since 1970
    QString name; //!< the full name of the parameter, or that of the file
    QList<FeatureSettings::Assignment> selectors; //!< that the value depends on, outer ones first
    QString before; //!< as text that the parameter takes back exactly; null when unknown
    QString after; //!< what was written
    QString reason; //!< of a refusal

    /*! Returns \a value, which is before or after, as people read it. */
    QString shown(const QString &value) const;
    /*! Returns the name for people, such as "Gain [GainSelector=Red]". */
    QString title() const;
    /*! Returns whether \a other is about the same feature under the same selectors. */
    bool isSameFeature(const Change &other) const;
};

/*! Returns whether \a left and \a right, as texts, stand for the same value of a parameter of \a type. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT bool isSameValueText(ParameterCollection::ParameterType type,
                                                        const QString &left, const QString &right);
