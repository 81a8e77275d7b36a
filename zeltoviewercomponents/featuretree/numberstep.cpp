// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "numberstep_p.h"

#include <platform/core/guard.h>

#include <QTimerEvent>

#include <utility>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.numberStep")

namespace {

constexpr int answerMilliseconds = 400; // less than editors wait before they show the last data again
constexpr double widest = 1e16; // a double has no finer digits than that
constexpr int mostTries = 10; // a register that swallows a billion steps does not listen

std::optional<double> valueOf(const ParameterDataPtr &data)
{
    if (!data || !data->isReadable) {
        return std::nullopt;
    }
    switch (data->type) {
    case ParameterType::Float:
        return static_cast<const FloatParameterData &>(*data).value;
    case ParameterType::Integer:
        return static_cast<double>(static_cast<const IntegerParameterData &>(*data).value);
    default:
        return std::nullopt;
    }
}

} // namespace

NumberStep::NumberStep(QObject *parent)
    : QObject(parent)
{
}

NumberStep::~NumberStep() = default;

void NumberStep::show(const AbstractItemEditor::EditorData &data)
{
    if (m_isWriting && data.ptrParameterData == m_shown.ptrParameterData) {
        end();
    }
    if (data.ptrParameter != m_shown.ptrParameter) {
        end();
        if (m_isFollowing) {
            disconnect(m_shown.ptrParameter.data(), nullptr, this, nullptr);
        }
        m_isFollowing = false;
    }
    m_shown = data;
}

void NumberStep::begin(double start, int steps)
{
    end();
    m_start = m_last = start;
    m_factor = 1.0;
    m_steps = steps;
    m_tries = 0;
}

void NumberStep::beginAt(double start, double first)
{
    begin(start, first > start ? 1 : -1);
    m_last = first;
    m_factor = 10.0;
    m_tries = 1;
}

void NumberStep::end()
{
    m_steps = 0;
    m_isAsked = false;
    m_answerTimer.stop();
}

bool NumberStep::isWaiting() const
{
    return m_answerTimer.isActive() || m_isAsked;
}

int NumberStep::steps() const
{
    return m_steps;
}

std::optional<double> NumberStep::next(const std::function<double(double, double)> &reached)
{
    m_tries += 1;
    while (m_steps != 0 && m_factor <= widest && m_tries <= mostTries) {
        const double number = reached(m_start, m_factor);
        m_factor *= 10.0;
        if (m_steps > 0 ? number > m_last : number < m_last) {
            m_last = number;
            return number;
        }
    }
    end();
    return std::nullopt;
}

void NumberStep::beginWrite()
{
    m_isWriting = true;
    m_isAsked = false;
    m_before = current();
    if (m_steps != 0) {
        follow();
        m_answerTimer.start(answerMilliseconds, this);
    }
}

// Not by way of what is shown: the tree may leave snapshots out. Most editors never make a step.
void NumberStep::follow()
{
    if (m_shown.ptrParameter && !std::exchange(m_isFollowing, true)) {
        connect(
            m_shown.ptrParameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onPublished()));
    }
}

void NumberStep::endWrite()
{
    m_isWriting = false;
}

bool NumberStep::isHeld(double value) const
{
    return valueOf(current()).value_or(value) == value;
}

void NumberStep::onPublished()
{
    if (isWaiting()) {
        // Not from within the refresh, or even the write, whose sender is not done yet.
        QMetaObject::invokeMethod(this, "judge", Qt::QueuedConnection);
    }
}

void NumberStep::judge()
{
    if (!isWaiting() || m_isWriting) {
        return;
    }
    const ParameterDataPtr answer = current();
    if (answer == m_before && !m_isAsked) {
        return; // from before the write
    }
    m_isAsked = false;
    m_answerTimer.stop();
    const auto value = valueOf(answer);
    if (value && value == valueOf(m_before) && value != m_last) {
        emit swallowed();
    } else {
        end();
    }
}

void NumberStep::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_answerTimer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_answerTimer.stop();
    ask();
}

void NumberStep::ask()
{
    const auto parameter = m_shown.ptrParameter;
    if (m_isWriting || !parameter) {
        end(); // a question about the write is open
        return;
    }
    m_isAsked = true;
    if (current() != m_before) {
        judge();
        return;
    }
    Core::guardedRun({logCategory(), "NumberStep::ask"}, QStringLiteral("Failed to ask for a value"),
                     [&parameter] { parameter->scheduleParameterDataChangedCheck(true); });
}

ParameterDataPtr NumberStep::current() const
{
    const auto parameter = m_shown.ptrParameter;
    return !parameter
        ? nullptr
        : Core::guarded({logCategory(), "NumberStep::current"}, QStringLiteral("Failed to read a value"),
                        ParameterDataPtr(), [&parameter] { return parameter->parameterData(); });
}
