// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "session_p.h"

#include "backgroundthreads_p.h"
#include "engine_p.h"
#include "framemailbox_p.h"
#include "framesource_p.h"
#include "livecamera_p.h"
#include "livesource_p.h"
#include "simulatedsource_p.h"

#include <platform/core/exception.h>
#include <platform/core/guard.h>
#include <platform/genicam/genericexception.h>

#include <algorithm>
#include <thread>
#include <utility>

using namespace ParameterCollection;
using namespace std::chrono_literals;

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.session")

namespace {

constexpr auto writeTime = 1s;
constexpr auto watchTime = 1s;
constexpr auto giveBackTime = 5s; // after which a camera that was closed is believed to hang
constexpr auto lookTime = 20ms;

/*! \brief Sessions whose camera is open, or was and is being given back. */
class Tenants
{
public:
    void add(const std::shared_ptr<Session> &session)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_sessions, [](const std::weak_ptr<Session> &tenant) { return tenant.expired(); });
        m_sessions.push_back(session);
    }

    std::vector<std::shared_ptr<Session>> all()
    {
        const std::lock_guard lock(m_mutex);
        std::vector<std::shared_ptr<Session>> sessions;
        for (const std::weak_ptr<Session> &tenant : m_sessions) {
            if (auto session = tenant.lock()) {
                sessions.push_back(std::move(session));
            }
        }
        return sessions;
    }

private:
    std::mutex m_mutex;
    std::vector<std::weak_ptr<Session>> m_sessions;
};

Tenants &tenants()
{
    static auto *const tenants = new Tenants; // a thread that hangs may outlive everything
    return *tenants;
}

GenApi::EAccessMode withoutWriting(GenApi::EAccessMode access)
{
    return access == GenApi::RW ? GenApi::RO : access == GenApi::WO ? GenApi::NA : access;
}

} // namespace

Session::Session() = default;

Session::~Session()
{
    close();
}

QString Session::noAnswerInTime()
{
    return tr("no answer in time");
}

void Session::begin(const Opener &opener)
{
    runInBackground([self = shared_from_this(), opener] { self->run(opener); });
}

void Session::start(const Opener &opener)
{
    begin(opener);
    Lock lock(m_mutex);
    const bool isInTime = m_changed.wait_for(
        lock, openTime, [this] { return m_opening.isOpen || !m_opening.failure.isEmpty(); });
    if (!isInTime) {
        throw Core::Exception::BaseException(noAnswerInTime());
    }
    if (!m_opening.failure.isEmpty()) {
        throw Core::Exception::BaseException(m_opening.failure);
    }
}

void Session::close()
{
    const Lock lock(m_mutex);
    m_isStopping = true;
    loseLocked(tr("The camera was closed."));
    m_changed.notify_all();
}

Session::Opening Session::opening() const
{
    const Lock lock(m_mutex);
    m_isOpeningTold = true;
    return m_opening;
}

void Session::setOpeningListener(QObject *listener)
{
    const Lock lock(m_mutex);
    m_openingListener = listener;
    tellOpening();
}

// Once until somebody looks, however fast the features are read.
void Session::tellOpening()
{
    if (m_openingListener && m_isOpeningTold) {
        m_isOpeningTold = false;
        QMetaObject::invokeMethod(m_openingListener, "update", Qt::QueuedConnection);
    }
    m_changed.notify_all();
}

void Session::setStep(OpeningProgress::Step step)
{
    const Lock lock(m_mutex);
    m_opening.progress.step = step;
    tellOpening();
}

bool Session::isGivingBack(const QString &place) const
{
    const Lock lock(m_mutex);
    return m_place == place && (m_isStopping || m_isLost) && !m_isFinished;
}

void Session::succeed(const QString &place)
{
    {
        const Lock lock(m_mutex);
        m_place = place;
    }
    tenants().add(shared_from_this());
    const auto isHeld = [this, &place] {
        const auto all = tenants().all();
        return std::any_of(all.begin(), all.end(), [this, &place](const std::shared_ptr<Session> &other) {
            return other.get() != this && other->isGivingBack(place);
        });
    };
    const auto end = std::chrono::steady_clock::now() + giveBackTime;
    while (isWanted() && isHeld() && std::chrono::steady_clock::now() < end) {
        setStep(OpeningProgress::Step::Waiting);
        std::this_thread::sleep_for(lookTime);
    }
}

