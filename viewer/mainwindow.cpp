// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "cameradialog.h"
#include "colours.h"
#include "commandquestion.h"
#include "comparison.h"
#include "descriptionpane.h"
#include "filedrop.h"
#include "historyactions.h"
#include "ipconfiguration.h"
#include "languages.h"
#include "levels.h"
#include "messagebar.h"
#include "openingpage.h"
#include "recentsources.h"
#include "settingsactions.h"
#include "treemenu.h"

#include <cameras/cameraopening.h>
#include <platform/core/exception.h>
#include <platform/core/livetexts.h>
#include <viewer/image/imagepane.h>
#include <viewer/image/regionofinterest.h>
#include <viewer/image/streamcontrol.h>
#include <viewer/plugins/pluginhost.h>
#include <viewer/services/cameracontrolservice.h>
#include <viewer/services/camerastatusservice.h>
#include <viewer/services/featureservice.h>
#include <viewer/services/featuretreecontrolservice.h>
#include <viewer/services/featuretreestatusservice.h>
#include <viewer/services/workbenchservice.h>
#include <zeltoviewercomponents/errorhandling/messageboxcheckable.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreelook.h>
#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>
#include <zeltoviewercomponents/network/ipaddresswidget.h>
#include <zeltoviewercomponents/plugin/names.h>
#include <zeltoviewercomponents/settings/changehistory.h>
#include <zeltoviewercomponents/settings/changehistorywidget.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparisonwidget.h>
#include <zeltoviewercomponents/settings/settingsprogress.h>
#include <zeltoviewercomponents/settings/settingstask.h>
#include <zeltoviewercomponents/standardicon.h>

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSessionManager>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

// A static library leaves resources out that nothing names.
static bool initResources()
{
    Q_INIT_RESOURCE(zelto_viewer_translations);
    return true;
}
[[maybe_unused]] static const bool resourcesAreThere = initResources();

namespace {

constexpr int stateVersion = 1;
constexpr int statusTime = 5000;
constexpr int openingPageDelay = 150;
constexpr int savingDelay = 1000; // what is lost when the viewer is killed

QString windowGroup()
{
    return QStringLiteral("MainWindow");
}

QString nameOf(const CameraAddress &address)
{
    if (!address.description.isEmpty()) {
        return QFileInfo(address.description).fileName();
    }
    return address.isLive() ? MainWindow::tr("the camera %1").arg(address.camera)
                            : MainWindow::tr("the embedded camera");
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_texts(new Core::LiveTexts(this))
    , m_tree(new FeatureTreeWidget(QStringLiteral("featureTree"), {}, this))
    , m_treeMenu(new TreeMenu(m_tree, this))
    , m_history(new HistoryActions(m_tree, this))
    , m_image(new ImagePane(this))
    , m_comparison(new Comparison(this))
    , m_description(new DescriptionPane(this))
    , m_descriptionTimer(new QTimer(this))
    , m_messages(new MessageBar(this))
    , m_splitter(new QSplitter(this))
    , m_pages(new QStackedWidget(this))
    , m_emptyPage(createEmptyPage())
    , m_openingPage(new OpeningPage(this))
    , m_savingTimer(new QTimer(this))
    , m_openingTimer(new QTimer(this))
    , m_matches(new QLabel(this))
    , m_cameraName(new QLabel(this))
    , m_services(new QObject)
    , m_settings(new SettingsActions(m_tree, m_messages, this))
{
    layOut();
    createMenus();
    createLevelButton();
    createServices();
    createPanels();
    connectTree();
    connect(GetTheGlobalAsyncErrorQueue(),
            SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)), this,
            SLOT(onError(AsyncErrorQueue::ErrorSeverity, QString, QString)));
    connect(m_messages, SIGNAL(actionTriggered()), this, SLOT(onMessageAction()));
    m_openingTimer->setSingleShot(true);
    connect(m_openingTimer, SIGNAL(timeout()), this, SLOT(showOpeningPage()));
    connect(m_openingPage, SIGNAL(cancelled()), this, SLOT(cancelOpening()));
    connect(new FileDrop(this), SIGNAL(dropped(QString)), this, SLOT(openSource(QString)));
    restoreState();
    connectSaving();
    connect(qApp, SIGNAL(saveStateRequest(QSessionManager &)), this, SLOT(saveSession(QSessionManager &)),
            Qt::DirectConnection);
    m_texts->add([this] { showState(); });
}

MainWindow::~MainWindow() = default;

void MainWindow::setRemembering(bool remembers)
{
    m_remembers = remembers;
}

FeatureTreeWidget *MainWindow::featureTree() const
{
    return m_tree;
}

QObject *MainWindow::services() const
{
    return m_services;
}

void MainWindow::layOut()
{
    m_pages->addWidget(m_tree);
    m_pages->addWidget(m_emptyPage);
    m_pages->addWidget(m_openingPage);
    m_splitter->addWidget(m_pages);
    m_splitter->addWidget(m_description);
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    auto *const central = new QWidget(this);
    auto *const layout = new QVBoxLayout(central);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_messages); // below the tree, whose rows stay where they are when a message comes
    setCentralWidget(central);
    m_matches->setIndent(fontMetrics().averageCharWidth());
    statusBar()->addWidget(m_matches, 1);
    statusBar()->addPermanentWidget(m_cameraName);
}

