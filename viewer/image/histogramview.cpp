// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "histogramview.h"

#include "plotcolours.h"

#include <platform/core/livetexts.h>

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Cameras;

namespace {

// The values that the column \a x of \a width stands for: from the first to that before the second.
std::pair<qsizetype, qsizetype> valuesAt(int x, int width, qsizetype count)
{
    const qsizetype first = count * x / width;
    return {first, std::max(count * (x + 1) / width, first + 1)};
}

// The mean of the values of a column: as sums, columns of two values would stand out from those of one.
std::vector<double> columnsOf(const QList<quint32> &counts, int width)
{
    std::vector<double> columns(width);
    for (int x = 0; x < width; ++x) {
        const auto [first, end] = valuesAt(x, width, counts.size());
        for (qsizetype value = first; value < end; ++value) {
            columns[x] += counts[value];
        }
        columns[x] /= double(end - first);
    }
    return columns;
}

QString share(quint64 part, quint64 all)
{
    return QLocale().toString(all > 0 ? double(part) * 100.0 / double(all) : 0.0, 'f', 2);
}

} // namespace

HistogramView::HistogramView(QWidget *parent)
    : QWidget(parent)
{
    (new Core::LiveTexts(this))->add(this, &QWidget::setAccessibleName, [] { return tr("Histogram"); });
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

HistogramView::~HistogramView() = default;

QSize HistogramView::sizeHint() const
{
    return {40 * fontMetrics().averageCharWidth(), 7 * fontMetrics().height()};
}

QSize HistogramView::minimumSizeHint() const
{
    return {12 * fontMetrics().averageCharWidth(), 3 * fontMetrics().height()};
}

void HistogramView::setLogarithmic(bool isLogarithmic)
{
    m_isLogarithmic = isLogarithmic;
    update();
}

void HistogramView::setHistogram(const Histogram &histogram)
{
    m_histogram = histogram;
    setAccessibleDescription(summary(histogram));
    update();
}

QString HistogramView::summary(const Histogram &histogram)
{
    if (histogram.channels.isEmpty()) {
        return {};
    }
    const QLocale locale;
    return tr("Black: %1 (%2 %)   Saturated: %3 (%4 %)")
        .arg(locale.toString(histogram.black), share(histogram.black, histogram.values),
             locale.toString(histogram.saturated), share(histogram.saturated, histogram.values));
}

double HistogramView::heightOf(double count, double highest) const
{
    return m_isLogarithmic ? std::log(count + 1.0) / std::log(highest + 1.0) : count / highest;
}

void HistogramView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    std::vector<std::vector<double>> channels;
    double highest = 1.0;
    for (const Histogram::Channel &channel : m_histogram.channels) {
        channels.push_back(columnsOf(channel.counts, std::max(width(), 1)));
        highest = std::max(highest, *std::max_element(channels.back().begin(), channels.back().end()));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const double room = height() - 2.0;
    for (size_t i = 0; i < channels.size(); ++i) {
        QPolygonF outline{QPointF(0.0, height())};
        for (size_t x = 0; x < channels[i].size(); ++x) {
            outline.append(QPointF(double(x) + 0.5, height() - heightOf(channels[i][x], highest) * room));
        }
        outline.append(QPointF(width(), height()));
        QColor colour = plotColour(m_histogram.channels[qsizetype(i)].name, palette());
        painter.setPen(colour);
        colour.setAlpha(60);
        painter.setBrush(colour);
        painter.drawPolygon(outline);
    }
}

QString HistogramView::textAt(int x) const
{
    QStringList lines;
    for (const Histogram::Channel &channel : m_histogram.channels) {
        const auto [first, end] = valuesAt(std::clamp(x, 0, width() - 1), width(), channel.counts.size());
        quint64 count = 0;
        for (qsizetype value = first; value < end; ++value) {
            count += channel.counts[value];
        }
        const QString values =
            end - first > 1 ? QStringLiteral("%1 – %2").arg(first).arg(end - 1) : QString::number(first);
        lines.append(
            QStringLiteral("%1 %2: %3").arg(channel.name, values, QLocale().toString(count)).trimmed());
    }
    return lines.join(QLatin1Char('\n'));
}

bool HistogramView::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto *const help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), textAt(help->pos().x()), this);
    return true;
}
