// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cameraaccess_p.h"
#include "description_p.h"
#include "deviceptr_p.h"
#include "engine_p.h"

#include <cameras/cameras_export.h>

#include <platform/core/camerainfo.h>
#include <platform/parametercollection/ibatchrunner.h>
#include <platform/parametercollection/parameterdata.h>

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Cameras {

class LiveCamera;

/*! \brief What is needed to set up one node map of a camera that is being opened. */
struct NodeMapSource
{
    QString name;
    QString title;
    DevicePtr device; //!< moves on into the engine
    std::shared_ptr<const Description> description;
    std::shared_ptr<SimulatedRegisters> registers; //!< null for a live camera
};

/*! \brief The inner side of an open camera: its worker thread and what it shares with the parameters.
 *
 * The worker alone touches the engines. It carries out waiting writes first, then one requested read after
 * the other. Snapshots are kept here, so that parameters can outlive the camera. All functions may be called
 * on any thread.
 */
class ZELTO_CAMERAS_EXPORT Session : public std::enable_shared_from_this<Session>
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::Session)

public:
    struct Source
    {
        Core::CameraPoolComponents::CameraInfoPtr info;
        std::vector<NodeMapSource> maps;
        std::shared_ptr<LiveCamera> live; //!< null for simulated registers
    };
    /*! Connects to the camera; runs on the worker, may throw. */
    using Opener = std::function<Source()>;

    struct Published
    {
        int node;
        ParameterCollection::ParameterDataPtr data;
    };

    Session();
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    /*! Starts the worker and waits until all nodes are read. Throws what the opener throws. */
    void start(const Opener &opener);
    /*! Ends the worker; an access that hangs is left to end on its own. */
    void close();

    Core::CameraPoolComponents::CameraInfoPtr info() const;
    int mapCount() const;
    QString mapName(int map) const;
    QString mapTitle(int map) const;
    std::shared_ptr<const Description> description(int map) const;
    std::shared_ptr<SimulatedRegisters> registers(int map) const;
    ParameterCollection::ParameterType type(int map, int node) const;
    /*! Returns the node called \a name, in short, in full or as an alias; -1 when there is none. */
    int nodeOf(int map, const QString &name) const;

    ParameterCollection::ParameterDataPtr snapshot(int map, int node) const;
    GenApi::EAccessMode nodeAccess(int map, int node) const;
    void imposeVisibility(int map, int node, GenApi::EVisibility visibility);
    void imposeAccess(int map, int node, GenApi::EAccessMode access);

    /*! Writes a node and waits until the worker has done so, at most a second. */
    void write(int map, int node, const NodeValue &value);
    void requestRead(int map, int node, bool force);
    void refresh(int map);
    void poll(int map, int elapsedMilliseconds);

    /*! Carries out \a batch, between other calls; reads wait for its end. */
    void runBatch(int map, std::shared_ptr<ParameterCollection::IBatch> batch);

    /*! Names the object whose slot deliver() is invoked for each snapshot that takePublished() has to give.
     */
    void setListener(int map, QObject *listener);
    /*! Returns the oldest snapshot that was not taken yet. */
    std::optional<Published> takePublished(int map);

    /*! Names the object whose slots are invoked: reportLoss(QString) when the camera has gone,
     * reportAccess() when access() has changed, reportRefusal(QString) when the control was not given. */
    void setCameraListener(QObject *listener);
    bool isLost() const;

    /*! Returns what can be done with the camera, as far as the worker knows. */
    CameraAccess access() const;
    /*! Asks the worker to take the control of a camera that was opened read-only. */
    void takeControl();
    /*! Has the worker find out whether the camera is still controlled by us, and whether it answers. */
    void doubtControl();

    /*! Begins to note which nodes the worker reads; for tests. */
    void startReadLog();
    QStringList readLog() const;

private:
    struct NodeState
    {
        ParameterCollection::ParameterType type = ParameterCollection::ParameterType::Unknown;
        QSharedPointer<const ParameterCollection::ParameterData> own;
        QSharedPointer<const ParameterCollection::ParameterData> shown;
        GenApi::EAccessMode access = GenApi::NI;
        std::optional<GenApi::EVisibility> imposedVisibility;
        std::optional<GenApi::EAccessMode> imposedAccess;
        bool isQueued = false;
        bool isForced = false;
        bool isPolled = false;
        int age = 0; //!< milliseconds since the last poll
    };

    struct MapState
    {
        NodeMapSource source;
        std::unique_ptr<Engine> engine;
        std::vector<NodeState> nodes;
        QObject *listener = nullptr;
        std::deque<Published> published;
        int pollsUnderWay = 0;
    };

    struct Call
    {
        int map;
        int node;
        NodeValue value;
        bool isDone = false;
        std::exception_ptr failure;
    };

    struct Batch
    {
        int map;
        std::shared_ptr<ParameterCollection::IBatch> steps;
        ParameterCollection::BatchOutcome outcome = {}; //!< of the operation before
        QHash<int, QString> before = {}; //!< of the nodes that were written, what they showed
        QHash<int, QString> after = {};
    };

    struct Read
    {
        int map;
        int node;
    };

    using Lock = std::unique_lock<std::mutex>;

    void run(const Opener &opener);
    void open(const Opener &opener);
    void work();
    void readNext(Lock &lock);
    void carryOut(const std::shared_ptr<Call> &call);
    void advance(Batch &batch);
    ParameterCollection::BatchOutcome carryOut(Batch &batch,
                                               const ParameterCollection::BatchOperation &operation);
    void readWhatChanged(const Batch &batch);
    void dropBatches();
    static void dropAsLost(Batch &batch);
    QString readOnlyWords() const;
    void carryOutWrite(int map, int node, const NodeValue &value);
    void readNow(int map, int node, bool force);
    [[noreturn]] void giveUp(Lock &lock, const std::shared_ptr<Call> &call, const QString &name);
    void enqueue(int map, int node, bool force, bool first = false);
    void show(NodeState &state) const;
    void publish(int map, int node);
    void markLost(const QString &reason);
    void loseLocked(const QString &reason);
    void noteLoss(int map);
    QString silence() const;
    bool isWatchDue() const;
    void watchControl();
    void tryToTakeControl();
    void useDevice(DevicePtr device);
    void changeAccess(const CameraAccess &access);
    void tellCamera(const char *slot, const QString &text);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread m_thread;
    std::future<void> m_finished; //!< that the thread has ended
    Core::CameraPoolComponents::CameraInfoPtr m_info;
    std::vector<std::unique_ptr<MapState>> m_maps;
    std::deque<std::shared_ptr<Call>> m_calls;
    std::deque<std::shared_ptr<Batch>> m_batches; // the first one is under way
    std::deque<Read> m_reads;
    std::exception_ptr m_openFailure;
    QObject *m_cameraListener = nullptr;
    std::shared_ptr<LiveCamera> m_live;
    CameraAccess m_access;
    std::chrono::steady_clock::time_point m_nextWatch;
    bool m_isControlDoubtful = false;
    bool m_isControlWanted = false;
    QString m_lossReason;
    std::optional<QStringList> m_readLog;
    bool m_isOpen = false;
    bool m_isLost = false;
    bool m_isStopping = false;
    bool m_isFinished = false;
};

} // namespace Cameras