void MainWindow::connectTree()
{
    connect(m_tree, SIGNAL(visibilityChanged(GenApi::EVisibility)), this,
            SLOT(onVisibilityChanged(GenApi::EVisibility)));
    connect(m_tree, SIGNAL(filterMatchesChanged(int, int)), this, SLOT(onMatchesChanged(int, int)));
    connect(m_tree->treeView()->header(), SIGNAL(sectionResized(int, int, int)), this,
            SLOT(onColumnResized(int, int, int)));
    connect(m_treeMenu, SIGNAL(hint(QString, int)), statusBar(), SLOT(showMessage(QString, int)));
    connect(m_settings, SIGNAL(hint(QString, int)), statusBar(), SLOT(showMessage(QString, int)));
    m_tree->setCommandVeto([this](const QSharedPointer<ParameterCollection::IParameter> &command) {
        return !isExecutionWanted(*command);
    });
    m_tree->installEventFilter(this); // for its width
    connectModel();
    connectSettings();
    connectImage();
}

void MainWindow::connectSettings()
{
    connect(m_history, SIGNAL(fileStateChanged()), this, SLOT(updateTitle()));
    connect(m_settings, SIGNAL(taskCreated(SettingsTask *)), this, SLOT(makeImagesWait(SettingsTask *)));
    connect(m_settings, SIGNAL(applied(FeatureSettings, FeatureSettings, SettingsReport, QString)), m_history,
            SLOT(onLoaded(FeatureSettings, FeatureSettings, SettingsReport, QString)));
    connect(m_settings, SIGNAL(saved(FeatureSettings, QString)), m_history,
            SLOT(onSaved(FeatureSettings, QString)));
    connect(m_tree, SIGNAL(restingChanged(bool)), m_comparison, SLOT(setBusy(bool)));
    connect(m_history->panel(), SIGNAL(featureRequested(QString)), this, SLOT(goToFeature(QString)));
    connect(m_comparison->panel(), SIGNAL(featureRequested(QString)), this, SLOT(goToFeature(QString)));
    connect(m_history->history(), SIGNAL(taskCreated(SettingsTask *)), this,
            SLOT(onTaskCreated(SettingsTask *)));
    connect(m_comparison, SIGNAL(taskCreated(SettingsTask *)), this, SLOT(onTaskCreated(SettingsTask *)));
    connect(m_comparison, SIGNAL(applied(QString, FeatureSettings, FeatureSettings, SettingsReport)),
            m_history, SLOT(onTakenOver(QString, FeatureSettings, FeatureSettings, SettingsReport)));
    connect(m_comparison, SIGNAL(compared()), this, SLOT(showDifferences()));
    connect(m_comparison, SIGNAL(failed(QString, QString)), this, SLOT(showFailure(QString, QString)));
}

// Shows what there is again, in the present language.
void MainWindow::showState()
{
    if (m_camera) {
        const auto info = m_camera->info();
        m_cameraName->setText(tr("%1 %2").arg(info->vendorName(), info->modelName()).trimmed());
        showNodeMapTitles();
    } else {
        m_cameraName->setText(tr("No camera"));
    }
    m_descriptionTimer->start();
    updateTitle();
    updateActions();
}

void MainWindow::showNodeMapTitles()
{
    IFeatureTreeModelExtension *const extension = m_tree->getFeatureExtension();
    const auto nodeMaps = m_camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        const QString fullName =
            nodeMap.name + QLatin1Char(FeatureTreeNames::separator) + FeatureTreeNames::root;
        const QModelIndex row = extension->findItemByFullName(fullName, nullptr, 0);
        if (FeatureTreeItem *const item = extension->getFeatureTreeItem(row)) {
            item->setDisplayedName(nodeMap.title);
        }
    }
    extension->refreshSpecialItems();
}

// What writes the region has the tree rest, as other tasks do, and is undone as they are.
void MainWindow::connectImage()
{
    connect(m_image, SIGNAL(hint(QString, int)), statusBar(), SLOT(showMessage(QString, int)));
    connect(m_image, SIGNAL(failed(QString, QString)), this, SLOT(showFailure(QString, QString)));
    connect(m_image, SIGNAL(wanted()), this, SLOT(showImage()));
    RegionOfInterest *const region = m_image->region();
    connect(m_tree, SIGNAL(restingChanged(bool)), region, SLOT(setBusy(bool)));
    connect(m_tree, SIGNAL(restingChanged(bool)), m_image, SLOT(updateActions()));
    connect(region, SIGNAL(aboutToWrite()), this, SLOT(onTaskStarted()));
    connect(region, SIGNAL(applied(QString, FeatureSettings, FeatureSettings, SettingsReport)), m_history,
            SLOT(onTakenOver(QString, FeatureSettings, FeatureSettings, SettingsReport)));
    connect(region, SIGNAL(written()), this, SLOT(onTaskFinished()));
}

void MainWindow::showImage()
{
    if (auto *const dock = qobject_cast<QDockWidget *>(m_image->parentWidget())) {
        dock->show();
        dock->raise();
    }
}

// The name of the file stands in the title as that of a document would, with the platform's mark beside
// it.
void MainWindow::updateTitle()
{
    const QString model = m_camera ? m_camera->info()->modelName() : QString();
    const QString file = QFileInfo(m_history->settingsFile()).fileName();
    setWindowTitle(model.isEmpty()      ? tr("Zelto Viewer")
                       : file.isEmpty() ? tr("%1 – Zelto Viewer").arg(model)
                                        : tr("%1[*] – %2 – Zelto Viewer").arg(file, model));
    setWindowModified(m_history->differsFromFile());
}

void MainWindow::goToFeature(const QString &fullName)
{
    if (m_tree->showFeature(fullName)) {
        m_tree->setFocus();
    } else {
        statusBar()->showMessage(tr("This feature is not shown at the current level"), statusTime);
    }
}

void MainWindow::showDifferences()
{
    if (auto *const dock = qobject_cast<QDockWidget *>(m_comparison->panel()->parentWidget())) {
        dock->show();
        dock->raise();
    }
}

