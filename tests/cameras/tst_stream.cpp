// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/aravis_p.h>
#include <cameras/camera.h>
#include <cameras/pixelformat.h>
#include <cameras/stream.h>

#include <platform/parametercollection/iparameter.h>

#include <support/playedcamera.h>
#include <support/table.h>

#include "descriptiontext.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>
#include <QUdpSocket>
#include <QtEndian>

#include <cmath>
#include <cstdlib>

using namespace ParameterCollection;
using namespace Cameras;

namespace {

// A bit after the other, as the convention counts them.
unsigned bitsAt(const QByteArray &bytes, qint64 first, int count)
{
    unsigned value = 0;
    for (int i = 0; i < count; ++i) {
        const qint64 bit = first + i;
        value |= (uchar(bytes.at(bit / 8)) >> (bit % 8) & 1U) << i;
    }
    return value;
}

// The values of a frame of one value per pixel, by the letters of the format's name.
QList<unsigned> valuesOf(const Frame &frame)
{
    const QString name = pixelFormatName(frame.pixelFormat);
    const QString digits = QString(name).remove("p").remove("Packed").right(2);
    const int bits = digits.endsWith('8') ? 8 : digits.toInt();
    QList<unsigned> values;
    for (qint64 i = 0; i < qint64(frame.width) * frame.height; ++i) {
        if (name.endsWith("Packed")) {
            const qint64 group = i / 2 * 24;
            const bool isFirst = i % 2 == 0;
            values += bitsAt(frame.bytes, group + (isFirst ? 0 : 16), 8) << (bits - 8)
                | bitsAt(frame.bytes, group + (isFirst ? 8 : 12), bits - 8);
        } else {
            values += bitsAt(frame.bytes, i * bitsPerPixel(frame.pixelFormat), bits);
        }
    }
    return values;
}

double meanOf(const Frame &frame)
{
    double sum = 0;
    for (const char byte : frame.bytes) {
        sum += uchar(byte);
    }
    return sum / double(frame.bytes.size());
}

} // namespace

/*! \brief The images of simulated cameras. */
class TestStream : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsAndStops();
    void locksTheFormat();
    void formats_data();
    void formats();
    void answersToFeatures();
    void slowReaderGetsTheNewest();
    void triggersBySoftware();
    void endsAfterTheImagesAskedFor();
    void manyStartsAndStops();
    void impossibleImages_data();
    void impossibleImages();
    void hugeImageHoldsNobodyUp();
    void closesAtOnce();
    void liveCamera();
    void liveCameraIsLost();
    void badFrames_data();
    void badFrames();

private:
    void write(const char *name, const QString &text) const;
    FramePointer next() const;

    std::unique_ptr<Camera> m_camera;
    Stream *m_stream = nullptr;
    mutable quint64 m_seen = 0; // frames that had come when one was looked for
};

void TestStream::init()
{
    m_camera = Camera::openEmbedded();
    m_stream = m_camera->stream();
    write("Width", "128");
    write("Height", "96");
}

void TestStream::write(const char *name, const QString &text) const
{
    m_camera->nodeMaps().first().collection->parameter(name)->setValueFromString(text);
}

// A frame that was exposed from now on; an empty one when none comes.
FramePointer TestStream::next() const
{
    FramePointer frame;
    for (int taken = 0; taken < 3;) {
        frame = m_stream->takeNewest();
        taken += frame ? 1 : 0;
        if (!frame && !QTest::qWaitFor([this] { return m_stream->statistics().complete != m_seen; }, 5000)) {
            return std::make_shared<const Frame>();
        }
        m_seen = m_stream->statistics().complete;
    }
    return frame;
}

