// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/camera.h>
#include <platform/parametercollection/iparameter.h>

#include <QCoreApplication>
#include <QHostAddress>
#include <QList>
#include <QSharedPointer>
#include <QString>

/*! \brief The IP configuration that a camera keeps over a restart.
 *
 * Finds the features in the camera's node maps and converts their values. Writes go to the features' own
 * typed operations: what locks these features in the tree, against accidental changes, does not concern a
 * dialog that checks the values as a whole.
 */
class IpConfiguration
{
    Q_DECLARE_TR_FUNCTIONS(IpConfiguration)

public:
    /*! Looks for the first of \a nodeMaps that has all features; never throws. */
    explicit IpConfiguration(const QList<Cameras::NodeMap> &nodeMaps);

    /*! Returns why the configuration cannot be changed now, empty when it can. */
    QString obstacle() const;

    /*! Returns the address, null when the camera holds none that can be shown, as in the following functions.
     */
    QHostAddress ipAddress() const;
    QHostAddress subnetMask() const;
    QHostAddress defaultGateway() const;
    /*! Returns the MAC address in upper case with colons, empty when the camera does not tell it. */
    QString macAddress() const;

    /*! Writes the three values, or as good as none: when one is refused, those written before it are put
     * back. Throws Core::Exception::BaseException that names the reason. */
    void write(const QHostAddress &ipAddress, const QHostAddress &subnetMask,
               const QHostAddress &defaultGateway) const;

private:
    using Feature = QSharedPointer<ParameterCollection::IIntegerParameter>;

    bool findFeatures(const ParameterCollection::IParameterCollection &collection);

    Feature m_ipAddress;
    Feature m_subnetMask;
    Feature m_defaultGateway;
    Feature m_macAddress;
};