void MainWindow::onTaskCreated(SettingsTask *task)
{
    auto *const progress = new SettingsProgress(task, tr("Camera Settings"), this);
    connect(task, SIGNAL(destroyed()), progress, SLOT(deleteLater()));
    connect(task, SIGNAL(started()), this, SLOT(onTaskStarted()));
    makeImagesWait(task);
    connect(task, SIGNAL(finished()), this, SLOT(onTaskFinished()));
}

// Images lock what settings may have to write.
void MainWindow::makeImagesWait(SettingsTask *task)
{
    if (qobject_cast<SettingsApplier *>(task)) {
        connect(task, SIGNAL(started()), m_image->stream(), SLOT(pause()));
        connect(task, SIGNAL(finished()), m_image->stream(), SLOT(resume()));
    }
}

void MainWindow::onTaskStarted()
{
    m_tree->setResting(true);
}

void MainWindow::onTaskFinished()
{
    m_tree->setResting(false);
}

void MainWindow::showFailure(const QString &message, const QString &details)
{
    m_messages->showMessage(message, details);
}

// The widget keeps silent about the current row while a search is typed; what the pane shows is true all
// the time.
void MainWindow::connectModel()
{
    m_descriptionTimer->setSingleShot(true);
    connect(m_descriptionTimer, SIGNAL(timeout()), this, SLOT(describeCurrentRow()));
    connect(m_tree->treeView(), SIGNAL(onCurrentChanged(const QModelIndex &)), this,
            SLOT(describeCurrentRow()));
    connect(m_tree, SIGNAL(visibilityChanged(GenApi::EVisibility)), m_descriptionTimer, SLOT(start()));
    connect(&m_tree->getFeatureExtension()->GetFavorites(), SIGNAL(dataUpdated()), m_descriptionTimer,
            SLOT(start()));
    const QAbstractItemModel *const model = m_tree->treeView()->model();
    connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)), this,
            SLOT(onRowsUpdated(QModelIndex, QModelIndex)));
    connect(model, SIGNAL(filtered()), m_descriptionTimer, SLOT(start()));
    connect(model, SIGNAL(modelReset()), m_descriptionTimer, SLOT(start()));
    connect(model, SIGNAL(written(QSharedPointer<ParameterCollection::IParameter>)), this,
            SLOT(onWritten(QSharedPointer<ParameterCollection::IParameter>)));
    connect(model, SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)), this,
            SLOT(onWriteFailed(QSharedPointer<ParameterCollection::IParameter>, QString)));
}

// An empty tree would say that a search found nothing.
QWidget *MainWindow::createEmptyPage()
{
    auto *const page = new QLabel;
    m_texts->add(page, &QLabel::setText, [] {
        return tr("No camera is open.\nOpen a description file or connect to a camera (menu File).");
    });
    page->setAlignment(Qt::AlignCenter);
    page->setWordWrap(true);
    return page;
}

void MainWindow::createServices()
{
    new FeatureService(m_settings, m_services);
    new FeatureTreeControlService(m_tree, m_services);
    new FeatureTreeStatusService(m_tree, m_services);
    (new CameraControlService(this, m_services))->setObjectName(Plugin::ServiceName::Device);
    new CameraStatusService(this, m_services);
    m_workbench = new WorkbenchService(this, m_services);
    m_workbench->setObjectName(Plugin::ServiceName::Workbench);
    m_texts->add(m_tree, &QWidget::setWindowTitle, [] { return tr("Features"); });
    m_workbench->addPage(m_tree);
    m_description->setObjectName(QStringLiteral("description"));
    m_texts->add(m_description, &QWidget::setWindowTitle, [] { return tr("Description"); });
    auto *const find = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), m_description);
    find->setContext(Qt::WidgetWithChildrenShortcut); // the tree has its own
    connect(find, SIGNAL(activated()), this, SLOT(focusSearch()));
    m_workbench->addPage(m_description);
}

void MainWindow::createPanels()
{
    // Below, since they are wide; one behind the other, since that takes rows from the tree.
    QDockWidget *const changes = addPanel(m_history->panel(), Qt::BottomDockWidgetArea);
    tabifyDockWidget(changes, addPanel(m_comparison->panel(), Qt::BottomDockWidgetArea));
    QDockWidget *const image = addPanel(m_image, Qt::RightDockWidgetArea);
    connect(image->toggleViewAction(), SIGNAL(toggled(bool)), m_image, SLOT(setOpen(bool)));
    const auto panels = PluginHost::createPanels(PluginHost::folders(), m_services, this);
    for (QWidget *const panel : panels) {
        addPanel(panel, Qt::RightDockWidgetArea);
    }
    m_services->setParent(this); // the last child, so that panels go first
    const auto docks = findChildren<QDockWidget *>();
    for (const QDockWidget *const dock : docks) {
        connect(dock, SIGNAL(visibilityChanged(bool)), this, SLOT(tidyTabs()), Qt::QueuedConnection);
    }
    m_texts->add([this] { tidyTabs(); });
    QMetaObject::invokeMethod(this, "tidyTabs", Qt::QueuedConnection); // when the bar has come
}

// The bar with the tabs of panels has no name, and takes the focus also where there are none.
void MainWindow::tidyTabs()
{
    const auto bars = findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar *const bar : bars) {
        bar->setAccessibleName(Levels::withoutMnemonic(tr("&Panels")));
        bar->setFocusPolicy(bar->count() > 0 ? Qt::TabFocus : Qt::NoFocus);
    }
}

QDockWidget *MainWindow::addPanel(QWidget *panel, Qt::DockWidgetArea area)
{
    auto *const dock = new QDockWidget(panel->windowTitle(), this);
    dock->setObjectName(panel->objectName() + QStringLiteral("Dock")); // by which its place is remembered
    dock->setWidget(panel);
    connect(panel, SIGNAL(windowTitleChanged(QString)), dock, SLOT(setWindowTitle(QString)));
    addDockWidget(area, dock);
    dock->hide(); // the tree has the room until the user asks for the panel
    connect(dock->toggleViewAction(), SIGNAL(triggered()), dock, SLOT(raise())); // from behind another
    m_panels->addAction(dock->toggleViewAction());
    m_panels->menuAction()->setVisible(true);
    m_workbench->addPage(panel);
    return dock;
}

