// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "livecamera_p.h"

#include "aravis_p.h"
#include "backgroundthreads_p.h"
#include "description_p.h"
#include "descriptionarchive_p.h"
#include "enginefailure_p.h"
#include "portdevice_p.h"

#include <platform/core/exception.h>

#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QNetworkInterface>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <utility>

using namespace std::chrono_literals;
using Core::Exception::BaseException;

namespace Cameras {

namespace {

constexpr int patientAttempts = 10;
constexpr int quickAttempts = 2;
constexpr quint64 firstDescriptionUrl = 0x0200;
constexpr quint64 secondDescriptionUrl = 0x0400;
constexpr quint32 urlSize = 512;

/*! \brief Registers of a camera that are only looked at. */
class ReadOnlyPort : public DevicePort
{
public:
    explicit ReadOnlyPort(const QHostAddress &camera)
        : m_link(camera, patientAttempts)
    {
    }

    bool read(quint64 address, quint32 size, void *buffer, GError **error) override
    {
        return m_link.read(address, size, static_cast<char *>(buffer), error);
    }

    bool write(quint64 address, quint32 size, const void *buffer, GError **error) override
    {
        Q_UNUSED(address)
        Q_UNUSED(size)
        Q_UNUSED(buffer)
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONTROLLER, "opened read-only");
        return false;
    }

private:
    GigeLink m_link;
};

// Giving a device back would write the camera's control register, which is another program's by now.
void leaveAlone(ArvDevice *device)
{
    static QBasicMutex mutex; // each camera has its own thread
    static auto *const devices = new QList<ArvDevice *>;
    const QMutexLocker locker(&mutex);
    devices->append(ARV_DEVICE(g_object_ref(device)));
}

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

QString textOf(ArvDevice *device, const char *feature)
{
    GError *error = nullptr;
    const QString text = QString::fromUtf8(arv_device_get_string_feature_value(device, feature, &error));
    g_clear_error(&error);
    return text;
}

std::optional<unsigned int> listed(const QString &id)
{
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        const auto names = {arv_get_device_id(i), arv_get_device_physical_id(i), arv_get_device_address(i)};
        if (std::any_of(names.begin(), names.end(),
                        [&id](const char *name) { return id == QString::fromUtf8(name); })) {
            return i;
        }
    }
    return std::nullopt;
}

QList<CameraRecord::Texts> listedTexts()
{
    QList<CameraRecord::Texts> cameras;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        cameras.append(textsOf(i));
    }
    return cameras;
}

// Null for what is no GigE Vision camera, and for one that is not in the list and not named by its address.
QHostAddress listedAddress(const QString &id)
{
    const auto index = listed(id);
    if (!index) {
        return QHostAddress(id);
    }
    const bool isGige = qstrcmp(arv_get_device_protocol(*index), "GigEVision") == 0;
    return isGige ? QHostAddress(QString::fromUtf8(arv_get_device_address(*index))) : QHostAddress();
}

// By the way that the engine takes.
QByteArray contentsOf(const QByteArray &url)
{
    const auto unref = [](void *object) { g_object_unref(object); };
    const std::unique_ptr<GFile, decltype(unref)> file(g_file_new_for_uri(url.constData()), unref);
    const std::unique_ptr<GFileInputStream, decltype(unref)> stream(g_file_read(file.get(), nullptr, nullptr),
                                                                    unref);
    QByteArray contents;
    QByteArray block(65536, '\0');
    gssize size = stream ? 1 : -1;
    while (size > 0 && contents.size() <= DescriptionArchive::largest) {
        size = g_input_stream_read(G_INPUT_STREAM(stream.get()), block.data(), gsize(block.size()), nullptr,
                                   nullptr);
        contents.append(block.constData(), std::max<gssize>(size, 0));
    }
    if (size != 0) {
        throw BaseException(LiveCamera::tr("the camera's description cannot be read from %1")
                                .arg(QString::fromUtf8(url).simplified()));
    }
    return contents;
}

