// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "playedcamera.h"

#include <QNetworkProxy>
#include <QUdpSocket>
#include <QtEndian>

#include <future>

namespace {

constexpr quint16 port = 3956;
constexpr qsizetype headerSize = 8;
constexpr quint32 descriptionAddress = 0x10000;
constexpr quint32 memorySize = 0x100000;

template <typename Number>
QByteArray bytesOf(Number number)
{
    const Number bigEndian = qToBigEndian(number);
    return {reinterpret_cast<const char *>(&bigEndian), sizeof(bigEndian)};
}

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype offset)
{
    return bytes.size() < offset + qsizetype(sizeof(Number))
        ? 0
        : qFromBigEndian<Number>(bytes.constData() + offset);
}

} // namespace

QByteArray PlayedCamera::description()
{
    const auto feature = [](const char *name, const char *address) {
        return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + address
            + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
              "<Endianess>BigEndian</Endianess></IntReg>";
    };
    return "<?xml version=\"1.0\"?><RegisterDescription ModelName=\"Played\" VendorName=\"Zelto\" "
           "SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\">"
           "<Category Name=\"Root\"><pFeature>Width</pFeature><pFeature>Height</pFeature>"
           "<pFeature>Gain</pFeature></Category>"
        + feature("Width", "0x8000") + feature("Height", "0x8004") + feature("Gain", "0x8008")
        + "<Port Name=\"Device\"/></RegisterDescription>";
}

PlayedCamera::PlayedCamera(const QByteArray &serialNumber, const QByteArray &xml, const QHostAddress &address)
    : m_memory(memorySize, '\0')
{
    put(0x0000, bytesOf<quint32>(0x00020000)); // version
    put(0x0004, bytesOf<quint32>(0x80000001)); // big-endian, UTF-8
    put(0x0024, bytesOf<quint32>(0x7f000001));
    put(0x0048, "Zelto");
    put(0x0068, "Played");
    put(0x00d8, serialNumber);
    put(0x0200,
        "Local:camera.xml;" + QByteArray::number(descriptionAddress, 16) + ';'
            + QByteArray::number(xml.size(), 16));
    put(0x0904, bytesOf<quint32>(1)); // stream channels
    put(0x0938, bytesOf<quint32>(3000));
    put(0x0d04, bytesOf<quint32>(1500)); // bytes of a packet
    put(descriptionAddress, xml);
    put(0x8000, bytesOf<quint32>(640));
    put(0x8004, bytesOf<quint32>(480));
    put(0x8008, bytesOf<quint32>(3));
    std::promise<bool> hasPort;
    m_thread = std::thread([this, &hasPort, address] {
        QUdpSocket socket;
        socket.setProxy(QNetworkProxy::NoProxy);
        const bool isRunning = socket.bind(address, port);
        hasPort.set_value(isRunning);
        while (isRunning && !m_isEnding) {
            if (!socket.waitForReadyRead(20)) {
                continue;
            }
            QByteArray request(2048, '\0');
            QHostAddress sender;
            quint16 senderPort = 0;
            request.resize(
                qMax<qint64>(socket.readDatagram(request.data(), request.size(), &sender, &senderPort), 0));
            const QByteArray answer = answerTo(request);
            const Manner manner = [this] {
                const std::lock_guard lock(m_mutex);
                return m_manner;
            }();
            const QList<QByteArray> datagrams = manner ? manner(request, answer) : QList<QByteArray>{answer};
            for (const QByteArray &datagram : datagrams) {
                socket.writeDatagram(datagram, sender, senderPort);
            }
        }
    });
    m_isRunning = hasPort.get_future().get();
}

PlayedCamera::~PlayedCamera()
{
    m_isEnding = true;
    m_thread.join();
}

void PlayedCamera::setManner(const Manner &manner)
{
    const std::lock_guard lock(m_mutex);
    m_manner = manner;
}

quint32 PlayedCamera::value(quint32 address) const
{
    const std::lock_guard lock(m_mutex);
    return numberAt<quint32>(m_memory, address);
}

quint16 PlayedCamera::command(const QByteArray &datagram)
{
    return numberAt<quint16>(datagram, 2);
}

quint32 PlayedCamera::address(const QByteArray &request)
{
    return numberAt<quint32>(request, headerSize);
}

void PlayedCamera::put(quint32 address, const QByteArray &bytes)
{
    if (address + bytes.size() <= quint32(m_memory.size())) {
        m_memory.replace(address, bytes.size(), bytes);
    }
}

QByteArray PlayedCamera::answerTo(const QByteArray &request)
{
    const std::lock_guard lock(m_mutex);
    QByteArray payload;
    switch (command(request)) {
    case 0x0002: // discovery
        payload = m_memory.left(0xf8);
        break;
    case 0x0080: // read registers
        for (qsizetype at = headerSize; at + 4 <= request.size(); at += 4) {
            payload += m_memory.mid(numberAt<quint32>(request, at), 4);
        }
        break;
    case 0x0082: // write registers
        for (qsizetype at = headerSize; at + 8 <= request.size(); at += 8) {
            put(numberAt<quint32>(request, at), request.mid(at + 4, 4));
        }
        payload = bytesOf<quint32>(1);
        break;
    case 0x0084: // read memory
        payload = bytesOf(address(request))
            + m_memory.mid(address(request), numberAt<quint32>(request, headerSize + 4) & 0xffff);
        break;
    case 0x0086: // write memory
        put(address(request), request.mid(headerSize + 4));
        payload = bytesOf<quint32>(quint32(request.size() - headerSize - 4));
        break;
    default:
        return {};
    }
    return bytesOf<quint16>(0) + bytesOf<quint16>(command(request) + 1)
        + bytesOf<quint16>(quint16(payload.size())) + request.mid(6, 2) + payload;
}