void TestStream::startsAndStops()
{
    QSignalSpy started(m_stream, SIGNAL(started()));
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    QSignalSpy arrived(m_stream, SIGNAL(frameArrived()));
    QVERIFY(!m_stream->isRunning());
    m_stream->start();
    QVERIFY(m_stream->isRunning());
    QVERIFY(arrived.wait());
    QCOMPARE(started.size(), 1);
    const FramePointer frame = m_stream->takeNewest();
    QVERIFY(frame && frame->isComplete());
    QCOMPARE(frame->width, 128);
    QCOMPARE(frame->height, 96);
    QCOMPARE(frame->stride, 128);
    QCOMPARE(frame->bytes.size(), 128 * 96);
    QCOMPARE(pixelFormatName(frame->pixelFormat), "Mono8");
    const FramePointer later = next();
    QVERIFY(later->number > frame->number && later->cameraTime > frame->cameraTime);
    QTRY_VERIFY(m_stream->statistics().framesPerSecond > 10);
    m_stream->stop();
    QVERIFY(!m_stream->isRunning());
    QVERIFY(stopped.wait());
    QCOMPARE(stopped.first().first().toString(), QString());
    m_stream->takeNewest();
    const auto statistics = m_stream->statistics();
    arrived.clear();
    QVERIFY(!arrived.wait(200));
    QCOMPARE(m_stream->statistics().complete, statistics.complete);
    QCOMPARE(m_stream->statistics().framesPerSecond, statistics.framesPerSecond);
}

void TestStream::locksTheFormat()
{
    const auto collection = m_camera->nodeMaps().first().collection;
    const auto isWritable = [&](const char *name) { return collection->parameter(name)->isWritableNow(); };
    m_stream->start();
    for (const char *const name : {"Width", "PixelFormat", "BinningHorizontal", "UserSetLoad"}) {
        QTRY_VERIFY2(!isWritable(name), name);
    }
    QVERIFY(isWritable("OffsetX") && isWritable("ExposureTime"));
    m_stream->stop();
    QTRY_VERIFY(isWritable("Width") && isWritable("PixelFormat") && isWritable("UserSetLoad"));
}

void TestStream::formats_data()
{
    QTest::addColumn<QString>("format");
    for (const PixelFormat format : knownPixelFormats()) {
        QTest::newRow(qPrintable(pixelFormatName(format))) << pixelFormatName(format);
    }
}

// A ramp holds each value exactly.
void TestStream::formats()
{
    QFETCH(QString, format);
    write("PixelFormat", format);
    write("TestPattern", "GreyHorizontalRamp");
    m_stream->start();
    const FramePointer frame = next();
    QVERIFY2(frame->isComplete(), qPrintable(frame->missing));
    QCOMPARE(pixelFormatName(frame->pixelFormat), format);
    QCOMPARE(frame->bytes.size(), frame->stride * frame->height);
    QCOMPARE(m_camera->nodeMaps().first().collection->parameter("PayloadSize")->parameterData()->valueString,
             QString::number(frame->bytes.size()));
    const auto ramp = [&](int x, unsigned maximum) { return unsigned(x) * maximum / 127; };
    const auto byteAt = [&](int x, int place) {
        return uchar(frame->bytes.at(5 * frame->stride + x * bitsPerPixel(frame->pixelFormat) / 8 + place));
    };
    if (format.contains("422")) {
        const bool isLimited = format.contains("601") || format.contains("709");
        const bool isYFirst = !format.endsWith('Y');
        for (int x = 0; x < frame->width; ++x) {
            const double grey = ramp(x, 255);
            const double y = isLimited ? 16 + grey * 219 / 255 : grey;
            QVERIFY(std::abs(byteAt(x, isYFirst ? 0 : 1) - y) <= 0.51);
            QVERIFY(std::abs(byteAt(x, isYFirst ? 1 : 0) - 128) <= 1);
        }
    } else if (format.startsWith("RGB") || format.startsWith("BGR")) {
        for (int x = 0; x < frame->width; ++x) {
            QCOMPARE(byteAt(x, 0), ramp(x, 255));
            QCOMPARE(byteAt(x, 2), ramp(x, 255));
        }
    } else {
        const QList<unsigned> values = valuesOf(*frame);
        const unsigned maximum = values[127];
        QVERIFY(maximum == 255 || maximum == 1023 || maximum == 4095 || maximum == 16383 || maximum == 65535);
        QCOMPARE(m_camera->nodeMaps()
                     .first()
                     .collection->parameter("PixelDynamicRangeMax")
                     ->parameterData()
                     ->valueString,
                 QString::number(maximum));
        for (qsizetype i = 0; i < values.size(); ++i) {
            QCOMPARE(values[i], ramp(int(i % 128), maximum));
        }
    }
}

