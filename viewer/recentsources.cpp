// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "recentsources.h"

#include "cameraaddress.h"
#include "filelook.h"
#include "settingswriter.h"

#include <platform/core/livetexts.h>

#include <QAction>
#include <QFileInfo>
#include <QFontMetrics>
#include <QMenu>
#include <QSettings>

namespace {

constexpr qsizetype maximumCount = 10;
constexpr qsizetype maximumLength = 4096; // of a path; what is longer is damage

const QLatin1String filePrefix("file:");
const QLatin1String cameraPrefix("camera:");

QString settingsKey()
{
    return QStringLiteral("MainWindow/Recent");
}

bool isUsable(const QString &source)
{
    const bool isKnown = source.startsWith(filePrefix) || source.startsWith(cameraPrefix);
    return isKnown && !source.endsWith(QLatin1Char(':')) && source.size() <= maximumLength;
}

QStringList storedSources(const QSettings &settings = QSettings())
{
    QStringList usable;
    const QStringList stored = settings.value(settingsKey()).toStringList();
    for (const QString &source : stored) {
        if (usable.size() < maximumCount && isUsable(source) && !usable.contains(source)) {
            usable.append(source);
        }
    }
    return usable;
}

} // namespace

RecentSources::RecentSources(QMenu *menu, SettingsWriter *writer)
    : QObject(menu)
    , m_menu(menu)
    , m_writer(writer)
{
    menu->setToolTipsVisible(true);
    connect(menu, SIGNAL(aboutToShow()), this, SLOT(fillMenu()));
    connect(menu, SIGNAL(aboutToShow()), this, SLOT(lookForFiles()));
    connect(menu, SIGNAL(triggered(QAction *)), this, SLOT(onTriggered(QAction *)));
    (new Core::LiveTexts(menu))->add([this] { fillMenu(); });
}

RecentSources::~RecentSources() = default;

void RecentSources::add(const CameraAddress &address)
{
    const QString source = address.description.isEmpty()
        ? cameraPrefix + address.camera
        : filePrefix + QFileInfo(address.description).absoluteFilePath();
    if (isUsable(source)) {
        change([source](QStringList &sources) {
            sources.removeAll(source);
            sources.prepend(source);
        });
    }
}

QString RecentSources::lastCamera() const
{
    const QStringList cameras = storedSources().filter(cameraPrefix);
    return cameras.value(0).mid(cameraPrefix.size());
}

void RecentSources::change(const std::function<void(QStringList &)> &how)
{
    m_writer->add([this, how](QSettings &settings) {
        QStringList sources = storedSources(settings);
        how(sources);
        settings.setValue(settingsKey(), sources.mid(0, maximumCount));
        QMetaObject::invokeMethod(this, "fillMenu", Qt::QueuedConnection);
    });
}

void RecentSources::fillMenu()
{
    m_menu->clear();
    const QStringList sources = storedSources();
    for (const QString &source : sources) {
        addEntry(source, static_cast<int>(m_menu->actions().size()) + 1);
    }
    m_menu->addSeparator();
    m_menu->addAction(tr("&Clear List"));
    m_menu->menuAction()->setEnabled(!sources.isEmpty());
}

void RecentSources::addEntry(const QString &source, int number)
{
    const bool isFile = source.startsWith(filePrefix);
    const QString name = source.mid(isFile ? filePrefix.size() : cameraPrefix.size());
    const QFontMetrics metrics = m_menu->fontMetrics();
    QString shown = metrics.elidedText(name.simplified(), Qt::ElideMiddle, metrics.averageCharWidth() * 60);
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction *const action = m_menu->addAction(QStringLiteral("&%1 %2").arg(number % 10).arg(shown));
    action->setData(source);
    action->setToolTip(name);
    action->setStatusTip(name);
}

void RecentSources::lookForFiles()
{
    if (m_look) {
        return;
    }
    QStringList files;
    const QStringList sources = storedSources();
    for (const QString &source : sources) {
        if (source.startsWith(filePrefix)) {
            files.append(source.mid(filePrefix.size()));
        }
    }
    m_look = new FileLook(files);
    connect(m_look, SIGNAL(missing(QString)), this, SLOT(onMissing(QString)));
    m_look->start();
}

void RecentSources::onMissing(const QString &file)
{
    const auto actions = m_menu->actions();
    for (QAction *const action : actions) {
        if (action->data().toString() == filePrefix + file) {
            action->setEnabled(false);
            action->setToolTip(tr("The file does not exist at present"));
            action->setStatusTip(action->toolTip());
        }
    }
}

void RecentSources::onTriggered(QAction *action)
{
    const QString source = action->data().toString();
    if (source.isEmpty()) {
        change([](QStringList &sources) { sources.clear(); });
    } else if (source.startsWith(filePrefix)) {
        emit chosen(source.mid(filePrefix.size()), QString());
    } else {
        emit chosen(QString(), source.mid(cameraPrefix.size()));
    }
}
