// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "profileview.h"

#include "plotcolours.h"

#include <platform/core/livetexts.h>

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <utility>

using namespace Cameras;

ProfileView::ProfileView(QWidget *parent)
    : QWidget(parent)
{
    auto *const texts = new Core::LiveTexts(this);
    texts->add(this, &QWidget::setAccessibleName, [] { return tr("Line profile"); });
    texts->add(this, &QWidget::setToolTip, [] { return tr("The raw values along the drawn line"); });
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

ProfileView::~ProfileView() = default;

QSize ProfileView::sizeHint() const
{
    return {40 * fontMetrics().averageCharWidth(), 6 * fontMetrics().height()};
}

QSize ProfileView::minimumSizeHint() const
{
    return {12 * fontMetrics().averageCharWidth(), 3 * fontMetrics().height()};
}

void ProfileView::setCurves(const QList<FrameValues::Curve> &curves)
{
    m_curves = curves;
    update();
}

void ProfileView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    int last = 1;
    int lowest = 0;
    int highest = 0;
    bool isFirst = true;
    for (const FrameValues::Curve &curve : std::as_const(m_curves)) {
        for (const QPoint &point : curve.points) {
            last = std::max(last, point.x());
            lowest = isFirst ? point.y() : std::min(lowest, point.y());
            highest = isFirst ? point.y() : std::max(highest, point.y());
            isFirst = false;
        }
    }
    if (isFirst) {
        return;
    }
    // The numbers have a column of their own, so that no curve hides them.
    const QRect place = rect().adjusted(4, 1, -4, -1);
    const int left =
        place.left() + std::max(numberWidth(lowest), numberWidth(highest)) + fontMetrics().averageCharWidth();
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, QString::number(highest));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, QString::number(lowest));
    painter.setRenderHint(QPainter::Antialiasing);
    const double room = height() - 4.0;
    const double range = std::max(highest - lowest, 1);
    for (const FrameValues::Curve &curve : std::as_const(m_curves)) {
        QPolygonF line;
        for (const QPoint &point : curve.points) {
            line.append({left + double(point.x()) / last * (place.right() - left),
                         height() - 2.0 - (point.y() - lowest) / range * room});
        }
        painter.setPen(plotColour(curve.channel, palette()));
        painter.drawPolyline(line);
    }
}

int ProfileView::numberWidth(int number) const
{
    return fontMetrics().horizontalAdvance(QString::number(number));
}