void TestStream::answersToFeatures()
{
    m_stream->start();
    const double mean = meanOf(*next());
    QVERIFY2(mean > 40 && mean < 200, qPrintable(QString::number(mean)));
    write("ExposureTime", "2500");
    const FramePointer darker = next();
    QVERIFY2(std::abs(meanOf(*darker) / mean - 0.5) < 0.05,
             qPrintable(QString::number(meanOf(*darker) / mean)));
    // Other stages of the gain are heard although they are not selected.
    write("GainSelector", "DigitalAll");
    write("Gain", "12");
    write("GainSelector", "All");
    QVERIFY(std::abs(meanOf(*next()) / meanOf(*darker) - 2) < 0.2);
    write("Gain", "24");
    QVERIFY(next()->bytes.count(char(255)) > 128 * 96 / 4); // saturated
    write("GainSelector", "DigitalAll");
    QVERIFY(next()->bytes.count(char(255)) > 128 * 96 / 4);
    write("GainSelector", "All");
    write("Gain", "0");
    write("ExposureTime", "10");
    const double dark = meanOf(*next());
    write("BlackLevel", "10");
    const double raised = meanOf(*next()) - dark;
    QVERIFY2(raised > 9 && raised < 11, qPrintable(QString::number(raised)));

    // What remains the same in two frames is the scene; the rest is noise.
    write("ExposureTime", "5000");
    const FramePointer one = next();
    const FramePointer two = next();
    QVERIFY(one->bytes != two->bytes);
    write("ReverseX", "true");
    const FramePointer reversed = next();
    const auto difference = [&](const Frame &other, bool isReversed) {
        qint64 sum = 0;
        for (int y = 48; y < 96; ++y) {
            for (int x = 0; x < 128; ++x) {
                const int from = isReversed ? 127 - x : x;
                sum += std::abs(uchar(one->bytes[y * 128 + x]) - uchar(other.bytes[y * 128 + from]));
            }
        }
        return double(sum) / (48 * 128);
    };
    QVERIFY(difference(*two, false) < 12);
    QVERIFY(difference(*reversed, true) < 12);
    write("ReverseX", "false");
    write("OffsetX", "2000");
    QVERIFY(difference(*next(), false) > 12);
}

void TestStream::slowReaderGetsTheNewest()
{
    write("AcquisitionFrameRateEnable", "true");
    write("AcquisitionFrameRate", "100");
    QSignalSpy arrived(m_stream, SIGNAL(frameArrived()));
    m_stream->start();
    QTRY_VERIFY(m_stream->statistics().complete > 20);
    QCOMPARE(arrived.size(), 1);
    const auto statistics = m_stream->statistics();
    const FramePointer frame = m_stream->takeNewest();
    QVERIFY(frame->number >= statistics.complete);
    QVERIFY(statistics.dropped == statistics.complete - 1);
    const double rate = m_stream->statistics().framesPerSecond;
    QVERIFY2(rate > 60 && rate < 110, qPrintable(QString::number(rate)));
}

