// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/*! Makes a new XML document from \a document, so that most inputs get past the parser: elements move,
 * multiply and go, texts are exchanged, and links lead to nodes that exist. Returns nothing when it is not
 * XML, and, depending on \a seed, sometimes when it is: then any bytes may change. */
QByteArray mutatedXml(const QByteArray &document, unsigned int seed);
