// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "imagepane.h"

#include "framerecorder.h"
#include "histogramview.h"
#include "imagesaving.h"
#include "imageview.h"
#include "lookcontrols.h"
#include "profileview.h"
#include "regionofinterest.h"
#include "streamcontrol.h"

#include <cameras/camera.h>
#include <cameras/framevalues.h>
#include <platform/core/livetexts.h>

#include <QActionGroup>
#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

using namespace Cameras;
using ImageIcons::Symbol;

namespace {

constexpr int statisticsInterval = 500; // milliseconds

QString inToolTip(const QString &text, const QKeySequence &key)
{
    return key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText));
}

QString partText(const PartStatistics &statistics)
{
    const QLocale locale;
    QStringList texts;
    for (const PartStatistics::Channel &channel : statistics.channels) {
        const QString name = channel.name.isEmpty() ? QString() : channel.name + QStringLiteral(": ");
        texts.append(ImagePane::tr("%1mean %2, deviation %3")
                         .arg(name, locale.toString(channel.mean, 'f', 2),
                              locale.toString(channel.deviation, 'f', 2)));
    }
    if (!texts.isEmpty()) {
        texts.append(ImagePane::tr("sharpness %1").arg(locale.toString(statistics.sharpness, 'f', 2)));
    }
    return texts.join(QStringLiteral("   "));
}

} // namespace

ImagePane::ImagePane(QWidget *parent)
    : QWidget(parent)
    , m_texts(new Core::LiveTexts(this))
    , m_view(new ImageView(this))
    , m_stream(new StreamControl(this))
    , m_region(new RegionOfInterest(this))
    , m_saving(new ImageSaving(this))
    , m_analysis(new FrameAnalysis(this))
    , m_bar(new QToolBar(this))
    , m_splitter(new QSplitter(Qt::Vertical, this))
    , m_probeText(new QLabel(this))
    , m_streamText(new QLabel(this))
    , m_statisticsTimer(new QTimer(this))
{
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_bar->setIconSize({iconSize, iconSize}); // the tree needs the room as well
    setObjectName(QStringLiteral("image"));
    m_texts->add(this, &QWidget::setWindowTitle, [] { return tr("Image"); });
    createStreamActions();
    createViewActions();
    createTools();
    createMeasures();
    createRegionAction();
    layOut();
    connectParts();
    updateIcons();
    m_texts->add([this] { showTexts(); });
}

ImagePane::~ImagePane() = default;

QAction *ImagePane::addAction(Symbol symbol, const char *text, const char *toolTip, const QKeySequence &key,
                              QObject *receiver, const char *slot)
{
    auto *const action = new QAction(this);
    action->setData(int(symbol));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_texts->add([action, text, toolTip, key] {
        action->setText(tr(text));
        action->setToolTip(inToolTip(tr(toolTip), key));
        action->setStatusTip(tr(toolTip));
    });
    if (receiver) {
        connect(action, SIGNAL(triggered()), receiver, slot);
    }
    QWidget::addAction(action);
    m_bar->addAction(action);
    return action;
}

QAction *ImagePane::addSwitch(Symbol symbol, const char *text, const char *toolTip, const QKeySequence &key,
                              QObject *receiver, const char *slot)
{
    QAction *const action = addAction(symbol, text, toolTip, key, nullptr, nullptr);
    action->setCheckable(true);
    connect(action, SIGNAL(toggled(bool)), receiver, slot);
    connect(action, SIGNAL(toggled(bool)), this, SIGNAL(stateChanged()));
    return action;
}

void ImagePane::createStreamActions()
{
    m_start = addAction(Symbol::Start, QT_TR_NOOP("St&art Images"), QT_TR_NOOP("Shows what the camera sees"),
                        Qt::Key_F9, this, SLOT(toggleStream()));
    m_start->setShortcutContext(Qt::WindowShortcut);
    m_single = addAction(Symbol::Single, QT_TR_NOOP("Si&ngle Image"), QT_TR_NOOP("Takes one image"),
                         QKeySequence(Qt::SHIFT | Qt::Key_F9), this, SLOT(takeOne()));
    m_single->setShortcutContext(Qt::WindowShortcut);
    m_bar->addSeparator();
}

