// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ipconfiguration.h"

#include <platform/core/exception.h>
#include <platform/core/guard.h>

#include <limits>
#include <optional>
#include <utility>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.ipConfiguration")

namespace {

using Feature = QSharedPointer<IIntegerParameter>;
using PreviousValues = QList<std::pair<Feature, qint64>>;

constexpr int macOctets = 6;
constexpr int bitsPerOctet = 8;

Feature featureOf(const IParameterCollection &collection, const QString &name)
{
    return qSharedPointerObjectCast<IIntegerParameter>(collection.parameter(name));
}

std::optional<qint64> valueOf(const Feature &feature)
{
    const auto snapshot = feature ? feature->parameterData() : ParameterDataPtr();
    const auto *const data = dynamic_cast<const IntegerParameterData *>(snapshot.data());
    return data && data->isReadable ? std::optional(data->value) : std::nullopt;
}

QHostAddress addressOf(const Feature &feature)
{
    const auto value = Core::guarded({logCategory(), "IpConfiguration::addressOf"},
                                     QStringLiteral("Failed to read an address"), std::optional<qint64>(),
                                     [&feature] { return valueOf(feature); });
    const bool isAddress = value && *value >= 0 && *value <= std::numeric_limits<quint32>::max();
    return isAddress ? QHostAddress(static_cast<quint32>(*value)) : QHostAddress();
}

bool isWritable(const Feature &feature)
{
    return GenApi::isWritable(feature->nodeAccessMode());
}

void putBack(const PreviousValues &values)
{
    for (const auto &[feature, value] : values) {
        Core::guardedRun({logCategory(), "putBack"}, QStringLiteral("Failed to put a value back"),
                         [&feature = feature, value = value] { feature->setValue(value); });
    }
}

} // namespace

IpConfiguration::IpConfiguration(const QList<Cameras::NodeMap> &nodeMaps)
{
    for (const Cameras::NodeMap &nodeMap : nodeMaps) {
        const bool isFound = nodeMap.collection
            && Core::guarded({logCategory(), "IpConfiguration::IpConfiguration"},
                             QStringLiteral("Failed to look for the IP configuration"), false,
                             [this, &nodeMap] { return findFeatures(*nodeMap.collection); });
        if (isFound) {
            return;
        }
    }
    m_ipAddress.reset(); // a node map with some of the features is of no use
}

bool IpConfiguration::findFeatures(const IParameterCollection &collection)
{
    m_ipAddress = featureOf(collection, QStringLiteral("GevPersistentIPAddress"));
    m_subnetMask = featureOf(collection, QStringLiteral("GevPersistentSubnetMask"));
    m_defaultGateway = featureOf(collection, QStringLiteral("GevPersistentDefaultGateway"));
    m_macAddress = featureOf(collection, QStringLiteral("GevMACAddress"));
    return m_ipAddress && m_subnetMask && m_defaultGateway;
}

QString IpConfiguration::obstacle() const
{
    if (!m_ipAddress) {
        return tr("This camera has no features for an IP configuration");
    }
    const bool canWrite = Core::guarded(
        {logCategory(), "IpConfiguration::obstacle"}, QStringLiteral("Failed to check the IP configuration"),
        false, [this] {
            return isWritable(m_ipAddress) && isWritable(m_subnetMask) && isWritable(m_defaultGateway);
        });
    return canWrite ? QString() : tr("The camera does not allow its IP configuration to be changed now");
}

QHostAddress IpConfiguration::ipAddress() const
{
    return addressOf(m_ipAddress);
}

QHostAddress IpConfiguration::subnetMask() const
{
    return addressOf(m_subnetMask);
}

QHostAddress IpConfiguration::defaultGateway() const
{
    return addressOf(m_defaultGateway);
}

QString IpConfiguration::macAddress() const
{
    const auto value = Core::guarded({logCategory(), "IpConfiguration::macAddress"},
                                     QStringLiteral("Failed to read the MAC address"),
                                     std::optional<qint64>(), [this] { return valueOf(m_macAddress); });
    if (!value || *value < 0 || *value >> (macOctets * bitsPerOctet) != 0) {
        return {};
    }
    QStringList octets;
    for (int octet = macOctets - 1; octet >= 0; --octet) {
        const qint64 bits = (*value >> (octet * bitsPerOctet)) & 0xFF;
        octets.append(QStringLiteral("%1").arg(bits, 2, 16, QLatin1Char('0')).toUpper());
    }
    return octets.join(QLatin1Char(':'));
}

void IpConfiguration::write(const QHostAddress &ipAddress, const QHostAddress &subnetMask,
                            const QHostAddress &defaultGateway) const
{
    if (!m_ipAddress) {
        throw Core::Exception::BaseException(obstacle());
    }
    const std::pair<Feature, QHostAddress> changes[] = {
        {m_subnetMask, subnetMask}, {m_defaultGateway, defaultGateway}, {m_ipAddress, ipAddress}};
    PreviousValues previous;
    for (const auto &[feature, address] : changes) {
        try {
            const std::optional<qint64> value = valueOf(feature);
            feature->setValue(address.toIPv4Address());
            if (value) {
                previous.prepend({feature, *value});
            }
        } catch (...) {
            const QString reason = Core::currentExceptionText(tr("The reason is not known."));
            putBack(previous);
            throw Core::Exception::BaseException(tr("The IP configuration was not changed. %1").arg(reason));
        }
    }
}
