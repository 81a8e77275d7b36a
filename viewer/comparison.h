// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class FreshValues;
class QAction;
class QMenu;
class QProgressDialog;
class SettingsApplier;
class SettingsComparisonWidget;
class SettingsReader;
class SettingsReport;

namespace Cameras {
class Camera;
class CameraOpening;
} // namespace Cameras

/*! \brief Compares the open camera with a file, with how it was when it was opened, and with others. */
class Comparison : public QObject
{
    Q_OBJECT

public:
    /*! \a window is the parent of dialogs. */
    explicit Comparison(QWidget *window);
    ~Comparison() override;

    /*! Begins with the camera of \a nodeMaps, whose state is the one when it was opened. */
    void open(const QList<SettingsNodeMap> &nodeMaps);
    void close();

    /*! Returns the list of differences, to be shown by the window. */
    SettingsComparisonWidget *panel() const { return m_panel; }
    /*! Adds the menu of what can be compared with to \a menu. */
    void addTo(QMenu *menu);

    /*! Sets whether the open camera can be read and whether it can be written to. */
    void setAccess(bool canRead, bool canWrite);
    /*! Compares with the settings file \a fileName. */
    void compareWithFile(const QString &fileName);

public slots:
    /*! Sets whether something is at work on the camera, so that comparisons have to wait. */
    void setBusy(bool busy);

signals:
    /*! \a task is about to begin on the open camera. */
    void taskCreated(SettingsTask *task);
    /*! Values were taken over from what \a name tells. */
    void applied(const QString &name, const FeatureSettings &settings, const FeatureSettings &former,
                 const SettingsReport &report);
    /*! A comparison is ready to be seen. */
    void compared();
    void failed(const QString &message, const QString &details);

private slots:
    void takeOpened();
    void askForFile();
    void compareWithOpened();
    void askForDescription();
    void askForCamera();
    void endOpening();
    void onOtherOpened();
    void onOtherFailed(const QString &reason);
    void onOtherRead();
    void onHereRead();
    void compareAgain();
    void takeOver(const FeatureSettings &settings);
    void onTakenOver();
    void onShown();

private:
    void openOther(std::unique_ptr<Cameras::CameraOpening> opening, const QString &name);
    void compareWith(std::unique_ptr<Cameras::Camera> other);
    void compareWith(const QString &title, const FeatureSettings &there, bool onlyKnown);
    void compareWhenShown(const SettingsReport &report);
    bool canStart() const;
    void updateActions();

    QWidget *m_window;
    SettingsComparisonWidget *m_panel;
    QMenu *m_menu;
    QList<SettingsNodeMap> m_nodeMaps;
    FeatureSettings m_opened; // as snapshots told when the camera was opened
    QString m_title; // of what is compared with
    FeatureSettings m_there;
    bool m_isBusy = false;
    bool m_canRead = false;
    bool m_canWrite = false;
    bool m_onlyKnown = false; // features that are only here tell nothing
    std::unique_ptr<Cameras::CameraOpening> m_opening; // of another camera
    std::unique_ptr<QProgressDialog> m_progress; // as long as that takes
    std::unique_ptr<Cameras::Camera> m_other; // while it is read
    std::unique_ptr<SettingsReader> m_reader;
    std::unique_ptr<SettingsApplier> m_applier;
    std::unique_ptr<FreshValues> m_takenOver; // on their way to the tree
};
