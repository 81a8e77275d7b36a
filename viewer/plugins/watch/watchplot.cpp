// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchplot.h"

#include "watchmodel.h"

#include <platform/core/livetexts.h>

#include <QLocale>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int laneLines = 4; // of text, at least

QString timeText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    if (seconds < 120) {
        return WatchPlot::tr("%1 s").arg(seconds);
    }
    if (seconds < 7200) {
        return WatchPlot::tr("%1 min").arg(seconds / 60);
    }
    return WatchPlot::tr("%1 h").arg(QLocale().toString(static_cast<double>(seconds) / 3600.0, 'f', 1));
}

} // namespace

/*! \brief Where times and values are in a lane. */
struct WatchPlot::Scale
{
    QRectF area;
    qint64 begin = 0;
    qint64 end = 1;
    double lowest = 0.0;
    double highest = 1.0;

    bool hasValues() const { return lowest <= highest; }
    double x(qint64 time) const
    {
        return area.left()
            + area.width() * static_cast<double>(time - begin) / static_cast<double>(end - begin);
    }
    double y(double value) const
    {
        const double room = highest - lowest;
        const double share = room > 0.0 ? (value - lowest) / room : 0.5;
        return area.bottom() - share * area.height();
    }
};

WatchPlot::WatchPlot(const WatchModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    (new Core::LiveTexts(this))->add(this, &QWidget::setAccessibleName, [] {
        return tr("Plot of the watched features");
    });
    connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this, SLOT(update()));
    connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(onRowsChanged()));
    connect(model, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(onRowsChanged()));
    connect(model, SIGNAL(modelReset()), this, SLOT(onRowsChanged()));
}

WatchPlot::~WatchPlot() = default;

void WatchPlot::setSpan(int seconds)
{
    m_span = seconds;
    update();
}

void WatchPlot::onRowsChanged()
{
    updateGeometry();
    update();
}

int WatchPlot::laneHeight() const
{
    return laneLines * fontMetrics().height();
}

QSize WatchPlot::minimumSizeHint() const
{
    const auto lanes = std::max<qsizetype>(1, m_model->features().size());
    return {20 * fontMetrics().averageCharWidth(), static_cast<int>(lanes) * laneHeight()};
}

QSize WatchPlot::sizeHint() const
{
    return {60 * fontMetrics().averageCharWidth(), 2 * minimumSizeHint().height()};
}

// In milliseconds, the same in all lanes, so that what happens together stands one below the other.
qint64 WatchPlot::shownTime() const
{
    if (m_span > 0) {
        return m_span * qint64(1000);
    }
    qint64 longest = 1000;
    for (const WatchedFeature *const feature : m_model->features()) {
        longest = std::max(longest, feature->elapsed());
    }
    return longest;
}

QColor WatchPlot::lineColor(int number) const
{
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    return QColor::fromHsl((210 + number * 137) % 360, 190, isDark ? 165 : 90);
}

void WatchPlot::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto &features = m_model->features();
    if (features.isEmpty()) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Make a feature current in the tree, and add it."));
        return;
    }
    const int height = this->height() / static_cast<int>(features.size());
    for (int i = 0; i < features.size(); ++i) {
        paintLane(painter, {0, i * height, width(), height}, *features[i], i);
    }
}

WatchPlot::Scale WatchPlot::scaleOf(const QRect &area, const WatchedFeature &feature) const
{
    Scale scale;
    scale.area = area;
    scale.end = feature.elapsed();
    scale.begin = scale.end - shownTime();
    scale.lowest = std::numeric_limits<double>::infinity();
    scale.highest = -scale.lowest;
    for (const WatchSeries::Bucket &bucket : feature.series().buckets()) {
        if (bucket.end >= scale.begin) {
            scale.lowest = std::min(scale.lowest, bucket.minimum);
            scale.highest = std::max(scale.highest, bucket.maximum);
        }
    }
    return scale;
}

void WatchPlot::paintLane(QPainter &painter, const QRect &lane, const WatchedFeature &feature,
                          int number) const
{
    const int line = painter.fontMetrics().height();
    const int left = 12 * painter.fontMetrics().averageCharWidth();
    const QRect area = lane.adjusted(left, line + 2, -line / 2, -line - 2);
    const Scale scale = scaleOf(area, feature);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRectF(area).adjusted(-0.5, -0.5, 0.5, 0.5));
    painter.setPen(palette().color(QPalette::Text));
    paintLabels(painter, lane, feature, scale);
    if (!scale.hasValues()) {
        return;
    }
    painter.save();
    painter.setClipRect(area.adjusted(-1, -1, 1, 1));
    painter.setPen(QPen(lineColor(number), 1.5));
    paintValues(painter, feature, scale);
    painter.restore();
}

void WatchPlot::paintLabels(QPainter &painter, const QRect &lane, const WatchedFeature &feature,
                            const Scale &scale) const
{
    const QRect area = scale.area.toRect();
    const int line = painter.fontMetrics().height();
    const auto elided = [&painter](const QString &text, int width) {
        return painter.fontMetrics().elidedText(text, Qt::ElideRight, width);
    };
    painter.drawText(QRect(area.left(), lane.top(), area.width(), line), Qt::AlignLeft | Qt::AlignVCenter,
                     elided(feature.title(), area.width()));
    painter.drawText(QRect(area.left(), area.bottom() + 2, area.width(), line), Qt::AlignLeft,
                     tr("%1 ago").arg(timeText(scale.end - scale.begin)));
    painter.drawText(QRect(area.left(), area.bottom() + 2, area.width(), line), Qt::AlignRight, tr("now"));
    if (!scale.hasValues()) {
        return;
    }
    const int width = area.left() - lane.left() - 6;
    const auto number = [&elided, width](double value) {
        return elided(QString::number(value, 'g', 7), width);
    };
    const bool isFlat = scale.lowest == scale.highest;
    const QRect top(lane.left() + 2, isFlat ? area.center().y() - line / 2 : area.top(), width, line);
    painter.drawText(top, Qt::AlignRight | Qt::AlignTop, number(scale.highest));
    if (!isFlat) {
        painter.drawText(QRect(lane.left() + 2, area.bottom() - line, width, line),
                         Qt::AlignRight | Qt::AlignBottom, number(scale.lowest));
    }
}

// A line through the means, and a bar from the least to the greatest value where a bucket has several.
void WatchPlot::paintValues(QPainter &painter, const WatchedFeature &feature, const Scale &scale) const
{
    QPolygonF line;
    const auto flush = [&painter, &line] {
        line.size() == 1 ? painter.drawPoint(line.constFirst()) : painter.drawPolyline(line);
        line.clear();
    };
    for (const WatchSeries::Bucket &bucket : feature.series().buckets()) {
        if (bucket.end < scale.begin) {
            continue;
        }
        if (bucket.followsGap && !line.isEmpty()) {
            flush();
        }
        const double x = scale.x((bucket.begin + bucket.end) / 2);
        if (bucket.minimum < bucket.maximum) {
            painter.drawLine(QPointF(x, scale.y(bucket.minimum)), QPointF(x, scale.y(bucket.maximum)));
        }
        line.append(QPointF(x, scale.y(bucket.mean())));
    }
    if (!line.isEmpty()) {
        flush();
    }
}
