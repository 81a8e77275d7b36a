// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

/*! Returns a whole description with \a nodes in it, and a port called "Device". */
inline QByteArray description(const QByteArray &nodes)
{
    return QByteArray(
               "<?xml version=\"1.0\"?>\n<RegisterDescription ModelName=\"Model\" VendorName=\"Vendor\" "
               "StandardNameSpace=\"GEV\" SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" "
               "SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" "
               "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n")
        + nodes + "\n<Port Name=\"Device\"/></RegisterDescription>\n";
}

/*! Returns the category "Root" with \a features, which blanks separate. */
inline QByteArray root(const QByteArray &features)
{
    QByteArray text = "<Category Name=\"Root\">";
    for (const QByteArray &feature : features.split(' ')) {
        text += "<pFeature>" + feature + "</pFeature>";
    }
    return text + "</Category>";
}

/*! Returns an unsigned register of four bytes; \a more stands first in it. */
inline QByteArray integerRegister(const QByteArray &name, const QByteArray &address,
                                  const QByteArray &more = {})
{
    return "<IntReg Name=\"" + name + "\">" + more + "<Address>" + address
        + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
          "<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>";
}
