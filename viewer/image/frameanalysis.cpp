// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "frameanalysis.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

using namespace Cameras;

namespace {

constexpr qint64 interval = 200; // milliseconds

AnalysisResult analysed(const Frame &frame, const AnalysisWish &wish)
{
    AnalysisResult result;
    if (wish.histogram) {
        result.histogram = histogramOf(frame);
    }
    if (!wish.part.isEmpty()) {
        result.part = statisticsOf(frame, wish.part);
    }
    if (wish.line) {
        result.profile = FrameValues::along(frame, *wish.line);
    }
    return result;
}

} // namespace

FrameAnalysis::FrameAnalysis(QObject *parent)
    : QObject(parent)
{
    m_threads.setMaxThreadCount(1);
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(begin()));
}

FrameAnalysis::~FrameAnalysis()
{
    m_threads.waitForDone();
}

void FrameAnalysis::setWish(const AnalysisWish &wish)
{
    m_wish = wish;
    m_isWaiting = true;
    beginSoon();
}

void FrameAnalysis::setFrame(FramePointer frame)
{
    m_frame = std::move(frame);
    m_isWaiting = true;
    beginSoon();
}

void FrameAnalysis::beginSoon()
{
    if (m_isRunning || m_timer.isActive()) {
        return;
    }
    const qint64 elapsed = m_sinceBegin.isValid() ? m_sinceBegin.elapsed() : interval;
    m_timer.start(int(std::clamp<qint64>(interval - elapsed, 0, interval)));
}

void FrameAnalysis::begin()
{
    m_isWaiting = false;
    if (!m_frame || m_wish.isEmpty()) {
        Q_EMIT finished({});
        return;
    }
    m_isRunning = true;
    m_sinceBegin.start();
    m_threads.start([this, frame = m_frame, wish = m_wish] {
        const AnalysisResult result = analysed(*frame, wish);
        QMetaObject::invokeMethod(
            this, [this, result] { end(result); }, Qt::QueuedConnection);
    });
}

void FrameAnalysis::end(const AnalysisResult &result)
{
    m_isRunning = false;
    Q_EMIT finished(result);
    if (m_isWaiting) {
        beginSoon();
    }
}
