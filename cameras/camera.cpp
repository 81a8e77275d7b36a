// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camera.h"

#include "aravis_p.h"
#include "awakening_p.h"
#include "backgroundthreads_p.h"
#include "camerafactory_p.h"
#include "cameraopening.h"
#include "camerarecord_p.h"
#include "descriptionarchive_p.h"
#include "engineturn_p.h"
#include "enginexml_p.h"
#include "livecamera_p.h"
#include "nodecollection_p.h"
#include "registerimage_p.h"
#include "session_p.h"
#include "simulateddevice_p.h"
#include "simulatedregisters_p.h"
#include "stream.h"

#include <platform/core/exception.h>
#include <platform/core/logging.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <utility>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::Exception::BaseException;

// A static library leaves resources out that nothing names.
static bool initResources()
{
    Q_INIT_RESOURCE(zeltocameras);
    Q_INIT_RESOURCE(zelto_cameras_translations);
    return true;
}
[[maybe_unused]] static const bool resourcesAreThere = initResources();

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.engine")

namespace {

// Titles are kept as they are here, and translated when somebody asks for them: the language may change.
constexpr char cameraTitle[] = QT_TRANSLATE_NOOP("Cameras::Camera", "Camera");

// Our parser decides whether the engine's sees the description.
NodeMapSource simulatedMap(const QString &name, const QString &title, const QByteArray &xml,
                           const QByteArray &registerLines)
{
    auto description = std::make_shared<Description>(xml);
    const auto registers = std::make_shared<SimulatedRegisters>();
    registers->load(registerLines);
    DevicePtr device = newSimulatedDevice(engineXml(xml), registers);
    return {name, title, std::move(device), std::move(description), registers};
}

QByteArray fileContents(const QString &fileName)
{
    const QFileInfo entry(fileName);
    if (entry.isDir()) {
        throw BaseException(Camera::tr("it is a directory"));
    }
    if (entry.exists() && !entry.isFile()) {
        // Reading a pipe or a device might never end.
        throw BaseException(Camera::tr("it is no regular file"));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw BaseException(file.errorString());
    }
    if (file.size() > DescriptionArchive::largest) {
        throw BaseException(Camera::tr("the file is too large"));
    }
    return file.readAll();
}

QByteArray resource(const QString &name)
{
    QFile file(QStringLiteral(":/cameras/Resources/") + name);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

Session::Source embeddedSource()
{
    struct Map
    {
        QString name;
        QString title;
        QString file;
    };
    const std::array maps{
        Map{QStringLiteral("@CameraDevice"), QLatin1String(cameraTitle), QStringLiteral("cameradevice")},
        Map{QStringLiteral("@DeviceTransportLayer"),
            QStringLiteral(QT_TRANSLATE_NOOP("Cameras::Camera", "Transport Layer")),
            QStringLiteral("devicetransportlayer")},
        Map{QStringLiteral("@StreamGrabber0"),
            QStringLiteral(QT_TRANSLATE_NOOP("Cameras::Camera", "Stream Grabber")),
            QStringLiteral("streamgrabber0")},
    };
    Session::Source source;
    source.info = CameraInfoPtr(new CameraRecord({QStringLiteral("embedded"), QStringLiteral("Zelto"),
                                                  QStringLiteral("Simulated Camera"),
                                                  QStringLiteral("ZS-0001"), QStringLiteral("GEV")}));
    for (const Map &map : maps) {
        source.maps.push_back(simulatedMap(map.name, map.title, resource(map.file + QLatin1String(".xml")),
                                           resource(map.file + QLatin1String(".registers"))));
    }
    return source;
}

Session::Source describedSource(const QString &fileName, Start start, const QString &registers)
{
    const QByteArray xml = DescriptionArchive::xml(fileContents(fileName));
    Session::Source source;
    source.maps.push_back(simulatedMap(QStringLiteral("@CameraDevice"), QLatin1String(cameraTitle), xml, {}));
    const NodeMapSource &map = source.maps.front();
    const Description &description = *map.description;
    if (start == Start::Alive) {
        awaken(map.device.get(), description, *map.registers);
    }
    if (!registers.isEmpty()) {
        try {
            map.registers->load(RegisterImage::fromText(fileContents(registers)));
        } catch (const BaseException &exception) {
            throw BaseException(QStringLiteral("%1: %2").arg(registers, exception.getMessage()));
        }
    }
    // However the file is written, it is the same camera.
    source.info = CameraInfoPtr(
        new CameraRecord({QFileInfo(fileName).canonicalFilePath(), description.vendorName(),
                          description.modelName(), QString(), description.standardNameSpace()}));
    return source;
}

EngineTurn::Waiter waiterFor(const std::weak_ptr<Session> &session)
{
    return {[session] {
                const auto alive = session.lock();
                return alive && alive->isWanted();
            },
            [session](bool waits) {
                if (const auto alive = session.lock()) {
                    using Step = OpeningProgress::Step;
                    alive->setStep(waits ? Step::Waiting : Step::Connecting);
                }
            }};
}

Session::Source liveSource(const QString &id, Session &session)
{
    const std::weak_ptr<Session> weak = session.weak_from_this();
    const auto live = std::make_shared<LiveCamera>(id, waiterFor(weak), [weak] {
        if (const auto alive = weak.lock()) {
            alive->doubtControl();
        }
    });
    session.succeed(live->locate());
    session.setStep(OpeningProgress::Step::Connecting);
    DevicePtr device = live->open();
    session.setStep(OpeningProgress::Step::Describing);
    Session::Source source;
    source.info = CameraInfoPtr(new CameraRecord(live->texts(device.get())));
    source.maps.push_back({QStringLiteral("@CameraDevice"), QLatin1String(cameraTitle), std::move(device),
                           std::make_shared<Description>(live->xml()), nullptr});
    source.live = live;
    return source;
}

void logEngineMessage(const gchar *domain, GLogLevelFlags level, const gchar *message, gpointer)
{
    if (domain && qstrncmp(domain, "GLib", 4) == 0 && !isInBackground()) {
        g_log_default_handler(domain, level, message, nullptr); // of another user of that library
        return;
    }
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Debug, logCategory(), QString::fromUtf8(message));
}

// What the engine complains about is told by exceptions and snapshots; standard error is not its place.
void routeEngineMessages()
{
    static std::once_flag once;
    std::call_once(once, [] {
        for (const char *domain :
             {static_cast<const char *>(nullptr), "XML", "Aravis", "ArvGc", "GLib", "GLib-GIO"}) {
            g_log_set_handler(domain, GLogLevelFlags(G_LOG_LEVEL_MASK), logEngineMessage, nullptr);
        }
    });
}

/*! \brief A camera that is to be opened, in one of the two ways. */
struct Order
{
    QString name; // for messages
    Session::Opener opener;

