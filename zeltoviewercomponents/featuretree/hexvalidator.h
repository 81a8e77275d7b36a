// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QIntValidator>

/*! \brief Accepts 32-bit integers within limits, in decimal or, after "0x", in hexadecimal.
 *
 * \ingroup controls
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT HexValidator : public QIntValidator
{
    Q_OBJECT

public:
    /*! Accepts the values from \a bottom to \a top. */
    HexValidator(int bottom, int top, QObject *parent = nullptr);
    ~HexValidator() override;

    State validate(QString &input, int &pos) const override;
};
