// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "floatstep_p.h"

#include <platform/core/guard.h>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.floatStep")

namespace {

constexpr int answerMilliseconds = 400; // less than editors wait before they show the last data again
constexpr double widest = 1e16; // a double has no finer digits than that

std::optional<double> valueOf(const ParameterDataPtr &data)
{
    return data && data->type == ParameterType::Float && data->isReadable
        ? std::optional(static_cast<const FloatParameterData &>(*data).value)
        : std::nullopt;
}

} // namespace

void FloatStep::show(const AbstractItemEditor::EditorData &data)
{
    if (m_isWriting && data.ptrParameterData == m_shown.ptrParameterData) {
        end();
    }
    m_shown = data;
}

void FloatStep::begin(double start, int steps)
{
    // What is shown may be older: answers to the steps before this one are on their way.
    m_before = current();
    m_valueBefore = valueOf(m_before).value_or(start);
    m_start = m_last = start;
    m_factor = 1.0;
    m_steps = steps;
}

void FloatStep::end()
{
    m_steps = 0;
}

bool FloatStep::isUnderWay() const
{
    return m_steps != 0;
}

int FloatStep::steps() const
{
    return m_steps;
}

std::optional<double> FloatStep::next(const std::function<double(double, double)> &reached)
{
    while (isUnderWay() && m_factor <= widest) {
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

QScopedValueRollback<bool> FloatStep::writing()
{
    m_answerTime = QDeadlineTimer(answerMilliseconds);
    return QScopedValueRollback<bool>(m_isWriting, true);
}

bool FloatStep::isSwallowed()
{
    if (!isUnderWay() || m_isWriting || !m_shown.ptrParameter) {
        return false;
    }
    const ParameterDataPtr answer = current();
    if (answer && answer == m_before && !m_answerTime.hasExpired()) {
        return false; // from before the write
    }
    const auto value = valueOf(answer);
    if (value != m_valueBefore || value == m_last) {
        end();
        return false;
    }
    m_before = answer;
    return true;
}

ParameterDataPtr FloatStep::current() const
{
    const auto parameter = m_shown.ptrParameter;
    return !parameter
        ? nullptr
        : Core::guarded({logCategory(), "FloatStep::current"}, QStringLiteral("Failed to read a value"),
                        ParameterDataPtr(), [&parameter] { return parameter->parameterData(); });
}
