// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gauge.h"
#include "servedcamera.h"

#include <viewer/mainwindow.h>

#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <QTextStream>

#include <memory>
#include <optional>

/*! \brief Uses the viewer's window as a restless user does, on a camera that is lost once a minute, and says
 * each minute what that costs. */
class Soak
{
public:
    Soak(double hours, quint32 seed);

    /*! Returns the exit code: 0 when every bound was kept. */
    int run();

private:
    void minute(int number);
    void lose(int number);
    void come(int number);
    void hangInOpening();
    void workFor(int milliseconds);
    QString act();
    void edit();
    void search();
    void markFavorite();
    void walk();
    void useImages();
    void startImages(const QString &when);
    void take(Block &longest, qint64 bound, const QString &what);
    void report(int number);
    void judge(const Holdings &held);
    void fault(const QString &what);

    int m_minutes;
    QRandomGenerator m_random;
    QTextStream m_out;
    ServedCamera m_camera;
    std::unique_ptr<MainWindow> m_window;
    BlockGauge m_gauge;
    Block m_longestBlock;
    Block m_longestWrite;
    int m_actions = 0;
    int m_images = 0;
    std::optional<Holdings> m_warm; // what was held when everything had happened once
    QList<QString> m_faults;
};