void Session::run(const Opener &opener)
{
    QString failure;
    try {
        open(opener);
        work();
    } catch (const std::exception &exception) {
        failure = QString::fromUtf8(exception.what()).simplified();
    }
    dropBatches();
    endStream(m_run, {}); // its reason was told when the camera was lost
    // Engines end where they were used; that releases a live camera.
    for (const auto &map : m_maps) {
        map->engine.reset();
    }
    const Lock lock(m_mutex);
    m_isFinished = true;
    m_opening.failure = failure;
    tellOpening();
}

void Session::open(const Opener &opener)
{
    Source source = opener(*this);
    const CameraAccess access =
        source.live && source.live->isWatchable() ? source.live->access(false) : CameraAccess();
    {
        const Lock lock(m_mutex);
        m_opening.progress.step = OpeningProgress::Step::Reading;
        for (const NodeMapSource &map : source.maps) {
            m_opening.progress.total += int(map.description->published().size());
        }
        tellOpening();
    }
    std::vector<std::unique_ptr<MapState>> maps;
    for (NodeMapSource &mapSource : source.maps) {
        maps.push_back(openMap(std::move(mapSource)));
    }
    const Lock lock(m_mutex);
    m_maps = std::move(maps);
    m_info = source.info;
    m_live = source.live;
    m_access = access;
    for (const auto &map : m_maps) {
        for (const int node : map->source.description->published()) {
            show(map->nodes[size_t(node)]);
        }
    }
    m_opening.isOpen = true;
    tellOpening();
}

std::unique_ptr<Session::MapState> Session::openMap(NodeMapSource source)
{
    auto map = std::make_unique<MapState>();
    map->source = std::move(source);
    const auto &description = map->source.description;
    map->engine = std::make_unique<Engine>(std::move(map->source.device), description, map->source.registers);
    map->nodes.resize(size_t(description->nodeCount()));
    for (const int node : description->published()) {
        if (!isWanted()) {
            throw Core::Exception::BaseException(tr("The camera was closed."));
        }
        Engine::Reading reading = map->engine->read(node);
        if (!map->engine->lossReason().isEmpty()) {
            throw Core::Exception::BaseException(map->engine->lossReason());
        }
        NodeState &state = map->nodes[size_t(node)];
        state.type = map->engine->type(node);
        state.own = reading.data;
        state.access = reading.access;
        const Lock lock(m_mutex);
        ++m_opening.progress.done;
        tellOpening();
    }
    return map;
}

// A lost camera has to be opened again, and is given back at once for that.
void Session::work()
{
    Lock lock(m_mutex);
    while (!m_isStopping && !m_isLost) {
        const auto hasWork = [this] {
            return m_isStopping || m_isLost || !m_calls.empty() || !m_batches.empty() || !m_reads.empty()
                || isWatchDue();
        };
        if (m_live && m_live->isWatchable()) {
            m_changed.wait_until(lock, m_nextWatch, hasWork);
        } else {
            m_changed.wait(lock, hasWork);
        }
        workOnce(lock);
    }
}

void Session::workOnce(Lock &lock)
{
    if (m_isStopping || m_isLost) {
        return;
    }
    if (isWatchDue()) {
        lock.unlock();
        Core::guardedRun({logCategory(), "Session::work"}, QStringLiteral("Failed to watch the control"),
                         [this] { watchControl(); });
        lock.lock();
        m_nextWatch = std::chrono::steady_clock::now() + watchTime;
    } else if (!m_calls.empty()) {
        const std::shared_ptr<Call> call = m_calls.front();
        m_calls.pop_front();
        lock.unlock();
        carryOut(call);
        lock.lock();
    } else if (!m_batches.empty()) {
        const std::shared_ptr<Batch> batch = m_batches.front();
        lock.unlock();
        advance(*batch);
        lock.lock();
    } else if (!m_reads.empty()) {
        readNext(lock);
    }
}

