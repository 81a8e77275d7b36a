// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchpanel.h"

#include "watchmodel.h"
#include "watchplot.h"

#include <platform/core/guard.h>
#include <platform/core/livetexts.h>
#include <platform/core/savefile.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QPixmap>
#include <QScrollArea>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.plugins.watch")

namespace {

QString stamp(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString(Qt::ISODateWithMs);
}

QString exact(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

void saveTo(const QString &fileName, const QByteArray &contents, QWidget *parent)
{
    const QString failure = Core::saveFile(fileName, contents);
    if (!failure.isEmpty()) {
        showErrorMessage(WatchPanel::tr("Cannot write %1: %2").arg(fileName, failure), parent);
    }
}

} // namespace

WatchPanel::WatchPanel(Finder finder, QWidget *parent)
    : QWidget(parent)
    , m_texts(new Core::LiveTexts(this))
    , m_finder(std::move(finder))
    , m_model(new WatchModel(this))
    , m_view(new QTreeView(this))
    , m_plot(new WatchPlot(m_model))
    , m_span(new QComboBox(this))
    , m_add(addPanelAction(QT_TR_NOOP("&Add"), SLOT(addCurrent())))
    , m_remove(addPanelAction(QT_TR_NOOP("&Remove"), SLOT(removeSelected())))
    , m_pause(new QAction(this))
    , m_restart(addPanelAction(QT_TR_NOOP("Re&start"), SLOT(restart())))
    , m_saveCsv(addPanelAction(QT_TR_NOOP("Save as &CSV…"), SLOT(saveCsv())))
    , m_savePng(addPanelAction(QT_TR_NOOP("Save as P&NG…"), SLOT(savePng())))
{
    setObjectName(QStringLiteral("watch"));
    m_texts->add(this, &QWidget::setWindowTitle, [] { return tr("Watch"); });
    m_texts->add(m_view, &QWidget::setAccessibleName, [] { return tr("Watch"); });
    m_texts->add(this, &QWidget::setToolTip, [] { return tr("Values of chosen features over time"); });
    m_texts->add(m_pause, &QAction::setText, [] { return tr("&Pause"); });
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    m_texts->add(m_restart, &QAction::setToolTip, [] { return tr("Forgets the values so far"); });
    m_pause->setCheckable(true);
    connect(m_pause, SIGNAL(toggled(bool)), this, SLOT(setPaused(bool)));
    layOut();
    connect(m_view->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(updateActions()));
    connect(m_model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(updateActions()));
    connect(m_model, SIGNAL(modelReset()), this, SLOT(updateActions()));
    m_texts->add([this] {
        updateActions();
        emit m_model->headerDataChanged(Qt::Horizontal, 0, m_model->columnCount() - 1);
    });
}

WatchPanel::~WatchPanel() = default;

QAction *WatchPanel::addPanelAction(const char *text, const char *slot)
{
    auto *const action = new QAction(this);
    m_texts->add(action, &QAction::setText, [text] { return tr(text); });
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

QWidget *WatchPanel::createButtons()
{
    auto *const bar = new QWidget(this);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction *const action : {m_add, m_remove, m_pause}) {
        auto *const button = new QToolButton(bar);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    }
    auto *const more = new QToolButton(bar);
    m_texts->add(more, &QToolButton::setText, [] { return tr("M&ore"); });
    more->setPopupMode(QToolButton::InstantPopup);
    more->setFocusPolicy(Qt::TabFocus);
    auto *const menu = new QMenu(more);
    menu->setToolTipsVisible(true);
    menu->addAction(m_restart);
    menu->addSeparator();
    menu->addActions({m_saveCsv, m_savePng});
    more->setMenu(menu);
    layout->addWidget(more);
    layout->addStretch(1);
    layout->addWidget(m_span);
    return bar;
}

void WatchPanel::layOut()
{
    for (const auto &[text, seconds] :
         {std::pair{QT_TR_NOOP("All"), 0}, std::pair{QT_TR_NOOP("Last minute"), 60},
          std::pair{QT_TR_NOOP("Last 10 minutes"), 600}, std::pair{QT_TR_NOOP("Last hour"), 3600}}) {
        m_span->addItem(QString(), seconds);
        m_texts->add(
            [this, text = text, item = m_span->count() - 1] { m_span->setItemText(item, tr(text)); });
    }
    m_span->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_span->setMinimumContentsLength(6); // a panel may be narrow
    m_texts->add(m_span, &QWidget::setAccessibleName, [] { return tr("Time that the plot shows"); });
    connect(m_span, SIGNAL(currentIndexChanged(int)), this, SLOT(setSpan(int)));
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->addAction(m_remove);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(WatchModel::NameColumn, QHeaderView::Stretch);
    for (const int column : {WatchModel::ValueColumn, WatchModel::MinimumColumn, WatchModel::MaximumColumn,
                             WatchModel::MeanColumn}) {
        m_view->header()->resizeSection(column, 11 * fontMetrics().averageCharWidth());
    }
    auto *const scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_plot);
    auto *const splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_view);
    splitter->addWidget(scroll);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 3);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(createButtons());
    layout->addWidget(splitter, 1);
    setFocusProxy(m_view);
}

