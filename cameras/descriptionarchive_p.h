// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QtGlobal>

struct archive;

namespace Cameras {

/*! \brief Camera descriptions as they come: plain XML, or a zip archive of one. */
class DescriptionArchive
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::DescriptionArchive)

public:
    /*! The most bytes that are taken, packed or not. */
    static constexpr qint64 largest = qint64(64) * 1024 * 1024;

    /*! Returns the XML in \a contents. Throws Core::Exception::BaseException when an archive holds none. */
    static QByteArray xml(const QByteArray &contents);

private:
    static QByteArray unzipped(const QByteArray &contents);
    static QByteArray unpacked(struct archive *reader);
};

} // namespace Cameras
