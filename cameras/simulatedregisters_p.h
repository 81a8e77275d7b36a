// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "registerimage_p.h"

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>

#include <atomic>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace Cameras {

/*! \brief The register space of a simulated camera: sparse, big-endian, zero where nothing was written.
 *
 * Some registers live on their own when told so by load(). May be used on any thread.
 */
class ZELTO_CAMERAS_EXPORT SimulatedRegisters
{
public:
    SimulatedRegisters();

    /*! Sets registers from lines "address type value [behaviour [argument]]"; "#" begins a comment.
     *
     * Types: i8, i16, i32, i64, f32, f64, str. Behaviours: "drift amplitude" lets a number swing around its
     * value, "clock" counts nanoseconds, "busy milliseconds" keeps what is written for that time before it
     * falls back to the value, "reset" sets all registers back to the loaded contents when written.
     * Throws Core::Exception::BaseException naming a line that is wrong.
     */
    void load(const QByteArray &lines);

    /*! Sets registers from \a image. Throws Core::Exception::BaseException when that would take too much
     * memory. */
    void load(const RegisterImage::Contents &image);

    /*! Copies registers to \a buffer. Returns false when the request is larger than a register can be. */
    bool read(quint64 address, quint32 size, void *buffer);
    /*! Copies \a buffer to registers. Returns false as read() does. */
    bool write(quint64 address, quint32 size, const void *buffer);

    /*! Begins to remember what is overwritten from now on. */
    void beginTrial();
    /*! Returns the bits that are others than when the trial began, by the addresses of their bytes. */
    QHash<quint64, quint8> changedInTrial();
    /*! Ends what beginTrial() began. With \a keep what was written stays, else it is taken back. */
    void endTrial(bool keep);

    /*! Returns whether the register at \a address lives on its own. */
    bool isLiving(quint64 address);

    /*! Lets each access take \a milliseconds, as with a camera that has gone. */
    void setDelay(int milliseconds);
    /*! Returns how many reads there were so far. */
    int readCount() const;

private:
    enum class Behaviour { Drift, Clock, Busy, Reset };

    struct Living
    {
        Behaviour behaviour;
        QByteArray type;
        double value = 0.0;
        double argument = 0.0;
        qint64 writtenAt = -1;
    };

    void loadLine(const QByteArray &line);
    void copy(quint64 address, qsizetype size, char *to) const;
    void store(quint64 address, const QByteArray &bytes);
    void refreshLiving(quint64 address, quint32 size);
    void wait() const;

    std::mutex m_mutex;
    QHash<quint64, QByteArray> m_pages;
    QHash<quint64, QByteArray> m_loadedPages;
    std::vector<quint64> m_newPages; //!< of a trial
    QHash<quint64, Living> m_living;
    std::optional<std::vector<std::pair<quint64, QByteArray>>> m_overwritten; //!< in a trial
    QElapsedTimer m_clock;
    std::atomic_int m_delay{0};
    std::atomic_int m_reads{0};
};

} // namespace Cameras