void WatchPanel::setCurrent(QSharedPointer<IParameter> parameter)
{
    m_current = parameter;
    updateActions();
}

void WatchPanel::useCamera(const Core::CameraPoolComponents::CameraInfoPtr &camera)
{
    // The row that was current the last time may be current again already.
    if (m_current && (!m_finder || m_finder(m_current->fullName()) != m_current)) {
        m_current.reset();
    }
    if (camera->id() != m_cameraId) {
        m_cameraId = camera->id();
        m_model->clear();
    }
    for (WatchedFeature *const feature : m_model->features()) {
        feature->setParameter(m_finder ? m_finder(feature->fullName()) : nullptr);
    }
    updateActions();
}

void WatchPanel::updateActions()
{
    const bool canWatch = m_current
        && Core::guarded({logCategory(), "WatchPanel::updateActions"},
                         QStringLiteral("Failed to look at a feature"), false,
                         [this] { return WatchedFeature::canWatch(*m_current); });
    m_add->setEnabled(canWatch);
    m_add->setToolTip(canWatch
                          ? tr("Watches the current feature of the tree, %1").arg(m_current->name())
                          : tr("Watches the current feature of the tree, if it is a number or a Boolean"));
    m_remove->setEnabled(m_view->selectionModel()->hasSelection());
    const bool hasRows = m_model->rowCount() > 0;
    for (QAction *const action : {m_restart, m_saveCsv, m_savePng}) {
        action->setEnabled(hasRows);
    }
}

void WatchPanel::addCurrent()
{
    Core::guardedRun({logCategory(), "WatchPanel::addCurrent"}, QStringLiteral("Failed to watch a feature"),
                     [this] {
                         if (m_model->add(m_current)) {
                             m_model->features().constLast()->setPaused(m_pause->isChecked());
                         }
                     });
}

void WatchPanel::removeSelected()
{
    while (m_view->selectionModel()->hasSelection()) {
        m_model->remove(m_view->selectionModel()->selectedRows().constFirst().row());
    }
    updateActions();
}

void WatchPanel::setPaused(bool paused)
{
    for (WatchedFeature *const feature : m_model->features()) {
        feature->setPaused(paused);
    }
}

void WatchPanel::restart()
{
    for (WatchedFeature *const feature : m_model->features()) {
        feature->restart();
    }
}

void WatchPanel::setSpan(int index)
{
    m_plot->setSpan(m_span->itemData(index).toInt());
}

QString WatchPanel::csv() const
{
    QString text = QStringLiteral("begin,end,feature,minimum,maximum,mean,values\n");
    for (const WatchedFeature *const feature : m_model->features()) {
        for (const WatchSeries::Bucket &bucket : feature->series().buckets()) {
            text += QStringList{stamp(feature->startTime() + bucket.begin),
                                stamp(feature->startTime() + bucket.end),
                                feature->fullName(),
                                exact(bucket.minimum),
                                exact(bucket.maximum),
                                exact(bucket.mean()),
                                QString::number(bucket.count)}
                        .join(QLatin1Char(','))
                + QLatin1Char('\n');
        }
    }
    return text;
}

void WatchPanel::saveCsv()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Save Watched Values"), QString(),
                                                          tr("Comma-separated values (*.csv)"));
    if (!fileName.isEmpty()) {
        saveTo(fileName, csv().toUtf8(), this);
    }
}

void WatchPanel::savePng()
{
    const QString fileName =
        QFileDialog::getSaveFileName(this, tr("Save the Plot"), QString(), tr("Images (*.png)"));
    if (!fileName.isEmpty()) {
        QBuffer picture;
        picture.open(QIODevice::WriteOnly);
        m_plot->grab().save(&picture, "PNG");
        saveTo(fileName, picture.data(), this);
    }
}
