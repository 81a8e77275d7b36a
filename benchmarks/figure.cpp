// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr double millisecondsPerSecond = 1000.0;

// The fastest turn: whatever else the machine does can only add to it.
double bestOf(const std::vector<double> &values)
{
    return *std::min_element(values.begin(), values.end());
}

} // namespace

Figure::~Figure()
{
    if (m_ours.empty()) {
        return;
    }
    const double ours = bestOf(m_ours);
    m_state.counters["ours_ms"] = ours * millisecondsPerSecond;
    for (const auto &[name, seconds] : m_baselines) {
        const double theirs = bestOf(seconds);
        m_state.counters[name + "_ms"] = theirs * millisecondsPerSecond;
        m_state.counters["ratio_" + name] = ours / theirs;
    }
}

double Figure::processorSeconds()
{
    constexpr double nanosecondsPerSecond = 1e9;
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / nanosecondsPerSecond;
}
