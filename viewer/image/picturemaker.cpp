// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "picturemaker.h"

#include <QMetaObject>
#include <QRect>

#include <algorithm>
#include <utility>

using namespace Cameras;

PictureMaker::PictureMaker(QObject *parent)
    : QObject(parent)
{
    m_threads.setMaxThreadCount(1);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(begin()));
}

PictureMaker::~PictureMaker()
{
    m_threads.waitForDone();
}

void PictureMaker::want(const Picture &wish, int milliseconds)
{
    m_wish = wish;
    m_interval = milliseconds;
    m_isWaiting = true;
    beginSoon();
}

void PictureMaker::cancel()
{
    m_wish = {};
    m_isWaiting = false;
    ++m_round;
}

void PictureMaker::beginSoon()
{
    if (m_isRunning || m_timer.isActive()) {
        return;
    }
    const qint64 elapsed = m_sinceBegin.isValid() ? m_sinceBegin.elapsed() : m_interval;
    if (elapsed >= m_interval) {
        begin();
    } else {
        m_timer.start(int(m_interval - elapsed));
    }
}

void PictureMaker::begin()
{
    if (!std::exchange(m_isWaiting, false)) {
        return;
    }
    m_isRunning = true;
    m_sinceBegin.start();
    m_threads.start([this, picture = std::exchange(m_wish, {}), round = m_round]() mutable {
        const QRect part = picture.viewport.visiblePart();
        m_conversion.setLook(picture.look);
        picture.image = m_conversion.image(*picture.frame, part, picture.viewport.placeOf(part).size());
        const auto tell = [this, picture, round] { end(picture, round); };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void PictureMaker::end(const Picture &picture, quint64 round)
{
    m_isRunning = false;
    if (round == m_round) {
        Q_EMIT made(picture);
    }
    if (m_isWaiting) {
        beginSoon();
    }
}
