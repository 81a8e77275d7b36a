// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "receivedframe_p.h"

#include "backgroundthreads_p.h"

#include <limits>
#include <utility>

namespace Cameras {

namespace {

constexpr size_t mostSpare = 4;
constexpr qint64 mostPixels = std::numeric_limits<qint32>::max();
constexpr int bitsPerByte = 8;
constexpr qsizetype quicklyCleared = 512 * 1024; // sooner than a thread begins

} // namespace

qint64 ReceivedFrame::sizeOf(qint64 width, qint64 height, PixelFormat format)
{
    return (width * height * bitsPerPixel(format) + bitsPerByte - 1) / bitsPerByte;
}

void ReceivedFrame::setSize(Frame &frame, qint64 width, qint64 height, qint64 padding)
{
    frame.width = frame.height = 0;
    frame.stride = 0;
    if (width <= 0 || height <= 0 || width > mostPixels || height > mostPixels / width || padding < 0
        || padding > mostPixels) {
        if (frame.missing.isEmpty()) {
            frame.missing = tr("The camera tells of an image of %1 x %2 pixels.").arg(width).arg(height);
        }
        return;
    }
    frame.width = int(width);
    frame.height = int(height);
    const qint64 lineBits = width * bitsPerPixel(frame.pixelFormat);
    const bool hasLines = lineBits % bitsPerByte == 0;
    frame.stride = hasLines ? qsizetype(lineBits / bitsPerByte + padding) : 0;
    const qint64 size = hasLines ? frame.stride * height : sizeOf(width, height, frame.pixelFormat);
    if (frame.bytes.size() < size && frame.missing.isEmpty()) {
        frame.missing = tr("%1 of %2 bytes are missing.").arg(size - frame.bytes.size()).arg(size);
    }
}

FrameMemory::FrameMemory(Contents contents)
    : m_contents(contents)
{
}

// Nothing of another program's memory is ever shown where parts of an image are missing.
QByteArray FrameMemory::take(qsizetype size)
{
    const std::lock_guard lock(m_mutex);
    while (!m_spare.empty()) {
        QByteArray bytes = std::exchange(m_spare.back(), {});
        m_spare.pop_back();
        if (bytes.capacity() >= size && bytes.capacity() / 2 <= size) {
            bytes.resize(size);
            return bytes;
        }
    }
    return QByteArray(size, '\0');
}

FramePointer FrameMemory::shared(Frame frame)
{
    auto owned = std::make_unique<Frame>(std::move(frame));
    return FramePointer(owned.release(), [memory = shared_from_this()](const Frame *done) {
        const std::unique_ptr<Frame> ending(const_cast<Frame *>(done)); // made as no constant above
        memory->giveBack(std::move(ending->bytes));
    });
}

// Who has copied the bytes keeps them. Neither who leaves a frame nor who receives the next one, for whom
// each millisecond counts, waits until they are cleared.
void FrameMemory::giveBack(QByteArray bytes)
{
    if (!bytes.isDetached()) {
        return;
    }
    const bool isSmall = bytes.size() <= quicklyCleared;
    if (m_contents == Contents::Zeros && isSmall) {
        bytes.fill('\0', bytes.capacity());
    }
    if (m_contents == Contents::Any || isSmall) {
        keep(std::move(bytes));
        return;
    }
    auto cleared = std::make_shared<QByteArray>(std::move(bytes));
    (void)runInBackground([memory = shared_from_this(), cleared] {
        cleared->fill('\0', cleared->capacity());
        memory->keep(std::move(*cleared));
    });
}

void FrameMemory::keep(QByteArray bytes)
{
    const std::lock_guard lock(m_mutex);
    if (m_spare.size() < mostSpare) {
        m_spare.push_back(std::move(bytes));
    }
}

} // namespace Cameras
