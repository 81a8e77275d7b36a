// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/core/camerainfo.h>
#include <platform/parametercollection/iparameter.h>

#include <QSharedPointer>
#include <QString>
#include <QWidget>

#include <functional>

namespace Core {
class LiveTexts;
}

class QAction;
class QComboBox;
class QTreeView;
class WatchModel;
class WatchPlot;

/*! \brief Watches chosen features: their values now, their extremes and means since the start, and a plot. */
class WatchPanel : public QWidget
{
    Q_OBJECT

public:
    /*! Returns the feature of a full name, null when the open camera has none. */
    using Finder = std::function<QSharedPointer<ParameterCollection::IParameter>(const QString &fullName)>;

    explicit WatchPanel(Finder finder, QWidget *parent = nullptr);
    ~WatchPanel() override;

    /*! Returns the values so far as comma-separated lines. */
    QString csv() const;

public slots:
    /*! Names the feature that "Add" is about. */
    void setCurrent(QSharedPointer<ParameterCollection::IParameter> parameter);
    /*! Goes on with the features of \a camera if it is the same one as before, else watches nothing. */
    void useCamera(const Core::CameraPoolComponents::CameraInfoPtr &camera);

private slots:
    void addCurrent();
    void removeSelected();
    void setPaused(bool paused);
    void restart();
    void setSpan(int index);
    void saveCsv();
    void savePng();
    void updateActions();

private:
    QAction *addPanelAction(const char *text, const char *slot);
    void layOut();
    QWidget *createButtons();

    Core::LiveTexts *m_texts; // first: the members that follow use it
    Finder m_finder;
    QString m_cameraId;
    QSharedPointer<ParameterCollection::IParameter> m_current;
    WatchModel *m_model;
    QTreeView *m_view;
    WatchPlot *m_plot;
    QComboBox *m_span;
    QAction *m_add;
    QAction *m_remove;
    QAction *m_pause;
    QAction *m_restart;
    QAction *m_saveCsv;
    QAction *m_savePng;
};