void TestStream::triggersBySoftware()
{
    write("TriggerMode", "On");
    const auto collection = m_camera->nodeMaps().first().collection;
    const auto software =
        qSharedPointerObjectCast<ICommandParameter>(collection->parameter("TriggerSoftware"));
    QSignalSpy started(m_stream, SIGNAL(started()));
    m_stream->start();
    QVERIFY(started.wait());
    QTest::qWait(200);
    QCOMPARE(m_stream->statistics().complete, 0U);
    for (quint64 shot = 1; shot <= 3; ++shot) {
        software->execute(true);
        QTRY_COMPARE(m_stream->statistics().complete, shot);
        QTest::qWait(50);
        QCOMPARE(m_stream->statistics().complete, shot);
    }
    write("TriggerSource", "Line0");
    software->execute(true);
    QTest::qWait(100);
    QCOMPARE(m_stream->statistics().complete, 3U);
    // Another trigger is looked at, and the one that is waited for stays on.
    write("TriggerSelector", "LineStart");
    QTest::qWait(100);
    QCOMPARE(m_stream->statistics().complete, 3U);
}

void TestStream::endsAfterTheImagesAskedFor()
{
    write("AcquisitionMode", "MultiFrame");
    write("AcquisitionFrameCount", "3");
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    m_stream->start();
    QVERIFY(stopped.wait());
    QVERIFY(stopped.first().first().toString().contains("AcquisitionMode"));
    QVERIFY(!m_stream->isRunning());
    QCOMPARE(m_stream->statistics().complete, 3U);
    QCOMPARE(m_stream->takeNewest()->number, 3U);
}

void TestStream::manyStartsAndStops()
{
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    QElapsedTimer timer;
    timer.start();
    constexpr int cycles = 100;
    for (int i = 0; i < cycles; ++i) {
        m_stream->start();
        QTest::qWait(i % 3 * 2);
        m_stream->stop();
    }
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QTRY_COMPARE(stopped.size(), cycles);
    m_stream->start();
    QVERIFY(next()->isComplete());
}

void TestStream::impossibleImages_data()
{
    columns<QString, QString, QString>({"width", "format", "reason"});
    row("no pixels", QString("0"), QString("Mono8"), QString("0 x 5"));
    row("too many", QString("2147483648"), QString("Mono8"), QString("2147483648 x 5"));
    row("unknown format", QString("8"), QString("RGB10p32"), QString("RGB10p32"));
}

void TestStream::impossibleImages()
{
    QFETCH(QString, width);
    QFETCH(QString, format);
    QFETCH(QString, reason);
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("<?xml version=\"1.0\"?><RegisterDescription ModelName=\"M\" VendorName=\"V\" "
               "SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\">"
               "<Category Name=\"Root\"><pFeature>Width</pFeature><pFeature>Height</pFeature>"
               "<pFeature>PixelFormat</pFeature></Category><Integer Name=\"Width\"><Value>"
               + width.toLatin1()
               + "</Value></Integer><Integer Name=\"Height\"><Value>5</Value></Integer>"
                 "<Enumeration Name=\"PixelFormat\"><EnumEntry Name=\""
               + format.toLatin1()
               + "\"><Value>1</Value></EnumEntry><Value>1</Value></Enumeration>"
                 "<Port Name=\"Device\"/></RegisterDescription>");
    file.close();
    m_camera = Camera::openDescription(file.fileName());
    m_stream = m_camera->stream();
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    m_stream->start();
    QVERIFY(stopped.wait());
    QVERIFY2(stopped.first().first().toString().contains(reason),
             qPrintable(stopped.first().first().toString()));
    QTest::qWait(100);
    QCOMPARE(stopped.size(), 1);
}

// Painting it takes seconds in a debug build; who stops and writes meanwhile does not wait for that.
void TestStream::hugeImageHoldsNobodyUp()
{
    write("Width", "5320");
    write("Height", "3032");
    write("PixelFormat", "RGB8");
    QElapsedTimer timer;
    for (int i = 0; i < 3; ++i) {
        m_stream->start();
        QTest::qWait(100);
        timer.start();
        m_stream->stop();
        write("ExposureTime", QString::number(1000 + i));
        QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    }
    QVERIFY(!m_camera->isLost());
}