void Session::readNext(Lock &lock)
{
    const Read read = m_reads.front();
    m_reads.pop_front();
    MapState &map = *m_maps[size_t(read.map)];
    NodeState &state = map.nodes[size_t(read.node)];
    const bool force = std::exchange(state.isForced, false);
    const bool isPolled = std::exchange(state.isPolled, false);
    state.isQueued = false;
    lock.unlock();
    Core::guardedRun({logCategory(), "Session::work"}, QStringLiteral("Failed to read a node"),
                     [&] { readNow(read.map, read.node, force); });
    lock.lock();
    map.pollsUnderWay -= isPolled ? 1 : 0;
}

void Session::carryOut(const std::shared_ptr<Call> &call)
{
    std::exception_ptr failure;
    try {
        if (call->task) {
            call->task(*m_maps[size_t(call->map)]->engine);
        } else {
            carryOutWrite(call->map, call->node, call->value);
        }
    } catch (...) {
        failure = std::current_exception();
    }
    const Lock lock(m_mutex);
    call->failure = failure;
    call->isDone = true;
    if (!m_isLost) {
        m_doubtful.removeOne(description(call->map)->name(call->node)); // it has been read since
    }
    m_changed.notify_all();
}

void Session::carryOutWrite(int map, int node, const NodeValue &value)
{
    Engine &engine = *m_maps[size_t(map)]->engine;
    try {
        engine.write(node, value);
        noteWrite(map, node);
    } catch (const std::exception &exception) {
        if (engine.lossReason().isEmpty()) {
            readNow(map, node, true);
            throw;
        }
        const QString name = description(map)->name(node);
        doubt(name);
        noteLoss(map);
        readWritten(map, node);
        throw GenICam::TimeoutException(doubtWords(name));
    }
    readWritten(map, node);
}

// The node, and in due course what may have changed with it.
void Session::readWritten(int map, int node)
{
    readNow(map, node, true);
    const QList<int> dependents = description(map)->dependents(node);
    const Lock lock(m_mutex);
    for (auto dependent = dependents.crbegin(); dependent != dependents.crend(); ++dependent) {
        enqueue(map, *dependent, false, true);
    }
}

void Session::readNow(int mapIndex, int node, bool force)
{
    if (isLost()) {
        return;
    }
    MapState &map = *m_maps[size_t(mapIndex)];
    const Engine::Reading reading = map.engine->read(node);
    noteLoss(mapIndex);
    const Lock lock(m_mutex);
    if (m_isLost) {
        return;
    }
    NodeState &state = map.nodes[size_t(node)];
    state.access = reading.access;
    state.own = reading.data;
    const ParameterDataPtr before = state.shown;
    show(state);
    if (force || !before->equals(*state.shown)) {
        publish(mapIndex, node);
    }
}

// What the engine takes for a loss may be a camera that leaves a write without an answer.
void Session::noteLoss(int map)
{
    Engine &engine = *m_maps[size_t(map)]->engine;
    if (engine.lossReason().isEmpty()) {
        return;
    }
    if (m_live && m_live->isAnswering()) {
        engine.forgetLoss();
        doubtControl();
    } else {
        markLost(silence());
    }
}

QString Session::silence() const
{
    return m_live ? m_live->silence() : tr("The camera does not answer.");
}

bool Session::isWatchDue() const
{
    if (!m_live || m_isLost) {
        return false;
    }
    return m_isControlDoubtful || m_isControlWanted
        || (m_live->isWatchable() && std::chrono::steady_clock::now() >= m_nextWatch);
}

void Session::watchControl()
{
    Lock lock(m_mutex);
    const bool isDoubtful = std::exchange(m_isControlDoubtful, false);
    const bool isWanted = std::exchange(m_isControlWanted, false) && m_access.isReadOnly;
    lock.unlock();
    if (isWanted) {
        tryToTakeControl();
        return;
    }
    const CameraAccess access = m_live->access(isDoubtful);
    if (!access.isAnswering) {
        markLost(silence());
        return;
    }
    if (access.isReadOnly && m_live->isOpenedWithControl()) {
        useDevice(m_live->openReadOnly());
    }
    changeAccess(access);
}

