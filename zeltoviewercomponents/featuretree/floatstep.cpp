// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floatstep_p.h"

#include <platform/core/guard.h>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.floatStep")

namespace {

constexpr int answerMilliseconds = 400; // less than editors wait before they show the last data again
constexpr double widest = 1e16; // a double has no finer digits than that
constexpr int mostTries = 10; // a register that swallows a billion steps does not listen

std::optional<double> valueOf(const ParameterDataPtr &data)
{
    return data && data->type == ParameterType::Float && data->isReadable
        ? std::optional(static_cast<const FloatParameterData &>(*data).value)
        : std::nullopt;
}

} // namespace

FloatStep::FloatStep(QObject *parent)
    : QObject(parent)
{
    m_answerTimer.setSingleShot(true);
    m_answerTimer.setInterval(answerMilliseconds);
    connect(&m_answerTimer, SIGNAL(timeout()), this, SLOT(ask()));
}

FloatStep::~FloatStep() = default;

void FloatStep::show(const AbstractItemEditor::EditorData &data)
{
    if (m_isWriting && data.ptrParameterData == m_shown.ptrParameterData) {
        end();
    }
    if (data.ptrParameter != m_shown.ptrParameter) {
        end();
        if (m_shown.ptrParameter) {
            disconnect(m_shown.ptrParameter.data(), nullptr, this, nullptr);
        }
        // Not by way of what is shown: the tree may leave snapshots out.
        connect(
            data.ptrParameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(onPublished()));
    }
    m_shown = data;
}

void FloatStep::begin(double start, int steps)
{
    end();
    m_start = m_last = start;
    m_factor = 1.0;
    m_steps = steps;
    m_tries = 0;
}

void FloatStep::end()
{
    m_steps = 0;
    m_isAsked = false;
    m_answerTimer.stop();
}

bool FloatStep::isWaiting() const
{
    return m_answerTimer.isActive() || m_isAsked;
}

int FloatStep::steps() const
{
    return m_steps;
}

std::optional<double> FloatStep::next(const std::function<double(double, double)> &reached)
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

void FloatStep::beginWrite()
{
    m_isWriting = true;
    m_isAsked = false;
    m_before = current();
    if (m_steps != 0) {
        m_answerTimer.start();
    }
}

void FloatStep::endWrite()
{
    m_isWriting = false;
}

bool FloatStep::isHeld(double value) const
{
    return valueOf(current()).value_or(value) == value;
}

void FloatStep::onPublished()
{
    if (isWaiting()) {
        // Not from within the refresh, or even the write, whose sender is not done yet.
        QMetaObject::invokeMethod(this, "judge", Qt::QueuedConnection);
    }
}

void FloatStep::judge()
{
    const ParameterDataPtr answer = current();
    const bool isOld = answer == m_before && !m_isAsked; // from before the write
    if (!isWaiting() || m_isWriting || isOld) {
        return;
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

void FloatStep::ask()
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
    Core::guardedRun({logCategory(), "FloatStep::ask"}, QStringLiteral("Failed to ask for a value"),
                     [&parameter] { parameter->scheduleParameterDataChangedCheck(true); });
}

ParameterDataPtr FloatStep::current() const
{
    const auto parameter = m_shown.ptrParameter;
    return !parameter
        ? nullptr
        : Core::guarded({logCategory(), "FloatStep::current"}, QStringLiteral("Failed to read a value"),
                        ParameterDataPtr(), [&parameter] { return parameter->parameterData(); });
}