void ImagePane::createViewActions()
{
    m_fit = addAction(Symbol::Fit, QT_TR_NOOP("Fit"), QT_TR_NOOP("Shows all of the image"), Qt::Key_0, m_view,
                      SLOT(fit()));
    m_fit->setCheckable(true);
    m_pixels = addAction(Symbol::PixelByPixel, QT_TR_NOOP("1:1"),
                         QT_TR_NOOP("Shows each pixel as one of the screen"), Qt::Key_1, m_view,
                         SLOT(showPixelByPixel()));
    m_crosshair =
        addSwitch(Symbol::Crosshair, QT_TR_NOOP("Crosshair"), QT_TR_NOOP("Marks the middle of the image"),
                  Qt::Key_C, m_view, SLOT(setCrosshair(bool)));
    m_grid = addSwitch(Symbol::Grid, QT_TR_NOOP("Grid"), QT_TR_NOOP("Divides the image into thirds"),
                       Qt::Key_G, m_view, SLOT(setGrid(bool)));
    m_bar->addSeparator();
}

void ImagePane::createTools()
{
    m_tools = new QActionGroup(this);
    const auto add = [this](Symbol symbol, const char *text, const char *toolTip, Qt::Key key,
                            ImageView::Tool tool) {
        QAction *const action = addAction(symbol, text, toolTip, key, nullptr, nullptr);
        action->setCheckable(true);
        action->setProperty("tool", int(tool));
        m_tools->addAction(action);
        return action;
    };
    add(Symbol::Pan, QT_TR_NOOP("Move"), QT_TR_NOOP("Dragging moves the image"), Qt::Key_M,
        ImageView::Tool::Pan)
        ->setChecked(true);
    add(Symbol::Part, QT_TR_NOOP("Rectangle"),
        QT_TR_NOOP("Dragging draws a rectangle, of which mean, deviation and sharpness are shown"), Qt::Key_R,
        ImageView::Tool::Part);
    add(Symbol::Line, QT_TR_NOOP("Line"),
        QT_TR_NOOP("Dragging draws a line, along which the values are shown"), Qt::Key_L,
        ImageView::Tool::Line);
    connect(m_tools, SIGNAL(triggered(QAction *)), this, SLOT(chooseTool(QAction *)));
    m_bar->addSeparator();
}

void ImagePane::createMeasures()
{
    m_showPlots =
        addSwitch(Symbol::Histogram, QT_TR_NOOP("Histogram"),
                  QT_TR_NOOP("Shows the histogram, gamma and contrast"), Qt::Key_H, this, SLOT(updateWish()));
    m_extremes = addSwitch(Symbol::Extremes, QT_TR_NOOP("Mark Extremes"),
                           QT_TR_NOOP("Marks saturated pixels red and black ones blue"), Qt::Key_X, this,
                           SLOT(updateLook()));
    m_bar->addSeparator();
}

void ImagePane::createRegionAction()
{
    m_fullFrame = addAction(
        Symbol::FullFrame, QT_TR_NOOP("&Full Frame"),
        QT_TR_NOOP("Makes all of the sensor the region of interest; dragging in the image with Ctrl "
                   "makes it what is drawn"),
        QKeySequence(Qt::SHIFT | Qt::Key_F), m_region, SLOT(setFullFrame()));
    m_bar->addSeparator();
    const auto saving = m_saving->actions();
    saving.at(0)->setData(int(Symbol::Save));
    saving.at(1)->setData(int(Symbol::Record));
    m_bar->addActions(saving);
}

