// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

class QLocale;

/*! \brief Makes the application speak the language of \a locale, as far as there are translations.
 *
 * Loads Qt's own texts and those of every library and program that has them among its resources, as this one
 * has: ":/NAME/translations/NAME_LANGUAGE.qm". English ones, which hold plurals, stand in where a language
 * lacks something. Texts without any stay as they are written in the program. May be called again with
 * another locale: open windows get QEvent::LanguageChange. Needs the application object.
 */
ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT void installTranslations(const QLocale &locale);
