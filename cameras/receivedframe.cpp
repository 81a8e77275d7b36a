// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "receivedframe_p.h"

#include <limits>
#include <utility>

namespace Cameras {

namespace {

constexpr size_t mostSpare = 4;
constexpr qint64 mostPixels = std::numeric_limits<qint32>::max();
constexpr int bitsPerByte = 8;

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

// Who has copied the bytes keeps them.
void FrameMemory::giveBack(QByteArray bytes)
{
    const std::lock_guard lock(m_mutex);
    if (bytes.isDetached() && m_spare.size() < mostSpare) {
        m_spare.push_back(std::move(bytes));
    }
}

} // namespace Cameras
