// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "imageicons.h"

#include <QFont>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <QRect>
#include <QSize>

#include <algorithm>

namespace {

using ImageIcons::Symbol;

constexpr int side = 16; // the unit that all are drawn in

void drawFrame(QPainter &painter)
{
    painter.drawRect(QRectF(2, 3, 12, 10));
}

void drawHistogram(QPainter &painter)
{
    painter.drawPolyline(QPolygonF({{2, 14}, {4, 11}, {6, 5}, {8, 3}, {10, 8}, {12, 6}, {14, 14}, {2, 14}}));
}

void drawHand(QPainter &painter)
{
    painter.drawLine(QPointF(8, 2), QPointF(8, 14));
    painter.drawLine(QPointF(2, 8), QPointF(14, 8));
    for (const QPointF &tip : {QPointF(8, 2), QPointF(8, 14), QPointF(2, 8), QPointF(14, 8)}) {
        const QPointF inwards = (QPointF(8, 8) - tip) / 3.0;
        const QPointF across(inwards.y(), inwards.x());
        painter.drawLine(tip, tip + inwards + across);
        painter.drawLine(tip, tip + inwards - across);
    }
}

void drawGrid(QPainter &painter)
{
    painter.drawRect(QRectF(2, 2, 12, 12));
    for (const double place : {6.0, 10.0}) {
        painter.drawLine(QPointF(place, 2), QPointF(place, 14));
        painter.drawLine(QPointF(2, place), QPointF(14, place));
    }
}

void drawFit(QPainter &painter)
{
    for (const double x : {2.0, 14.0}) {
        for (const double y : {2.0, 14.0}) {
            const double inX = x < 8 ? 4 : -4;
            const double inY = y < 8 ? 4 : -4;
            painter.drawLine(QPointF(x, y), QPointF(x + inX, y));
            painter.drawLine(QPointF(x, y), QPointF(x, y + inY));
        }
    }
}

void drawDisk(QPainter &painter)
{
    painter.drawRect(QRectF(2, 2, 12, 12));
    painter.drawRect(QRectF(5, 2, 6, 4));
    painter.drawRect(QRectF(4, 9, 8, 5));
}

void drawPixels(QPainter &painter)
{
    QFont font = painter.font();
    font.setPixelSize(9);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, QStringLiteral("1:1"));
}

void drawExtremes(QPainter &painter, const QColor &colour)
{
    drawFrame(painter);
    painter.fillRect(QRectF(3, 4, 4, 8), colour);
    painter.fillRect(QRectF(9, 4, 4, 4), QColor(230, 40, 40));
}

void draw(QPainter &painter, Symbol symbol, const QColor &colour)
{
    switch (symbol) {
    case Symbol::Start:
        painter.setBrush(colour);
        painter.drawPolygon(QPolygonF({{4, 2}, {13, 8}, {4, 14}}));
        break;
    case Symbol::Stop:
        painter.fillRect(QRectF(3, 3, 10, 10), colour);
        break;
    case Symbol::Single:
        painter.setBrush(colour);
        painter.drawPolygon(QPolygonF({{3, 3}, {10, 8}, {3, 13}}));
        painter.drawLine(QPointF(13, 3), QPointF(13, 13));
        break;
    case Symbol::Fit:
        drawFit(painter);
        break;
    case Symbol::PixelByPixel:
        drawPixels(painter);
        break;
    case Symbol::Pan:
        drawHand(painter);
        break;
    case Symbol::Part:
        painter.setPen(QPen(colour, 1.5, Qt::DashLine));
        drawFrame(painter);
        break;
    case Symbol::Line:
        painter.drawLine(QPointF(2, 13), QPointF(14, 3));
        break;
    case Symbol::Crosshair:
        painter.drawEllipse(QRectF(4, 4, 8, 8));
        painter.drawLine(QPointF(8, 1), QPointF(8, 15));
        painter.drawLine(QPointF(1, 8), QPointF(15, 8));
        break;
    case Symbol::Grid:
        drawGrid(painter);
        break;
    case Symbol::Extremes:
        drawExtremes(painter, colour);
        break;
    case Symbol::Histogram:
        drawHistogram(painter);
        break;
    case Symbol::FullFrame:
        painter.drawRect(QRectF(1.5, 2.5, 13, 11));
        painter.setPen(QPen(colour, 1.0, Qt::DotLine));
        painter.drawRect(QRectF(5, 5.5, 6, 5));
        break;
    case Symbol::Save:
        drawDisk(painter);
        break;
    case Symbol::Record:
        painter.setBrush(colour);
        painter.drawEllipse(QRectF(3, 3, 10, 10));
        break;
    }
}

/*! \brief Draws a symbol when, and as large as, it is painted. */
class SymbolEngine : public QIconEngine
{
public:
    SymbolEngine(Symbol symbol, const QPalette &palette)
        : m_symbol(symbol)
        , m_palette(palette)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        Q_UNUSED(state)
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = m_palette.color(group, QPalette::ButtonText);
        const int edge = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - edge) / 2, rect.y() + (rect.height() - edge) / 2);
        painter->scale(double(edge) / side, double(edge) / side);
        painter->setPen(QPen(colour, 1.4));
        draw(*painter, m_symbol, colour);
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new SymbolEngine(*this); }

private:
    Symbol m_symbol;
    QPalette m_palette;
};

} // namespace

QIcon ImageIcons::icon(Symbol symbol, const QPalette &palette)
{
    return QIcon(new SymbolEngine(symbol, palette));
}
