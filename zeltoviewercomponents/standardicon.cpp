// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "standardicon.h"

#include <QApplication>
#include <QIconEngine>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <QSize>

namespace {

class StandardIconEngine : public QIconEngine
{
public:
    explicit StandardIconEngine(QStyle::StandardPixmap kind)
        : m_kind(kind)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    QIconEngine *clone() const override { return new StandardIconEngine(*this); }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull()) {
            m_icon = QApplication::style()->standardIcon(m_kind);
        }
        return m_icon;
    }

    QStyle::StandardPixmap m_kind;
    QIcon m_icon;
};

} // namespace

QIcon standardIcon(QStyle::StandardPixmap kind)
{
    return QIcon(new StandardIconEngine(kind));
}
