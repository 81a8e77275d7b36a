// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsactions.h"

#include "messagebar.h"
#include "settingsorigin.h"

#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingsprogress.h>
#include <zeltoviewercomponents/settings/settingsreader.h>
#include <zeltoviewercomponents/settings/settingsreportdialog.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

constexpr int hintTime = 5000;

QString subject()
{
    return QStringLiteral("settings"); // of the messages that the next success takes back
}

} // namespace

SettingsActions::SettingsActions(FeatureTreeWidget *tree, MessageBar *messages, QObject *parent)
    : QObject(parent)
    , m_tree(tree)
    , m_messages(messages)
    , m_save(new QAction(this))
    , m_load(new QAction(this))
{
    auto *const texts = new Core::LiveTexts(tree); // which hears of another language
    texts->add(m_save, &QAction::setText, [] { return tr("&Save Settings…"); });
    texts->add(m_load, &QAction::setText, [] { return tr("&Load Settings…"); });
    for (const auto setter : {&QAction::setToolTip, &QAction::setStatusTip}) {
        texts->add(m_save, setter, [] { return tr("Saves all values that can be changed to a text file"); });
        texts->add(m_load, setter, [] { return tr("Brings the values in a file to the camera"); });
    }
    m_save->setShortcut(QKeySequence::Save);
    m_load->setShortcut(QKeySequence(tr("Ctrl+L")));
    connect(m_save, SIGNAL(triggered()), this, SLOT(save()));
    connect(m_load, SIGNAL(triggered()), this, SLOT(load()));
    connect(m_tree, SIGNAL(restingChanged(bool)), this, SLOT(updateActions()));
    updateActions();
}

SettingsActions::~SettingsActions() = default;

QList<QAction *> SettingsActions::actions() const
{
    return {m_save, m_load};
}

QWidget *SettingsActions::window() const
{
    return m_tree->window();
}

QList<SettingsNodeMap> SettingsActions::nodeMaps() const
{
    return m_camera ? settingsNodeMaps(*m_camera) : QList<SettingsNodeMap>();
}

bool SettingsActions::isBusy() const
{
    return m_task != nullptr;
}

void SettingsActions::setCamera(Cameras::Camera *camera)
{
    if (m_task) {
        endTask();
    }
    if (m_report) {
        m_report->close(); // what it would put back belongs to another camera
    }
    m_camera = camera;
    m_former = FeatureSettings();
    updateActions();
}

void SettingsActions::updateActions()
{
    const bool isUsable = m_camera && !m_camera->isLost() && !m_tree->isResting();
    m_save->setEnabled(isUsable);
    m_load->setEnabled(isUsable && !m_camera->isReadOnly());
}

QString SettingsActions::suggestedFile() const
{
    if (!m_lastFile.isEmpty()) {
        return m_lastFile;
    }
    const auto info = m_camera->info();
    static const QRegularExpression odd(QStringLiteral("[^\\w.-]+"));
    const QString name = (info->modelName() + QLatin1Char(' ') + info->serialNumber()).trimmed();
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
        .filePath(QString(name).replace(odd, QStringLiteral("_")) + QLatin1String(".txt"));
}

void SettingsActions::save()
{
    const QString fileName = QFileDialog::getSaveFileName(window(), tr("Save Settings"), suggestedFile(),
                                                          tr("Camera settings (*.txt);;All files (*)"));
    if (!fileName.isEmpty()) {
        saveTo(fileName);
    }
}

void SettingsActions::load()
{
    const QString fileName =
        QFileDialog::getOpenFileName(window(), tr("Load Settings"), QFileInfo(suggestedFile()).path(),
                                     tr("Camera settings (*.txt);;All files (*)"));
    if (!fileName.isEmpty()) {
        loadFrom(fileName);
    }
}

void SettingsActions::saveTo(const QString &fileName)
{
    if (!m_camera || m_task) {
        return; // the camera went while a file was chosen
    }
    m_fileName = fileName;
    run(new SettingsReader(nodeMaps()), tr("Save Settings"), SLOT(onReadFinished()));
}

