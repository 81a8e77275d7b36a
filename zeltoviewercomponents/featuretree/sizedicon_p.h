// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QList>
#include <QMap>
#include <QString>

/*! \brief An icon of which there are square pictures in several sizes, each decoded when it is painted.
 *
 * QIcon decodes all pictures that it is given, which takes milliseconds and megabytes for large ones that
 * nobody ever sees.
 *
 * \ingroup view
 */
class SizedIconEngine : public QIconEngine
{
public:
    /*! \a file is the name of the pictures' files with "%1" for the size; \a sizes ascend. */
    SizedIconEngine(QString file, QList<int> sizes);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override;
    QIconEngine *clone() const override;

private:
    const QIcon &pictureFor(const QSize &size);

    QString m_file;
    QList<int> m_sizes;
    QMap<int, QIcon> m_pictures;
};
