// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/cameras_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QtGlobal>

namespace Cameras {

/*! \brief The contents of registers as a text that people can read and edit.
 *
 * A line has the address of the first byte and the bytes, all in hexadecimal digits, such as
 * "0x00000938 00 01 e2 40"; blanks between the bytes may be missing. "#" begins a comment.
 */
class ZELTO_CAMERAS_EXPORT RegisterImage
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::RegisterImage)

public:
    /*! Bytes by the address of the first one. */
    using Contents = QMap<quint64, QByteArray>;

    /*! Returns what \a text says. Throws Core::Exception::BaseException naming a line that is wrong. */
    static Contents fromText(const QByteArray &text);
    /*! Returns the lines for \a contents, whose parts may overlap. */
    static QByteArray toText(const Contents &contents);
};

} // namespace Cameras