void TestStream::closesAtOnce()
{
    write("ExposureTime", "10000000");
    m_stream->start();
    QTest::qWait(100);
    const FramePointer kept = [this] {
        write("ExposureTime", "10");
        return next();
    }();
    const QByteArray bytes = kept->bytes;
    QElapsedTimer timer;
    timer.start();
    m_camera.reset();
    QVERIFY(timer.elapsed() < 500);
    QCOMPARE(kept->bytes, bytes);
}

/* The engine's own GigE Vision server on the loopback interface. */
struct Server
{
    ~Server() { g_clear_object(&server); }

    bool isRunning() const { return server && arv_gv_fake_camera_is_running(server); }

    ArvGvFakeCamera *server = arv_gv_fake_camera_new("127.0.0.1", "ZSTREAM");
};

void TestStream::liveCamera()
{
    const Server server;
    if (!server.isRunning()) {
        QSKIP("No GigE Vision server can be started on the loopback interface");
    }
    // Left sending by a program that crashed.
    arv_fake_camera_write_register(arv_gv_fake_camera_get_fake_camera(server.server),
                                   ARV_FAKE_CAMERA_REGISTER_ACQUISITION, 1);
    m_camera = Camera::openLive("127.0.0.1");
    m_stream = m_camera->stream();
    write("Width", "320");
    write("Height", "200");
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    for (int cycle = 0; cycle < 5; ++cycle) {
        m_stream->start();
        const FramePointer frame = next();
        QCOMPARE(frame->missing, QString());
        QCOMPARE(frame->width, 320);
        QCOMPARE(frame->height, 200);
        QCOMPARE(pixelFormatName(frame->pixelFormat), "Mono8");
        QCOMPARE(frame->bytes.size(), 320 * 200);
        QVERIFY(next()->bytes != frame->bytes);
        m_stream->stop();
        QTRY_COMPARE(stopped.size(), cycle + 1);
        QCOMPARE(stopped.last().first().toString(), QString());
        QCOMPARE(arv_fake_camera_get_acquisition_status(arv_gv_fake_camera_get_fake_camera(server.server)),
                 0U);
    }
}

void TestStream::liveCameraIsLost()
{
    auto server = std::make_unique<Server>();
    if (!server->isRunning()) {
        QSKIP("No GigE Vision server can be started on the loopback interface");
    }
    m_camera = Camera::openLive("127.0.0.1");
    m_stream = m_camera->stream();
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    m_stream->start();
    QVERIFY(next()->isComplete());
    server.reset();
    QVERIFY(stopped.wait(10000));
    QCOMPARE(stopped.first().first().toString(), "The camera at 127.0.0.1 does not answer.");
    QVERIFY(m_camera->isLost() && !m_stream->isRunning());
    m_stream->start();
    QTRY_COMPARE(stopped.size(), 2);

    server = std::make_unique<Server>();
    m_camera = Camera::openLive("127.0.0.1");
    m_stream = m_camera->stream();
    m_stream->start();
    QVERIFY(next()->isComplete());
    QElapsedTimer timer;
    timer.start();
    m_camera.reset();
    QVERIFY(timer.elapsed() < 500);
    QTRY_COMPARE_WITH_TIMEOUT(
        arv_fake_camera_get_acquisition_status(arv_gv_fake_camera_get_fake_camera(server->server)), 0U, 1000);
}

/* A part of a payload that has several; it fits into a packet. */
struct SentPart
{
    quint16 type = 1; // an image
    quint32 width = 64;
    quint32 height = 48;
};

/* What a camera sends of an image: all numbers as they stand in its first packet. */
struct SentImage
{
    quint32 format = 0x01080001;
    quint32 width = 64;
    quint32 height = 48;
    int bytes = 64 * 48; // that are sent
    quint16 payloadType = 1;
    int lost = -1; // the packet that is not sent
    QList<SentPart> parts{}; // in place of a single image
};
Q_DECLARE_METATYPE(SentImage)

