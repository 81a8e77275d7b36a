// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/platform_export.h>

#include <QObject>
#include <QString>

namespace ParameterCollection {

/*! \brief Access to the static text properties of a node.
 *
 * Names are those of the GenICam description: "Unit", "Description", "Tooltip", "DocuURL", "DisplayName",
 * "Representation", "Streamable" and others; "pSelected" gives the short names of the features that the node
 * selects, separated by tabs. Two properties can be imposed: "Visibility" (the names of GenApi::EVisibility)
 * and "AccessMode" (the names of GenApi::EAccessMode). Imposing limits what snapshots and
 * IParameter::isWritableNow() report, never to more than the node itself grants.
 */
class ZELTO_PLATFORM_EXPORT NodePropertyAccess : public QObject
{
    Q_OBJECT

public:
    ~NodePropertyAccess() override;

    /*! Returns the property called \a name, empty when the node lacks it. */
    QString property(const QString &name) const;
    /*! Returns the property called \a name, or \a defaultValue when the node lacks it. */
    virtual QString property(const QString &name, const QString &defaultValue) const = 0;

    /*! Imposes the property \a name. Throws GenICam::InvalidArgumentException when the property cannot be
     * imposed or \a value is none of its texts. */
    virtual void setProperty(const QString &name, const QString &value) = 0;

protected:
    explicit NodePropertyAccess(QObject *parent = nullptr);
};

} // namespace ParameterCollection
