// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QUdpSocket>

using GError = struct _GError;

namespace Cameras {

/*! \brief Reads registers of a GigE Vision camera and never writes one.
 *
 * The engine's own device asks every camera that it opens for its control, and gives the control back at the
 * end, whoever holds it then. This is for cameras that another program controls. Used on one thread.
 */
class GigeLink
{
public:
    enum class Hold {
        NoAnswer,
        Unknown, //!< it answers, and does not tell
        Free,
        Controlled, //!< others may look
        Switchable, //!< as before, and would give its control away
        Exclusive, //!< nobody else may even look
    };

    /*! Who controls a camera. */
    struct Control
    {
        Hold hold = Hold::NoAnswer;
        QHostAddress controller; //!< null where the camera does not tell
    };

    /*! Which camera it is. */
    struct Identity
    {
        QByteArray model; //!< with its maker
        QByteArray serialNumber;

        bool isKnown() const { return !model.isEmpty() || !serialNumber.isEmpty(); }
        friend bool operator==(const Identity &, const Identity &) = default;
    };

    /*! Each request is sent up to \a attempts times. */
    GigeLink(const QHostAddress &camera, int attempts);

    /*! Returns the camera's address. */
    QHostAddress address() const;
    /*! Reads any number of bytes; a failure is reported as the engine does. */
    bool read(quint64 address, quint32 size, char *bytes, GError **error);
    /*! Asks the camera who controls it. */
    Control control();
    /*! Asks the camera which one it is; nothing is known of one that does not answer. */
    Identity identity();

private:
    QByteArray readBlock(quint32 address, quint32 size, GError **error);
    bool readRegister(quint32 address, quint32 *value, GError **error);
    QByteArray exchange(const QByteArray &payload, GError **error);
    bool receive(QByteArray *answer, GError **error);

    QHostAddress m_camera;
    int m_attempts;
    quint16 m_requestId = 0;
    QUdpSocket m_socket;
};

} // namespace Cameras
