// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, name, QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace

void installTranslations(const QLocale &locale)
{
    const QString viewer = QStringLiteral("viewer");
    const QString viewerFolder = QStringLiteral(":/viewer/translations");
    install(QLocale::English, viewer,
            viewerFolder); // the English plurals, for all languages without their own
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("zeltoviewercomponents"),
            QStringLiteral(":/zeltoviewercomponents/translations"));
    install(locale, QStringLiteral("cameras"), QStringLiteral(":/cameras/translations"));
    install(locale, viewer, viewerFolder);
}
