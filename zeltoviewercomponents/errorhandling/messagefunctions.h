// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>

#include <exception>

class QWidget;

namespace Core::Exception {
class BaseException;
}
namespace GenICam {
class GenericException;
}

/*! \file
 * \brief The ways by which the library reports to the user.
 *
 * Each logs where its kind requires it and hands the message to the global AsyncErrorQueue. Caption and
 * context reach the log alone. All may be called from any thread; none throws.
 *
 * \ingroup errors
 */

/*! Shows an error. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showErrorMessage(const QString &message, QWidget *parent = nullptr);
/*! Shows an error with details. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showErrorMessage(const QString &message, const QString &details,
                                                         QWidget *parent = nullptr);

/*! Shows and logs a warning with details. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showWarningMessage(const QString &caption, const QString &context,
                                                           const QString &message, const QString &details,
                                                           QWidget *parent = nullptr);
/*! Shows and logs a warning. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showWarningMessage(const QString &caption, const QString &context,
                                                           const QString &message, QWidget *parent = nullptr);

/*! Shows and logs a critical message with details. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showCriticalMessage(const QString &caption, const QString &context,
                                                            const QString &message, const QString &details,
                                                            QWidget *parent = nullptr);
/*! Shows and logs a critical message. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showCriticalMessage(const QString &caption, const QString &context,
                                                            const QString &message,
                                                            QWidget *parent = nullptr);

/*! Reports an exception: its text is the message. \a context is the qualified name of the function that
 * caught it. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showException(const QString &context,
                                                      const Core::Exception::BaseException &exception,
                                                      const QString &details, QWidget *parent = nullptr);
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showException(const QString &context,
                                                      const Core::Exception::BaseException &exception,
                                                      QWidget *parent = nullptr);
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showException(const QString &context,
                                                      const GenICam::GenericException &exception,
                                                      const QString &details, QWidget *parent = nullptr);
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void
showException(const QString &context, const GenICam::GenericException &exception, QWidget *parent = nullptr);
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showException(const QString &context, const std::exception &exception,
                                                      const QString &details, QWidget *parent = nullptr);
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showException(const QString &context, const std::exception &exception,
                                                      QWidget *parent = nullptr);

/*! Reports the exception that is being handled, by showException() or, when its type is unknown, by
 * showUnexpectedException(); \a message says what failed. To be called inside a catch block. */
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void showCurrentException(const QString &context, const QString &message,
                                                             QWidget *parent = nullptr);

/*! Reports an exception of an unknown type; \a message says what failed. */
/*! As the first of these functions. */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void
showUnexpectedException(const QString &context, const QString &message, QWidget *parent = nullptr);
