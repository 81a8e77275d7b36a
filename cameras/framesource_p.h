// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "engine_p.h"
#include "framemailbox_p.h"

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <utility>

namespace Cameras {

/*! \brief Where the frames of one run of a stream go. */
struct FrameSink
{
    std::shared_ptr<FrameMailbox> mailbox;
    quint64 run = 0;
    std::function<void(const QString &)> end; //!< ends the run from any thread, for a reason

    void deliver(FramePointer frame) const { mailbox->deliver(run, std::move(frame)); }
};

/*! \brief What brings the images of an open camera for one run of its stream.
 *
 * Used on the camera's worker thread; brings frames on a thread of its own, until it is destroyed.
 */
class FrameSource
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::FrameSource)

public:
    virtual ~FrameSource();
    Q_DISABLE_COPY_MOVE(FrameSource)

    /*! Has the camera send images, in the order that the standard asks for. Throws when it cannot. */
    void start();
    /*! Has it end that. */
    void stop();

    /*! Tells that \a node was written. */
    virtual void noteWrite(int node);

    /*! Returns the sentence for a camera that has sent all images that were asked for. */
    static QString framesSentWords();

protected:
    explicit FrameSource(Engine &engine);

    /*! Makes ready to receive. Throws when that is impossible. */
    virtual void prepare() = 0;
    Engine &engine() const { return m_engine; }

private:
    void lock(bool isLocked);

    Engine &m_engine;
};

} // namespace Cameras