void Session::tryToTakeControl()
{
    try {
        useDevice(m_live->openControlled());
    } catch (const Core::Exception::BaseException &exception) {
        const Lock lock(m_mutex);
        tellCamera("reportRefusal", exception.getMessage());
        return;
    }
    changeAccess(m_live->access(false));
    refresh(0); // whoever had the control may have changed anything
}

// A live camera has one node map.
void Session::useDevice(DevicePtr device)
{
    endStream(m_run, tr("No more images come, since another program controls the camera."));
    MapState &map = *m_maps.front();
    map.engine = std::make_unique<Engine>(std::move(device), map.source.description, nullptr);
}

void Session::changeAccess(const CameraAccess &access)
{
    const Lock lock(m_mutex);
    if (m_access == access || m_isLost) {
        return;
    }
    m_access = access;
    for (const int node : m_maps.front()->source.description->published()) {
        NodeState &state = m_maps.front()->nodes[size_t(node)];
        const ParameterDataPtr before = state.shown;
        show(state);
        if (!before->equals(*state.shown)) {
            publish(0, node);
        }
    }
    if (m_cameraListener) {
        QMetaObject::invokeMethod(m_cameraListener, "reportAccess", Qt::QueuedConnection);
    }
}

void Session::tellCamera(const char *slot, const QString &text)
{
    if (m_cameraListener) {
        QMetaObject::invokeMethod(m_cameraListener, slot, Qt::QueuedConnection, Q_ARG(QString, text));
    }
}

CameraAccess Session::access() const
{
    const Lock lock(m_mutex);
    return m_access;
}

void Session::takeControl()
{
    const Lock lock(m_mutex);
    m_isControlWanted = true;
    m_changed.notify_all();
}

void Session::doubtControl()
{
    const Lock lock(m_mutex);
    m_isControlDoubtful = true;
    m_changed.notify_all();
}

// Puts together what the node grants, what was imposed and what the control of the camera allows.
void Session::show(NodeState &state) const
{
    state.shown = state.own;
    if (!state.imposedVisibility && !state.imposedAccess && !m_access.isReadOnly) {
        return;
    }
    const QSharedPointer<ParameterData> data = state.own->copy();
    data->visibility = std::max(data->visibility, state.imposedVisibility.value_or(GenApi::Beginner));
    const GenApi::EAccessMode access = state.imposedAccess.value_or(GenApi::RW);
    data->isImplemented = data->isImplemented && access != GenApi::NI;
    data->isReadable = data->isReadable && GenApi::isReadable(access);
    data->isWritable = data->isWritable && GenApi::isWritable(access) && !m_access.isReadOnly;
    if (!data->isReadable) {
        data->valueString.clear();
    }
    state.shown = data;
}

void Session::publish(int mapIndex, int node)
{
    MapState &map = *m_maps[size_t(mapIndex)];
    if (!map.listener) {
        return;
    }
    map.published.push_back({node, map.nodes[size_t(node)].shown});
    QMetaObject::invokeMethod(map.listener, "deliver", Qt::QueuedConnection);
}

void Session::write(int map, int node, const NodeValue &value)
{
    auto call = std::make_shared<Call>(Call{map, node, value, false, nullptr});
    const QString name = description(map)->name(node);
    Lock lock(m_mutex);
    if (m_isLost) {
        throw GenICam::RuntimeException(tr("%1: %2").arg(name, m_lossReason));
    }
    if (m_access.isReadOnly) {
        throw GenICam::AccessException(tr("%1: %2").arg(name, readOnlyWords()));
    }
    m_calls.push_back(call);
    m_changed.notify_all();
    if (!m_changed.wait_for(lock, writeTime, [&call] { return call->isDone; })) {
        giveUp(lock, call, name);
    }
    if (call->failure) {
        std::rethrow_exception(call->failure);
    }
}

