// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "regionofinterest.h"

#include <platform/parametercollection/iparameter.h>
#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>

#include <QSharedPointer>

#include <algorithm>
#include <exception>

using namespace ParameterCollection;

namespace {

using DataPtr = QSharedPointer<const IntegerParameterData>;

DataPtr dataOf(const SettingsNodeMap &nodeMap, const QString &name)
{
    try {
        const auto parameter = nodeMap.collection->parameter(name);
        return parameter ? qSharedPointerDynamicCast<const IntegerParameterData>(parameter->parameterData())
                         : DataPtr();
    } catch (const std::exception &) {
        return {}; // the camera has none, as far as we can tell
    }
}

// The multiple of \a step nearest to \a value.
qint64 stepped(qint64 value, qint64 step)
{
    return (value + step / 2) / step * step;
}

} // namespace

/*! \brief The features of one side, null where the camera has none. */
struct RegionOfInterest::Features
{
    QString sizeName;
    QString offsetName;
    DataPtr size;
    DataPtr offset;
    DataPtr maximum;

    bool areUsable() const { return size && size->isReadable && size->maximum > 0; }
    qint64 presentOffset() const { return offset && offset->isReadable ? offset->value : 0; }
};

RegionOfInterest::RegionOfInterest(QObject *parent)
    : QObject(parent)
{
}

RegionOfInterest::~RegionOfInterest() = default;

void RegionOfInterest::setNodeMaps(const QList<SettingsNodeMap> &nodeMaps)
{
    m_applier.reset();
    m_nodeMaps = nodeMaps;
}

RegionOfInterest::Features RegionOfInterest::features(bool isHorizontal) const
{
    Features found;
    found.sizeName = isHorizontal ? QStringLiteral("Width") : QStringLiteral("Height");
    found.offsetName = isHorizontal ? QStringLiteral("OffsetX") : QStringLiteral("OffsetY");
    if (!m_nodeMaps.isEmpty()) {
        const SettingsNodeMap &camera = m_nodeMaps.constFirst();
        found.size = dataOf(camera, found.sizeName);
        found.offset = dataOf(camera, found.offsetName);
        found.maximum = dataOf(camera, found.sizeName + QLatin1String("Max"));
    }
    return found;
}

bool RegionOfInterest::isPossible() const
{
    return !m_isBusy && !m_applier && features(true).areUsable() && features(false).areUsable();
}

RegionOfInterest::Span RegionOfInterest::nearest(const Span &wanted, const Side &side)
{
    const qint64 most = (side.largest - side.smallest) / side.sizeStep * side.sizeStep + side.smallest;
    Span span;
    span.size = side.smallest + stepped(std::max<qint64>(wanted.size - side.smallest, 0), side.sizeStep);
    span.size = std::clamp(span.size, side.smallest, std::max(most, side.smallest));
    span.offset = stepped(std::max<qint64>(wanted.offset, 0), side.offsetStep);
    const qint64 room = std::max<qint64>(side.largest - span.size, 0);
    span.offset = std::min(span.offset, room / side.offsetStep * side.offsetStep);
    return span;
}

// Without a feature that tells how wide the sensor is, what is left beside the present region does.
RegionOfInterest::Side RegionOfInterest::sideOf(const Features &features) const
{
    Side side;
    side.smallest = std::max<qint64>(features.size->minimum, 1);
    side.largest = features.maximum && features.maximum->isReadable
        ? features.maximum->value
        : std::max(features.size->maximum,
                   features.presentOffset() > 0 ? features.presentOffset() + features.size->maximum : 0);
    side.sizeStep = std::max<qint64>(features.size->increment, 1);
    side.offsetStep = features.offset ? std::max<qint64>(features.offset->increment, 1) : 1;
    return side;
}

void RegionOfInterest::setRegion(const QRect &drawn)
{
    if (!isPossible()) {
        return;
    }
    const Features horizontal = features(true);
    const Features vertical = features(false);
    write(nearest({horizontal.presentOffset() + drawn.x(), drawn.width()}, sideOf(horizontal)),
          nearest({vertical.presentOffset() + drawn.y(), drawn.height()}, sideOf(vertical)));
}

void RegionOfInterest::setFullFrame()
{
    if (!isPossible()) {
        return;
    }
    const Side horizontal = sideOf(features(true));
    const Side vertical = sideOf(features(false));
    write(nearest({0, horizontal.largest}, horizontal), nearest({0, vertical.largest}, vertical));
}

// A size that fits beside the present offset is written first, else the offset has to make room for it.
void RegionOfInterest::write(const Span &horizontal, const Span &vertical)
{
    QList<FeatureSettings::Setting> settings;
    for (const bool isHorizontal : {true, false}) {
        const Features present = features(isHorizontal);
        const Span &span = isHorizontal ? horizontal : vertical;
        const auto setting = [this](const QString &name, qint64 value) {
            return FeatureSettings::Setting{
                m_nodeMaps.constFirst().name, name, {}, QString::number(value), 0};
        };
        const bool isSizeFirst = span.size <= present.size->maximum;
        if (isSizeFirst || !present.offset) {
            settings.append(setting(present.sizeName, span.size));
        }
        if (present.offset) {
            settings.append(setting(present.offsetName, span.offset));
        }
        if (!isSizeFirst && present.offset) {
            settings.append(setting(present.sizeName, span.size));
        }
    }
    m_applier = std::make_unique<SettingsApplier>(FeatureSettings::of(settings), m_nodeMaps);
    connect(m_applier.get(), SIGNAL(finished()), this, SLOT(onFinished()));
    Q_EMIT aboutToWrite();
    m_applier->start();
}

void RegionOfInterest::onFinished()
{
    const std::unique_ptr<SettingsApplier, void (*)(SettingsApplier *)> applier(
        m_applier.release(), [](SettingsApplier *sender) { sender->deleteLater(); });
    const SettingsReport report = applier->report();
    Q_EMIT applied(tr("region of interest"), applier->settings(), applier->former(), report);
    Q_EMIT written();
    if (!report.isSuccess() && !report.isLost) {
        Q_EMIT failed(tr("The camera did not take the whole region. %1").arg(report.summary()),
                      report.problems().join(QLatin1Char('\n')));
    }
}
