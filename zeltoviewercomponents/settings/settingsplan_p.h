// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsgraph_p.h"

#include <platform/parametercollection/iparametercollection.h>
#include <platform/parametercollection/parameterdata.h>

#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/*! \brief What is fixed about the features of a node map, as far as settings are about it.
 *
 * \ingroup settings
 */
struct SettingsPlan
{
    struct Feature
    {
        QString name;
        QStringList selectors; //!< outer ones first
    };

    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    /*! Asks \a collection, on its thread, the first time; what it says is kept as long as the collection
     * lives. What throws or is missing is left out. */
    static SettingsPlan of(const CollectionPtr &collection);

    QList<Feature> features; //!< that may belong to the settings, in the order of the tree, each once
    QHash<QString, QStringList> selected; //!< by selector
    bool knowsStreamable = false; //!< whether the description says which features belong to the settings
};