void MainWindow::createMenus()
{
    createFileMenu();
    QMenu *const edit = addMenu(QT_TR_NOOP("&Edit"));
    edit->addActions(m_history->actions());
    edit->addSeparator();
    m_copyAction = addItem(edit, QT_TR_NOOP("Copy &Tree to Clipboard"), QKeySequence(tr("Ctrl+Shift+C")),
                           SLOT(copyTree()));
    createViewMenu();
    createCameraMenu();
    createHelpMenu();
}

// Returns a menu whose title follows the language.
QMenu *MainWindow::addMenu(const char *title)
{
    auto *const menu = menuBar()->addMenu(QString());
    m_texts->add(menu, &QMenu::setTitle, [title] { return tr(title); });
    return menu;
}

// Returns an action whose text follows the language.
QAction *MainWindow::addItem(QMenu *menu, const char *text, const QKeySequence &keys, const char *slot)
{
    QAction *const action = menu->addAction(QString(), keys, this, slot);
    m_texts->add(action, &QAction::setText, [text] { return tr(text); });
    return action;
}

void MainWindow::explain(QAction *action, const char *text)
{
    m_texts->add([action, text] {
        action->setToolTip(tr(text));
        action->setStatusTip(tr(text));
    });
}

void MainWindow::createFileMenu()
{
    QMenu *const file = addMenu(QT_TR_NOOP("&File"));
    addItem(file, QT_TR_NOOP("&Open Description File…"), QKeySequence::Open, SLOT(openDescriptionFile()))
        ->setIcon(standardIcon(QStyle::SP_DialogOpenButton));
    file->addMenu(createRecentMenu());
    addItem(file, QT_TR_NOOP("&Connect to Camera…"), QKeySequence(tr("Ctrl+K")), SLOT(connectToCamera()))
        ->setIcon(standardIcon(QStyle::SP_DriveNetIcon));
    m_reconnectAction =
        addItem(file, QT_TR_NOOP("&Reconnect"), QKeySequence(tr("Ctrl+R")), SLOT(reconnect()));
    m_closeAction =
        addItem(file, QT_TR_NOOP("C&lose Camera"), QKeySequence::Close, SLOT(closeCameraIfWanted()));
    file->addSeparator();
    addItem(file, QT_TR_NOOP("&Quit"), QKeySequence::Quit, SLOT(close()));
}

QMenu *MainWindow::createRecentMenu()
{
    auto *const menu = new QMenu(this);
    m_texts->add(menu, &QMenu::setTitle, [] { return tr("Open R&ecent"); });
    m_recent = new RecentSources(menu, &m_settingsWriter);
    connect(m_recent, SIGNAL(chosen(QString, QString)), this, SLOT(openSource(QString, QString)));
    return menu;
}

void MainWindow::createViewMenu()
{
    QMenu *const view = addMenu(QT_TR_NOOP("&View"));
    view->setToolTipsVisible(true);
    createLevelMenu(view);
    view->addMenu(new ColoursMenu(view));
    view->addMenu(new LanguagesMenu(view));
    m_panels = view->addMenu(QString());
    m_texts->add(m_panels, &QMenu::setTitle, [] { return tr("&Panels"); });
    m_panels->menuAction()->setVisible(false);
    view->addSeparator();
    view->addActions(m_treeMenu->expansionActions());
    view->addSeparator();
    m_monitorAction = view->addAction(QString());
    m_monitorAction->setCheckable(true);
    m_texts->add(m_monitorAction, &QAction::setText, [] { return tr("&Monitor Mode"); });
    explain(m_monitorAction, QT_TR_NOOP("Polling re-reads all features, not only the volatile ones"));
    connect(m_monitorAction, SIGNAL(toggled(bool)), m_tree, SLOT(setMonitorMode(bool)));
}

void MainWindow::createCameraMenu()
{
    QMenu *const camera = addMenu(QT_TR_NOOP("&Camera"));
    camera->setToolTipsVisible(true);
    camera->addActions(m_settings->actions());
    m_comparison->addTo(camera);
    camera->addSeparator();
    camera->addActions(m_image->menuActions());
    camera->addSeparator();
    m_controlAction = addItem(camera, QT_TR_NOOP("&Take Control"), {}, SLOT(takeControl()));
    m_ipAction = addItem(camera, QT_TR_NOOP("&IP Configuration…"), {}, SLOT(configureIp()));
    // Whether a camera lets itself be configured changes with what it is doing.
    connect(camera, SIGNAL(aboutToShow()), this, SLOT(updateActions()));
}

void MainWindow::createHelpMenu()
{
    QMenu *const help = addMenu(QT_TR_NOOP("&Help"));
    help->setToolTipsVisible(true);
    explain(addItem(help, QT_TR_NOOP("&Show All Messages Again"), {}, SLOT(showAllMessagesAgain())),
            QT_TR_NOOP("Brings back the messages that were silenced"));
    help->addSeparator();
    addItem(help, QT_TR_NOOP("&About…"), {}, SLOT(about()))
        ->setIcon(standardIcon(QStyle::SP_MessageBoxInformation));
}

