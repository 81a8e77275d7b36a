// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "shapednames_p.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int remembered = 128; // names, whole and elided: more than are in sight at once
constexpr qreal endless = 1.0e6;

// What takes no more than one line from the left, whatever is written in it.
bool isPlainLine(const QPainter &painter, int alignment, const QString &text)
{
    return painter.layoutDirection() == Qt::LeftToRight && (alignment & Qt::AlignRight) == 0
        && !text.isRightToLeft()
        && std::all_of(text.cbegin(), text.cend(), [](QChar character) { return character.isPrint(); });
}

} // namespace

ShapedNames::Shape::Shape(const QString &name, const QPainter &painter)
    : layout(name, painter.font(), painter.device())
{
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine().setLineWidth(endless);
    layout.endLayout();
}

ShapedNames::ShapedNames()
    : m_shapes(remembered)
{
}

ShapedNames::Shape &ShapedNames::shapeOf(const QPainter &painter, const QString &name)
{
    const int dotsPerInch = painter.device()->logicalDpiY();
    if (painter.font() != m_font || dotsPerInch != m_dotsPerInch) {
        m_font = painter.font();
        m_dotsPerInch = dotsPerInch;
        m_shapes.clear();
    }
    if (Shape *const known = m_shapes.object(name)) {
        return *known;
    }
    auto *const shape = new Shape(name, painter);
    m_shapes.insert(name, shape);
    return *shape;
}

QString ShapedNames::elided(const QPainter &painter, const QString &name, int width)
{
    Shape &shape = shapeOf(painter, name);
    if (shape.width() <= width) {
        return name;
    }
    // Each key of a search takes some pixels, which seldom cost another letter.
    if (width < shape.elidedFrom || width > shape.elidedTo) {
        shape.elided = painter.fontMetrics().elidedText(name, Qt::ElideRight, width, 0);
        shape.elidedFrom = qCeil(shapeOf(painter, shape.elided).width()) + 1;
        shape.elidedTo = width;
    }
    return shape.elided;
}

int ShapedNames::advance(const QPainter &painter, const QString &name, qsizetype count)
{
    QHash<qsizetype, int> &advances = shapeOf(painter, name).advances;
    const auto known = advances.constFind(count);
    if (known != advances.cend()) {
        return *known;
    }
    return *advances.insert(count, painter.fontMetrics().horizontalAdvance(name, static_cast<int>(count)));
}

void ShapedNames::draw(QPainter *painter, const QRect &target, int alignment, const QString &name)
{
    const Shape &shape = shapeOf(*painter, name);
    if (isPlainLine(*painter, alignment, name) && shape.width() <= target.width()) {
        shape.layout.draw(painter, target.topLeft());
    } else {
        painter->drawText(target, alignment, name);
    }
}
