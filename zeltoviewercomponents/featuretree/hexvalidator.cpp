// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "hexvalidator.h"

HexValidator::HexValidator(int bottom, int top, QObject *parent)
    : QIntValidator(bottom, top, parent)
{
}

HexValidator::~HexValidator() = default;

QValidator::State HexValidator::validate(QString &input, int &pos) const
{
    const QLatin1String prefix("0x");
    if (input.isEmpty() || input.trimmed() == prefix) {
        return Intermediate;
    }
    bool ok = false;
    const int value = input.toInt(&ok, input.startsWith(prefix) ? 16 : 10);
    if (!ok) {
        return Invalid;
    }
    QString decimal = QString::number(value);
    int decimalPos = pos;
    return QIntValidator::validate(decimal, decimalPos);
}