QWidget *ImagePane::createPlots()
{
    m_plots = new QWidget(this);
    m_histogram = new HistogramView(m_plots);
    m_logarithmic = new QCheckBox(m_plots);
    m_texts->add(m_logarithmic, &QCheckBox::setText, [] { return tr("&Logarithmic"); });
    m_texts->add(m_logarithmic, &QWidget::setToolTip, [] { return tr("Shows rare values as well"); });
    m_look = new LookControls(m_plots);
    m_extremesText = new QLabel(m_plots);
    m_extremesText->setWordWrap(true);
    auto *const row = new QHBoxLayout; // with the counts, so that the pane may be narrow
    row->addWidget(m_extremesText, 1);
    row->addWidget(m_logarithmic);
    auto *const layout = new QVBoxLayout(m_plots);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_histogram, 1);
    layout->addLayout(row);
    layout->addWidget(m_look);
    connect(m_logarithmic, SIGNAL(toggled(bool)), m_histogram, SLOT(setLogarithmic(bool)));
    connect(m_logarithmic, SIGNAL(toggled(bool)), this, SIGNAL(stateChanged()));
    connect(m_look, SIGNAL(lookChanged()), this, SLOT(updateLook()));
    m_plots->hide();
    return m_plots;
}

void ImagePane::layOut()
{
    m_profile = new ProfileView(this);
    m_profile->hide();
    m_partText = new QLabel(this);
    m_partText->setWordWrap(true);
    m_texts->add(m_partText, &QWidget::setAccessibleName, [] { return tr("Statistics of the rectangle"); });
    m_texts->add(m_partText, &QWidget::setToolTip, [] {
        return tr("Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the "
                  "mean");
    });
    m_partText->hide();
    m_texts->add(m_probeText, &QWidget::setAccessibleName, [] { return tr("Pixel under the cursor"); });
    m_texts->add(m_streamText, &QWidget::setAccessibleName, [] { return tr("Images"); });
    m_streamText->setWordWrap(true);
    for (QLabel *const label : {m_probeText, m_streamText, m_partText, m_extremesText}) {
        if (label) {
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        }
    }
    m_splitter->addWidget(m_view);
    m_splitter->addWidget(m_profile);
    m_splitter->addWidget(createPlots());
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setChildrenCollapsible(false);
    connect(m_splitter, SIGNAL(splitterMoved(int, int)), this, SIGNAL(stateChanged()));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_partText);
    layout->addWidget(m_probeText);
    layout->addWidget(m_streamText);
    setFocusProxy(m_view);
}

void ImagePane::connectParts()
{
    connect(m_stream, SIGNAL(frameArrived(Cameras::FramePointer)), this,
            SLOT(showFrame(Cameras::FramePointer)));
    connect(m_stream, SIGNAL(frameArrived(Cameras::FramePointer)), m_saving->recorder(),
            SLOT(add(Cameras::FramePointer)));
    connect(m_stream, SIGNAL(stateChanged()), this, SLOT(onStreamState()));
    connect(m_stream, SIGNAL(failed(QString)), this, SLOT(onStreamFailed(QString)));
    connect(m_view, SIGNAL(probed(QPoint)), this, SLOT(probe(QPoint)));
    connect(m_view, SIGNAL(frameSeen()), this, SLOT(showProbe()));
    connect(m_view, SIGNAL(zoomChanged()), this, SLOT(updateActions()));
    connect(m_view, SIGNAL(drawn()), this, SLOT(updateWish()));
    connect(m_view, SIGNAL(regionDrawn(QRect)), m_region, SLOT(setRegion(QRect)));
    connect(m_region, SIGNAL(aboutToWrite()), m_stream, SLOT(pause()));
    connect(m_region, SIGNAL(written()), m_stream, SLOT(resume()));
    connect(m_region, SIGNAL(failed(QString, QString)), this, SIGNAL(failed(QString, QString)));
    connect(m_saving, SIGNAL(framesWanted()), this, SLOT(startRecording()));
    connect(m_saving->recorder(), SIGNAL(finished(int, int, QString)), this, SLOT(stopIfClosed()));
    connect(m_saving, SIGNAL(hint(QString, int)), this, SIGNAL(hint(QString, int)));
    connect(m_saving, SIGNAL(failed(QString, QString)), this, SIGNAL(failed(QString, QString)));
    connect(m_analysis, SIGNAL(finished(AnalysisResult)), this, SLOT(showAnalysis(AnalysisResult)));
    m_statisticsTimer->setInterval(statisticsInterval);
    connect(m_statisticsTimer, SIGNAL(timeout()), this, SLOT(showStatistics()));
}