bool isInOurSubnets(const QHostAddress &address)
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : interfaces) {
        const auto entries = interface.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            if (address.isInSubnet(entry.ip(), entry.prefixLength())) {
                return true;
            }
        }
    }
    return false;
}

CameraStatus::State stateOf(GigeLink::Hold hold)
{
    switch (hold) {
    case GigeLink::Hold::Free:
        return CameraStatus::State::Available;
    case GigeLink::Hold::Controlled:
    case GigeLink::Hold::Switchable:
        return CameraStatus::State::ReadOnly;
    case GigeLink::Hold::Exclusive:
        return CameraStatus::State::Exclusive;
    default:
        return CameraStatus::State::NoAnswer;
    }
}

// The signal comes from the device's own heartbeat thread, and holds the device meanwhile. Were that the last
// to hold it, the thread would wait for itself to end. Without another thread the device is left.
void outliveSignal(ArvDevice *device)
{
    g_object_ref(device);
    (void)runInBackground([device] {
        std::this_thread::sleep_for(1s);
        g_object_unref(device);
    });
}

void onControlLost(ArvDevice *device, gpointer onDoubt)
{
    outliveSignal(device);
    (*static_cast<std::function<void()> *>(onDoubt))();
}

void drop(gpointer onDoubt, GClosure *)
{
    delete static_cast<std::function<void()> *>(onDoubt);
}

} // namespace

LiveCamera::LiveCamera(const QString &id, EngineTurn::Waiter waiter, std::function<void()> onDoubt)
    : m_id(id)
    , m_waiter(std::move(waiter))
    , m_onDoubt(std::move(onDoubt))
{
}

LiveCamera::~LiveCamera() = default;

CameraStatus LiveCamera::status(const QString &id)
{
    const QHostAddress address = [&id] {
        const EngineTurn turn;
        return listedAddress(id);
    }();
    if (address.isNull()) {
        return {};
    }
    if (!isInOurSubnets(address)) {
        return {CameraStatus::State::OtherSubnet, address.toString(), QString()};
    }
    const GigeLink::Control control = GigeLink(address, quickAttempts).control();
    return {stateOf(control.hold), address.toString(), control.controller.toString()};
}

QString LiveCamera::locate()
{
    m_address = findAddress();
    return m_address.isNull() ? m_id : m_address.toString();
}

DevicePtr LiveCamera::open()
{
    if (m_address.isNull()) {
        return connected();
    }
    m_link = std::make_unique<GigeLink>(m_address, patientAttempts);
    const GigeLink::Hold hold = m_link->control().hold;
    if (hold != GigeLink::Hold::NoAnswer) {
        m_identity = m_link->identity();
    }
    switch (hold) {
    case GigeLink::Hold::Free:
        checkDescription();
        return connected();
    case GigeLink::Hold::NoAnswer:
        throw BaseException(isInOurSubnets(m_address)
                                ? tr("no camera answers at %1").arg(m_address.toString())
                                : tr("%1 is in none of this computer's subnets").arg(m_address.toString()));
    case GigeLink::Hold::Unknown:
        throw BaseException(unreadableWords());
    default:
        return openReadOnly();
    }
}

DevicePtr LiveCamera::openControlled()
{
    const GigeLink::Control control = m_link->control();
    if (control.hold == GigeLink::Hold::NoAnswer || control.hold == GigeLink::Hold::Unknown) {
        throw BaseException(control.hold == GigeLink::Hold::NoAnswer ? silence() : unreadableWords());
    }
    if (control.hold != GigeLink::Hold::Free) {
        throw BaseException(heldWords(control.controller.toString()));
    }
    DevicePtr device = connected();
    if (!m_controlled) {
        throw BaseException(heldWords({}));
    }
    return device;
}

