// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "cameraaccess_p.h"
#include "camerarecord_p.h"
#include "camerastatus.h"
#include "deviceptr_p.h"
#include "engineturn_p.h"
#include "gigelink_p.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHostAddress>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

namespace Cameras {

/*! \brief The ways to one live camera: with its control, and without it when another program has it.
 *
 * A GigE Vision camera that another program controls is only ever read. Used on the camera's worker thread,
 * except for what is said to be usable everywhere.
 */
class LiveCamera
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::LiveCamera)

public:
    /*! \a onDoubt is called, on any thread, when the engine believes that it lost the control. */
    LiveCamera(const QString &id, EngineTurn::Waiter waiter, std::function<void()> onDoubt);
    ~LiveCamera();
    Q_DISABLE_COPY_MOVE(LiveCamera)

    /*! Returns the state of the camera called \a id, as it was last listed. Usable everywhere. */
    static CameraStatus status(const QString &id);

    /*! Looks where the camera is, and returns that as a text that is the same for all its names. */
    QString locate();
    /*! Connects to the camera that was located: with control, or read-only when another program has it.
     * Throws Core::Exception::BaseException. */
    DevicePtr open();
    /*! Connects with control; throws when another program has it. */
    DevicePtr openControlled();
    /*! Connects without control. What was open with it is left alone from then on. */
    DevicePtr openReadOnly();
    /*! Returns the description that the camera handed out. */
    QByteArray xml() const;
    /*! Returns what the engine's list tells of the camera, or else \a device. */
    CameraRecord::Texts texts(ArvDevice *device) const;
    /*! Returns what the engine's list tells of the reachable cameras. Usable everywhere. */
    static QList<CameraRecord::Texts> list();

    /*! Returns whether what open() or its like returned last was connected with control. */
    bool isOpenedWithControl() const { return m_controlled != nullptr; }
    /*! Returns whether access() is worth being asked again and again. */
    bool isWatchable() const;
    /*! Asks the camera who controls it; \a isDoubtful says that there is a reason to doubt that we do. */
    CameraAccess access(bool isDoubtful);

    /*! Returns whether the camera answers, at once. Usable everywhere once open. */
    bool isAnswering() const;
    /*! Returns the sentence that tells that a camera answers again where this one was lost, empty when none
     * does. Usable everywhere once open. */
    QString newsOfReturn() const;
    /*! Returns the sentence that tells that it does not. Usable everywhere once open. */
    QString silence() const;
    /*! Returns the words for a camera that the program at \a controller holds. */
    static QString heldWords(const QString &controller);

private:
    QHostAddress findAddress() const;
    DevicePtr connected();
    QString unreadableWords() const;
    bool isOurs(const GigeLink::Control &control, bool isDoubtful) const;
    void checkDescription() const;
    QByteArray fetchDescription() const;
    QByteArray fetchHeldDescription() const;
    QByteArray descriptionAt(quint64 urlAddress) const;
    QByteArray readMemory(quint64 address, quint32 size) const;

    QString m_id;
    EngineTurn::Waiter m_waiter;
    std::function<void()> m_onDoubt;
    QHostAddress m_address; // null unless it is a GigE Vision camera
    std::unique_ptr<GigeLink> m_link;
    GigeLink::Identity m_identity;
    QByteArray m_xml;
    ArvDevice *m_controlled = nullptr; // belongs to the engine
};

} // namespace Cameras
