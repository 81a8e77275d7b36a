// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

/*! \brief A GigE Vision camera on the loopback interface that answers as a test has it answer.
 *
 * Has three features: Width at 0x8000, Height at 0x8004, and the Gain at 0x8008.
 */
class PlayedCamera
{
public:
    /*! Makes of a request and the right answer the datagrams that are sent; on the camera's thread. */
    using Manner = std::function<QList<QByteArray>(const QByteArray &request, const QByteArray &answer)>;

    static QByteArray description();

    /*! On \a address of the loopback interface; only one that is on all of them is found by a search. */
    explicit PlayedCamera(const QByteArray &serialNumber = "ZPLAYED", const QByteArray &xml = description(),
                          const QHostAddress &address = QHostAddress::AnyIPv4);
    ~PlayedCamera();
    Q_DISABLE_COPY_MOVE(PlayedCamera)

    /*! Returns false when another program has the port. */
    bool isRunning() const { return m_isRunning; }
    /*! Changes how it answers, from now on. */
    void setManner(const Manner &manner);
    /*! Returns the register at \a address. */
    quint32 value(quint32 address) const;

    /*! Returns the command of \a request or \a answer. */
    static quint16 command(const QByteArray &datagram);
    /*! Returns the first address that \a request is about. */
    static quint32 address(const QByteArray &request);
    /*! Answers nothing. */
    static QList<QByteArray> silence(const QByteArray &, const QByteArray &) { return {}; }

private:
    void put(quint32 address, const QByteArray &bytes);
    QByteArray answerTo(const QByteArray &request);

    // The thread sanitizer does not see into locks and threads of Qt.
    mutable std::mutex m_mutex;
    QByteArray m_memory;
    Manner m_manner;
    bool m_isRunning = false;
    std::atomic_bool m_isEnding = false;
    std::thread m_thread;
};
