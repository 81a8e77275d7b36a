// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingsgraph_p.h"
#include "settingstask.h"

#include <platform/parametercollection/iparameter.h>

#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

/*! \brief Which features select others, by the descriptions of a camera's node maps.
 *
 * What is written to a feature that others select lands where these point to.
 *
 * \ingroup settings
 */
class FeatureSelectors
{
public:
    using Assignments = QList<FeatureSettings::Assignment>;

    void setNodeMaps(const QList<SettingsNodeMap> &nodeMaps);

    /*! Returns the feature of that full name, null when there is none. */
    QSharedPointer<ParameterCollection::IParameter> parameter(const QString &fullName) const;
    /*! Returns the selectors that the feature depends on with their present values, outer ones first. */
    Assignments selectorsOf(const QString &fullName) const;
    /*! Returns whether all selectors of the feature have answered what was written to them last, so that its
     * snapshot can be about what they point to. */
    bool areSettled(const QString &fullName) const;
    /*! Writes \a text to \a parameter with the selectors as given, and leaves these as they were. Throws what
     * a parameter throws. */
    void write(ParameterCollection::IParameter &parameter, const Assignments &selectors,
               const QString &text) const;

private:
    struct Map
    {
        SettingsNodeMap nodeMap;
        SettingsGraph graph;
        bool isRead = false;
    };

    const Map *mapOf(const QString &fullName) const;
    using Selectors = QList<QSharedPointer<ParameterCollection::IParameter>>;
    const Selectors &selectorsBefore(const QString &fullName) const;

    mutable QList<Map> m_maps; // read when first asked
    mutable QHash<QString, Selectors> m_selectors; // by the full name of what they select, outer ones first
};
