// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "messagefunctions.h"

#include "asyncerrorqueue.h"

#include <platform/core/exception.h>
#include <platform/core/logging.h>
#include <platform/genicam/genericexception.h>

#include <QCoreApplication>

using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.errorHandling")

namespace {

// The log line is limited to Latin-1; what is queued for the user is not.
QString latin1(const QString &text)
{
    return QString::fromLatin1(text.toLatin1());
}

void enqueue(AsyncErrorQueue::ErrorSeverity severity, const QString &message, const QString &details,
             QWidget *parent)
{
    if (AsyncErrorQueue *const queue = GetTheGlobalAsyncErrorQueue()) {
        queue->reportErrorAsync(severity, message, details, parent);
    }
}

} // namespace

void showErrorMessage(const QString &message, QWidget *parent)
{
    showErrorMessage(message, QString(), parent);
}

void showErrorMessage(const QString &message, const QString &details, QWidget *parent)
{
    enqueue(AsyncErrorQueue::Error, message, details, parent);
}

void showWarningMessage(const QString &caption, const QString &context, const QString &message,
                        const QString &details, QWidget *parent)
{
    // The context stands before the caption, unlike in the parameters: log filters rely on it.
    Core::Logging::createLogEntry(
        ELogLevel::Warning, logCategory(),
        QStringLiteral("Warning: %1: %2 : %3").arg(latin1(context), latin1(caption), latin1(message)));
    enqueue(AsyncErrorQueue::Warning, message, details, parent);
}

void showWarningMessage(const QString &caption, const QString &context, const QString &message,
                        QWidget *parent)
{
    showWarningMessage(caption, context, message, QString(), parent);
}

void showCriticalMessage(const QString &caption, const QString &context, const QString &message,
                         const QString &details, QWidget *parent)
{
    Core::Logging::createLogEntry(
        ELogLevel::Critical, logCategory(),
        QStringLiteral("Critical message: %1 : %2 : %3 : %4")
            .arg(latin1(context), latin1(caption), latin1(message), latin1(details)));
    enqueue(AsyncErrorQueue::Critical, message, details, parent);
}

void showCriticalMessage(const QString &caption, const QString &context, const QString &message,
                         QWidget *parent)
{
    showCriticalMessage(caption, context, message, QString(), parent);
}

void showException(const QString &context, const Core::Exception::BaseException &exception,
                   const QString &details, QWidget *parent)
{
    showException(context, static_cast<const std::exception &>(exception), details, parent);
}

void showException(const QString &context, const Core::Exception::BaseException &exception, QWidget *parent)
{
    showException(context, exception, QString(), parent);
}

void showException(const QString &context, const GenICam::GenericException &exception, const QString &details,
                   QWidget *parent)
{
    showException(context, static_cast<const std::exception &>(exception), details, parent);
}

void showException(const QString &context, const GenICam::GenericException &exception, QWidget *parent)
{
    showException(context, exception, QString(), parent);
}

void showException(const QString &context, const std::exception &exception, const QString &details,
                   QWidget *parent)
{
    showCriticalMessage(QCoreApplication::translate("ErrorHandling", "Error"), context,
                        QString::fromUtf8(exception.what()), details, parent);
}

void showException(const QString &context, const std::exception &exception, QWidget *parent)
{
    showException(context, exception, QString(), parent);
}

void showCurrentException(const QString &context, const QString &message, QWidget *parent)
{
    try {
        throw;
    } catch (const std::exception &exception) {
        showException(context, exception, message, parent);
    } catch (...) {
        showUnexpectedException(context, message, parent);
    }
}

void showUnexpectedException(const QString &context, const QString &message, QWidget *parent)
{
    showCriticalMessage(QCoreApplication::translate("ErrorHandling", "Unexpected exception occurred"),
                        context, message, QString(), parent);
}
