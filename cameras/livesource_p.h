// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "framesource_p.h"
#include "receivedframe_p.h"

#include <QCoreApplication>

#include <memory>

using ArvBuffer = struct _ArvBuffer;
using ArvStream = struct _ArvStream;

namespace Cameras {

class Description;

/*! \brief The images of a live camera, over the engine's stream. */
class LiveSource : public FrameSource
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::LiveSource)

public:
    LiveSource(Engine &engine, std::shared_ptr<const Description> description, FrameSink sink);
    ~LiveSource() override;

protected:
    void prepare() override;

private:
    struct Shape
    {
        PixelFormat format;
        qint64 width = 0;
        qint64 height = 0;
        qint64 padding = 0;
    };

    void endFormer();
    qint64 payloadSize() const;
    Shape featuredShape() const;
    void pushBuffer();
    static void onEvent(void *source, int event, ArvBuffer *buffer);
    void receive();
    Frame frameOf(ArvBuffer *buffer);
    void readPart(ArvBuffer *buffer, Frame &frame);
    QString missingOf(ArvBuffer *buffer);

    std::shared_ptr<const Description> m_description;
    FrameSink m_sink;
    std::shared_ptr<FrameMemory> m_memory = std::make_shared<FrameMemory>(FrameMemory::Contents::Zeros);
    ArvStream *m_stream = nullptr;
    qint64 m_payloadSize = 0;
    qint64 m_framesLeft = -1; //!< until the camera ends by itself, less than 0 where it does not
    Shape m_shape; //!< of the image that came last
    quint64 m_missingPackets = 0; //!< of the stream, so far
};

} // namespace Cameras
