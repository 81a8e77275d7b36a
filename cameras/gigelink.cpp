// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "gigelink_p.h"

#include "aravis_p.h"

#include <QDeadlineTimer>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace Cameras {

namespace {

// Names and numbers are those of the GigE Vision control protocol.
constexpr quint16 port = 3956;
constexpr quint16 readMemoryCommand = 0x0084;
constexpr quint16 readMemoryAcknowledge = 0x0085;
constexpr quint16 pendingAcknowledge = 0x0089;
constexpr quint16 requestOfAnAnswer = 0x4201; // key value and flag
constexpr qsizetype headerSize = 8;
constexpr quint32 largestBlock = 512;
constexpr quint32 controlChannelPrivilege = 0x0a00;
constexpr quint32 primaryApplicationAddress = 0x0a14;
constexpr quint32 manufacturerName = 0x0048;
constexpr quint32 modelSize = 64; // with the manufacturer before it
constexpr quint32 serialNumber = 0x00d8;
constexpr quint32 serialNumberSize = 16;
constexpr quint32 exclusiveBit = 1;
constexpr quint32 controlBit = 2;
constexpr quint32 switchoverBit = 4;

constexpr int answerTime = 150;
constexpr int longestPause = 5000;

template <typename Number>
void append(QByteArray &bytes, Number number)
{
    const Number bigEndian = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof(bigEndian));
}

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromBigEndian<Number>(bytes.constData() + offset);
}

ArvDeviceError errorOf(quint16 status)
{
    switch (status) {
    case 0x8001:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED;
    case 0x8002:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER;
    case 0x8003:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS;
    case 0x8004:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT;
    case 0x8005:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT;
    case 0x8006:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED;
    case 0x8007:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY;
    default:
        return ARV_DEVICE_ERROR_PROTOCOL_ERROR;
    }
}

void report(GError **error, ArvDeviceError code, const char *what)
{
    g_set_error_literal(error, ARV_DEVICE_ERROR, code, what);
}

} // namespace

GigeLink::GigeLink(const QHostAddress &camera, int attempts)
    : m_camera(camera)
    , m_attempts(attempts)
{
    m_socket.setProxy(
        QNetworkProxy::NoProxy); // which the system might have to be asked for, over the network
    m_socket.bind(QHostAddress(QHostAddress::AnyIPv4));
}

QHostAddress GigeLink::address() const
{
    return m_camera;
}

bool GigeLink::read(quint64 address, quint32 size, char *bytes, GError **error)
{
    if (address + size > 0x100000000) {
        report(error, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, "beyond 32 bits");
        return false;
    }
    while (size > 0) {
        // Cameras serve whole words only.
        const auto start = quint32(address & ~quint64(3));
        const auto skipped = quint32(address - start);
        const quint32 count = std::min(size, largestBlock - skipped);
        const QByteArray block = readBlock(start, (skipped + count + 3) & ~quint32(3), error);
        if (block.isEmpty()) {
            return false;
        }
        std::memcpy(bytes, block.constData() + skipped, count);
        bytes += count;
        address += count;
        size -= count;
    }
    return true;
}

QByteArray GigeLink::readBlock(quint32 address, quint32 size, GError **error)
{
    QByteArray request;
    append(request, address);
    append(request, size); // of which the upper half is reserved
    const QByteArray answer = exchange(request, error);
    if (answer.isEmpty()) {
        return {};
    }
    if (answer.size() != qsizetype(sizeof(address) + size)) {
        report(error, ARV_DEVICE_ERROR_PROTOCOL_ERROR, "answer of another length");
        return {};
    }
    return answer.mid(sizeof(address));
}

// As memory: there are cameras to which whoever asks for the register of their control holds it.
bool GigeLink::readRegister(quint32 address, quint32 *value, GError **error)
{
    const QByteArray block = readBlock(address, sizeof(*value), error);
    if (block.isEmpty()) {
        return false;
    }
    *value = numberAt<quint32>(block, 0);
    return true;
}

GigeLink::Control GigeLink::control()
{
    quint32 privilege = 0;
    GError *error = nullptr;
    if (!readRegister(controlChannelPrivilege, &privilege, &error)) {
        const int reason = error->code;
        g_clear_error(&error);
        return {reason == ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED ? Hold::Exclusive
                    : reason == ARV_DEVICE_ERROR_TIMEOUT                ? Hold::NoAnswer
                                                                        : Hold::Unknown,
                {}};
    }
    if ((privilege & (controlBit | exclusiveBit)) == 0) {
        return {Hold::Free, {}};
    }
    Control control{privilege & switchoverBit ? Hold::Switchable : Hold::Controlled, {}};
    control.hold = privilege & exclusiveBit ? Hold::Exclusive : control.hold;
    quint32 address = 0;
    // Optional, and zero where it is not supported.
    if (readRegister(primaryApplicationAddress, &address, nullptr) && address != 0) {
        control.controller = QHostAddress(address);
    }
    return control;
}

GigeLink::Identity GigeLink::identity()
{
    const auto read = [this](quint32 address, quint32 size) {
        GError *error = nullptr;
        const QByteArray block = readBlock(address, size, &error);
        g_clear_error(&error);
        return block;
    };
    Identity identity;
    identity.model = read(manufacturerName, modelSize);
    if (!identity.model.isEmpty()) {
        const QByteArray serial = read(serialNumber, serialNumberSize);
        identity.serialNumber = serial.left(qsizetype(qstrnlen(serial.constData(), serialNumberSize)));
    }
    return identity;
}

QByteArray GigeLink::exchange(const QByteArray &payload, GError **error)
{
    m_requestId = m_requestId == 0xffff ? 1 : m_requestId + 1; // 0 is no id
    QByteArray request;
    append(request, requestOfAnAnswer);
    append(request, readMemoryCommand);
    append(request, quint16(payload.size()));
    append(request, m_requestId);
    request.append(payload);
    for (int attempt = 0; attempt < m_attempts; ++attempt) {
        m_socket.writeDatagram(request, m_camera, port);
        QByteArray answer;
        if (receive(&answer, error)) {
            return answer;
        }
    }
    report(error, ARV_DEVICE_ERROR_TIMEOUT, "no answer");
    return {};
}

// Returns whether the answer came; it is empty and told by error when the camera refused.
bool GigeLink::receive(QByteArray *answer, GError **error)
{
    QDeadlineTimer deadline(answerTime);
    const QDeadlineTimer end(longestPause); // however often the camera asks for patience
    while (m_socket.hasPendingDatagrams() || m_socket.waitForReadyRead(int(deadline.remainingTime()))) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        const QByteArray bytes = datagram.data();
        const bool isFromCamera = datagram.senderAddress().isEqual(m_camera);
        if (!isFromCamera || bytes.size() < headerSize || numberAt<quint16>(bytes, 6) != m_requestId) {
            continue;
        }
        const auto kind = numberAt<quint16>(bytes, 2);
        if (kind == pendingAcknowledge && bytes.size() >= headerSize + 4) {
            deadline.setRemainingTime(
                std::min<qint64>(numberAt<quint16>(bytes, headerSize + 2) + answerTime, end.remainingTime()));
            continue;
        }
        if (const auto status = numberAt<quint16>(bytes, 0)) {
            report(error, errorOf(status), "refused by the camera");
            return true;
        }
        if (kind == readMemoryAcknowledge && bytes.size() > headerSize) {
            *answer = bytes.mid(headerSize);
            return true;
        }
    }
    return false;
}

} // namespace Cameras
