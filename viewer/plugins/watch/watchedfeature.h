// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "watchseries.h"

#include <platform/parametercollection/iparameter.h>

#include <QElapsedTimer>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

/*! \brief A feature that is read again and again, with what came of it since the start.
 *
 * It is read at the feature's own polling time, a second where it tells none, and at most 30 times a second;
 * never again before the camera has answered.
 */
class WatchedFeature : public QObject
{
    Q_OBJECT

public:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

    /*! Returns whether values of \a parameter are numbers, or Booleans, that can be watched. */
    static bool canWatch(const ParameterCollection::IParameter &parameter);

    explicit WatchedFeature(const ParameterPtr &parameter, QObject *parent = nullptr);
    ~WatchedFeature() override;

    /*! Goes on with \a parameter, the same feature of a camera that was opened again; with null, waits. */
    void setParameter(const ParameterPtr &parameter);
    void setPaused(bool paused);
    /*! Forgets what was, and starts anew. */
    void restart();

    QString fullName() const { return m_fullName; }
    /*! Returns the name for people, with the unit. */
    QString title() const { return m_title; }
    /*! Returns the value as the camera gave it last, empty when there is none now. */
    QString value() const { return m_value; }
    QString minimum() const { return m_minimumText; }
    QString maximum() const { return m_maximumText; }
    /*! Returns the mean of the values read since the start. */
    QString mean() const;
    const WatchSeries &series() const { return m_series; }
    /*! Returns the time of the start, in milliseconds since 1970. */
    qint64 startTime() const { return m_startTime; }
    /*! Returns how long ago the start was, in milliseconds. */
    qint64 elapsed() const { return m_sinceStart.elapsed(); }

signals:
    void changed();

private slots:
    void read();
    void onData(QSharedPointer<const ParameterCollection::ParameterData> data);

private:
    void take(const QString &text, long double value);
    void loseValue();

    ParameterPtr m_parameter;
    QString m_fullName;
    QString m_title;
    QTimer m_timer;
    bool m_isPaused = false;
    bool m_isAsked = false;
    QElapsedTimer m_sinceAsked;
    QElapsedTimer m_sinceStart;
    qint64 m_startTime = 0;
    qint64 m_lastTime = -1; // of a value
    WatchSeries m_series;
    QString m_value;
    // Wide enough for each digit of a 64 bit integer.
    long double m_minimum = 0.0L;
    long double m_maximum = 0.0L;
    long double m_sum = 0.0L;
    qint64 m_count = 0;
    QString m_minimumText;
    QString m_maximumText;
};