// The engine connects to any camera, and then tells whether it got the control.
DevicePtr LiveCamera::connected()
{
    GError *error = nullptr;
    DevicePtr device;
    {
        const EngineTurn turn(m_waiter);
        device.reset(arv_open_device(m_id.toUtf8().constData(), &error));
    }
    if (!device) {
        const QString reason = error ? EngineFailure::words(*error) : tr("there is no such camera");
        g_clear_error(&error);
        throw BaseException(reason);
    }
    if (ARV_IS_GV_DEVICE(device.get())) {
        const auto *address =
            G_INET_SOCKET_ADDRESS(arv_gv_device_get_device_address(ARV_GV_DEVICE(device.get())));
        char *text = g_inet_address_to_string(
            g_inet_socket_address_get_address(const_cast<GInetSocketAddress *>(address)));
        m_address = QHostAddress(QString::fromUtf8(text));
        g_free(text);
        if (!m_link) { // a camera that had to be looked up
            m_link = std::make_unique<GigeLink>(m_address, patientAttempts);
            m_identity = m_link->identity();
        }
        if (!arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()))) {
            leaveAlone(device.get());
            return openReadOnly(); // another program was faster
        }
    }
    g_signal_connect_data(device.get(), "control-lost", G_CALLBACK(onControlLost),
                          new std::function<void()>(m_onDoubt), drop, GConnectFlags(0));
    size_t size = 0;
    const char *xml = arv_device_get_genicam_xml(device.get(), &size);
    m_xml = xml ? QByteArray(xml, qsizetype(size)) : QByteArray();
    m_controlled = device.get();
    return device;
}

DevicePtr LiveCamera::openReadOnly()
{
    if (m_controlled) {
        leaveAlone(std::exchange(m_controlled, nullptr));
    }
    if (m_xml.isEmpty()) {
        m_xml = DescriptionArchive::xml(fetchHeldDescription());
        const Description accepted(m_xml); // throws before the engine sees it
    }
    return newPortDevice(m_xml, std::make_unique<ReadOnlyPort>(m_address));
}

CameraRecord::Texts LiveCamera::texts(ArvDevice *device) const
{
    const QList<CameraRecord::Texts> cameras = [this] {
        const EngineTurn turn(m_waiter);
        return listedTexts();
    }();
    for (const CameraRecord::Texts &texts : cameras) {
        if (texts.id == m_id) {
            return texts;
        }
    }
    // Opened without having been listed before.
    const QString model = textOf(device, "DeviceModelName");
    return {m_id, textOf(device, "DeviceVendorName"), model.isEmpty() ? m_id : model,
            textOf(device, "DeviceSerialNumber"),
            ARV_IS_UV_DEVICE(device) ? QStringLiteral("U3V") : QStringLiteral("GEV")};
}

QList<CameraRecord::Texts> LiveCamera::list()
{
    const EngineTurn turn;
    return listedTexts();
}

QByteArray LiveCamera::xml() const
{
    return m_xml;
}

// The engine unpacks and parses whatever the camera sends, and may not survive it.
void LiveCamera::checkDescription() const
{
    const Description accepted(DescriptionArchive::xml(fetchDescription()));
}

// Whoever holds the camera may hold it for himself.
QByteArray LiveCamera::fetchHeldDescription() const
{
    try {
        return fetchDescription();
    } catch (const BaseException &exception) {
        throw BaseException(tr("%1 (%2)").arg(heldWords({}), exception.getMessage()));
    }
}

// A camera has two places for its description, of which the second is for want of the first.
QByteArray LiveCamera::fetchDescription() const
{
    try {
        return descriptionAt(firstDescriptionUrl);
    } catch (const BaseException &) {
        try {
            return descriptionAt(secondDescriptionUrl);
        } catch (const BaseException &) {
        }
        throw;
    }
}

