// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include <optional>

/*! \brief What a typed text says as a floating-point number, and the words for what it does not.
 *
 * A number has the decimal sign of the language, no group separators and no unit: what could mean two
 * different numbers is none. Signs, digits and the exponent are understood as every keyboard has them, too,
 * and blanks around the number do not count.
 *
 * \ingroup editors
 */
class NumberText
{
    Q_DECLARE_TR_FUNCTIONS(NumberText)

public:
    NumberText(const QString &text, const QLocale &locale);

    /*! Returns the number; nothing when the text is none. */
    std::optional<double> number() const { return m_number; }
    /*! Returns why the text is no number; empty for a number and for what may be its beginning. */
    QString problem() const;

    /*! Returns the words for a decimal sign other than that of \a locale. */
    static QString decimalSignHint(const QLocale &locale);
    /*! Returns the words for a number that lacks something. */
    static QString incompleteHint();
    /*! Returns the words for an entry that became the \a limit. */
    static QString limitHint(const QString &limit, bool isMaximum);
    /*! Returns the words for an entry that became \a value, which \a increment allows. */
    static QString incrementHint(const QString &value, const QString &increment);

private:
    QString reason() const;
    QString groupHint() const;

    QString m_text;
    QLocale m_locale;
    std::optional<double> m_number;
};
