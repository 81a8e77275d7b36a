// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camerasearch.h"

#include "backgroundthreads_p.h"
#include "camera.h"
#include "engineturn_p.h"
#include "session_p.h"

#include <exception>
#include <mutex>

namespace Cameras {

struct CameraSearch::State
{
    /*! Makes \a change and tells of it. */
    template <typename Change>
    void update(const Change &change)
    {
        const std::lock_guard lock(mutex);
        change();
        if (listener) {
            QMetaObject::invokeMethod(listener, "changed", Qt::QueuedConnection);
        }
    }

    bool isWanted()
    {
        const std::lock_guard lock(mutex);
        return listener != nullptr;
    }

    void search()
    {
        {
            // Found out here that it has to wait, which Camera::list() would do without a word.
            const EngineTurn turn({[this] { return isWanted(); },
                                   [this](bool waits) { update([this, waits] { isWaiting = waits; }); }});
        }
        const auto found = Camera::list();
        for (const auto &info : found) {
            if (!isWanted()) {
                return;
            }
            const CameraStatus status = Camera::status(info->id());
            update([&] { cameras.append({info, status}); });
        }
    }

    std::mutex mutex;
    CameraSearch *listener = nullptr;
    QList<FoundCamera> cameras;
    QString failure;
    bool isWaiting = false;
    bool isFinished = false;
};

CameraSearch::CameraSearch(QObject *parent)
    : QObject(parent)
    , m_state(std::make_shared<State>())
{
    m_state->listener = this;
    const bool isRunning = runInBackground([state = m_state] {
        QString failure;
        try {
            state->search();
        } catch (const std::exception &exception) {
            failure = QString::fromUtf8(exception.what());
        }
        state->update([&] {
            state->failure = failure;
            state->isFinished = true;
        });
    });
    if (!isRunning) {
        m_state->update([&] {
            m_state->failure = Session::noThread();
            m_state->isFinished = true;
        });
    }
}

CameraSearch::~CameraSearch()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->listener = nullptr;
}

QList<FoundCamera> CameraSearch::cameras() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->cameras;
}

bool CameraSearch::isWaiting() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->isWaiting;
}

bool CameraSearch::isFinished() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->isFinished;
}

QString CameraSearch::failure() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->failure;
}

} // namespace Cameras
