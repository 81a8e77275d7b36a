// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QString>
#include <QValidator>

/*! \brief Base of the validators of network addresses: beside the verdict it gives the reason in words.
 *
 * Text that can still become right is Intermediate, and so is a complete address that must not be used for
 * what it is asked for: the user has to be able to edit it. fixup() mends what needs no guessing, first of
 * all the blanks that come with pasted text.
 *
 * \ingroup network
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT AddressValidator : public QValidator
{
    Q_OBJECT

public:
    ~AddressValidator() override;

    State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;

    /*! Returns in translated words why \a input is not acceptable; empty when it is. */
    QString reason(const QString &input) const;

    /*! Returns \a text without the blanks and invisible characters around it and around its separators. A
     * blank between two digits stays: what was meant by it can only be guessed. */
    static QString withoutBlanks(const QString &text);

protected:
    /*! \brief What is thought of a text. */
    struct Verdict
    {
        State state = Invalid; //!< as validate() gives it
        QString reason; //!< in translated words
    };

    explicit AddressValidator(QObject *parent);

    /*! Judges \a text, which has no blanks to remove. */
    virtual Verdict judge(const QString &text) const = 0;
    /*! Returns the usual form of \a text, which may be anything; what is not understood stays as it is. */
    virtual QString normalized(const QString &text) const;

    /*! Judges \a text as four decimal numbers with dots. A complete one is stored to \a value. */
    static Verdict judgeDottedQuad(const QString &text, quint32 *value);

private:
    Verdict judgeInput(const QString &input) const;
};