void Session::carryOut(int map, const std::function<void(Engine &)> &task)
{
    const int root = description(map)->published().constFirst();
    auto call = std::make_shared<Call>(Call{map, root, {}, false, nullptr, task});
    Lock lock(m_mutex);
    if (m_isLost) {
        throw GenICam::RuntimeException(m_lossReason);
    }
    m_calls.push_back(call);
    m_changed.notify_all();
    m_changed.wait(lock, [&call] { return call->isDone; });
    if (call->failure) {
        std::rethrow_exception(call->failure);
    }
}

// Carried out in its turn, and nobody waits for it.
void Session::post(const std::function<void()> &task)
{
    const int root = description(0)->published().constFirst();
    const Lock lock(m_mutex);
    if (!m_isLost) {
        m_calls.push_back(
            std::make_shared<Call>(Call{0, root, {}, false, nullptr, [task](Engine &) { task(); }}));
        m_changed.notify_all();
    }
}

bool Session::hasImages() const
{
    const std::shared_ptr<const Description> nodes = description(0);
    const auto hasFeature = [&nodes](const QString &name) {
        const int node = nodes->indexOf(name);
        return node >= 0 && nodes->isFeature(node);
    };
    return m_live || (hasFeature(QStringLiteral("Width")) && hasFeature(QStringLiteral("Height")));
}

void Session::startStream(const std::shared_ptr<FrameMailbox> &mailbox, quint64 run)
{
    {
        const Lock lock(m_mutex);
        if (m_isLost) {
            mailbox->tellStop(run, m_lossReason);
            return;
        }
        if (!m_mailbox) {
            m_mailbox = mailbox;
        }
    }
    post([this, run] { beginStream(run); });
}

void Session::stopStream(quint64 run)
{
    post([this, run] { endStream(run, {}); });
}

void Session::beginStream(quint64 run)
{
    endStream(m_run, {}); // the one before, if it has not ended
    m_run = run;
    if (!m_mailbox->isOpen(run)) {
        return; // it was ended before its turn came
    }
    const CameraAccess camera = access();
    try {
        if (camera.isReadOnly) {
            throw GenICam::AccessException(readOnlyWords());
        }
        m_source = newSource(run);
        m_source->start();
    } catch (const std::exception &exception) {
        noteLoss(0);
        endStream(run, tr("No images can be had: %1").arg(QString::fromUtf8(exception.what())));
        return;
    }
    m_mailbox->tellStart(run);
    readFormat();
}

std::unique_ptr<FrameSource> Session::newSource(quint64 run)
{
    const MapState &map = *m_maps.front();
    FrameSink sink{m_mailbox, run, [weak = weak_from_this(), run](const QString &reason) {
                       if (const auto self = weak.lock()) {
                           self->post(
                               [session = self.get(), run, reason] { session->endStream(run, reason); });
                       }
                   }};
    if (m_live) {
        return std::make_unique<LiveSource>(*map.engine, map.source.description, std::move(sink));
    }
    return std::make_unique<SimulatedSource>(*map.engine, map.source.description, map.source.registers,
                                             std::move(sink));
}

void Session::endStream(quint64 run, const QString &reason)
{
    if (m_source && run == m_run) {
        // Each access to a camera that is silent would wait for an answer.
        if (!isLost() || m_isStopping || (m_live && m_live->isAnswering())) {
            Core::guardedRun({logCategory(), "Session::endStream"}, QStringLiteral("Failed to end a stream"),
                             [this] { m_source->stop(); });
        }
        m_source.reset();
        readFormat();
    }
    if (m_mailbox) {
        m_mailbox->tellStop(run, reason);
    }
}

// Streaming locks the features of the format, and may settle the size of packets.
void Session::readFormat()
{
    const std::shared_ptr<const Description> nodes = description(0);
    const Lock lock(m_mutex);
    for (const char *const name : {"TLParamsLocked", "PayloadSize", "GevSCPSPacketSize"}) {
        const int node = nodes->indexOf(QLatin1String(name));
        if (node < 0) {
            continue;
        }
        if (nodes->isFeature(node)) {
            enqueue(0, node, false);
        }
        for (const int dependent : nodes->dependents(node)) {
            enqueue(0, dependent, false);
        }
    }
}

