// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/ibatchrunner.h>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

/*! \brief A batch whose steps decide one after the other what comes next.
 *
 * Steps lie on a stack: those that a step adds are done before the ones below. A step may ask for one access,
 * whose outcome its handler gets. When the batch is cancelled only the steps that clean up are left; when the
 * camera is lost, none. Runs on any thread; cancel() and setListener() may be called from another.
 *
 * \ingroup settings
 */
class SettingsScript : public ParameterCollection::IBatch
{
public:
    SettingsScript();
    ~SettingsScript() override;

    std::optional<ParameterCollection::BatchOperation>
    next(const ParameterCollection::BatchOutcome &previous) final;

    void cancel();
    bool isLost() const;
    /*! Names the object whose slots onProgress(int,int,QString) and onScriptFinished() are invoked. */
    void setListener(QObject *listener);

protected:
    using Outcome = ParameterCollection::BatchOutcome;
    using Handler = std::function<void(const Outcome &)>;
    using Step = std::function<void()>;

    /*! Adds the first steps. */
    virtual void begin() = 0;

    /*! Has the step end with an access. */
    void read(const QString &name, Handler handler);
    /*! As read(), without limits and entries. */
    void readBriefly(const QString &name, Handler handler);
    void write(const QString &name, const QString &value, Handler handler);
    /*! As write(), with no look at what the feature is then, unless it refuses. */
    void writeBriefly(const QString &name, const QString &value, Handler handler);
    void addStep(Step step);
    /*! Adds a step that is done even when the batch is cancelled. */
    void addCleanup(Step step);
    bool isCleaningUp() const;

    void expect(int more);
    void noteProgress(const QString &feature);

private:
    struct Entry
    {
        Step step;
        bool isCleanup = false;
    };

    void ask(const ParameterCollection::BatchOperation &operation, Handler handler);
    void tell(const std::function<void(QObject *)> &send);

    std::vector<Entry> m_steps;
    Handler m_handler;
    std::optional<ParameterCollection::BatchOperation> m_operation;
    QElapsedTimer m_sinceProgress;
    int m_done = 0;
    int m_total = 0;
    bool m_hasBegun = false;
    bool m_isCleaningUp = false;
    std::atomic_bool m_isCancelled{false};
    std::atomic_bool m_isLost{false};
    std::mutex m_listenerMutex;
    QObject *m_listener = nullptr;
};
