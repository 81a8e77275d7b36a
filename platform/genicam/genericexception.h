// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QByteArray>
#include <QString>

#include <exception>

namespace GenICam {

/*! \brief Base of the GenICam standard's exceptions; the text is UTF-8. */
class ZELTO_PLATFORM_EXPORT GenericException : public std::exception
{
public:
    /*! Makes an exception with that text for people. */
    explicit GenericException(const QString &description);
    ~GenericException() override;

    /*! Returns the description, in UTF-8. */
    const char *what() const noexcept override;

    /*! Returns the description. */
    const char *GetDescription() const noexcept;

private:
    QByteArray m_description;
};

/*! \brief An argument has a wrong form, such as a text that is no number. */
class ZELTO_PLATFORM_EXPORT InvalidArgumentException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~InvalidArgumentException() override;
};

/*! \brief A value lies outside a feature's limits. */
class ZELTO_PLATFORM_EXPORT OutOfRangeException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~OutOfRangeException() override;
};

/*! \brief A node's property is missing or broken. */
class ZELTO_PLATFORM_EXPORT PropertyException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~PropertyException() override;
};

/*! \brief Something that only shows at run time failed, such as a formula that divides by zero. */
class ZELTO_PLATFORM_EXPORT RuntimeException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~RuntimeException() override;
};

/*! \brief A call that the program should not have made. */
class ZELTO_PLATFORM_EXPORT LogicalErrorException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~LogicalErrorException() override;
};

/*! \brief The feature's access mode forbids the operation. */
class ZELTO_PLATFORM_EXPORT AccessException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~AccessException() override;
};

/*! \brief The device did not answer in time. */
class ZELTO_PLATFORM_EXPORT TimeoutException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~TimeoutException() override;
};

/*! \brief A node is of another kind than asked for. */
class ZELTO_PLATFORM_EXPORT DynamicCastException : public GenericException
{
public:
    /*! Makes an exception with that text for people. */
    using GenericException::GenericException;
    ~DynamicCastException() override;
};

} // namespace GenICam
