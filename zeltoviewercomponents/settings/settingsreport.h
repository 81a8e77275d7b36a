// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/*! \brief What came of applying settings to a camera, feature by feature.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsReport
{
    Q_DECLARE_TR_FUNCTIONS(SettingsReport)

public:
    /*! \brief What came of a feature. */
    enum class Result {
        Set,
        Unchanged, //!< had the value already and was not written
        Refused,
        Missing, //!< the camera has no such feature
        Different, //!< was written without complaint, and yet has another value
        NotTried, //!< the camera was lost, or the user cancelled, before its turn
    };

    /*! \brief One feature. */
    struct Entry
    {
        FeatureSettings::Setting setting; //!< what was asked for
        Result result = Result::NotTried; //!< what came of it
        QString before; //!< the value when it was looked at first, empty where that was not possible
        QString after; //!< the value in the end, empty where it could not be read
        QString reason; //!< of a refusal, as the camera gives it
    };

    /*! Returns how many features came to \a result. */
    int count(Result result) const;
    /*! Returns whether all features have the value that was asked for. */
    bool isSuccess() const;
    /*! Returns one sentence for people. */
    QString summary() const;
    /*! Returns one line for each feature that does not have its value, naming the line of the file. */
    QStringList problems() const;
    /*! Returns what went wrong with \a entry, empty when nothing did. */
    static QString problem(const Entry &entry);

    /*! Returns what came of \a entry in a few words, with the reason of a refusal. */
    static QString resultText(const Entry &entry);

    QList<Entry> entries; //!< in the order in which they were tried
    bool isCancelled = false; //!< the user ended it early
    bool isLost = false; //!< the camera stopped answering
};