QMenu *MainWindow::createLevelMenu(QMenu *parent)
{
    QMenu *const menu = parent->addMenu(QString());
    m_texts->add(menu, &QMenu::setTitle, [] { return tr("&Level"); });
    m_levels = new QActionGroup(this);
    for (int level = GenApi::Beginner; level <= GenApi::Invisible; ++level) {
        QAction *const action = menu->addAction(QString());
        m_texts->add(action, &QAction::setText,
                     [level] { return Levels::menuText(static_cast<GenApi::EVisibility>(level)); });
        action->setCheckable(true);
        action->setData(level);
        action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + level)));
        m_levels->addAction(action);
    }
    connect(m_levels, SIGNAL(triggered(QAction *)), this, SLOT(setLevel(QAction *)));
    return menu;
}

// In the status bar, where the level is seen at any time.
void MainWindow::createLevelButton()
{
    m_levelButton = new QToolButton(this);
    m_levelButton->setAutoRaise(true);
    m_levelButton->setPopupMode(QToolButton::InstantPopup);
    m_levelButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_texts->add(m_levelButton, &QWidget::setToolTip, [] { return tr("How many features are shown"); });
    auto *const menu = new QMenu(m_levelButton);
    menu->addActions(m_levels->actions());
    m_levelButton->setMenu(menu);
    statusBar()->addPermanentWidget(m_levelButton);
}

void MainWindow::updateLevelButton()
{
    const QAction *const level = m_levels->checkedAction();
    const QString name = level ? Levels::withoutMnemonic(level->text()) : QString();
    m_levelButton->setText(tr("Level: %1").arg(name));
}

void MainWindow::openCamera(const CameraAddress &address)
{
    m_targetLook.reset();
    startOpening(address);
}

void MainWindow::startOpening(const CameraAddress &address)
{
    endOpening();
    m_target = address;
    m_opening = openingAt(address);
    connect(m_opening.get(), SIGNAL(progressed()), this, SLOT(showProgress()));
    connect(m_opening.get(), SIGNAL(opened()), this, SLOT(onOpened()));
    connect(m_opening.get(), SIGNAL(failed(QString)), this, SLOT(onOpeningFailed(QString)));
    m_openingPage->begin(nameOf(address));
    m_openingTimer->start(m_camera ? openingPageDelay : 0);
    updateActions();
}

void MainWindow::showOpeningPage()
{
    m_pages->setCurrentWidget(m_openingPage);
    m_openingPage->setFocus();
}

void MainWindow::showProgress()
{
    m_openingPage->setProgress(m_opening->progress());
}

void MainWindow::onOpened()
{
    showCamera(m_target, m_opening->takeCamera());
}

void MainWindow::onOpeningFailed(const QString &reason)
{
    const bool canTryAgain = !m_camera || m_target == m_source;
    endOpening();
    if (canTryAgain) {
        m_source = m_target;
        m_messages->showAction(reason, tr("Reconnect"));
    } else {
        m_messages->showMessage(reason, QString());
    }
}

void MainWindow::cancelOpening()
{
    endOpening();
    statusBar()->showMessage(tr("The opening was cancelled."), statusTime);
}

// Also from within the signals of what opens.
void MainWindow::endOpening()
{
    m_openingTimer->stop();
    if (!m_opening) {
        return;
    }
    m_opening->cancel();
    m_opening.release()->deleteLater();
    const bool hadFocus = m_openingPage->isVisible();
    m_pages->setCurrentWidget(m_camera ? static_cast<QWidget *>(m_tree) : m_emptyPage);
    if (hadFocus && m_camera) {
        m_tree->setFocus();
    }
    updateActions();
}

bool MainWindow::isOpening() const
{
    return m_opening != nullptr;
}

void MainWindow::showCamera(const CameraAddress &address, std::unique_ptr<Cameras::Camera> camera)
{
    const std::optional<FeatureTreeLook> look = std::exchange(m_targetLook, std::nullopt);
    const bool wasStreaming = m_image->stream()->wasInterrupted() && address == m_source;
    closeCamera();
    m_source = address;
    useCamera(std::move(camera));
    if (look) {
        look->applyTo(*m_tree);
    } else {
        recallCamera();
    }
    if (m_remembers) {
        m_recent->add(address);
    }
    if (wasStreaming) {
        offerImages();
    }
    emit cameraOpened(m_camera->info());
}

// The camera is back, but its images are not.
void MainWindow::offerImages()
{
    if (m_image->stream()->isPossible()) {
        m_messages->showAction(tr("The camera was sending images when it was lost."), tr("Start Images"));
        m_offersImages = true;
    }
}

void MainWindow::recallCamera()
{
    m_memory.setSource(m_remembers ? std::make_optional(m_source) : std::nullopt, m_camera->info()->id());
    const std::optional<CameraView> view = m_memory.recall();
    m_monitorAction->setChecked(view && view->monitors);
    if (view) {
        view->tree.applyTo(*m_tree);
    }
}

void MainWindow::rememberCamera()
{
    if (m_camera) {
        m_memory.remember({currentLook(), m_monitorAction->isChecked()});
    }
}

// That a lost camera is not polled says nothing about the next time.
FeatureTreeLook MainWindow::currentLook()
{
    return m_lookAtLoss ? *m_lookAtLoss : FeatureTreeLook(*m_tree);
}

void MainWindow::useCamera(std::unique_ptr<Cameras::Camera> camera)
{
    m_camera = std::move(camera);
    connect(m_camera.get(), SIGNAL(lost(QString)), this, SLOT(onCameraLost(QString)));
    connect(m_camera.get(), SIGNAL(returned(QString)), this, SLOT(onCameraReturned(QString)));
    connect(m_camera.get(), SIGNAL(accessChanged()), this, SLOT(showAccess()));
    connect(m_camera.get(), SIGNAL(controlRefused(QString)), this, SLOT(onControlRefused(QString)));
    const auto nodeMaps = m_camera->nodeMaps();
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        m_tree->addParameterCollection(nodeMap.collection, nodeMap.title, nodeMap.name, nodeMap.usesUtf8);
    }
    const auto info = m_camera->info();
    m_settings->setCamera(m_camera.get());
    m_image->setCamera(m_camera.get(), m_settings->nodeMaps());
    m_tree->setCameraType(info->deviceClass());
    m_tree->setEnabled(true);
    m_pages->setCurrentWidget(m_tree);
    m_tree->setFocus(); // which went elsewhere when the camera before was lost or closed
    m_tree->expandRootNodes();
    m_cameraName->setText(tr("%1 %2").arg(info->vendorName(), info->modelName()).trimmed());
    m_history->open(m_settings->nodeMaps());
    m_comparison->open(m_settings->nodeMaps());
    updateActions();
    if (m_camera->isReadOnly()) {
        showAccess();
    }
}

