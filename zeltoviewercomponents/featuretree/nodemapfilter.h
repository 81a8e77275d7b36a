// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparametercollection.h>

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QSharedPointer>
#include <QString>

class QDomDocument;
class QDomElement;

/*! \brief Hides and locks features of a node map as an XML filter file says.
 *
 * A filter file lies next to the application or, failing that, is embedded in the library. Its entries name
 * features and impose a visibility, an access mode or both on them. Failures are logged and change nothing
 * else.
 *
 * \ingroup search
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT NodeMapFilter
{
public:
    /*! Finds and applies the filter file of the node map \a nodeMapName to \a collection. To be called before
     * the collection is shown. */
    static void apply(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
                      const QString &nodeMapName);

    /*! Parses the filter file of the node map into \a document. Returns false when there is none or when it
     * is no usable document. */
    static bool createDocument(QDomDocument &document,
                               QSharedPointer<ParameterCollection::IParameterCollection> collection,
                               const QString &nodeMapName);

    /*! Applies one entry. Returns whether its feature exists and everything in the entry was imposed. */
    static bool processElement(const QDomElement &entry,
                               QSharedPointer<ParameterCollection::IParameterCollection> collection);
};
