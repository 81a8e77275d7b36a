// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "colours.h"

#include "legiblepalette.h"
#include "legiblestyle.h"

#include <platform/core/livetexts.h>

#include <QActionGroup>
#include <QApplication>
#include <QPalette>
#include <QSettings>

namespace {

// What the settings say.
const QLatin1String light("light");
const QLatin1String dark("dark");
const QLatin1String asTheSystem("system");

QString settingsKey()
{
    return QStringLiteral("Colours");
}

/*! \brief The colours from which a palette is made. */
struct Scheme
{
    QRgb window;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb text;
    QRgb disabledText;
    QRgb highlight;
    QRgb link;
    QRgb visitedLink;
    QRgb toolTip;
};

constexpr Scheme lightScheme{0xffefefef, 0xffffffff, 0xfff5f5f5, 0xffefefef, 0xff000000,
                             0xff636363, 0xff2874ac, 0xff0a5ba8, 0xff7a3e9d, 0xffffffe1};
constexpr Scheme darkScheme{0xff2e3135, 0xff1f2226, 0xff272a2f, 0xff282b2f, 0xffeeeeee,
                            0xffa9adb2, 0xff2a73ad, 0xff6cb3f0, 0xffc39ae0, 0xff3a3e44};

QPalette paletteOf(const Scheme &scheme)
{
    const QColor text(scheme.text);
    QPalette palette((QColor(scheme.button)), QColor(scheme.window)); // the shades too
    palette.setColor(QPalette::Base, QColor(scheme.base));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(scheme.window));
    palette.setColor(QPalette::AlternateBase, QColor(scheme.alternateBase));
    palette.setColor(QPalette::Highlight, QColor(scheme.highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(scheme.link));
    palette.setColor(QPalette::LinkVisited, QColor(scheme.visitedLink));
    palette.setColor(QPalette::ToolTipBase, QColor(scheme.toolTip));
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(scheme.disabledText));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(scheme.disabledText));
    makeLegible(palette);
    return palette;
}

void use(const QString &colours)
{
    if (colours == light) {
        QApplication::setPalette(paletteOf(lightScheme));
    } else if (colours == dark) {
        QApplication::setPalette(paletteOf(darkScheme));
    } else {
        QApplication::setPalette(QPalette()); // follows the system
    }
}

QString remembered()
{
    return QSettings().value(settingsKey()).toString();
}

} // namespace

void setUpColours()
{
    QApplication::setStyle(new LegibleStyle);
    use(remembered());
}

ColoursMenu::ColoursMenu(QWidget *parent)
    : QMenu(parent)
{
    auto *const texts = new Core::LiveTexts(this);
    texts->add(this, &QMenu::setTitle, [] { return tr("C&olours"); });
    auto *const group = new QActionGroup(this);
    const auto add = [this, group, texts](const char *text, const QString &colours) {
        QAction *const action = addAction(QString());
        texts->add(action, &QAction::setText, [text] { return tr(text); });
        action->setCheckable(true);
        action->setData(colours);
        group->addAction(action);
        if (colours == asTheSystem || colours == remembered()) {
            action->setChecked(true);
        }
    };
    add(QT_TR_NOOP("As the &System"), asTheSystem);
    add(QT_TR_NOOP("&Light"), light);
    add(QT_TR_NOOP("&Dark"), dark);
    connect(group, SIGNAL(triggered(QAction *)), this, SLOT(choose(QAction *)));
}

ColoursMenu::~ColoursMenu() = default;

void ColoursMenu::choose(QAction *action)
{
    const QString colours = action->data().toString();
    QSettings().setValue(settingsKey(), colours);
    use(colours);
}
