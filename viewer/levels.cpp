// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "levels.h"

#include <QRegularExpression>

QString Levels::menuText(GenApi::EVisibility level)
{
    switch (level) {
    case GenApi::Beginner:
        return tr("&Beginner");
    case GenApi::Expert:
        return tr("&Expert");
    case GenApi::Guru:
        return tr("&Guru");
    default:
        return tr("&All Features");
    }
}

QString Levels::name(GenApi::EVisibility level)
{
    return level < GenApi::Invisible ? withoutMnemonic(menuText(level)) : tr("Invisible");
}

QString Levels::withoutMnemonic(const QString &menuText)
{
    static const QRegularExpression mnemonic(QStringLiteral("\\s*\\(&.\\)|&"));
    return QString(menuText).remove(mnemonic);
}