    std::unique_ptr<Camera> carryOut() const
    {
        routeEngineMessages();
        const auto session = std::make_shared<Session>();
        try {
            session->start(opener);
        } catch (const BaseException &exception) {
            session->close();
            throw BaseException(Camera::tr("Cannot open %1: %2").arg(name, exception.getMessage()));
        }
        return CameraFactory::camera(session);
    }

    std::shared_ptr<Session> begin() const
    {
        routeEngineMessages();
        auto session = std::make_shared<Session>();
        session->begin(opener);
        return session;
    }
};

Order embeddedOrder()
{
    return {Camera::tr("the embedded camera"), [](Session &session) {
                session.setStep(OpeningProgress::Step::Describing);
                return embeddedSource();
            }};
}

Order describedOrder(const QString &fileName, Start start, const QString &registers)
{
    return {fileName, [fileName, start, registers](Session &session) {
                session.setStep(OpeningProgress::Step::Describing);
                return describedSource(fileName, start, registers);
            }};
}

Order liveOrder(const QString &id)
{
    return {Camera::tr("the camera %1").arg(id), [id](Session &session) { return liveSource(id, session); }};
}

} // namespace

std::unique_ptr<Camera> CameraFactory::camera(std::shared_ptr<Session> session)
{
    return std::unique_ptr<Camera>(new Camera(std::move(session)));
}

