// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include <optional>

/*! \brief Judges the texts that users type as values of integer features.
 *
 * \ingroup editors
 */
class IntegerText
{
    Q_DECLARE_TR_FUNCTIONS(IntegerText)

public:
    /*! \brief How an integer is written. */
    enum class Form {
        Decimal, //!< digits in the user's language
        Plain, //!< the same, or hexadecimal behind "0x"
        Hexadecimal, //!< the same as Plain, for features that show their value so
        Boolean, //!< the same as Plain, or "true" and "false"
        Address, //!< IPv4
        SubnetMask, //!< IPv4, contiguous
        MacAddress,
    };

    /*! Returns the form of the feature \a name with the GenICam \a representation. */
    static Form formOf(const QString &representation, const QString &name);

    /*! Returns why \a text is no value of \a form; empty when it is one, or when nothing is written there. */
    static QString problem(const QString &text, Form form, const QLocale &locale);
    /*! Returns what is to be said of any text where the limits contradict each other. */
    static QString limitsProblem();
    /*! Returns the words for an entry that became \a value, which is on a grid of the distance \a step. */
    static QString gridHint(const QString &value, const QString &step);
    /*! Returns what is to be said of a text that the parameter has refused. */
    static QString refusal();

    /*! Returns the number that \a text stands for in Form::Decimal, limited to 64 bits. */
    static std::optional<qint64> number(const QString &text, const QLocale &locale);
    /*! Returns \a text as parameters read it: a number in the signs of the language has those of C. */
    static QString handedOut(const QString &text, const QLocale &locale);

private:
    static QString numberProblem(const QString &text, Form form, const QLocale &locale);
};