void MainWindow::closeCamera()
{
    endOpening();
    rememberCamera();
    m_lookAtLoss.reset();
    m_history->close();
    m_comparison->close();
    m_tree->setResting(false); // what was under way has ended with them
    m_tree->setPolling(false);
    m_settings->setCamera(nullptr);
    m_image->setCamera(nullptr);
    m_description->showParameter(nullptr);
    m_tree->clear();
    m_pages->setCurrentWidget(m_emptyPage);
    m_camera.reset();
    m_failedWrites.clear();
    m_offersImages = false;
    m_messages->dismiss();
    m_cameraName->setText(tr("No camera"));
    updateTitle();
    updateActions();
}

void MainWindow::openInstead(const CameraAddress &address)
{
    if (!isCloseWanted()) {
        return;
    }
    if (m_camera && address.isLive() && address == m_source) {
        closeCamera(); // nobody controls a camera twice
    }
    openCamera(address);
}

void MainWindow::openDescriptionFile()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open Description File"), QString(), tr("Camera descriptions (*.xml *.zip);;All files (*)"));
    if (!fileName.isEmpty()) {
        openSource(fileName);
    }
}

void MainWindow::openSource(const QString &description, const QString &camera)
{
    openInstead({description, camera, false, QString()});
}

void MainWindow::connectToCamera()
{
    CameraDialog dialog(this);
    dialog.select(m_recent->lastCamera());
    if (dialog.exec() == QDialog::Accepted && !dialog.cameraId().isEmpty()) {
        openSource(QString(), dialog.cameraId());
    }
}

void MainWindow::onCameraLost(const QString &reason)
{
    m_lookAtLoss = FeatureTreeLook(*m_tree);
    m_lookAtLoss->remove(FeatureTreeLook::Level); // which can be changed all the time
    m_tree->deviceIsClosed();
    m_tree->setEnabled(false);
    m_history->updateActions();
    m_offersImages = false;
    m_messages->showAction(reason, tr("Reconnect"));
    updateActions();
}

void MainWindow::onCameraReturned(const QString &news)
{
    m_messages->showAction(news, tr("Reconnect"));
}

// The bar asks one thing at a time: to reconnect to a camera that is not open, else for its images or its
// control.
void MainWindow::onMessageAction()
{
    if (isCameraOpen() && std::exchange(m_offersImages, false)) {
        m_messages->dismiss();
        m_image->stream()->start();
        showImage();
    } else if (isCameraOpen()) {
        takeControl();
    } else {
        reconnect();
    }
}

void MainWindow::showAccess()
{
    updateActions();
    if (!isCameraOpen()) {
        return; // the loss has been said
    }
    if (!m_camera->isReadOnly()) {
        m_messages->dismiss();
    } else if (m_camera->isControlAvailable()) {
        m_messages->showAction(tr("The camera is open read-only. No program controls it now."),
                               tr("Take Control"));
    } else {
        const QString controller = m_camera->controller();
        m_messages->showAction(
            controller.isEmpty()
                ? tr("The camera is held by another program and open read-only.")
                : tr("The camera is held by another program at %1 and open read-only.").arg(controller),
            QString());
    }
}

void MainWindow::takeControl()
{
    m_camera->takeControl();
    statusBar()->showMessage(tr("Taking control of the camera…"), statusTime);
}

void MainWindow::onControlRefused(const QString &reason)
{
    m_messages->showMessage(tr("The control of the camera was not taken: %1").arg(reason), QString());
}

void MainWindow::reconnect()
{
    m_targetLook = m_camera ? std::make_optional(currentLook()) : std::nullopt;
    startOpening(m_source);
}

bool MainWindow::isCameraOpen() const
{
    return m_camera && !m_camera->isLost();
}

void MainWindow::closeCameraIfWanted()
{
    if (isCloseWanted()) {
        closeCamera();
    }
}

// Values that differ from the settings file, about which somebody may have forgotten to save them.
bool MainWindow::isLosingOfChangesWanted()
{
    return !isCameraOpen() || !m_history->differsFromFile()
        || confirm(QStringLiteral("CloseChangedSettings"), tr("Close Camera"),
                   tr("Values of the camera differ from the settings file %1.\nClose without saving them?")
                       .arg(QFileInfo(m_history->settingsFile()).fileName()));
}

bool MainWindow::isCloseWanted()
{
    if (!isLosingOfChangesWanted()) {
        return false;
    }
    const bool isLive = isCameraOpen() && m_source.isLive();
    return !isLive
        || confirm(
            QStringLiteral("CloseLiveCamera"), tr("Close Camera"),
            tr("Close the camera %1?\nChanges that were not saved to one of its user sets last until it "
               "is switched off.")
                .arg(m_camera->info()->modelName()));
}

// A message box that waits for yes or no; the user may have it say yes from then on.
bool MainWindow::confirm(const QString &key, const QString &title, const QString &text)
{
    MessageBoxCheckable box(key, QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel,
                            this);
    box.setSaveResultOnButton(QMessageBox::Ok);
    return box.exec() == QMessageBox::Ok;
}

