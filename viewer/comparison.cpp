// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "comparison.h"

#include "cameradialog.h"
#include "freshvalues.h"
#include "settingsorigin.h"

#include <cameras/camera.h>
#include <cameras/cameraopening.h>
#include <platform/core/exception.h>
#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/settings/presentsettings.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparisonwidget.h>
#include <zeltoviewercomponents/settings/settingsreader.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QProgressDialog>
#include <QSet>
#include <QTimer>

#include <algorithm>

namespace {

// What of \a settings is also in \a known.
FeatureSettings onlyThoseOf(const FeatureSettings &known, const FeatureSettings &settings)
{
    QSet<QString> features;
    const auto keyOf = [](const FeatureSettings::Setting &setting) {
        return setting.nodeMap + QLatin1Char('/') + setting.title();
    };
    const auto knownSettings = known.settings();
    for (const FeatureSettings::Setting &setting : knownSettings) {
        features.insert(keyOf(setting));
    }
    QList<FeatureSettings::Setting> wanted = settings.settings();
    wanted.removeIf([&features, &keyOf](const FeatureSettings::Setting &setting) {
        return !features.contains(keyOf(setting));
    });
    return FeatureSettings::of(wanted);
}

} // namespace

Comparison::Comparison(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_panel(new SettingsComparisonWidget(window))
    , m_menu(new QMenu(window))
{
    auto *const texts = new Core::LiveTexts(m_menu);
    texts->add(m_menu, &QMenu::setTitle, [] { return tr("Compare &With"); });
    const auto add = [this, texts](const char *text, const char *slot) {
        texts->add(m_menu->addAction(QString(), this, slot), &QAction::setText, [text] { return tr(text); });
    };
    add(QT_TR_NOOP("A &File…"), SLOT(askForFile()));
    add(QT_TR_NOOP("The State When &Opened"), SLOT(compareWithOpened()));
    add(QT_TR_NOOP("Another &Description…"), SLOT(askForDescription()));
    add(QT_TR_NOOP("Another &Camera…"), SLOT(askForCamera()));
    connect(m_panel, SIGNAL(refreshRequested()), this, SLOT(compareAgain()));
    connect(m_panel, SIGNAL(takeOverRequested(FeatureSettings)), this, SLOT(takeOver(FeatureSettings)));
    close();
}

Comparison::~Comparison() = default;

void Comparison::addTo(QMenu *menu)
{
    menu->addMenu(m_menu);
}

void Comparison::open(const QList<SettingsNodeMap> &nodeMaps)
{
    close();
    m_nodeMaps = nodeMaps;
    m_opened = FeatureSettings();
    QTimer::singleShot(0, this, SLOT(takeOpened())); // the window is shown first
    setBusy(false);
}

void Comparison::takeOpened()
{
    if (m_opened.isEmpty()) {
        m_opened = presentSettings(m_nodeMaps);
    }
}

void Comparison::close()
{
    endOpening();
    m_reader.reset();
    m_applier.reset();
    m_takenOver.reset();
    m_other.reset();
    m_nodeMaps.clear();
    setBusy(false);
    m_panel->clear();
}

bool Comparison::canStart() const
{
    return !m_isBusy && m_canRead && !m_opening && !m_reader && !m_applier && !m_takenOver
        && !m_nodeMaps.isEmpty();
}

void Comparison::setBusy(bool busy)
{
    m_isBusy = busy;
    updateActions();
}

void Comparison::setAccess(bool canRead, bool canWrite)
{
    m_canRead = canRead;
    m_canWrite = canWrite;
    updateActions();
}

void Comparison::updateActions()
{
    const bool isPossible = !m_isBusy && m_canRead && !m_nodeMaps.isEmpty();
    m_menu->setEnabled(isPossible);
    m_panel->setComparing(isPossible);
    m_panel->setTakingOver(isPossible && m_canWrite);
}

void Comparison::askForFile()
{
    const QString fileName =
        QFileDialog::getOpenFileName(m_window, tr("Compare With a Settings File"), QString(),
                                     tr("Camera settings (*.txt);;All files (*)"));
    if (!fileName.isEmpty()) {
        compareWithFile(fileName);
    }
}

void Comparison::compareWithFile(const QString &fileName)
{
    try {
        compareWith(QFileInfo(fileName).fileName(), FeatureSettings::load(fileName), false);
    } catch (const Core::Exception::BaseException &exception) {
        emit failed(exception.getMessage(), QString());
    }
}

void Comparison::compareWithOpened()
{
    compareWith(tr("the state when opened"), m_opened, true);
}

void Comparison::askForDescription()
{
    const QString fileName =
        QFileDialog::getOpenFileName(m_window, tr("Compare With Another Description"), QString(),
                                     tr("Camera descriptions (*.xml *.zip);;All files (*)"));
    if (fileName.isEmpty()) {
        return;
    }
    openOther(Cameras::Camera::openDescriptionAsync(fileName), QFileInfo(fileName).fileName());
}

void Comparison::askForCamera()
{
    CameraDialog dialog(m_window);
    if (dialog.exec() == QDialog::Accepted && !dialog.cameraId().isEmpty()) {
        openOther(Cameras::Camera::openLiveAsync(dialog.cameraId()), dialog.cameraId());
    }
}

void Comparison::openOther(std::unique_ptr<Cameras::CameraOpening> opening, const QString &name)
{
    if (!canStart()) {
        return;
    }
    m_opening = std::move(opening);
    connect(m_opening.get(), SIGNAL(opened()), this, SLOT(onOtherOpened()));
    connect(m_opening.get(), SIGNAL(failed(QString)), this, SLOT(onOtherFailed(QString)));
    m_progress = std::make_unique<QProgressDialog>(tr("Opening %1…").arg(name), tr("Cancel"), 0, 0, m_window);
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setMinimumDuration(500);
    connect(m_progress.get(), SIGNAL(canceled()), this, SLOT(endOpening()));
}

// Either may be the sender of what ends the opening.
void Comparison::endOpening()
{
    if (m_opening) {
        m_opening->cancel();
        m_opening.release()->deleteLater();
        m_progress->hide();
        m_progress.release()->deleteLater();
    }
}

void Comparison::onOtherOpened()
{
    std::unique_ptr<Cameras::Camera> other = m_opening->takeCamera();
    endOpening();
    compareWith(std::move(other));
}

void Comparison::onOtherFailed(const QString &reason)
{
    endOpening();
    emit failed(reason, QString());
}

void Comparison::compareWith(std::unique_ptr<Cameras::Camera> other)
{
    if (!canStart()) {
        return;
    }
    m_other = std::move(other);
    m_reader = std::make_unique<SettingsReader>(settingsNodeMaps(*m_other));
    emit taskCreated(m_reader.get()); // whose receivers hear of the end first
    connect(m_reader.get(), SIGNAL(finished()), this, SLOT(onOtherRead()));
    m_reader->start();
}

void Comparison::onOtherRead()
{
    const bool isComplete = !m_reader->isCancelled() && !m_reader->isLost();
    const FeatureSettings there = m_reader->settings();
    const auto info = m_other->info();
    m_reader.release()->deleteLater(); // it is the sender
    m_other.reset();
    if (isComplete) {
        compareWith(QStringLiteral("%1 %2").arg(info->modelName(), info->serialNumber()).trimmed(), there,
                    false);
    }
}

void Comparison::compareWith(const QString &title, const FeatureSettings &there, bool onlyKnown)
{
    m_title = title;
    m_there = there;
    m_onlyKnown = onlyKnown;
    compareAgain();
}

void Comparison::compareAgain()
{
    if (!canStart()) {
        return;
    }
    m_reader = std::make_unique<SettingsReader>(m_nodeMaps);
    emit taskCreated(m_reader.get());
    connect(m_reader.get(), SIGNAL(finished()), this, SLOT(onHereRead()));
    m_reader->start();
}

void Comparison::onHereRead()
{
    const bool isComplete = !m_reader->isCancelled() && !m_reader->isLost();
    const FeatureSettings here = m_reader->settings();
    m_reader.release()->deleteLater(); // it is the sender
    if (isComplete) {
        m_panel->setComparison(m_title, m_onlyKnown ? onlyThoseOf(m_there, here) : here, m_there);
        emit compared();
    }
}

void Comparison::takeOver(const FeatureSettings &settings)
{
    if (!canStart() || !m_canWrite) {
        return;
    }
    m_applier = std::make_unique<SettingsApplier>(settings, m_nodeMaps);
    emit taskCreated(m_applier.get());
    connect(m_applier.get(), SIGNAL(finished()), this, SLOT(onTakenOver()));
    m_applier->start();
}

void Comparison::onTakenOver()
{
    const std::unique_ptr<SettingsApplier, void (*)(SettingsApplier *)> applier(
        m_applier.release(), [](SettingsApplier *sender) { sender->deleteLater(); });
    emit applied(m_title, applier->settings(), applier->former(), applier->report());
    if (!applier->report().isSuccess()) {
        emit failed(applier->report().summary(), applier->report().problems().join(QLatin1Char('\n')));
    }
    if (!applier->isLost()) {
        compareWhenShown(applier->report());
    }
}

// The tree rests while the camera is read, and would show until then what was there before.
void Comparison::compareWhenShown(const SettingsReport &report)
{
    QList<FreshValues::ParameterPtr> changed;
    for (const SettingsReport::Entry &entry : report.entries) {
        const auto nodeMap =
            std::find_if(m_nodeMaps.cbegin(), m_nodeMaps.cend(), [&entry](const SettingsNodeMap &known) {
                return known.name == entry.setting.nodeMap;
            });
        const bool isWritten =
            entry.result == SettingsReport::Result::Set || entry.result == SettingsReport::Result::Different;
        if (isWritten && nodeMap != m_nodeMaps.cend()) {
            changed.append(nodeMap->collection->parameter(entry.setting.name));
        }
    }
    if (changed.isEmpty()) {
        compareAgain();
        return;
    }
    m_takenOver = std::make_unique<FreshValues>(changed);
    connect(m_takenOver.get(), SIGNAL(finished()), this, SLOT(onShown()));
    m_takenOver->request();
}

void Comparison::onShown()
{
    m_takenOver.release()->deleteLater(); // it is the sender
    compareAgain();
}
