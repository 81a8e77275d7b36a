// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camera.h>
#include <platform/parametercollection/iparameter.h>

#include <QList>
#include <QSharedPointer>
#include <QString>

/*! \brief Finds the features of a camera by the names that people type. */
class FeatureNames
{
public:
    explicit FeatureNames(const QList<Cameras::NodeMap> &nodeMaps);

    /*! Returns the feature whose short or full name is \a name, null when there is none. */
    QSharedPointer<ParameterCollection::IParameter> find(const QString &name) const;
    /*! Returns the name that \a name is a likely misspelling of, empty when there is none. */
    QString nearest(const QString &name) const;

private:
    QList<Cameras::NodeMap> m_nodeMaps;
};
