// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "genericexception.h"

namespace GenICam {

GenericException::GenericException(const QString &description)
    : m_description(description.toUtf8())
{
}

// Out-of-line destructors anchor the type information in this library, so that an exception thrown in one
// shared library is caught by its type in another.
GenericException::~GenericException() = default;
InvalidArgumentException::~InvalidArgumentException() = default;
OutOfRangeException::~OutOfRangeException() = default;
PropertyException::~PropertyException() = default;
RuntimeException::~RuntimeException() = default;
LogicalErrorException::~LogicalErrorException() = default;
AccessException::~AccessException() = default;
TimeoutException::~TimeoutException() = default;
DynamicCastException::~DynamicCastException() = default;

const char *GenericException::what() const noexcept
{
    return m_description.constData();
}

const char *GenericException::GetDescription() const noexcept
{
    return what();
}

} // namespace GenICam
