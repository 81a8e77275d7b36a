// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

class QLocale;

/*! Makes the application speak the language of \a locale, as far as there are translations: the viewer's
 * texts, the libraries' and Qt's own. What has none stays English. */
void installTranslations(const QLocale &locale);
