// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "logging.h"

#include <platform/platform_export.h>

#include <QString>

#include <type_traits>
#include <utility>

namespace Core {

/*! \brief The place of a guarded call, as its log entries name it. */
struct GuardSite
{
    Logging::CategoryId category = 0; //!< that the entries are written to
    const char *function = ""; //!< "Class::function"
    /*! How the detail line joins the function's name and the message of a BaseException. */
    const char *baseExceptionFormat = "%1: %2";
};

/*! \brief Logs the exception that is being handled: the headline, then a detail line, both as warnings.
 *
 * To be called inside a catch block. Never throws.
 */
ZELTO_PLATFORM_EXPORT void logCurrentException(const GuardSite &site, const QString &headline) noexcept;

/*! \brief Returns the text of the exception that is being handled, \a ifUnknown when its type has none.
 *
 * To be called inside a catch block.
 */
ZELTO_PLATFORM_EXPORT QString currentExceptionText(const QString &ifUnknown);

/*! \brief Returns the result of \a work or, when it throws, logs the exception and returns \a fallback.
 *
 * \a headline is a text, or a callable that makes the text when it is needed.
 */
template <typename Headline, typename Result, typename Work>
std::decay_t<Result> guarded(const GuardSite &site, Headline &&headline, Result &&fallback, Work &&work)
{
    try {
        return std::forward<Work>(work)();
    } catch (...) {
        if constexpr (std::is_invocable_v<Headline>) {
            QString text;
            try {
                text = headline();
            } catch (...) {
                text = QStringLiteral("The failure cannot be described");
            }
            logCurrentException(site, text);
        } else {
            logCurrentException(site, headline);
        }
        return std::forward<Result>(fallback);
    }
}

/*! \brief Runs \a work; an exception is logged and ends it. Returns whether \a work ran to its end. */
template <typename Headline, typename Work>
bool guardedRun(const GuardSite &site, Headline &&headline, Work &&work)
{
    return guarded(site, std::forward<Headline>(headline), false, [&work] {
        std::forward<Work>(work)();
        return true;
    });
}

} // namespace Core
