// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "cameramemory.h"

#include "settingswriter.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype maximumCameras = 50;
constexpr FeatureTreeLook::Parts keptParts = FeatureTreeLook::Parts(FeatureTreeLook::OpenRows)
    | FeatureTreeLook::CurrentRow | FeatureTreeLook::Polling;

constexpr QLatin1String allCameras("Cameras");
constexpr QLatin1String nameKey("Name");
constexpr QLatin1String usedKey("Used");
constexpr QLatin1String monitorKey("MonitorMode");

QString nameOf(const CameraAddress &address, const QString &id)
{
    if (!address.description.isEmpty()) {
        return QLatin1String("file:") + id;
    }
    return address.isLive() ? QLatin1String("camera:") + address.camera : QStringLiteral("embedded");
}

void forgetOldest(QSettings &settings)
{
    settings.beginGroup(allCameras);
    QStringList groups = settings.childGroups();
    const qsizetype excess = groups.size() - maximumCameras;
    const auto used = [&settings](const QString &group) {
        return settings.value(group + QLatin1Char('/') + usedKey).toLongLong();
    };
    std::sort(groups.begin(), groups.end(),
              [&used](const QString &one, const QString &other) { return used(one) < used(other); });
    for (qsizetype i = 0; i < excess; ++i) {
        settings.remove(groups.at(i));
    }
    settings.endGroup();
}

} // namespace

CameraMemory::CameraMemory(SettingsWriter *writer)
    : m_writer(writer)
{
}

void CameraMemory::setSource(const std::optional<CameraAddress> &address, const QString &id)
{
    m_name = address ? nameOf(*address, id) : QString();
    // Names hold what no key may hold.
    const QByteArray hash = QCryptographicHash::hash(m_name.toUtf8(), QCryptographicHash::Sha1).toHex();
    m_group = address ? allCameras + QLatin1Char('/') + QString::fromLatin1(hash) : QString();
}

std::optional<CameraView> CameraMemory::recall() const
{
    if (const auto view = m_views.constFind(m_group); view != m_views.constEnd()) {
        return *view;
    }
    QSettings settings;
    settings.beginGroup(m_group);
    if (m_group.isEmpty() || settings.value(nameKey).toString() != m_name) {
        return std::nullopt;
    }
    QVariantMap kept;
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        kept.insert(key, settings.value(key));
    }
    return CameraView{FeatureTreeLook(kept), settings.value(monitorKey).toBool()};
}

void CameraMemory::remember(const CameraView &view)
{
    if (m_group.isEmpty()) {
        return;
    }
    QVariantMap kept = view.tree.toMap(keptParts);
    m_views.insert(m_group, {FeatureTreeLook(kept), view.monitors});
    kept.insert(nameKey, m_name);
    kept.insert(usedKey, QDateTime::currentMSecsSinceEpoch());
    kept.insert(monitorKey, view.monitors);
    m_writer->add([kept, group = m_group](QSettings &settings) {
        for (auto part = kept.cbegin(); part != kept.cend(); ++part) {
            settings.setValue(group + QLatin1Char('/') + part.key(), part.value());
        }
        forgetOldest(settings);
    });
}