/* Sends images to the port that the engine has told the camera. */
class Sender
{
public:
    explicit Sender(quint16 port)
        : m_port(port)
    {
    }

    void send(const SentImage &image)
    {
        constexpr int packetSize = 1500 - 36; // without headers
        ++m_block;
        if (!image.parts.isEmpty()) {
            sendParts(image.parts);
            return;
        }
        packet(1, 0,
               number<quint16>(0) + number(image.payloadType) + number<quint64>(m_block * 1000)
                   + number(image.format) + number(image.width) + number(image.height)
                   + QByteArray(12, '\0'));
        int id = 1;
        for (int sent = 0; sent < image.bytes; sent += packetSize, ++id) {
            if (id != image.lost) {
                packet(3, id, QByteArray(qMin(packetSize, image.bytes - sent), char(m_block)));
            }
        }
        packet(2, id, number<quint16>(0) + number(image.payloadType) + number(image.height));
    }

private:
    void sendParts(const QList<SentPart> &parts)
    {
        constexpr quint16 manyParts = 10;
        QByteArray leader = number<quint16>(0) + number(manyParts) + number<quint64>(m_block * 1000);
        for (const SentPart &part : parts) {
            leader += number(part.type) + number<quint16>(0) + number(part.width * part.height)
                + number<quint32>(0x01080001) + QByteArray(12, '\0') + number(part.width)
                + number(part.height) + QByteArray(16, '\0');
        }
        longPacket(1, int(parts.size()), 0, leader);
        int id = 1;
        int first = 0; // byte of the part
        for (const SentPart &part : parts) {
            const int size = int(part.width * part.height);
            longPacket(7, 0, id,
                       number(quint8(id - 1)) + number<quint8>(0) + number<quint16>(0)
                           + number(quint32(first)) + QByteArray(size, part.type == 1 ? char(m_block) : 'x'));
            first += size;
            ++id;
        }
        longPacket(2, 0, id, number<quint16>(0) + number(manyParts));
    }

    template <typename Number>
    static QByteArray number(Number value)
    {
        const Number bigEndian = qToBigEndian(value);
        return {reinterpret_cast<const char *>(&bigEndian), sizeof(bigEndian)};
    }

    void packet(int kind, int id, const QByteArray &contents)
    {
        m_socket.writeDatagram(number<quint16>(0) + number(m_block) + number(quint32(kind << 24 | id))
                                   + contents,
                               QHostAddress::LocalHost, m_port);
    }

    // With the longer numbers that several parts need.
    void longPacket(int kind, int parts, int id, const QByteArray &contents)
    {
        m_socket.writeDatagram(number<quint32>(0) + number(0x80000000U | quint32(kind) << 24 | quint32(parts))
                                   + number<quint64>(m_block) + number(quint32(id)) + contents,
                               QHostAddress::LocalHost, m_port);
    }

    QUdpSocket m_socket;
    quint16 m_port;
    quint16 m_block = 0;
};

