// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/*! \brief What fuzz targets are made of, and what they find there.
 *
 * Each is a Target in a source of its own. One program hands them what libFuzzer makes up, another, for any
 * compiler, replays what is kept in files. Anything the sanitizers see, an exception that leaves a target and
 * a broken promise end the process.
 */
namespace Fuzz {

/*! \brief What inputs look like. */
enum class Form {
    Bytes,
    Xml, //!< new inputs are mostly made by moving elements around
};

/*! \brief Something that inputs are handed to; known by its name as soon as the process starts. */
class Target
{
public:
    /*! \a prepare makes what all inputs share, once, when there is an application object; \a run hands one
     * input to the code under test. */
    Target(const char *name, void (*prepare)(), void (*run)(const QByteArray &input),
           Form form = Form::Bytes);
    Q_DISABLE_COPY_MOVE(Target)

    /*! Returns the target called \a name. Ends the process, naming those there are, when there is none. */
    static const Target &find(const QByteArray &name);

    /*! Starts an application without display, settings of others or log output, and prepares. */
    void start() const;
    void run(const QByteArray &input) const { m_run(input); }
    Form form() const { return m_form; }

private:
    const char *m_name;
    void (*m_prepare)();
    void (*m_run)(const QByteArray &);
    Form m_form;
};

/*! Ends the process, naming \a promise, unless \a isKept. */
void require(bool isKept, const char *promise);

/*! Returns a folder of this process, in memory, for files that the code under test reads. Removed at exit. */
QString scratchFolder();
/*! Makes \a contents those of the file \a name. */
void writeFile(const QString &name, const QByteArray &contents);

/*! Carries out what is queued, deferred deletions included. */
void settle();

} // namespace Fuzz
