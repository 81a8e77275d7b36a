// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "translations.h"

#include "resources_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

QString translatorName()
{
    return QStringLiteral("zeltoTranslator");
}

void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *const translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(translatorName());
    if (translator->load(locale, name, QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

void installOurs(const QLocale &locale)
{
    const QStringList names = QDir(QStringLiteral(":/")).entryList(QDir::Dirs);
    for (const QString &name : names) {
        install(locale, name, QStringLiteral(":/%1/translations").arg(name));
    }
}

} // namespace

void installTranslations(const QLocale &locale)
{
    const auto former = QCoreApplication::instance()->findChildren<QTranslator *>(translatorName(),
                                                                                  Qt::FindDirectChildrenOnly);
    installOurs(QLocale::English); // what is installed later is asked first
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installOurs(locale);
    qDeleteAll(former);
}