Camera::Camera(std::shared_ptr<Session> session)
    : m_session(std::move(session))
{
    for (int map = 0; map < m_session->mapCount(); ++map) {
        m_nodeMaps.append({m_session->mapName(map), m_session->mapTitle(map),
                           QSharedPointer<NodeCollection>::create(m_session, map), true});
    }
    if (m_session->hasImages()) {
        m_stream.reset(new Stream(m_session));
    }
    m_session->setCameraListener(this);
}

Camera::~Camera()
{
    m_session->setCameraListener(nullptr);
    m_stream.reset();
    m_session->close();
}

QList<CameraInfoPtr> Camera::list()
{
    routeEngineMessages();
    {
        const EngineTurn turn;
        arv_update_device_list();
    }
    QList<CameraInfoPtr> found;
    const QList<CameraRecord::Texts> cameras = LiveCamera::list();
    for (const CameraRecord::Texts &texts : cameras) {
        if (!texts.deviceClass.isEmpty()) {
            found.append(CameraInfoPtr(new CameraRecord(texts)));
        }
    }
    return found;
}

CameraStatus Camera::status(const QString &id)
{
    return LiveCamera::status(id);
}

std::unique_ptr<Camera> Camera::openEmbedded()
{
    return embeddedOrder().carryOut();
}

std::unique_ptr<Camera> Camera::openDescription(const QString &fileName, Start start,
                                                const QString &registers)
{
    return describedOrder(fileName, start, registers).carryOut();
}

std::unique_ptr<Camera> Camera::openLive(const QString &id)
{
    return liveOrder(id).carryOut();
}

std::unique_ptr<CameraOpening> Camera::openEmbeddedAsync()
{
    const Order order = embeddedOrder();
    return std::unique_ptr<CameraOpening>(new CameraOpening(order.name, order.begin()));
}

std::unique_ptr<CameraOpening> Camera::openDescriptionAsync(const QString &fileName, Start start,
                                                            const QString &registers)
{
    const Order order = describedOrder(fileName, start, registers);
    return std::unique_ptr<CameraOpening>(new CameraOpening(order.name, order.begin()));
}

std::unique_ptr<CameraOpening> Camera::openLiveAsync(const QString &id)
{
    const Order order = liveOrder(id);
    return std::unique_ptr<CameraOpening>(new CameraOpening(order.name, order.begin()));
}

CameraInfoPtr Camera::info() const
{
    return m_session->info();
}

QList<NodeMap> Camera::nodeMaps() const
{
    QList<NodeMap> nodeMaps = m_nodeMaps;
    for (int map = 0; map < nodeMaps.size(); ++map) {
        nodeMaps[map].title = m_session->mapTitle(map); // the language may have changed
    }
    return nodeMaps;
}

Stream *Camera::stream() const
{
    return m_stream.get();
}

QByteArray Camera::registerImage() const
{
    RegisterImage::Contents contents;
    m_session->carryOut(0, [&contents](Engine &engine) { contents = engine.registerContents(); });
    return "# " + m_session->info()->vendorName().toUtf8().simplified() + ' '
        + m_session->info()->modelName().toUtf8().simplified() + ", registers at "
        + QDateTime::currentDateTime().toString(Qt::ISODate).toLatin1() + '\n'
        + RegisterImage::toText(contents);
}

bool Camera::isLost() const
{
    return m_session->isLost();
}

bool Camera::isReadOnly() const
{
    return m_session->access().isReadOnly;
}

QString Camera::controller() const
{
    return m_session->access().controller;
}

bool Camera::isControlAvailable() const
{
    return m_session->access().isFree;
}

void Camera::takeControl()
{
    m_session->takeControl();
}

void Camera::reportLoss(const QString &reason)
{
    emit lost(reason);
}

void Camera::reportReturn(const QString &news)
{
    emit returned(news);
}

void Camera::reportAccess()
{
    const bool wasAvailable = std::exchange(m_wasControlAvailable, isControlAvailable());
    emit accessChanged();
    if (m_wasControlAvailable && !wasAvailable) {
        emit controlAvailable();
    }
}

void Camera::reportRefusal(const QString &reason)
{
    emit controlRefused(reason);
}

} // namespace Cameras
