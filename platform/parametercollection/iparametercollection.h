// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "iparameter.h"

#include <platform/platform_export.h>

#include <QObject>
#include <QSharedPointer>
#include <QStringList>

namespace ParameterCollection {

/*! \brief A node map: a named set of parameters organised as a tree of categories below the node "Root".
 *
 * Look-ups accept the short name ("ExposureTime"), the full name ("@CameraDevice/ExposureTime") and either
 * followed by "/Alias", which gives the integer that mirrors a floating-point feature. Any operation may
 * throw.
 */
class ZELTO_PLATFORM_EXPORT IParameterCollection : public QObject
{
    Q_OBJECT

public:
    ~IParameterCollection() override;

    /*! Returns the parameter called \a name, null when there is none. */
    virtual QSharedPointer<IParameter> parameter(const QString &name) const = 0;
    /*! Returns whether there is a parameter called \a name. */
    virtual bool hasParameter(const QString &name) const = 0;

    /*! Returns the names of the nodes below the category \a parent, in the order of the description.
     *
     * \param depth 0 for the children alone; each step more adds a generation, after the ones above it
     * \param fullNames full names when true, else short ones
     */
    virtual QStringList childNames(const QString &parent, int depth, bool fullNames) const = 0;

    /*! Re-reads the node map; what differs is published. */
    virtual void refresh() = 0;

    /*! Re-reads the nodes whose polling time has run out, \a elapsedMilliseconds after the previous call. */
    virtual void poll(int elapsedMilliseconds) = 0;

    /*! Returns the device class word: "GEV", "U3V", "IIDC", "Vexor", ... */
    virtual QString deviceClass() const = 0;

protected:
    explicit IParameterCollection(QObject *parent = nullptr);
};

} // namespace ParameterCollection
