// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camera.h"

#include "aravis_p.h"
#include "camerarecord_p.h"
#include "descriptionarchive_p.h"
#include "enginexml_p.h"
#include "livecamera_p.h"
#include "nodecollection_p.h"
#include "session_p.h"
#include "simulateddevice_p.h"
#include "simulatedregisters_p.h"

#include <platform/core/exception.h>
#include <platform/core/logging.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <utility>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::Exception::BaseException;

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.engine")

namespace {

QString deviceClassOf(const QString &protocol)
{
    if (protocol == QLatin1String("GigEVision")) {
        return QStringLiteral("GEV");
    }
    return protocol == QLatin1String("USB3Vision") ? QStringLiteral("U3V") : QString();
}

CameraRecord::Texts textsOf(unsigned int index)
{
    return {QString::fromUtf8(arv_get_device_id(index)), QString::fromUtf8(arv_get_device_vendor(index)),
            QString::fromUtf8(arv_get_device_model(index)),
            QString::fromUtf8(arv_get_device_serial_nbr(index)),
            deviceClassOf(QString::fromUtf8(arv_get_device_protocol(index)))};
}

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
        Map{QStringLiteral("@CameraDevice"), Camera::tr("Camera"), QStringLiteral("cameradevice")},
        Map{QStringLiteral("@DeviceTransportLayer"), Camera::tr("Transport Layer"),
            QStringLiteral("devicetransportlayer")},
        Map{QStringLiteral("@StreamGrabber0"), Camera::tr("Stream Grabber"),
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

Session::Source describedSource(const QString &fileName)
{
    const QByteArray xml = DescriptionArchive::xml(fileContents(fileName));
    Session::Source source;
    source.maps.push_back(simulatedMap(QStringLiteral("@CameraDevice"), Camera::tr("Camera"), xml, {}));
    const Description &description = *source.maps.front().description;
    source.info = CameraInfoPtr(new CameraRecord({fileName, description.vendorName(), description.modelName(),
                                                  QString(), description.standardNameSpace()}));
    return source;
}

QString textOf(ArvDevice *device, const char *feature)
{
    GError *error = nullptr;
    const QString text = QString::fromUtf8(arv_device_get_string_feature_value(device, feature, &error));
    g_clear_error(&error);
    return text;
}

CameraInfoPtr liveInfo(const QString &id, ArvDevice *device)
{
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        const CameraRecord::Texts texts = textsOf(i);
        if (texts.id == id) {
            return CameraInfoPtr(new CameraRecord(texts));
        }
    }
    // Opened without having been listed before.
    const QString deviceClass = ARV_IS_UV_DEVICE(device) ? QStringLiteral("U3V") : QStringLiteral("GEV");
    const QString model = textOf(device, "DeviceModelName");
    return CameraInfoPtr(
        new CameraRecord({id, textOf(device, "DeviceVendorName"), model.isEmpty() ? id : model,
                          textOf(device, "DeviceSerialNumber"), deviceClass}));
}

Session::Source liveSource(const QString &id, const std::weak_ptr<Session> &session)
{
    const auto live = std::make_shared<LiveCamera>(id, [session] {
        if (const auto alive = session.lock()) {
            alive->doubtControl();
        }
    });
    DevicePtr device = live->open();
    Session::Source source;
    source.info = liveInfo(id, device.get());
    source.maps.push_back({QStringLiteral("@CameraDevice"), Camera::tr("Camera"), std::move(device),
                           std::make_shared<Description>(live->xml()), nullptr});
    source.live = live;
    return source;
}

void logEngineMessage(const gchar *, GLogLevelFlags, const gchar *message, gpointer)
{
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Debug, logCategory(), QString::fromUtf8(message));
}

// What the engine complains about is told by exceptions and snapshots; standard error is not its place.
void routeEngineMessages()
{
    static std::once_flag once;
    std::call_once(once, [] {
        for (const char *domain : {static_cast<const char *>(nullptr), "XML", "Aravis", "ArvGc"}) {
            g_log_set_handler(domain, GLogLevelFlags(G_LOG_LEVEL_MASK), logEngineMessage, nullptr);
        }
    });
}

std::shared_ptr<Session> started(const QString &name, const std::shared_ptr<Session> &session,
                                 const Session::Opener &opener)
{
    routeEngineMessages();
    try {
        session->start(opener);
    } catch (const std::exception &exception) {
        session->close();
        throw BaseException(
            Camera::tr("Cannot open %1: %2").arg(name, QString::fromUtf8(exception.what()).simplified()));
    }
    return session;
}

} // namespace

Camera::Camera(std::shared_ptr<Session> session)
    : m_session(std::move(session))
{
    for (int map = 0; map < m_session->mapCount(); ++map) {
        m_nodeMaps.append({m_session->mapName(map), m_session->mapTitle(map),
                           QSharedPointer<NodeCollection>::create(m_session, map), true});
    }
    m_session->setCameraListener(this);
}

Camera::~Camera()
{
    m_session->setCameraListener(nullptr);
    m_session->close();
}

QList<CameraInfoPtr> Camera::list()
{
    routeEngineMessages();
    arv_update_device_list();
    QList<CameraInfoPtr> found;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        const CameraRecord::Texts texts = textsOf(i);
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
    return std::unique_ptr<Camera>(
        new Camera(started(tr("the embedded camera"), std::make_shared<Session>(), embeddedSource)));
}

std::unique_ptr<Camera> Camera::openDescription(const QString &fileName)
{
    return std::unique_ptr<Camera>(new Camera(
        started(fileName, std::make_shared<Session>(), [fileName] { return describedSource(fileName); })));
}

std::unique_ptr<Camera> Camera::openLive(const QString &id)
{
    const auto session = std::make_shared<Session>();
    const std::weak_ptr<Session> weak = session;
    return std::unique_ptr<Camera>(new Camera(
        started(tr("the camera %1").arg(id), session, [id, weak] { return liveSource(id, weak); })));
}

CameraInfoPtr Camera::info() const
{
    return m_session->info();
}

QList<NodeMap> Camera::nodeMaps() const
{
    return m_nodeMaps;
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

std::shared_ptr<Session> Camera::session() const
{
    return m_session;
}

void Camera::reportLoss(const QString &reason)
{
    emit lost(reason);
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
