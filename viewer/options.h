// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/*! \brief One thing that is done with an open camera without a window. */
struct Operation
{
    enum class Kind { Get, Set, Execute, Save, Load, Compare, Watch, Grab, StreamStatistics };

    Kind kind = Kind::Get;
    QString argument; //!< name of a feature, NAME=VALUE, a file or a number of seconds
};

/*! \brief What the command line asks for. */
struct Options
{
    QString description; //!< camera description file for simulated registers
    QString camera; //!< id of a live camera; with neither, the embedded camera is opened
    bool zeroed = false; //!< the registers of the description start with zeros
    QString registers; //!< file with what the registers of the description start with
    QString saveRegisters; //!< file to save the camera's registers to, instead of showing a window
    bool list = false;
    bool dump = false;
    bool favorites = false; //!< dump the favorites branch alone
    bool editors = false; //!< show the editor gallery
    bool expand = false;
    QString search;
    QString screenshot;
    QList<Operation> operations; //!< in the order in which they are carried out
    int interval = 1000; //!< in milliseconds, between the rows of a watch
    int count = 0; //!< of the rows of a watch; 0 for no end
    int grabCount = 1; //!< of the images of each grab
    bool json = false;
    bool force = false; //!< loads settings of another model
    std::optional<GenApi::EVisibility> visibility; //!< absent: as the window remembers it
    QString helpText; //!< when help or version is asked for, the answer

    /*! Returns whether the program shows a window to a person. */
    bool isInteractive() const;
};

/*! \brief The options, or the line that says what is wrong with them. */
struct ParsedOptions
{
    Options options;
    QString error;
};

/*! Returns what the program does, in the words of its help. */
QString applicationDescription();
/*! Returns the options, from which also the manual and the completion of shells are made. */
QList<QCommandLineOption> commandLineOptions();

/*! Returns what \a arguments ask for. Needs no application object. */
ParsedOptions parseOptions(const QStringList &arguments);
