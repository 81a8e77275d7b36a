// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QString>

/*! \brief Logging by category over QLoggingCategory.
 *
 * A category's dotted name is the name of its QLoggingCategory, so QT_LOGGING_RULES filters entries. All
 * functions may be called from any thread.
 */
namespace Core::Logging {

/*! \brief How much an entry matters. */
enum class ELogLevel : int {
    Debug = 0, //!< diagnostics and traces; off unless a logging rule asks for them
    Info = 1,
    Warning = 2, //!< errors and caught exceptions
    Critical = 3,
};

/*! What getCatId() returns. */
using CategoryId = quint64;

/*! Returns the id of the category called \a name; the same text always gives the same id. */
ZELTO_PLATFORM_EXPORT CategoryId getCatId(const char *name);

/*! Writes \a text at \a level to the category \a id; an unknown id writes nothing. */
ZELTO_PLATFORM_EXPORT void createLogEntry(ELogLevel level, CategoryId id, const QString &text);

} // namespace Core::Logging

/*! Defines logCategory() in a source file: the file's log category, resolved once on first use. */
#define ZELTO_LOG_CATEGORY(name)                                                                             \
    static Core::Logging::CategoryId logCategory()                                                           \
    {                                                                                                        \
        static const Core::Logging::CategoryId id = Core::Logging::getCatId(name);                           \
        return id;                                                                                           \
    }
