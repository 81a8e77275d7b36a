// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingsreport.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class FeatureTreeWidget;
class MessageBar;
class QAction;
class QWidget;
class SettingsApplier;
class SettingsReader;
class SettingsReportDialog;

namespace Cameras {
class Camera;
}

/*! \brief Saves the settings of the open camera to files and loads them from there.
 *
 * One task at a time; meanwhile the tree rests, and a dialog shows the progress of what takes long.
 */
class SettingsActions : public QObject
{
    Q_OBJECT

public:
    /*! \a tree, \a messages and the window they stand in have to outlive this object. */
    SettingsActions(FeatureTreeWidget *tree, MessageBar *messages, QObject *parent = nullptr);
    ~SettingsActions() override;

    /*! Names the open camera, null when none is. A task that is under way is cancelled. */
    void setCamera(Cameras::Camera *camera);
    /*! Returns Save Settings and Load Settings. */
    QList<QAction *> actions() const;
    /*! Returns the node maps of the open camera. */
    QList<SettingsNodeMap> nodeMaps() const;
    bool isBusy() const;

public slots:
    void save();
    void load();
    void saveTo(const QString &fileName);
    void loadFrom(const QString &fileName);
    /*! Applies \a settings as if they came from the file \a fileName. */
    void apply(const FeatureSettings &settings, const QString &fileName);
    /*! Grays the actions out that are of no use now. */
    void updateActions();

signals:
    /*! \a task begins right after this. */
    void taskCreated(SettingsTask *task);
    /*! \a settings are in the file \a fileName now. */
    void saved(const FeatureSettings &settings, const QString &fileName);
    /*! \a settings were applied, wholly or in part as \a report says; \a former brings back what was before.
     */
    void applied(const FeatureSettings &settings, const FeatureSettings &former, const SettingsReport &report,
                 const QString &fileName);
    /*! Something to be shown for a while. */
    void hint(const QString &text, int milliseconds);

private slots:
    void onReadFinished();
    void onApplyFinished();
    void putBack();

private:
    void run(SettingsTask *task, const QString &title, const char *finishedSlot);
    void endTask();
    bool isWanted(const FeatureSettings &settings);
    void showReport(const SettingsReport &report);
    void warn(const QString &text);
    QString suggestedFile() const;
    QWidget *window() const;

    FeatureTreeWidget *m_tree;
    MessageBar *m_messages;
    QAction *m_save;
    QAction *m_load;
    Cameras::Camera *m_camera = nullptr;
    std::unique_ptr<SettingsTask> m_task;
    QPointer<SettingsReportDialog> m_report;
    FeatureSettings m_former; // before what was applied last
    QString m_fileName; // of the task
    QString m_lastFile;
};
