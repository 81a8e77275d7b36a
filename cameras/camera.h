// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "camerastatus.h"

#include <cameras/cameras_export.h>
#include <platform/core/camerainfo.h>
#include <platform/parametercollection/iparametercollection.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <memory>

namespace Cameras {

class CameraFactory;
class CameraOpening;
class Session;
class Stream;

/*! \brief One node map of an open camera, ready to be shown. */
struct NodeMap
{
    QString name; //!< the first part of full names, such as "@CameraDevice"
    QString title; //!< for people
    QSharedPointer<ParameterCollection::IParameterCollection> collection; //!< its parameters
    bool usesUtf8 = true; //!< texts of the node map are UTF-8, else Latin-1
};

/*! \brief How the registers of a description start. */
enum class Start {
    Alive, //!< so that as much as can be is implemented, available, not locked, and has values and limits
    Zeroed, //!< all zero
};

/*! \brief An open camera: live, or a camera description on simulated registers.
 *
 * Register traffic runs on a worker thread of the camera's own; writes are waited for, about a second at
 * most. The collections are handed over with all snapshots read, belong to the thread that opened the camera,
 * and stay safe to use when they outlive it: their snapshots remain, their other operations throw.
 *
 * A camera that another program controls opens read-only: nothing is sent to it that would change anything,
 * all features are locked, and a look is taken every second at whether its control has become free.
 *
 * Opening takes as long as the camera does, seconds if it hangs. A program with a window opens with the
 * functions that return a CameraOpening, see there, and searches with a CameraSearch; the others wait, and
 * throw Core::Exception::BaseException with one line that names the camera or the file and the reason.
 * Closing, by destroying the camera, never waits.
 */
class ZELTO_CAMERAS_EXPORT Camera : public QObject
{
    Q_OBJECT

public:
    ~Camera() override;

    /*! Searches for the live cameras that are reachable now. */
    static QList<Core::CameraPoolComponents::CameraInfoPtr> list();

    /*! Asks the camera called \a id, as list() named it last, for its state. */
    static CameraStatus status(const QString &id);

    /*! Opens the simulated camera that comes with the library. */
    static std::unique_ptr<Camera> openEmbedded();
    /*! As openEmbedded(), and returns at once what opens it. */
    static std::unique_ptr<CameraOpening> openEmbeddedAsync();
    /*! Opens the GenICam description in \a fileName, XML or a zip archive of one, on simulated registers.
     *
     * \param registers a register image, a file as registerImage() has it, that is laid over the start; none
     * when empty
     */
    static std::unique_ptr<Camera> openDescription(const QString &fileName, Start start = Start::Alive,
                                                   const QString &registers = QString());
    /*! As openDescription(), and returns at once what opens it. */
    static std::unique_ptr<CameraOpening> openDescriptionAsync(const QString &fileName,
                                                               Start start = Start::Alive,
                                                               const QString &registers = QString());
    /*! Opens the live camera called \a id, as list() names it. */
    static std::unique_ptr<Camera> openLive(const QString &id);
    /*! As openLive(), and returns at once what opens it. */
    static std::unique_ptr<CameraOpening> openLiveAsync(const QString &id);

    /*! Returns what identifies the camera. */
    Core::CameraPoolComponents::CameraInfoPtr info() const;
    /*! Returns the node maps, in the order in which they are to be shown. */
    QList<NodeMap> nodeMaps() const;

    /*! Returns the camera's images, which are the camera's own; null where it cannot deliver any. */
    Stream *stream() const;

    /*! Returns the registers that the features of the first node map are read from, as a text for
     * openDescription(). Waits for the camera, and throws when it is lost. */
    QByteArray registerImage() const;

    /*! Returns whether the camera has stopped answering; it has to be opened again then. */
    bool isLost() const;

    /*! Returns whether the camera can only be looked at, since we do not control it. */
    bool isReadOnly() const;
    /*! Returns the address of the program that controls a read-only camera, empty where the camera does not
     * tell. */
    QString controller() const;
    /*! Returns whether the camera is read-only although nobody controls it now. */
    bool isControlAvailable() const;

public Q_SLOTS:
    /*! Asks for the control of a read-only camera. Returns at once; accessChanged() or controlRefused() tells
     * what came of it. */
    void takeControl();

Q_SIGNALS:
    /*! The camera has stopped answering, which \a reason says in a sentence. Sent once, on the thread that
     * opened the camera. */
    void lost(const QString &reason);
    /*! A camera answers again where this one was lost, the same or another, which \a news tells in a
     * sentence. This one stays lost: it has to be opened again. */
    void returned(const QString &news);
    /*! isReadOnly(), controller() or isControlAvailable() has changed. */
    void accessChanged();
    /*! Nobody controls the read-only camera any more. */
    void controlAvailable();
    /*! takeControl() failed for \a reason. */
    void controlRefused(const QString &reason);

private Q_SLOTS:
    void reportLoss(const QString &reason);
    void reportReturn(const QString &news);
    void reportAccess();
    void reportRefusal(const QString &reason);

private:
    friend class CameraFactory;

    explicit Camera(std::shared_ptr<Session> session);

    std::shared_ptr<Session> m_session;
    QList<NodeMap> m_nodeMaps;
    std::unique_ptr<Stream> m_stream;
    bool m_wasControlAvailable = false;
};

} // namespace Cameras
