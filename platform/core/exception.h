// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QByteArray>
#include <QString>

#include <exception>

namespace Core::Exception {

/*! \brief Base of the system's own exceptions. */
class ZELTO_PLATFORM_EXPORT BaseException : public std::exception
{
public:
    /*! Makes an exception with that text for people. */
    explicit BaseException(const QString &message);
    ~BaseException() override;

    /*! Returns the message. */
    QString getMessage() const;

    /*! Returns the message, in UTF-8. */
    const char *what() const noexcept override;

private:
    QByteArray m_message;
};

} // namespace Core::Exception
