// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/genicam/genapi.h>

#include <QCoreApplication>
#include <QString>

/*! \brief The user levels, as the window names them. */
class Levels
{
    Q_DECLARE_TR_FUNCTIONS(Levels)

public:
    /*! Returns the entry of a menu that has all features of \a level and below shown. */
    static QString menuText(GenApi::EVisibility level);
    /*! Returns the name of the level that a feature is on. */
    static QString name(GenApi::EVisibility level);
    /*! Returns the text of a menu's entry without the letter that is pressed for it, which some languages
     * have in brackets behind. */
    static QString withoutMnemonic(const QString &menuText);
};
