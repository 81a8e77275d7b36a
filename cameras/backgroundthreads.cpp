// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "backgroundthreads_p.h"

#include <QCoreApplication>

#include <chrono>
#include <future>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace Cameras {

namespace {

thread_local bool isBackgroundThread = false;

constexpr auto leaveTime = 1s; // of the two seconds that the end of the process may take

void leaveThreads();

class BackgroundThreads
{
public:
    BackgroundThreads()
    {
        // Earlier than our end, when what the threads use may be gone.
        qAddPostRoutine(leaveThreads);
    }

    ~BackgroundThreads() { leave(); }
    Q_DISABLE_COPY_MOVE(BackgroundThreads)

    void run(std::function<void()> work)
    {
        std::promise<void> finish;
        std::future<void> isFinished = finish.get_future();
        const std::lock_guard lock(m_mutex);
        joinFinished();
        m_threads.push_back({std::thread([work = std::move(work), finish = std::move(finish)]() mutable {
                                 isBackgroundThread = true;
                                 finish.set_value_at_thread_exit();
                                 std::exchange(work, nullptr)();
                             }),
                             std::move(isFinished)});
    }

    /*! Waits for the threads as long as there is time, and leaves those that do not end. */
    void leave()
    {
        std::vector<Thread> threads;
        {
            const std::lock_guard lock(m_mutex);
            threads = std::exchange(m_threads, {});
            m_end = m_end.value_or(std::chrono::steady_clock::now() + leaveTime);
        }
        for (Thread &thread : threads) {
            if (thread.isFinished.wait_until(*m_end) == std::future_status::ready) {
                thread.thread.join();
            } else {
                thread.thread.detach();
            }
        }
    }

private:
    struct Thread
    {
        std::thread thread;
        std::future<void> isFinished;
    };

    void joinFinished()
    {
        std::erase_if(m_threads, [](Thread &thread) {
            const bool isFinished = thread.isFinished.wait_for(0s) == std::future_status::ready;
            if (isFinished) {
                thread.thread.join();
            }
            return isFinished;
        });
    }

    std::mutex m_mutex;
    std::vector<Thread> m_threads;
    std::optional<std::chrono::steady_clock::time_point> m_end; // of the patience
};

BackgroundThreads &backgroundThreads()
{
    static BackgroundThreads threads;
    return threads;
}

void leaveThreads()
{
    backgroundThreads().leave();
}

} // namespace

bool runInBackground(std::function<void()> work)
{
    try {
        backgroundThreads().run(std::move(work));
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

bool isInBackground()
{
    return isBackgroundThread;
}

} // namespace Cameras