void Session::noteWrite(int map, int node)
{
    if (m_source && map == 0) {
        m_source->noteWrite(node);
    }
}

QString Session::readOnlyWords() const
{
    return m_access.isFree ? tr("the camera is open read-only") : LiveCamera::heldWords(m_access.controller);
}

void Session::runBatch(int map, std::shared_ptr<IBatch> steps)
{
    const auto batch = std::make_shared<Batch>(Batch{map, std::move(steps)});
    {
        const Lock lock(m_mutex);
        if (m_takesBatches) {
            m_batches.push_back(batch);
            m_changed.notify_all();
            return;
        }
    }
    dropAsLost(*batch);
}

// One operation at a time, so that whoever waits for a write is served in between.
void Session::advance(Batch &batch)
{
    std::optional<BatchOperation> operation;
    Core::guardedRun({logCategory(), "Session::advance"}, QStringLiteral("Failed to go on with a batch"),
                     [&] { operation = batch.steps->next(batch.outcome); });
    if (operation) {
        batch.outcome = carryOut(batch, *operation);
        return;
    }
    readWhatChanged(batch);
    const Lock lock(m_mutex);
    m_batches.pop_front();
}

BatchOutcome Session::carryOut(Batch &batch, const BatchOperation &operation)
{
    BatchOutcome outcome;
    const int node = nodeOf(batch.map, operation.name);
    Engine &engine = *m_maps[size_t(batch.map)]->engine;
    const CameraAccess camera = access();
    const ParameterDataPtr shown = node >= 0 ? snapshot(batch.map, node) : nullptr;
    const bool isWrite = operation.kind == BatchOperation::Kind::Write;
    if (shown && isWrite) {
        try {
            if (camera.isReadOnly) {
                throw GenICam::AccessException(tr("%1: %2").arg(operation.name, readOnlyWords()));
            }
            if (!batch.before.contains(node)) {
                batch.before.insert(node, shown->valueString);
            }
            engine.write(node, operation.value);
            noteWrite(batch.map, node);
        } catch (const std::exception &exception) {
            outcome.failure = QString::fromUtf8(exception.what());
        }
        noteLoss(batch.map);
    }
    const bool isOfInterest =
        operation.detail != BatchOperation::Detail::Nothing || !outcome.failure.isEmpty();
    QString after = operation.value;
    if (shown && isOfInterest && !isLost()) {
        const bool isWhole = operation.detail == BatchOperation::Detail::Everything;
        const Engine::Reading reading =
            engine.read(node, isWhole ? Engine::Extent::Limits : Engine::Extent::Value);
        noteLoss(batch.map);
        after = reading.data->valueString;
        outcome.data = reading.data;
        outcome.access = camera.isReadOnly ? withoutWriting(reading.access) : reading.access;
    }
    if (shown && isWrite) {
        batch.after.insert(node, after);
    }
    outcome.isLost = isLost();
    return outcome;
}

// Selectors that were stepped and put back have changed nothing.
void Session::readWhatChanged(const Batch &batch)
{
    const Lock lock(m_mutex);
    for (auto written = batch.before.cbegin(); written != batch.before.cend(); ++written) {
        const int node = written.key();
        if (batch.after.value(node) == *written && !batch.after.value(node).isNull()) {
            continue;
        }
        enqueue(batch.map, node, false);
        const QList<int> dependents = description(batch.map)->dependents(node);
        for (const int dependent : dependents) {
            enqueue(batch.map, dependent, false);
        }
    }
}

// Nobody carries them out any more, and yet they have to come to their end.
void Session::dropBatches()
{
    Lock lock(m_mutex);
    m_takesBatches = false;
    while (!m_batches.empty()) {
        const std::shared_ptr<Batch> batch = m_batches.front();
        m_batches.pop_front();
        lock.unlock();
        dropAsLost(*batch);
        lock.lock();
    }
}

