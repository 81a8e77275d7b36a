// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCache>
#include <QFont>
#include <QHash>
#include <QString>
#include <QTextLayout>

class QPainter;

/*! \brief Names of rows, with their letters laid out for painting.
 *
 * Rows are painted again with every key of a search, and to find the shapes and places of a name's letters
 * takes many times as long as to draw them. The names painted last are remembered.
 *
 * \ingroup view
 */
class ShapedNames
{
public:
    ShapedNames();

    /*! Returns \a name, elided at the right where it is longer than \a width. */
    QString elided(const QPainter &painter, const QString &name, int width);
    /*! Returns how far the first \a count characters of \a name reach. */
    int advance(const QPainter &painter, const QString &name, qsizetype count);
    /*! Draws \a name as the painter does. */
    void draw(QPainter *painter, const QRect &target, int alignment, const QString &name);

private:
    struct Shape
    {
        Shape(const QString &name, const QPainter &painter);

        qreal width() const { return layout.lineAt(0).naturalTextWidth(); }

        QTextLayout layout;
        QHash<qsizetype, int> advances; // by the number of characters
        QString elided;
        int elidedFrom = 0; // the widths for which that is what remains
        int elidedTo = -1;
    };

    Shape &shapeOf(const QPainter &painter, const QString &name);

    QFont m_font; // of all shapes
    int m_dotsPerInch = 0;
    QCache<QString, Shape> m_shapes;
};