void SettingsActions::loadFrom(const QString &fileName)
{
    if (!m_camera || m_task) {
        return;
    }
    try {
        const FeatureSettings settings = FeatureSettings::load(fileName);
        if (settings.isEmpty()) {
            warn(tr("%1: there are no settings in it").arg(fileName));
        } else if (isWanted(settings)) {
            apply(settings, fileName);
        }
    } catch (const Core::Exception::BaseException &exception) {
        warn(exception.getMessage());
    }
}

// A camera of another model may take some of the settings, and others to a different effect.
bool SettingsActions::isWanted(const FeatureSettings &settings)
{
    if (isOfModel(settings, *m_camera)) {
        return true;
    }
    QMessageBox box(
        QMessageBox::Question, tr("Load Settings"),
        tr("These are settings of the model %1, and the open camera is a %2.\nLoad them all the same?")
            .arg(settings.origin.model, m_camera->info()->modelName()),
        QMessageBox::Ok | QMessageBox::Cancel, window());
    box.setTextFormat(Qt::PlainText); // the file has a say in it
    box.button(QMessageBox::Ok)->setText(tr("&Load"));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Ok && m_camera && !m_task;
}

void SettingsActions::apply(const FeatureSettings &settings, const QString &fileName)
{
    m_fileName = fileName;
    run(new SettingsApplier(settings, nodeMaps()), tr("Load Settings"), SLOT(onApplyFinished()));
}

void SettingsActions::putBack()
{
    if (m_camera && !m_task) {
        apply(m_former, QString());
    }
}

void SettingsActions::run(SettingsTask *task, const QString &title, const char *finishedSlot)
{
    m_task.reset(task);
    auto *const progress = new SettingsProgress(task, title, window());
    connect(task, SIGNAL(destroyed()), progress, SLOT(deleteLater()));
    connect(task, SIGNAL(finished()), this, finishedSlot);
    m_tree->setResting(true);
    updateActions();
    emit taskCreated(task);
    task->start();
}

void SettingsActions::endTask()
{
    m_task->disconnect(this);
    m_task.release()->deleteLater(); // it may be the sender of the signal that led here
    m_tree->setResting(false);
    updateActions();
}

void SettingsActions::onReadFinished()
{
    const auto &reader = static_cast<const SettingsReader &>(*m_task);
    const QStringList notes = reader.notes();
    const bool isComplete = !reader.isCancelled() && !reader.isLost();
    FeatureSettings settings = reader.settings();
    settings.origin = settingsOrigin(*m_camera);
    endTask();
    if (!isComplete) {
        emit hint(tr("No settings were saved."), hintTime);
        return;
    }
    try {
        settings.save(m_fileName);
    } catch (const Core::Exception::BaseException &exception) {
        warn(exception.getMessage());
        return;
    }
    m_lastFile = m_fileName;
    m_messages->resolve(subject());
    if (!notes.isEmpty()) {
        m_messages->showMessage(tr("The settings were saved, but for some that cannot be read."),
                                notes.mid(0, 5).join(QLatin1Char('\n')), subject());
    }
    emit hint(tr("The settings were saved to %1.").arg(QDir::toNativeSeparators(m_fileName)), hintTime);
    emit saved(settings, m_fileName);
}

void SettingsActions::onApplyFinished()
{
    const auto &applier = static_cast<const SettingsApplier &>(*m_task);
    const SettingsReport report = applier.report();
    const FeatureSettings settings = applier.settings();
    const bool isBack = m_fileName.isEmpty();
    m_former = isBack ? m_former : applier.former();
    const FeatureSettings former = applier.former();
    endTask();
    if (!isBack) {
        m_lastFile = m_fileName;
    }
    m_messages->resolve(subject());
    emit applied(settings, former, report, m_fileName);
    if (report.isSuccess()) {
        emit hint(isBack ? tr("What was before is back. %1").arg(report.summary())
                         : tr("Settings loaded. %1").arg(report.summary()),
                  hintTime);
    } else {
        showReport(report);
    }
}

void SettingsActions::showReport(const SettingsReport &report)
{
    m_report = new SettingsReportDialog(report, window());
    m_report->setAttribute(Qt::WA_DeleteOnClose);
    m_report->setModal(true);
    connect(m_report, SIGNAL(putBackRequested()), this, SLOT(putBack()));
    m_report->show();
}

void SettingsActions::warn(const QString &text)
{
    m_messages->showMessage(text, QString(), subject());
}
