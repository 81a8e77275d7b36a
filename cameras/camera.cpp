// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "camera.h"

#include "aravis_p.h"
#include "camerarecord_p.h"
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
#include <future>
#include <memory>
#include <mutex>
#include <utility>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::Exception::BaseException;

namespace Cameras {

ZELTO_LOG_CATEGORY("zelto.cameras.engine")

namespace {

constexpr qint64 largestFile = qint64(256) * 1024 * 1024;

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

// The description is parsed here and by the engine at the same time.
NodeMapSource simulatedMap(const QString &name, const QString &title, const QByteArray &xml,
                           const QByteArray &registerLines)
{
    auto parsing = std::async(std::launch::async, [&xml] { return std::make_shared<Description>(xml); });
    const auto registers = std::make_shared<SimulatedRegisters>();
    registers->load(registerLines);
    DevicePtr device = newSimulatedDevice(xml, registers);
    return {name, title, std::move(device), parsing.get(), registers};
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
    if (file.size() > largestFile) {
        throw BaseException(Camera::tr("the file is too large"));
    }
    return file.readAll();
}

QByteArray unzipped(const QByteArray &archive)
{
    const std::unique_ptr<ArvZip, decltype(&arv_zip_free)> zip(
        arv_zip_new(archive.constData(), size_t(archive.size())), arv_zip_free);
    QByteArray xml;
    for (const GSList *entry = zip ? arv_zip_get_file_list(zip.get()) : nullptr; entry && xml.isEmpty();
         entry = entry->next) {
        auto *file = static_cast<ArvZipFile *>(entry->data);
        const char *name = arv_zip_file_get_name(file);
        if (!QString::fromUtf8(name).endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
            continue;
        }
        if (arv_zip_file_get_uncompressed_size(file) > size_t(largestFile)) {
            throw BaseException(Camera::tr("the file is too large"));
        }
        size_t size = 0;
        void *data = arv_zip_get_file(zip.get(), name, &size);
        xml = QByteArray(static_cast<const char *>(data), qsizetype(size));
        g_free(data);
    }
    if (xml.isEmpty()) {
        throw BaseException(Camera::tr("the archive holds no camera description"));
    }
    return xml;
}

// Above its first tag a description may have lines that XML does not allow there: of a download, of an
// editor.
QByteArray fromFirstTag(const QByteArray &text)
{
    if (text.left(4).contains('\0')) {
        return text; // two or four bytes for each character
    }
    const qsizetype declaration = text.indexOf("<?xml version");
    const QByteArray above = text.left(declaration);
    if (declaration >= 0 && !above.contains("<RegisterDescription") && !above.contains("<!DOCTYPE")) {
        return text.mid(declaration); // comments are skipped, too
    }
    return text.mid(std::max(text.indexOf('<'), qsizetype(0)));
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
    QByteArray xml = fileContents(fileName);
    if (xml.startsWith("PK")) {
        xml = unzipped(xml);
    }
    xml = fromFirstTag(xml);
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
    const QString deviceClass = ARV_IS_GV_DEVICE(device) ? QStringLiteral("GEV") : QStringLiteral("U3V");
    const QString model = textOf(device, "DeviceModelName");
    return CameraInfoPtr(
        new CameraRecord({id, textOf(device, "DeviceVendorName"), model.isEmpty() ? id : model,
                          textOf(device, "DeviceSerialNumber"), deviceClass}));
}

void onControlLost(ArvDevice *, gpointer session)
{
    if (const auto alive = static_cast<std::weak_ptr<Session> *>(session)->lock()) {
        alive->markLost(Camera::tr("the control of the camera was lost"));
    }
}

void dropSession(gpointer session, GClosure *)
{
    delete static_cast<std::weak_ptr<Session> *>(session);
}

Session::Source liveSource(const QString &id, const std::weak_ptr<Session> &session)
{
    GError *error = nullptr;
    DevicePtr device(arv_open_device(id.toUtf8().constData(), &error));
    if (!device) {
        const QString reason =
            error ? QString::fromUtf8(error->message) : Camera::tr("there is no such camera");
        g_clear_error(&error);
        throw BaseException(reason);
    }
    g_signal_connect_data(device.get(), "control-lost", G_CALLBACK(onControlLost),
                          new std::weak_ptr<Session>(session), dropSession, GConnectFlags(0));
    size_t size = 0;
    const char *xml = arv_device_get_genicam_xml(device.get(), &size);
    const QByteArray text = xml ? QByteArray(xml, qsizetype(size)) : QByteArray();
    Session::Source source;
    source.info = liveInfo(id, device.get());
    source.maps.push_back({QStringLiteral("@CameraDevice"), Camera::tr("Camera"), std::move(device),
                           std::make_shared<Description>(text), nullptr});
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
    m_session->setLossListener(this);
}

Camera::~Camera()
{
    m_session->setLossListener(nullptr);
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

std::shared_ptr<Session> Camera::session() const
{
    return m_session;
}

void Camera::reportLoss(const QString &reason)
{
    emit lost(reason);
}

} // namespace Cameras
