// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featurenames.h"
#include "interruption.h"
#include "options.h"

#include <cameras/camera.h>
#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QSharedPointer>
#include <QString>

/*! \brief Carries out what scripts ask for on an open camera, in the order given.
 *
 * Results go to the standard output, each failure as one line to the standard error.
 */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /*! \brief What the program ends with. */
    enum ExitCode {
        Done = 0,
        Refused = 1, //!< or different
        Failed = 2, //!< not opened, unknown feature or wrong usage
    };

    CommandLine(Cameras::Camera &camera, const Options &options);

    /*! Returns the exit code. */
    int run();

    /*! Writes one line to the standard error that begins with the program's name. Returns \a code. */
    static int fail(const QString &reason, ExitCode code);

private:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

    bool hasWrongNames() const;
    QString mistakeIn(const Operation &operation) const;
    int carryOut(const Operation &operation);
    int get(const QString &name);
    int set(const QString &assignment);
    int execute(const QString &name);
    int save(const QString &fileName);
    int load(const QString &fileName);
    int compareWith(const QString &fileName);
    int watch();
    int grab(const QString &fileName);
    int printStreamStatistics(const QString &seconds);
    FeatureSettings settingsIn(const QString &fileName) const;
    bool readSettings(FeatureSettings *settings);
    void wait(SettingsTask &task);
    bool print(const QString &text);
    int finish(int code);

    Cameras::Camera &m_camera;
    Options m_options;
    FeatureNames m_features;
    Interruption m_interruption;
    QFile m_out;
    QJsonArray m_values; // of --get, for JSON
    QJsonArray m_differences;
    bool m_hasCompared = false;
    bool m_hasWatched = false;
};
