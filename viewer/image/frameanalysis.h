// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frame.h>
#include <cameras/framestatistics.h>
#include <cameras/framevalues.h>

#include <QElapsedTimer>
#include <QLine>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QRect>
#include <QThreadPool>
#include <QTimer>

#include <optional>

/*! \brief What is to be found out about a frame. */
struct AnalysisWish
{
    bool histogram = false;
    QRect part; //!< of the statistics; none when empty
    std::optional<QLine> line; //!< of the profile

    bool isEmpty() const { return !histogram && part.isEmpty() && !line; }
};

/*! \brief What was found out. */
struct AnalysisResult
{
    Cameras::Histogram histogram;
    Cameras::PartStatistics part;
    QList<Cameras::FrameValues::Curve> profile;
};

Q_DECLARE_METATYPE(AnalysisResult)

/*! \brief Looks at all pixels of frames, on a thread of its own and no more than five times a second.
 *
 * A frame that comes while another one is looked at waits; the newest does.
 */
class FrameAnalysis : public QObject
{
    Q_OBJECT

public:
    explicit FrameAnalysis(QObject *parent = nullptr);
    ~FrameAnalysis() override;

    void setWish(const AnalysisWish &wish);

public Q_SLOTS:
    void setFrame(Cameras::FramePointer frame);

Q_SIGNALS:
    void finished(const AnalysisResult &result);

private Q_SLOTS:
    void begin();
    void end(const AnalysisResult &result);

private:
    void beginSoon();

    AnalysisWish m_wish;
    Cameras::FramePointer m_frame;
    bool m_isWaiting = false; // for the frame, or the wish, to be looked at
    bool m_isRunning = false;
    QElapsedTimer m_sinceBegin;
    QTimer m_timer;
    QThreadPool m_threads; // the last member, so that its threads end first
};
