// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cameraaccess_p.h"
#include "cameraopening.h"
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

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace Cameras {

class FrameMailbox;
class FrameSource;
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
    /*! Connects to the camera; runs on the worker of the session it is given, may throw. */
    using Opener = std::function<Source(Session &)>;

    struct Published
    {
        int node;
        ParameterCollection::ParameterDataPtr data;
    };

    /*! How the opening stands. */
    struct Opening
    {
        OpeningProgress progress;
        bool isOpen = false;
        QString failure; //!< empty unless it has failed
    };

    /*! How long a camera may keep an opening waiting. */
    static constexpr std::chrono::seconds openTime{20};
    /*! Returns the words for one that took longer. */
    static QString noAnswerInTime();

    Session();
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    /*! Starts the worker, which opens the camera. */
    void begin(const Opener &opener);
    /*! As begin(), and waits until all nodes are read. Throws Core::Exception::BaseException. */
    void start(const Opener &opener);
    /*! Ends the worker, and returns at once: what it is doing ends later, and gives the camera back. */
    void close();

    Opening opening() const;
    /*! Names the object whose slot update() is invoked when opening() has changed. */
    void setOpeningListener(QObject *listener);

    /*! For openers: tells how far they are. */
    void setStep(OpeningProgress::Step step);
    /*! For openers: returns whether somebody waits for the camera still. */
    bool isWanted() const { return !m_isStopping; }
    /*! For openers: notes that the camera at \a place is about to be opened, and waits, for a while, until
     * sessions that were closed have given it back. */
    void succeed(const QString &place);

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
    /*! Lets the worker carry out \a task and waits for its end. Throws what the task throws, or when the
     * camera is lost. */
    void carryOut(int map, const std::function<void(Engine &)> &task);
    /*! Returns whether the camera is one that delivers images. */
    bool hasImages() const;
    /*! Has the worker start to deliver images to \a mailbox, as its run number \a run. */
    void startStream(const std::shared_ptr<FrameMailbox> &mailbox, quint64 run);
    /*! Has the worker end that run. */
    void stopStream(quint64 run);
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
     * reportReturn(QString) when it answers again, reportAccess() when access() has changed,
     * reportRefusal(QString) when the control was not given. */
    void setCameraListener(QObject *listener);
    bool isLost() const;

    /*! Returns what can be done with the camera, as far as the worker knows. */
    CameraAccess access() const;
    /*! Asks the worker to take the control of a camera that was opened read-only. */
    void takeControl();
    /*! Has the worker find out whether the camera is still controlled by us, and whether it answers. */
    void doubtControl();

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
        std::function<void(Engine &)> task = {}; //!< instead of a write
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
    std::unique_ptr<MapState> openMap(NodeMapSource source);
    void tellOpening();
    bool isGivingBack(const QString &place) const;
    void work();
    void workOnce(Lock &lock);
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
    void post(const std::function<void()> &task);
    void beginStream(quint64 run);
    std::unique_ptr<FrameSource> newSource(quint64 run);
    void endStream(quint64 run, const QString &reason);
    void readFormat();
    void noteWrite(int map, int node);
    void readWritten(int map, int node);
    void readNow(int map, int node, bool force);
    [[noreturn]] void giveUp(Lock &lock, const std::shared_ptr<Call> &call, const QString &name);
    void enqueue(int map, int node, bool force, bool first = false);
    void show(NodeState &state) const;
    void publish(int map, int node);
    void doubt(const QString &name);
    static QString doubtWords(const QString &name);
    QString withDoubts(const QString &news) const;
    void doubtAnswer();
    void awaitReturn();
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
    Core::CameraPoolComponents::CameraInfoPtr m_info;
    std::vector<std::unique_ptr<MapState>> m_maps;
    std::deque<std::shared_ptr<Call>> m_calls;
    std::deque<std::shared_ptr<Batch>> m_batches; // the first one is under way
    bool m_takesBatches = true; // until the worker has ended
    std::deque<Read> m_reads;
    Opening m_opening;
    QObject *m_openingListener = nullptr;
    mutable bool m_isOpeningTold = true; //!< no update() is on its way
    QString m_place; //!< where the camera is, for those who open it next
    QObject *m_cameraListener = nullptr;
    std::shared_ptr<LiveCamera> m_live;
    CameraAccess m_access;
    std::chrono::steady_clock::time_point m_nextWatch;
    bool m_isControlDoubtful = false;
    bool m_isControlWanted = false;
    QString m_lossReason;
    QStringList m_doubtful; //!< features with a write that was sent, and not answered yet
    std::shared_ptr<FrameMailbox> m_mailbox; //!< null before the first stream was started
    std::unique_ptr<FrameSource> m_source; //!< the worker's; of the run m_run
    quint64 m_run = 0;
    bool m_isLost = false;
    std::atomic_bool m_isStopping = false;
    bool m_isFinished = false;
};

} // namespace Cameras
