// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QIODevice>
#include <QString>

/*! \brief The text form of FeatureSettings.
 *
 * \ingroup settings
 */
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)

public:
    /*! Bounds far above what a camera has, so that nothing else passes for its settings. */
    static constexpr qint64 largestFile = qint64(16) * 1024 * 1024;
    static constexpr qint64 longestLine = qint64(256) * 1024;
    static constexpr int mostAssignments = 100000;

    /*! Throws Core::Exception::BaseException as FeatureSettings::read() does. */
    static FeatureSettings read(QIODevice &device);
    static QByteArray textOf(const FeatureSettings &settings);

private:
    void readLine(const QByteArray &bytes);
    void readComment(const QString &text);
    void readAssignment(const QString &line);
    FeatureSettings::NodeMap &nodeMap();
    [[noreturn]] void fail(const QString &reason) const;
    static QString escaped(const QString &value);
    static QString unescaped(const QString &value);

    FeatureSettings m_settings;
    bool m_isOurs = false; // only then a backslash means anything
    int m_line = 0;
    int m_assignments = 0;
};