void Session::dropAsLost(Batch &batch)
{
    BatchOutcome lost;
    lost.isLost = true;
    while (batch.steps->next(lost)) { }
}

// What has been sent may have been heard. Only a camera that does not answer is lost; another takes its time,
// or leaves the write alone.
void Session::giveUp(Lock &lock, const std::shared_ptr<Call> &call, const QString &name)
{
    const bool wasSent = std::erase(m_calls, call) == 0;
    if (wasSent && !m_doubtful.contains(name)) {
        m_doubtful.append(name);
    }
    if (m_live) {
        runInBackground([self = shared_from_this()] { self->doubtAnswer(); });
    } else {
        loseLocked(silence());
    }
    lock.unlock();
    throw GenICam::TimeoutException(
        wasSent ? doubtWords(name) : tr("%1: not written, since the camera was busy for a second").arg(name));
}

void Session::doubt(const QString &name)
{
    const Lock lock(m_mutex);
    if (!m_doubtful.contains(name)) {
        m_doubtful.append(name);
    }
}

QString Session::doubtWords(const QString &name)
{
    return tr("%1: the camera did not answer in time, so it is not known whether this was written").arg(name);
}

// In the background, as the caller has waited long enough.
void Session::doubtAnswer()
{
    if (!m_live->isAnswering()) {
        markLost(silence());
    }
}

void Session::enqueue(int map, int node, bool force, bool first)
{
    NodeState &state = m_maps[size_t(map)]->nodes[size_t(node)];
    state.isForced = state.isForced || force;
    if (m_isLost || state.isQueued) {
        return;
    }
    state.isQueued = true;
    if (first) {
        m_reads.push_front({map, node});
    } else {
        m_reads.push_back({map, node});
    }
}

void Session::requestRead(int map, int node, bool force)
{
    const Lock lock(m_mutex);
    enqueue(map, node, force);
    m_changed.notify_all();
}

void Session::refresh(int map)
{
    const Lock lock(m_mutex);
    for (const int node : m_maps[size_t(map)]->source.description->published()) {
        enqueue(map, node, false);
    }
    m_changed.notify_all();
}

void Session::poll(int mapIndex, int elapsedMilliseconds)
{
    const Lock lock(m_mutex);
    MapState &map = *m_maps[size_t(mapIndex)];
    const Description &description = *map.source.description;
    const bool isDropped = map.pollsUnderWay > 0;
    for (const int node : description.published()) {
        const int time = description.pollingTime(node);
        if (time == 0) {
            continue;
        }
        NodeState &state = map.nodes[size_t(node)];
        // Time passes although a poll is dropped.
        state.age = std::min(state.age + std::max(elapsedMilliseconds, 0), time);
        if (isDropped || state.age < time || m_isLost) {
            continue;
        }
        state.age = 0;
        state.isPolled = true;
        ++map.pollsUnderWay;
        enqueue(mapIndex, node, false);
    }
    m_changed.notify_all();
}

void Session::imposeVisibility(int map, int node, GenApi::EVisibility visibility)
{
    const Lock lock(m_mutex);
    NodeState &state = m_maps[size_t(map)]->nodes[size_t(node)];
    state.imposedVisibility = visibility;
    show(state);
    publish(map, node);
}

void Session::imposeAccess(int map, int node, GenApi::EAccessMode access)
{
    const Lock lock(m_mutex);
    NodeState &state = m_maps[size_t(map)]->nodes[size_t(node)];
    state.imposedAccess = access;
    show(state);
    publish(map, node);
}

void Session::setListener(int map, QObject *listener)
{
    const Lock lock(m_mutex);
    m_maps[size_t(map)]->listener = listener;
    m_maps[size_t(map)]->published.clear();
}

std::optional<Session::Published> Session::takePublished(int map)
{
    const Lock lock(m_mutex);
    std::deque<Published> &published = m_maps[size_t(map)]->published;
    if (published.empty()) {
        return std::nullopt;
    }
    const Published oldest = published.front();
    published.pop_front();
    return oldest;
}

