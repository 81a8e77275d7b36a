// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QWidget>

class WatchedFeature;
class WatchModel;

/*! \brief Paints the watched features over time, each in a lane and on a scale of its own. */
class WatchPlot : public QWidget
{
    Q_OBJECT

public:
    explicit WatchPlot(const WatchModel *model, QWidget *parent = nullptr);
    ~WatchPlot() override;

    /*! Shows the last \a seconds, or all with 0. */
    void setSpan(int seconds);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    void onRowsChanged();

private:
    struct Scale;

    void paintLane(QPainter &painter, const QRect &lane, const WatchedFeature &feature, int number) const;
    void paintLabels(QPainter &painter, const QRect &lane, const WatchedFeature &feature,
                     const Scale &scale) const;
    void paintValues(QPainter &painter, const WatchedFeature &feature, const Scale &scale) const;
    Scale scaleOf(const QRect &area, const WatchedFeature &feature) const;
    QColor lineColor(int number) const;
    int laneHeight() const;
    qint64 shownTime() const;

    const WatchModel *m_model;
    int m_span = 0; // in seconds
};
