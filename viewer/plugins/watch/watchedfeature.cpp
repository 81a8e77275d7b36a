// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchedfeature.h"

#include <platform/core/guard.h>

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.plugins.watch")

namespace {

constexpr int shortestInterval = 34; // milliseconds: 30 a second at most
constexpr int usualInterval = 1000;
constexpr int patience = 5000; // after which a question counts as lost

std::optional<long double> numberIn(const ParameterData &data)
{
    if (!data.isReadable) {
        return std::nullopt;
    }
    if (const auto *const integer = dynamic_cast<const IntegerParameterData *>(&data)) {
        return static_cast<long double>(integer->value);
    }
    if (const auto *const boolean = dynamic_cast<const BooleanParameterData *>(&data)) {
        return boolean->value ? 1.0L : 0.0L;
    }
    const auto *const number = dynamic_cast<const FloatParameterData *>(&data);
    return number && std::isfinite(number->value) ? std::optional<long double>(number->value) : std::nullopt;
}

int intervalOf(const IParameter &parameter)
{
    const int polling = parameter.propertyAccess()->property(QStringLiteral("PollingTime")).toInt();
    return polling > 0 ? std::max(polling, shortestInterval) : usualInterval;
}

QString titleOf(const IParameter &parameter)
{
    const auto access = parameter.propertyAccess();
    const QString name = access->property(QStringLiteral("DisplayName"), parameter.name());
    const QString unit = access->property(QStringLiteral("Unit"));
    return unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, unit);
}

} // namespace

bool WatchedFeature::canWatch(const IParameter &parameter)
{
    switch (parameter.type()) {
    case ParameterType::Integer:
    case ParameterType::Float:
    case ParameterType::Boolean:
        return true;
    default:
        return false;
    }
}

WatchedFeature::WatchedFeature(const ParameterPtr &parameter, QObject *parent)
    : QObject(parent)
    , m_fullName(parameter->fullName())
    , m_title(titleOf(*parameter))
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(read()));
    restart();
    setParameter(parameter);
}

WatchedFeature::~WatchedFeature() = default;

void WatchedFeature::setParameter(const ParameterPtr &parameter)
{
    if (m_parameter) {
        m_parameter->disconnect(this);
    }
    m_parameter = parameter;
    m_isAsked = false;
    m_timer.stop();
    if (!parameter) {
        loseValue();
        return;
    }
    connect(parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onData(QSharedPointer<const ParameterCollection::ParameterData>)));
    m_timer.setInterval(Core::guarded({logCategory(), "WatchedFeature::setParameter"},
                                      QStringLiteral("Failed to get a polling time"), usualInterval,
                                      [&parameter] { return intervalOf(*parameter); }));
    setPaused(m_isPaused);
}

void WatchedFeature::setPaused(bool paused)
{
    m_isPaused = paused;
    if (paused) {
        m_timer.stop();
        m_series.addGap();
    } else if (m_parameter) {
        m_timer.start();
        read();
    }
}

void WatchedFeature::restart()
{
    m_series.clear();
    m_sum = 0.0L;
    m_count = 0;
    m_minimumText.clear();
    m_maximumText.clear();
    m_lastTime = -1;
    m_startTime = QDateTime::currentMSecsSinceEpoch();
    m_sinceStart.start();
    emit changed();
}

void WatchedFeature::read()
{
    if (!m_parameter || (m_isAsked && !m_sinceAsked.hasExpired(patience))) {
        return;
    }
    if (m_isAsked) {
        loseValue(); // nobody has answered
    }
    m_isAsked = true;
    m_sinceAsked.start();
    const bool isAsked =
        Core::guardedRun({logCategory(), "WatchedFeature::read"}, QStringLiteral("Failed to read a feature"),
                         [this] { m_parameter->scheduleParameterDataChangedCheck(true); });
    if (!isAsked) {
        m_timer.stop(); // until the camera is opened again
        loseValue();
    }
}

void WatchedFeature::onData(QSharedPointer<const ParameterData> data)
{
    const bool isAnswer = m_isAsked;
    m_isAsked = false;
    if (m_isPaused || !data) {
        return;
    }
    const std::optional<long double> number = numberIn(*data);
    if (!number) {
        loseValue();
        return;
    }
    // Others may ask more often.
    if (isAnswer || m_lastTime < 0 || elapsed() - m_lastTime >= shortestInterval) {
        take(data->valueString, *number);
    }
}

void WatchedFeature::take(const QString &text, long double value)
{
    m_lastTime = elapsed();
    m_value = text;
    if (m_count == 0 || value < m_minimum) {
        m_minimum = value;
        m_minimumText = text;
    }
    if (m_count == 0 || value > m_maximum) {
        m_maximum = value;
        m_maximumText = text;
    }
    m_sum += value;
    ++m_count;
    m_series.add(m_lastTime, static_cast<double>(value));
    emit changed();
}

void WatchedFeature::loseValue()
{
    m_value.clear();
    m_series.addGap();
    emit changed();
}

QString WatchedFeature::mean() const
{
    return m_count == 0
        ? QString()
        : QString::number(static_cast<double>(m_sum / static_cast<long double>(m_count)), 'g', 7);
}
