// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "guard.h"

#include "exception.h"

namespace Core {

namespace {

QString detailLine(const GuardSite &site)
{
    const QString function = QString::fromLatin1(site.function);
    const auto join = [&function](const char *format, const QString &message) {
        return QString::fromLatin1(format).arg(function, message);
    };
    try {
        throw;
    } catch (const Exception::BaseException &exception) {
        return join(site.baseExceptionFormat, exception.getMessage());
    } catch (const std::exception &exception) {
        return join("%1: %2", QString::fromUtf8(exception.what()));
    } catch (...) {
        return QStringLiteral("%1: Unspecified exception occurred.").arg(function);
    }
}

} // namespace

QString currentExceptionText(const QString &ifUnknown)
{
    try {
        throw;
    } catch (const std::exception &exception) { // the base of the system's own and the camera's, too
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return ifUnknown;
    }
}

void logCurrentException(const GuardSite &site, const QString &headline) noexcept
{
    Logging::createLogEntry(Logging::ELogLevel::Warning, site.category, headline);
    Logging::createLogEntry(Logging::ELogLevel::Warning, site.category, detailLine(site));
}

} // namespace Core
