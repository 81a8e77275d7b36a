// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "exception.h"

namespace Core::Exception {

BaseException::BaseException(const QString &message)
    : m_message(message.toUtf8())
{
}

BaseException::~BaseException() = default;

QString BaseException::getMessage() const
{
    return QString::fromUtf8(m_message);
}

const char *BaseException::what() const noexcept
{
    return m_message.constData();
}

} // namespace Core::Exception