void Session::setCameraListener(QObject *listener)
{
    const Lock lock(m_mutex);
    m_cameraListener = listener;
    if (m_isLost) {
        tellCamera("reportLoss", withDoubts(m_lossReason));
    }
}

void Session::markLost(const QString &reason)
{
    const Lock lock(m_mutex);
    loseLocked(reason);
}

void Session::loseLocked(const QString &reason)
{
    if (m_isLost) {
        return;
    }
    m_isLost = true;
    m_lossReason = reason;
    for (const Read &read : m_reads) {
        NodeState &state = m_maps[size_t(read.map)]->nodes[size_t(read.node)];
        state.isQueued = false;
    }
    m_reads.clear();
    for (const std::shared_ptr<Call> &call : m_calls) {
        call->failure = std::make_exception_ptr(GenICam::TimeoutException(
            tr("%1: %2").arg(m_maps[size_t(call->map)]->source.description->name(call->node), reason)));
        call->isDone = true;
    }
    m_calls.clear();
    m_changed.notify_all();
    if (m_mailbox) {
        m_mailbox->fail(withDoubts(reason));
    }
    tellCamera("reportLoss", withDoubts(reason));
    if (m_live && m_live->isWatchable() && !m_isStopping) {
        runInBackground([self = shared_from_this()] { self->awaitReturn(); });
    }
}

// What was written without an answer stays unknown until the camera is opened again, and read.
QString Session::withDoubts(const QString &news) const
{
    return m_doubtful.isEmpty() ? news
                                : tr("%1 Whether the last change of %2 has arrived is not known.")
                                      .arg(news, m_doubtful.join(QStringLiteral(", ")));
}

// In the background, as the worker may hang.
void Session::awaitReturn()
{
    Lock lock(m_mutex);
    while (!m_changed.wait_for(lock, watchTime, [this] { return m_isStopping.load(); })) {
        lock.unlock();
        const QString news = m_live->newsOfReturn();
        lock.lock();
        if (!news.isEmpty() && !m_isStopping) {
            tellCamera("reportReturn", withDoubts(news));
            return;
        }
    }
}

bool Session::isLost() const
{
    const Lock lock(m_mutex);
    return m_isLost;
}

// What follows is fixed once the camera is open.

Core::CameraPoolComponents::CameraInfoPtr Session::info() const
{
    return m_info;
}

int Session::mapCount() const
{
    return int(m_maps.size());
}

QString Session::mapName(int map) const
{
    return m_maps[size_t(map)]->source.name;
}

QString Session::mapTitle(int map) const
{
    return m_maps[size_t(map)]->source.title;
}

std::shared_ptr<const Description> Session::description(int map) const
{
    return m_maps[size_t(map)]->source.description;
}

std::shared_ptr<SimulatedRegisters> Session::registers(int map) const
{
    return m_maps[size_t(map)]->source.registers;
}

ParameterType Session::type(int map, int node) const
{
    return m_maps[size_t(map)]->nodes[size_t(node)].type;
}

int Session::nodeOf(int map, const QString &name) const
{
    const QString prefix = mapName(map) + QLatin1Char('/');
    const QLatin1String suffix("/Alias");
    QString shortName = name.startsWith(prefix) ? name.mid(prefix.size()) : name;
    const bool isAlias = shortName.endsWith(suffix);
    if (isAlias) {
        shortName.chop(suffix.size());
    }
    const std::shared_ptr<const Description> nodes = description(map);
    const int node = nodes->indexOf(shortName);
    return isAlias && node >= 0 ? nodes->alias(node) : node;
}

ParameterDataPtr Session::snapshot(int map, int node) const
{
    const Lock lock(m_mutex);
    return m_maps[size_t(map)]->nodes[size_t(node)].shown;
}

GenApi::EAccessMode Session::nodeAccess(int map, int node) const
{
    const Lock lock(m_mutex);
    const GenApi::EAccessMode access = m_maps[size_t(map)]->nodes[size_t(node)].access;
    return m_access.isReadOnly ? withoutWriting(access) : access;
}

} // namespace Cameras