bool MainWindow::isExecutionWanted(const ParameterCollection::IParameter &command)
{
    if (!m_camera) {
        return false;
    }
    const CommandQuestion question(command, m_camera->nodeMaps());
    if (question.text().isEmpty()) {
        return true;
    }
    MessageBoxCheckable box(question.key(), QMessageBox::Warning, question.title(), question.text(),
                            QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText); // the camera has a say in it
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    box.setSaveResultOnButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

void MainWindow::configureIp()
{
    const IpConfiguration configuration(m_camera->nodeMaps());
    IpAddressWidget dialog(this);
    dialog.setIpAddress(configuration.ipAddress());
    dialog.setSubnetMask(configuration.subnetMask());
    dialog.setDefaultGateway(configuration.defaultGateway());
    dialog.setMacAddress(configuration.macAddress());
    if (dialog.exec() != QDialog::Accepted
        || !confirm(QStringLiteral("WriteIpConfiguration"), tr("IP Configuration"),
                    tr("The new IP configuration takes effect after the camera restarts."))) {
        return;
    }
    try {
        configuration.write(dialog.ipAddress(), dialog.subnetMask(), dialog.defaultGateway());
        m_messages->resolve(m_ipAction->text());
    } catch (const Core::Exception::BaseException &exception) {
        m_messages->showMessage(exception.getMessage(), QString(), m_ipAction->text());
    }
}

void MainWindow::updateActions()
{
    m_closeAction->setEnabled(m_camera != nullptr);
    m_copyAction->setEnabled(m_camera != nullptr);
    m_reconnectAction->setEnabled(!isCameraOpen() && !isOpening());
    for (QAction *const action : m_levels->actions()) {
        action->setChecked(action->data().toInt() == m_tree->visibility());
    }
    const bool canTakeControl = isCameraOpen() && m_camera->isControlAvailable();
    m_controlAction->setEnabled(canTakeControl);
    m_controlAction->setToolTip(canTakeControl ? tr("Allows the camera's features to be changed")
                                               : tr("Only of a camera that is open read-only and free"));
    m_controlAction->setStatusTip(m_controlAction->toolTip());
    m_settings->updateActions();
    m_comparison->setAccess(isCameraOpen(), isCameraOpen() && !m_camera->isReadOnly());
    m_image->updateActions();
    updateLevelButton();
    const QString obstacle = ipObstacle();
    m_ipAction->setEnabled(obstacle.isEmpty());
    m_ipAction->setToolTip(obstacle.isEmpty() ? tr("Address, mask and gateway that the camera starts with")
                                              : obstacle);
    m_ipAction->setStatusTip(m_ipAction->toolTip());
}

QString MainWindow::ipObstacle() const
{
    if (!m_camera) {
        return tr("No camera is open");
    }
    return m_camera->isLost() ? tr("The camera was lost") : IpConfiguration(m_camera->nodeMaps()).obstacle();
}

void MainWindow::focusSearch()
{
    m_tree->focusSearch();
}

void MainWindow::setLevel(QAction *action)
{
    m_tree->onVisibilityChanged(action->data().toInt());
}

void MainWindow::onVisibilityChanged(GenApi::EVisibility level)
{
    Q_UNUSED(level)
    updateActions();
}

void MainWindow::describeCurrentRow()
{
    const FeatureTreeItem *const item = m_tree->GetCurrentItem();
    if (const auto parameter = m_tree->GetCurrentNode()) {
        m_description->showParameter(parameter);
    } else if (item && item->HasDescription()) {
        m_description->showText(item->GetDescription());
    } else if (m_tree->IsCurrentFavorite()) {
        m_description->showText(
            QStringLiteral("<h3>%1</h3><p>%2</p>")
                .arg(item->getDisplayedName().toHtmlEscaped(), tr("The open camera has no such feature.")));
    } else {
        m_description->showText(QString());
    }
}

// A row may become another one, or show again, without a change of the current index.
void MainWindow::onRowsUpdated(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    const QModelIndex current = m_tree->treeView()->currentIndex();
    if (topLeft.parent() == current.parent() && topLeft.row() <= current.row()
        && current.row() <= bottomRight.row()) {
        m_descriptionTimer->start();
    }
}

void MainWindow::onMatchesChanged(int total, int hidden)
{
    if (total == 0) {
        m_matches->clear();
    } else if (hidden == 0) {
        m_matches->setText(tr("%n result(s)", nullptr, total));
    } else {
        m_matches->setText(tr("%n result(s), %1 of them at a higher level", nullptr, total).arg(hidden));
    }
}

// The message comes from the queue of errors, which does not know what it is about.
void MainWindow::onWriteFailed(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                               const QString &message)
{
    m_failedWrites.insert(message, parameter->fullName());
}

void MainWindow::onWritten(const QSharedPointer<ParameterCollection::IParameter> &parameter)
{
    m_messages->resolve(parameter->fullName());
}

void MainWindow::onError(AsyncErrorQueue::ErrorSeverity severity, const QString &message,
                         const QString &details)
{
    Q_UNUSED(severity)
    if (m_camera && m_camera->isLost()) {
        return; // the loss has been said
    }
    m_messages->showMessage(message, details, m_failedWrites.take(message));
}

void MainWindow::copyTree()
{
    m_tree->copyToClipboard();
    statusBar()->showMessage(tr("The tree was copied to the clipboard."), statusTime);
}

void MainWindow::showAllMessagesAgain()
{
    MessageBoxCheckable::resetAll();
    statusBar()->showMessage(tr("All messages are shown again."), statusTime);
}

void MainWindow::about()
{
    QMessageBox::about(
        this, tr("About Zelto Viewer"),
        tr("<b>Zelto Viewer %1</b><p>Shows a camera's features in a tree, for GigE Vision and USB3 "
           "Vision cameras and for any GenICam camera description file.")
            .arg(QCoreApplication::applicationVersion()));
}

// Saves what changes a little later, since a viewer that is killed cannot do it when it ends.
void MainWindow::connectSaving()
{
    m_savingTimer->setSingleShot(true);
    m_savingTimer->setInterval(savingDelay);
    connect(m_savingTimer, SIGNAL(timeout()), this, SLOT(saveNow()));
    const FeatureTreeView *const view = m_tree->treeView();
    connect(view, SIGNAL(expanded(QModelIndex)), this, SLOT(saveSoon()));
    connect(view, SIGNAL(collapsed(QModelIndex)), this, SLOT(saveSoon()));
    connect(view, SIGNAL(onCurrentChanged(const QModelIndex &)), this, SLOT(saveSoon()));
    connect(view->header(), SIGNAL(sectionResized(int, int, int)), this, SLOT(saveSoon()));
    connect(m_tree, SIGNAL(visibilityChanged(GenApi::EVisibility)), this, SLOT(saveSoon()));
    connect(m_tree, SIGNAL(pollingStateChanged(bool)), this, SLOT(saveSoon()));
    connect(m_tree, SIGNAL(newText(QString)), this, SLOT(saveSoon()));
    connect(m_splitter, SIGNAL(splitterMoved(int, int)), this, SLOT(saveSoon()));
    connect(m_monitorAction, SIGNAL(toggled(bool)), this, SLOT(saveSoon()));
    connect(m_image, SIGNAL(stateChanged()), this, SLOT(saveSoon()));
    const auto docks = findChildren<QDockWidget *>();
    for (QDockWidget *const dock : docks) {
        connect(dock, SIGNAL(visibilityChanged(bool)), this, SLOT(saveSoon()));
        connect(dock, SIGNAL(topLevelChanged(bool)), this, SLOT(saveSoon()));
        connect(dock, SIGNAL(dockLocationChanged(Qt::DockWidgetArea)), this, SLOT(saveSoon()));
        dock->installEventFilter(this); // for its place and size
    }
}

// Who comes back finds the same camera open; how it was looked at is remembered with it.
void MainWindow::saveSession(QSessionManager &session)
{
    saveNow();
    const bool isOpen = m_camera || isOpening();
    const CameraAddress address = isOpening() ? m_target : m_source;
    session.setRestartCommand(QStringList{QCoreApplication::applicationFilePath()}
                              + (isOpen ? address.arguments() : QStringList()));
    session.setRestartHint(isOpen ? QSessionManager::RestartIfRunning : QSessionManager::RestartNever);
}

// Not later when there is more to save meanwhile.
void MainWindow::saveSoon()
{
    if (m_remembers && !m_savingTimer->isActive()) {
        m_savingTimer->start();
    }
}

void MainWindow::saveNow()
{
    saveState();
    rememberCamera();
    fitColumns();
    m_savingTimer->stop();
}

bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        saveSoon();
    }
    return QMainWindow::event(event);
}

