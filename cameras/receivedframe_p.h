// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>
#include <cameras/frame.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QtGlobal>

#include <memory>
#include <mutex>
#include <vector>

namespace Cameras {

/*! \brief Makes frames of what came, whatever the camera says of it. */
class ZELTO_CAMERAS_EXPORT ReceivedFrame
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::ReceivedFrame)

public:
    /*! Sets the size of \a frame, whose format and bytes are set. An image that cannot be has no size then,
     * and one that is too short is marked as incomplete.
     *
     * \param padding bytes after each line
     */
    static void setSize(Frame &frame, qint64 width, qint64 height, qint64 padding = 0);

    /*! Returns the bytes of an image of \a width x \a height pixels. */
    static qint64 sizeOf(qint64 width, qint64 height, PixelFormat format);
};

/*! \brief Memory for the bytes of frames, which comes back when the last reader leaves a frame.
 *
 * Usable on any thread.
 */
class FrameMemory : public std::enable_shared_from_this<FrameMemory>
{
public:
    /*! What is in the memory that is handed out: anything, or zeros. */
    enum class Contents { Any, Zeros };

    explicit FrameMemory(Contents contents);

    /*! Returns \a size bytes, unshared. */
    QByteArray take(qsizetype size);
    /*! Returns \a frame for readers. */
    FramePointer shared(Frame frame);

private:
    void giveBack(QByteArray bytes);
    void keep(QByteArray bytes);

    const Contents m_contents;
    std::mutex m_mutex;
    std::vector<QByteArray> m_spare;
};

} // namespace Cameras
