// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "frameanalysis.h"
#include "imageicons.h"

#include <cameras/frame.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>
#include <QString>
#include <QVariantMap>
#include <QWidget>

namespace Cameras {
class Camera;
}

namespace Core {
class LiveTexts;
}

class HistogramView;
class ImageSaving;
class ImageView;
class LookControls;
class ProfileView;
class QAction;
class QActionGroup;
class QCheckBox;
class QLabel;
class QSettings;
class QSplitter;
class QTimer;
class QToolBar;
class RegionOfInterest;
class StreamControl;

/*! \brief The live image of the open camera, with what measures it and what acts on it. */
class ImagePane : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePane(QWidget *parent = nullptr);
    ~ImagePane() override;

    /*! Names the open camera and its node maps, null when none is. */
    void setCamera(Cameras::Camera *camera, const QList<SettingsNodeMap> &nodeMaps = {});

    ImageView *view() const { return m_view; }
    StreamControl *stream() const { return m_stream; }
    RegionOfInterest *region() const { return m_region; }
    ImageSaving *saving() const { return m_saving; }
    /*! Returns what a menu offers of the pane. */
    QList<QAction *> menuActions() const;

    QVariantMap state() const;
    void restoreState(const QSettings &settings);

public Q_SLOTS:
    void showFrame(Cameras::FramePointer frame);
    /*! Says whether the pane is open at all: images that nobody sees or records stop. */
    void setOpen(bool isOpen);
    /*! Grays the actions out that are of no use now. */
    void updateActions();

Q_SIGNALS:
    /*! Something to be shown for a while. */
    void hint(const QString &text, int milliseconds);
    void failed(const QString &message, const QString &details);
    /*! The user wants to see images. */
    void wanted();
    /*! What state() returns may have changed. */
    void stateChanged();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void toggleStream();
    void onStreamFailed(const QString &reason);
    void onStreamState();
    void startRecording();
    void stopIfClosed();
    void takeOne();
    void probe(const QPoint &position);
    void showProbe();
    void showAnalysis(const AnalysisResult &result);
    void showStatistics();
    void chooseTool(QAction *action);
    void updateLook();
    void updateWish();

private:
    QAction *addAction(ImageIcons::Symbol symbol, const char *text, const char *toolTip,
                       const QKeySequence &key, QObject *receiver, const char *slot);
    QAction *addSwitch(ImageIcons::Symbol symbol, const char *text, const char *toolTip,
                       const QKeySequence &key, QObject *receiver, const char *slot);
    void createStreamActions();
    void createViewActions();
    void createTools();
    void createMeasures();
    void createRegionAction();
    QWidget *createPlots();
    void layOut();
    void connectParts();
    void updateIcons();
    QString probeText() const;
    void showHint();
    void showTexts();

    Core::LiveTexts *m_texts; // first: the members that follow use it
    ImageView *m_view;
    StreamControl *m_stream;
    RegionOfInterest *m_region;
    ImageSaving *m_saving;
    FrameAnalysis *m_analysis;
    QToolBar *m_bar;
    QSplitter *m_splitter;
    QWidget *m_plots = nullptr;
    HistogramView *m_histogram = nullptr;
    QCheckBox *m_logarithmic = nullptr;
    LookControls *m_look = nullptr;
    QLabel *m_extremesText = nullptr;
    QLabel *m_partText = nullptr;
    ProfileView *m_profile = nullptr;
    QLabel *m_probeText;
    QLabel *m_streamText;
    QTimer *m_statisticsTimer;
    QActionGroup *m_tools = nullptr;
    QAction *m_start = nullptr;
    QAction *m_single = nullptr;
    QAction *m_fit = nullptr;
    QAction *m_pixels = nullptr;
    QAction *m_crosshair = nullptr;
    QAction *m_grid = nullptr;
    QAction *m_extremes = nullptr;
    QAction *m_showPlots = nullptr;
    QAction *m_fullFrame = nullptr;
    QPoint m_probe{-1, -1};
    bool m_isOpen = false;
};