// Kept as "Local:name;address;size", in hexadecimal digits, or as the address of a file.
QByteArray LiveCamera::descriptionAt(quint64 urlAddress) const
{
    QByteArray url = readMemory(urlAddress, urlSize);
    url.truncate(qsizetype(qstrnlen(url.constData(), urlSize)));
    if (url.toLower().startsWith("file:") || url.toLower().startsWith("http:")) {
        return contentsOf(url.left(url.indexOf('?')));
    }
    const QList<QByteArray> parts = url.split(';');
    bool hasAddress = false;
    bool hasSize = false;
    const quint64 address = parts.value(1).toULongLong(&hasAddress, 16);
    const quint64 size = parts.value(2).split('?').constFirst().toULongLong(&hasSize, 16);
    if (!parts.constFirst().toLower().startsWith("local:") || !hasAddress || !hasSize
        || size > quint64(DescriptionArchive::largest)) {
        throw BaseException(tr("the camera hands out no description of its features"));
    }
    return readMemory(address, quint32(size));
}

QByteArray LiveCamera::readMemory(quint64 address, quint32 size) const
{
    GError *error = nullptr;
    QByteArray bytes(qsizetype(size), '\0');
    if (!m_link->read(address, size, bytes.data(), &error)) {
        const QString reason = EngineFailure::words(*error);
        g_clear_error(&error);
        throw BaseException(reason);
    }
    return bytes;
}

bool LiveCamera::isWatchable() const
{
    return m_link != nullptr;
}

CameraAccess LiveCamera::access(bool isDoubtful)
{
    if (!m_link) {
        return {!isDoubtful, false, false, {}};
    }
    const GigeLink::Control control = m_link->control();
    if (control.hold == GigeLink::Hold::NoAnswer) {
        return {false, false, false, {}};
    }
    const bool isKnown = control.hold != GigeLink::Hold::Unknown; // else it may be too busy to tell
    if (m_controlled && (!isKnown || isOurs(control, isDoubtful))) {
        return {};
    }
    return {true, true, control.hold == GigeLink::Hold::Free, control.controller.toString()};
}

bool LiveCamera::isOurs(const GigeLink::Control &control, bool isDoubtful) const
{
    if (control.hold == GigeLink::Hold::Free || control.hold == GigeLink::Hold::Exclusive) {
        return false;
    }
    if (!control.controller.isNull() && !QNetworkInterface::allAddresses().contains(control.controller)) {
        return false;
    }
    // Who has the control may ask for it again. One who has not is refused, unless the camera would switch
    // over.
    return !isDoubtful || control.hold == GigeLink::Hold::Switchable
        || arv_gv_device_take_control(ARV_GV_DEVICE(m_controlled), nullptr);
}

bool LiveCamera::isAnswering() const
{
    return !m_address.isNull()
        && GigeLink(m_address, quickAttempts).control().hold != GigeLink::Hold::NoAnswer;
}

QString LiveCamera::newsOfReturn() const
{
    const GigeLink::Identity now = GigeLink(m_address, quickAttempts).identity();
    if (!now.isKnown()) {
        return {};
    }
    return now == m_identity
        ? tr("The camera at %1 answers again.").arg(m_address.toString())
        : tr("Another camera answers at %1: serial number %2.")
              .arg(m_address.toString(), QString::fromUtf8(now.serialNumber).simplified());
}

QString LiveCamera::silence() const
{
    return m_address.isNull() ? tr("The camera %1 does not answer.").arg(m_id)
                              : tr("The camera at %1 does not answer.").arg(m_address.toString());
}

QString LiveCamera::unreadableWords() const
{
    return tr("the camera at %1 answers, but does not let itself be read").arg(m_address.toString());
}

QString LiveCamera::heldWords(const QString &controller)
{
    return controller.isEmpty() ? tr("held by another program")
                                : tr("held by another program at %1").arg(controller);
}

// Null for what is no GigE Vision camera, or is known by a name that the engine has to look up.
QHostAddress LiveCamera::findAddress() const
{
    const EngineTurn turn(m_waiter);
    const QHostAddress address = listedAddress(m_id);
    if (!address.isNull()) {
        return address;
    }
    arv_update_device_list();
    return listedAddress(m_id);
}

} // namespace Cameras
