// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

/*! \brief What the process has of the system's goods. */
struct Holdings
{
    static Holdings now();

    qint64 memory = 0; // resident, in kB
    qint64 descriptors = 0;
    qint64 threads = 0;
};

/*! \brief How long the event loop did not come round, in ms. */
struct Block
{
    qint64 own = 0; // ran, or waited for something
    qint64 whole = 0; // with the time in which it was ready to run and the system had no processor for it
};

/*! \brief Measures blocks of the event loop of the thread that makes it. */
class BlockGauge : public QTimer
{
public:
    BlockGauge();

    /*! Returns the longest block since it was asked for that last. */
    Block takeLongest();

private:
    void tick();
    qint64 queued();

    QFile m_statistics;
    QElapsedTimer m_since;
    qint64 m_queued = 0; // at the last tick
    Block m_longest;
};
