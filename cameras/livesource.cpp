// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "livesource_p.h"

#include "aravis_p.h"
#include "enginefailure_p.h"
#include "simulatedsettings_p.h"

#include <platform/core/exception.h>

#include <QDateTime>

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

#include <sys/resource.h>

using Core::Exception::BaseException;

namespace Cameras {

namespace {

constexpr qint64 memoryOfBuffers = 256 * 1024 * 1024; // shared by all buffers, unless they are huge
constexpr qint64 fewestBuffers = 4;
constexpr qint64 mostBuffers = 16;
constexpr int receivingPriority = -10; // packets that nobody fetches in time are lost

/*! \brief Keeps the memory of a buffer as long as the engine has it. */
struct Carrier
{
    QByteArray bytes;
};

Carrier *carrierOf(ArvBuffer *buffer)
{
    return static_cast<Carrier *>(const_cast<void *>(arv_buffer_get_user_data(buffer)));
}

// The part that can be shown, -1 when there is none.
int imagePart(ArvBuffer *buffer)
{
    const int count = int(arv_buffer_get_n_parts(buffer));
    for (int part = 0; part < count; ++part) {
        if (arv_buffer_get_part_data_type(buffer, guint(part)) == ARV_BUFFER_PART_DATA_TYPE_2D_IMAGE) {
            return part;
        }
    }
    return count == 1 ? 0 : -1;
}

} // namespace

LiveSource::LiveSource(Engine &engine, std::shared_ptr<const Description> description, FrameSink sink)
    : FrameSource(engine)
    , m_description(std::move(description))
    , m_sink(std::move(sink))
{
}

LiveSource::~LiveSource()
{
    if (m_stream) {
        g_object_unref(m_stream); // waits for the engine's thread, which receives until then
    }
}

qint64 LiveSource::payloadSize() const
{
    const auto size = engine().integer(QStringLiteral("PayloadSize"));
    if (!size) {
        throw BaseException(tr("the camera does not tell how large they are (PayloadSize)"));
    }
    if (*size <= 0 || *size > std::numeric_limits<qint32>::max()) {
        throw BaseException(tr("the camera tells that they have %1 bytes (PayloadSize)").arg(*size));
    }
    return *size;
}

LiveSource::Shape LiveSource::featuredShape() const
{
    const auto feature = [this](const char *name) {
        return engine().integer(QLatin1String(name)).value_or(0);
    };
    return {{quint32(feature("PixelFormat"))}, feature("Width"), feature("Height")};
}

// A camera that was left sending, by a program that crashed or a connection that was cut, would send on
// there.
void LiveSource::endFormer()
{
    try {
        engine().executeNamed(QStringLiteral("AcquisitionStop"));
    } catch (const std::exception &) {
        // It has none, or does not send.
    }
}

void LiveSource::prepare()
{
    endFormer();
    m_shape = featuredShape();
    m_payloadSize = payloadSize();
    m_framesLeft = framesAskedFor(engine(), *m_description);
    GError *error = nullptr;
    m_stream = arv_device_create_stream(
        engine().device(),
        [](void *source, ArvStreamCallbackType event, ArvBuffer *buffer) { onEvent(source, event, buffer); },
        this, &error);
    if (!m_stream) {
        const QString reason = error ? EngineFailure::words(*error) : tr("the camera has no stream");
        g_clear_error(&error);
        throw BaseException(reason);
    }
    g_clear_error(&error);
    const qint64 count = std::clamp(memoryOfBuffers / m_payloadSize, fewestBuffers, mostBuffers);
    for (qint64 i = 0; i < count; ++i) {
        pushBuffer();
    }
}

void LiveSource::pushBuffer()
{
    auto *const carrier = new Carrier{m_memory->take(m_payloadSize)};
    arv_stream_push_buffer(m_stream,
                           arv_buffer_new_full(size_t(m_payloadSize), carrier->bytes.data(), carrier,
                                               [](void *done) { delete static_cast<Carrier *>(done); }));
}

void LiveSource::onEvent(void *source, int event, ArvBuffer *buffer)
{
    if (event == ARV_STREAM_CALLBACK_TYPE_INIT) {
        setpriority(PRIO_PROCESS, 0, receivingPriority); // of this thread; as far as the user may
    }
    if (event == ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE && buffer) {
        static_cast<LiveSource *>(source)->receive();
    }
}

// On the engine's thread.
void LiveSource::receive()
{
    ArvBuffer *const buffer = arv_stream_try_pop_buffer(m_stream);
    if (!buffer) {
        return;
    }
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    if (status == ARV_BUFFER_STATUS_CLEARED || status == ARV_BUFFER_STATUS_ABORTED) {
        arv_stream_push_buffer(m_stream, buffer); // nothing came, the stream is ending
        return;
    }
    m_sink.deliver(m_memory->shared(frameOf(buffer)));
    g_object_unref(buffer);
    pushBuffer();
    if (m_framesLeft > 0 && --m_framesLeft == 0) {
        m_sink.end(framesSentWords());
    }
}

Frame LiveSource::frameOf(ArvBuffer *buffer)
{
    Frame frame;
    frame.arrival = QDateTime::currentDateTimeUtc();
    frame.number = arv_buffer_get_frame_id(buffer);
    frame.cameraTime = arv_buffer_get_timestamp(buffer);
    frame.missing = missingOf(buffer);
    frame.bytes = std::move(carrierOf(buffer)->bytes);
    // The engine tells nothing of an image that is not whole.
    if (frame.missing.isEmpty()) {
        readPart(buffer, frame);
    }
    if (frame.isComplete() || m_shape.width > 0) {
        frame.pixelFormat = m_shape.format;
        ReceivedFrame::setSize(frame, m_shape.width, m_shape.height, m_shape.padding);
    }
    return frame;
}

void LiveSource::readPart(ArvBuffer *buffer, Frame &frame)
{
    m_shape = {};
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buffer);
    const int place = imagePart(buffer);
    if (place < 0) {
        frame.missing = tr("The payload is of the kind %1 and holds no image.").arg(int(type));
        return;
    }
    const auto part = guint(place);
    if (type == ARV_BUFFER_PAYLOAD_TYPE_MULTIPART) {
        frame.remark = tr("The payload has %1 parts, of which this is number %2.")
                           .arg(arv_buffer_get_n_parts(buffer))
                           .arg(part + 1);
    } else if (arv_buffer_has_chunks(buffer)) {
        frame.remark = tr("Chunk data came with the image.");
    }
    size_t size = 0;
    const auto *data = static_cast<const char *>(arv_buffer_get_part_data(buffer, part, &size));
    const qsizetype offset = data ? data - frame.bytes.constData() : frame.bytes.size();
    if (offset > 0) {
        frame.bytes = frame.bytes.mid(offset, qsizetype(size));
    } else {
        frame.bytes.truncate(qsizetype(std::min(size, size_t(frame.bytes.size()))));
    }
    gint paddingX = 0;
    gint paddingY = 0;
    arv_buffer_get_part_padding(buffer, part, &paddingX, &paddingY);
    // Numbers of 32 bits that the engine takes for signed ones.
    m_shape = {{arv_buffer_get_part_pixel_format(buffer, part)},
               quint32(arv_buffer_get_part_width(buffer, part)),
               quint32(arv_buffer_get_part_height(buffer, part)),
               quint32(paddingX)};
}

QString LiveSource::missingOf(ArvBuffer *buffer)
{
    const quint64 missingPackets =
        ARV_IS_GV_STREAM(m_stream) ? arv_stream_get_info_uint64_by_name(m_stream, "n_missing_packets") : 0;
    const quint64 before = std::exchange(m_missingPackets, missingPackets);
    switch (arv_buffer_get_status(buffer)) {
    case ARV_BUFFER_STATUS_SUCCESS:
        return {};
    case ARV_BUFFER_STATUS_SIZE_MISMATCH:
        return tr("The image is larger than the camera told (PayloadSize).");
    default:
        return missingPackets > before ? tr("Packets are missing: %1.").arg(missingPackets - before)
                                       : tr("A part is missing.");
    }
}

} // namespace Cameras