QList<QAction *> ImagePane::menuActions() const
{
    return QList<QAction *>{m_start, m_single, m_fullFrame} + m_saving->actions();
}

void ImagePane::setCamera(Camera *camera, const QList<SettingsNodeMap> &nodeMaps)
{
    m_region->setNodeMaps(camera ? nodeMaps : QList<SettingsNodeMap>());
    m_saving->setCameraName(camera && camera->stream() ? camera->info()->modelName() : QString());
    m_stream->setCamera(camera);
    showFrame(nullptr);
    showHint();
    showStatistics();
}

void ImagePane::showHint()
{
    const Camera *const camera = m_stream->camera();
    m_view->setHint(!camera                 ? tr("No camera is open.")
                        : !camera->stream() ? tr("This camera delivers no images.")
                                            : tr("Start the images with F9."));
}

// What is shown of the camera and of the last image, which may have no successor.
void ImagePane::showTexts()
{
    updateActions();
    showHint();
    showProbe();
    m_analysis->setFrame(m_view->frame());
}

void ImagePane::showFrame(FramePointer frame)
{
    m_view->showFrame(frame);
    m_saving->setFrame(frame, m_view->look());
    if (isVisible() || !frame) {
        m_analysis->setFrame(std::move(frame));
    }
    if (!m_view->frame()) {
        showProbe();
    }
}

// A pane that becomes a window of its own, or a part of the other again, is closed for a moment.
void ImagePane::setOpen(bool isOpen)
{
    m_isOpen = isOpen;
    QMetaObject::invokeMethod(this, "stopIfClosed", Qt::QueuedConnection);
}

// Else the tree would have locked features, and nothing in sight to tell why.
void ImagePane::stopIfClosed()
{
    if (!m_isOpen && !m_saving->recorder()->isRecording()) {
        m_stream->stop();
    }
}

void ImagePane::startRecording()
{
    m_stream->start();
    onStreamState();
}

void ImagePane::onStreamState()
{
    if (!m_stream->isRunning() && !m_stream->isPaused()) {
        m_saving->recorder()->stop();
    }
    updateActions();
}

void ImagePane::toggleStream()
{
    m_stream->toggle();
    Q_EMIT wanted();
}

void ImagePane::onStreamFailed(const QString &reason)
{
    Q_EMIT failed(reason, QString());
}

void ImagePane::takeOne()
{
    m_stream->takeOne();
    Q_EMIT wanted();
}

void ImagePane::updateActions()
{
    const bool isRunning = m_stream->isRunning();
    const bool isPossible = m_stream->isPossible();
    m_start->setText(isRunning ? tr("St&op Images") : tr("St&art Images"));
    m_start->setData(int(isRunning ? Symbol::Stop : Symbol::Start));
    m_start->setIcon(ImageIcons::icon(isRunning ? Symbol::Stop : Symbol::Start, palette()));
    m_start->setEnabled(isRunning || isPossible);
    m_single->setEnabled(!isRunning && isPossible);
    m_fullFrame->setEnabled(isPossible && m_region->isPossible());
    m_fit->setChecked(m_view->isFitted());
    if (isRunning && !m_statisticsTimer->isActive()) {
        m_statisticsTimer->start();
    } else if (!isRunning) {
        m_statisticsTimer->stop();
    }
    showStatistics();
}

