// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cameraaddress.h"
#include "cameramemory.h"
#include "settingswriter.h"

#include <cameras/camera.h>
#include <platform/core/camerainfo.h>
#include <platform/genicam/genapi.h>
#include <platform/parametercollection/iparameter.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>

#include <QHash>
#include <QMainWindow>
#include <QSharedPointer>
#include <QString>

#include <memory>
#include <optional>

namespace Core {
class LiveTexts;
}

namespace Cameras {
class CameraOpening;
}

class Comparison;
class DescriptionPane;
class FeatureTreeWidget;
class HistoryActions;
class ImagePane;
class MessageBar;
class OpeningPage;
class QAction;
class QActionGroup;
class QDockWidget;
class QLabel;
class QMenu;
class QModelIndex;
class QSessionManager;
class QSplitter;
class QStackedWidget;
class QTimer;
class QToolButton;
class RecentSources;
class SettingsActions;
class SettingsTask;
class TreeMenu;
class WorkbenchService;

/*! \brief The viewer's window: the feature tree of one camera, a description of the current feature,
 * messages.
 *
 * Owns the open camera, and never waits for one: while a camera is being opened, a page says how far that is,
 * and has a button to cancel it. When the camera is lost, says so once, disables the tree and offers to
 * reconnect.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /*! Sets whether the window remembers what it opens and how that was looked at, as it does unless a script
     * uses it. */
    void setRemembering(bool remembers);
    /*! Begins to open \a address and returns at once; cameraOpened() tells that it is open, a failure is
     * shown. The camera that was open stays so until then. */
    void openCamera(const CameraAddress &address);
    /*! Shows \a camera, which was opened by \a address, instead of the one that was open. */
    void showCamera(const CameraAddress &address, std::unique_ptr<Cameras::Camera> camera);
    /*! Opens what a user has chosen, instead of the camera that is open: asks before it closes a live one,
     * and shows a failure. */
    void openInstead(const CameraAddress &address);
    FeatureTreeWidget *featureTree() const;
    /*! Returns whether a camera is open and answers. */
    bool isCameraOpen() const;
    /*! Returns whether a camera is being opened. */
    bool isOpening() const;
    /*! Returns what saves and loads the camera's settings. */
    SettingsActions *settings() const { return m_settings; }
    /*! Returns the parent of the services that plug-ins find. */
    QObject *services() const;

public slots:
    void closeCamera();
    /*! Begins to open the camera that was open last, as openCamera() does; the tree will be as it was. */
    void reconnect();

signals:
    void cameraOpened(const Core::CameraPoolComponents::CameraInfoPtr &camera);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void saveSoon();
    void saveNow();
    void saveSession(QSessionManager &session);
    void openDescriptionFile();
    void openSource(const QString &description, const QString &camera = {});
    void connectToCamera();
    void configureIp();
    void closeCameraIfWanted();
    void showAllMessagesAgain();
    void about();
    void focusSearch();
    void setLevel(QAction *action);
    void onVisibilityChanged(GenApi::EVisibility level);
    void describeCurrentRow();
    void onRowsUpdated(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void onColumnResized(int column, int oldWidth, int newWidth);
    void onMatchesChanged(int total, int hidden);
    void onWritten(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void onWriteFailed(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                       const QString &message);
    void onError(AsyncErrorQueue::ErrorSeverity severity, const QString &message, const QString &details);
    void showOpeningPage();
    void showProgress();
    void onOpened();
    void onOpeningFailed(const QString &reason);
    void cancelOpening();
    void onCameraLost(const QString &reason);
    void onCameraReturned(const QString &news);
    void onMessageAction();
    void showAccess();
    void takeControl();
    void onControlRefused(const QString &reason);
    void copyTree();
    void updateActions();
    void updateTitle();
    void tidyTabs();
    void goToFeature(const QString &fullName);
    void showDifferences();
    void onTaskCreated(SettingsTask *task);
    void makeImagesWait(SettingsTask *task);
    void onTaskStarted();
    void onTaskFinished();
    void showFailure(const QString &message, const QString &details);
    void showImage();

private:
    void layOut();
    void connectTree();
    void connectModel();
    void connectSettings();
    void connectImage();
    void offerImages();
    void connectSaving();
    void createServices();
    void createPanels();
    QDockWidget *addPanel(QWidget *panel, Qt::DockWidgetArea area);
    void showState();
    void showNodeMapTitles();
    QMenu *addMenu(const char *title);
    QAction *addItem(QMenu *menu, const char *text, const QKeySequence &keys, const char *slot);
    void explain(QAction *action, const char *text);
    void createMenus();
    void createFileMenu();
    void createViewMenu();
    void createCameraMenu();
    void createHelpMenu();
    QWidget *createEmptyPage();
    QString ipObstacle() const;
    FeatureTreeLook currentLook();
    bool isCloseWanted();
    bool isLosingOfChangesWanted();
    bool confirm(const QString &key, const QString &title, const QString &text);
    bool isExecutionWanted(const ParameterCollection::IParameter &command);
    QMenu *createLevelMenu(QMenu *parent);
    QMenu *createRecentMenu();
    void createLevelButton();
    void updateLevelButton();
    void recallCamera();
    void rememberCamera();
    void startOpening(const CameraAddress &address);
    void endOpening();
    void useCamera(std::unique_ptr<Cameras::Camera> camera);
    void fitColumns();
    void restoreState();
    void saveState();

    Core::LiveTexts *m_texts; // first: the members that follow use it
    std::unique_ptr<Cameras::Camera> m_camera;
    SettingsWriter m_settingsWriter; // first, before anything looks at the settings
    CameraAddress m_source; // of the camera that was opened last
    bool m_remembers = true;
    QHash<QString, QString> m_failedWrites; // messages that are on their way, and the features they are about
    std::unique_ptr<Cameras::CameraOpening> m_opening;
    CameraAddress m_target; // of the camera that is being opened
    std::optional<FeatureTreeLook> m_targetLook; // none for a camera that is to be looked at as ever
    std::optional<FeatureTreeLook> m_lookAtLoss; // with what was being typed
    int m_nameWidth = 0; // of the first column, as far as there is room for it
    bool m_isFittingColumns = false;
    bool m_offersImages = false; // what the message's button does
    FeatureTreeWidget *m_tree;
    TreeMenu *m_treeMenu;
    HistoryActions *m_history;
    ImagePane *m_image;
    Comparison *m_comparison;
    DescriptionPane *m_description;
    QTimer *m_descriptionTimer; // describes the current row when the rows have settled
    MessageBar *m_messages;
    QSplitter *m_splitter;
    QStackedWidget *m_pages; // of which one is shown: the tree, or what is shown without a camera
    QWidget *m_emptyPage;
    OpeningPage *m_openingPage;
    QTimer *m_savingTimer; // runs while there is something to save
    QTimer *m_openingTimer; // leaves the tree in sight for what opens in no time
    QLabel *m_matches;
    QLabel *m_cameraName;
    QObject *m_services;
    WorkbenchService *m_workbench = nullptr;
    QMenu *m_panels = nullptr;
    QActionGroup *m_levels = nullptr;
    QToolButton *m_levelButton = nullptr;
    RecentSources *m_recent = nullptr;
    SettingsActions *m_settings;
    CameraMemory m_memory{&m_settingsWriter};
    QAction *m_closeAction = nullptr;
    QAction *m_reconnectAction = nullptr;
    QAction *m_copyAction = nullptr;
    QAction *m_ipAction = nullptr;
    QAction *m_controlAction = nullptr;
    QAction *m_monitorAction = nullptr;
};
