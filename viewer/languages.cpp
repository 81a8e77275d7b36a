// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "languages.h"

#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/translations.h>

#include <QActionGroup>
#include <QLocale>
#include <QSettings>

#include <array>
#include <utility>

namespace {

// Each in its own words, for those who cannot read the present one.
constexpr std::array languages{
    std::pair{"de", u"Deutsch"},  std::pair{"en", u"English"}, std::pair{"es", u"Español"},
    std::pair{"fr", u"Français"}, std::pair{"ja", u"日本語"},  std::pair{"zh_CN", u"简体中文"},
};

QString settingsKey()
{
    return QStringLiteral("Language");
}

QString remembered()
{
    return QSettings().value(settingsKey()).toString();
}

} // namespace

QLocale chosenLanguage()
{
    return remembered().isEmpty() ? QLocale() : QLocale(remembered());
}

LanguagesMenu::LanguagesMenu(QWidget *parent)
    : QMenu(parent)
{
    auto *const texts = new Core::LiveTexts(this);
    texts->add(this, &QMenu::setTitle, [] { return tr("Lan&guage"); });
    auto *const group = new QActionGroup(this);
    const auto add = [this, group](const QString &code) {
        QAction *const action = addAction(QString());
        action->setCheckable(true);
        action->setData(code);
        action->setChecked(code == remembered());
        group->addAction(action);
        return action;
    };
    texts->add(add(QString()), &QAction::setText, [] { return tr("As the &System"); });
    addSeparator();
    for (const auto &[code, name] : languages) {
        add(QString::fromLatin1(code))->setText(QString::fromUtf16(name));
    }
    connect(group, SIGNAL(triggered(QAction *)), this, SLOT(choose(QAction *)));
}

LanguagesMenu::~LanguagesMenu() = default;

void LanguagesMenu::choose(QAction *action)
{
    QSettings().setValue(settingsKey(), action->data());
    installTranslations(chosenLanguage());
}