void ImagePane::showStatistics()
{
    const FramePointer &frame = m_view->frame();
    QStringList texts{m_stream->summary()};
    if (frame) {
        texts.prepend(tr("%1 × %2, %3, frame %4, %5 %")
                          .arg(frame->width)
                          .arg(frame->height)
                          .arg(pixelFormatName(frame->pixelFormat))
                          .arg(frame->number)
                          .arg(QLocale().toString(m_view->zoom() * 100.0, 'f', 0)));
        texts.append({frame->missing, frame->remark});
    }
    texts.removeAll(QString());
    m_streamText->setText(texts.join(QStringLiteral("   ")));
}

QString ImagePane::probeText() const
{
    const FramePointer &frame = m_view->frame();
    const QList<FrameValues::Value> values =
        frame ? FrameValues::at(*frame, m_probe) : QList<FrameValues::Value>();
    QStringList texts;
    for (const FrameValues::Value &value : values) {
        texts.append(QStringLiteral("%1 %2").arg(value.channel).arg(value.value).trimmed());
    }
    return texts.isEmpty()
        ? QString()
        : tr("x %1, y %2:  %3").arg(m_probe.x()).arg(m_probe.y()).arg(texts.join(QStringLiteral("  ")));
}

void ImagePane::probe(const QPoint &position)
{
    m_probe = position;
    showProbe();
}

void ImagePane::showProbe()
{
    m_probeText->setText(probeText());
    m_view->setAccessibleDescription(m_probeText->text());
}

void ImagePane::chooseTool(QAction *action)
{
    m_view->setTool(static_cast<ImageView::Tool>(action->property("tool").toInt()));
}

void ImagePane::updateLook()
{
    FrameConversion::Look look = m_look->look();
    look.marksExtremes = m_extremes->isChecked();
    m_view->setLook(look);
    m_saving->setFrame(m_view->frame(), look);
}

void ImagePane::updateWish()
{
    m_plots->setVisible(m_showPlots->isChecked());
    const ImageMarks &marks = m_view->marks();
    m_profile->setVisible(marks.line.has_value());
    m_partText->setVisible(!marks.part.isEmpty());
    m_analysis->setWish({m_showPlots->isChecked(), marks.part, marks.line});
}

void ImagePane::showAnalysis(const AnalysisResult &result)
{
    m_histogram->setHistogram(result.histogram);
    m_extremesText->setText(HistogramView::summary(result.histogram));
    m_partText->setText(partText(result.part));
    m_profile->setCurves(result.profile);
    showStatistics(); // of the frame that is shown now
}

void ImagePane::updateIcons()
{
    const auto actions = m_bar->actions();
    for (QAction *const action : actions) {
        if (!action->isSeparator()) {
            action->setIcon(ImageIcons::icon(static_cast<Symbol>(action->data().toInt()), palette()));
        }
    }
}

void ImagePane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_analysis->setFrame(m_view->frame()); // which was not looked at while hidden
}

void ImagePane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateIcons();
    }
}

QVariantMap ImagePane::state() const
{
    return {{QStringLiteral("Image/Splitter"), m_splitter->saveState()},
            {QStringLiteral("Image/Histogram"), m_showPlots->isChecked()},
            {QStringLiteral("Image/Logarithmic"), m_logarithmic->isChecked()},
            {QStringLiteral("Image/Crosshair"), m_crosshair->isChecked()},
            {QStringLiteral("Image/Grid"), m_grid->isChecked()},
            {QStringLiteral("Image/Extremes"), m_extremes->isChecked()}};
}

void ImagePane::restoreState(const QSettings &settings)
{
    const auto value = [&settings](const char *name) {
        return settings.value(QLatin1String("Image/") + QLatin1String(name));
    };
    m_splitter->restoreState(value("Splitter").toByteArray());
    m_showPlots->setChecked(value("Histogram").toBool());
    m_logarithmic->setChecked(value("Logarithmic").toBool());
    m_crosshair->setChecked(value("Crosshair").toBool());
    m_grid->setChecked(value("Grid").toBool());
    m_extremes->setChecked(value("Extremes").toBool());
}