void TestStream::badFrames_data()
{
    columns<SentImage, QSize, QString>({"image", "size", "missing"});
    const QSize whole(64, 48);
    row("good", SentImage(), whole, QString());
    row("smaller from now on", SentImage{.width = 32, .bytes = 32 * 48}, QSize(32, 48), QString());
    row("another format", SentImage{.format = 0x01100007, .height = 24}, QSize(64, 24), QString());
    row("unknown format", SentImage{.format = 0x01081234}, whole, QString());
    row("chunks", SentImage{.payloadType = 0x4001}, whole, QString());
    row("too short", SentImage{.bytes = 1500}, whole, QString("missing"));
    row("a packet is lost", SentImage{.lost = 2}, whole, QString("missing"));
    row("larger than told", SentImage{.height = 96, .bytes = 64 * 96}, QSize(64, 96),
        QString("3072 of 6144 bytes"));
    row("no pixels", SentImage{.width = 0}, QSize(0, 0), QString("0 x 48"));
    row("too many pixels", SentImage{.width = 0x8000, .height = 0x10000}, QSize(0, 0),
        QString("32768 x 65536"));
    row("far too many pixels", SentImage{.width = 0xffffffff, .height = 0xffffffff}, QSize(0, 0),
        QString("4294967295"));
    row("no image", SentImage{.payloadType = 4}, QSize(0, 0), QString("no image"));
    const SentPart chunk{.type = 11, .width = 8, .height = 8};
    row("an image among parts", SentImage{.bytes = 32 * 16, .parts = {chunk, {.width = 32, .height = 16}}},
        QSize(32, 16), QString());
    row("several images",
        SentImage{.bytes = 8 * 8, .parts = {{.width = 8, .height = 8}, {.width = 32, .height = 16}}},
        QSize(8, 8), QString());
    row("no image among parts", SentImage{.parts = {chunk, chunk}}, QSize(0, 0), QString("no image"));
}

void TestStream::badFrames()
{
    QFETCH(SentImage, image);
    QFETCH(QSize, size);
    QFETCH(QString, missing);
    PlayedCamera camera("ZPLAYED",
                        description(root("Width Height PayloadSize AcquisitionStart")
                                    + integerRegister("Width", "0x8000") + integerRegister("Height", "0x8004")
                                    + "<Integer Name=\"PayloadSize\"><Value>3072</Value></Integer>"
                                      "<Integer Name=\"TLParamsLocked\"><Value>0</Value></Integer>"
                                      "<Command Name=\"AcquisitionStart\"><pValue>StartReg</pValue>"
                                      "<CommandValue>1</CommandValue></Command>"
                                    + integerRegister("StartReg", "0x8010")));
    if (!camera.isRunning()) {
        QSKIP("The port of GigE Vision is in use");
    }
    m_camera = Camera::openLive("127.0.0.1");
    m_stream = m_camera->stream();
    m_stream->start();
    QSignalSpy stopped(m_stream, SIGNAL(stopped(QString)));
    QTRY_VERIFY2(camera.value(0x8010) == 1,
                 qPrintable(stopped.isEmpty() ? "silent" : stopped.first().first().toString()));
    Sender sender(quint16(camera.value(0x0d00)));
    const auto sent = [&](const SentImage &next) {
        FramePointer frame;
        sender.send(next);
        const bool came = QTest::qWaitFor([&] { return (frame = m_stream->takeNewest()) != nullptr; }, 3000);
        return came ? frame : std::make_shared<const Frame>();
    };
    // Memory is used again in time.
    for (int i = 0; i < (image.lost < 0 ? 1 : 20); ++i) {
        QVERIFY2(sent({})->isComplete(), "the first ones");
    }
    const FramePointer frame = sent(image);
    QVERIFY2(QSize(frame->width, frame->height) == size, qPrintable(frame->missing));
    QVERIFY2(missing.isEmpty() ? frame->isComplete() : frame->missing.contains(missing),
             qPrintable(frame->missing));
    QCOMPARE(frame->remark.contains("Chunk"), image.payloadType == 0x4001);
    QCOMPARE(frame->remark.contains("2 parts"), frame->isComplete() && !image.parts.isEmpty());
    if (image.lost > 0) {
        QCOMPARE(frame->bytes.count('\0'), 1464); // nothing of an earlier image
    }
    if (frame->isComplete()) {
        QCOMPARE(frame->pixelFormat.code, image.format);
        QCOMPARE(frame->bytes, QByteArray(image.bytes, '\2'));
    }
    const FramePointer after = sent({});
    QVERIFY2(after->isComplete() && after->width == 64, qPrintable(after->missing));
    m_camera.reset();
    QTRY_COMPARE(camera.value(0x0a00), 0U); // given back
}

QTEST_GUILESS_MAIN(TestStream)
#include "tst_stream.moc"