void MainWindow::restoreState()
{
    QSettings settings;
    settings.beginGroup(windowGroup());
    resize(QSize(1000, 700).boundedTo(screen()->availableSize() * 9 / 10)); // a scaled screen may be small
    restoreGeometry(settings.value(QStringLiteral("Geometry")).toByteArray());
    if (!m_splitter->restoreState(settings.value(QStringLiteral("Splitter")).toByteArray())) {
        m_splitter->setSizes({640, 360});
    }
    m_image->restoreState(settings);
    QMainWindow::restoreState(settings.value(QStringLiteral("Panels")).toByteArray(), stateVersion);
    if (!m_tree->restoreState(settings.value(QStringLiteral("Tree")).toByteArray(), stateVersion)) {
        m_tree->treeView()->header()->resizeSection(0, 320);
    }
    bool isNumber = false;
    const int level = settings.value(QStringLiteral("Level")).toInt(&isNumber);
    if (isNumber) {
        m_tree->onVisibilityChanged(level);
    }
}

void MainWindow::saveState()
{
    m_tree->treeView()->header()->resizeSection(0, m_nameWidth); // what the user chose, for wider windows
    QVariantMap state{{QStringLiteral("Geometry"), saveGeometry()},
                      {QStringLiteral("Splitter"), m_splitter->saveState()},
                      {QStringLiteral("Panels"), QMainWindow::saveState(stateVersion)},
                      {QStringLiteral("Tree"), m_tree->saveState(stateVersion)},
                      {QStringLiteral("Level"), static_cast<int>(m_tree->visibility())}};
    state.insert(m_image->state());
    m_settingsWriter.add([state](QSettings &settings) {
        for (auto part = state.cbegin(); part != state.cend(); ++part) {
            settings.setValue(windowGroup() + QLatin1Char('/') + part.key(), part.value());
        }
    });
}

// Leaves the values some room in a narrow window.
void MainWindow::fitColumns()
{
    const QScopedValueRollback<bool> fitting(m_isFittingColumns, true);
    m_tree->treeView()->header()->resizeSection(0, std::min(m_nameWidth, m_tree->width() * 3 / 5));
}

void MainWindow::onColumnResized(int column, int oldWidth, int newWidth)
{
    Q_UNUSED(oldWidth)
    if (column == 0 && !m_isFittingColumns) {
        m_nameWidth = newWidth;
    }
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree && event->type() == QEvent::Resize) {
        fitColumns();
    }
    const bool isMoved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (isMoved && qobject_cast<QDockWidget *>(watched)) {
        saveSoon();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!isLosingOfChangesWanted()) {
        event->ignore();
        return;
    }
    saveState();
    rememberCamera();
    m_settingsWriter.finish();
    endOpening();
    QMainWindow::closeEvent(event);
}
