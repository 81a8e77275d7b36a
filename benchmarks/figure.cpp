// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr double millisecondsPerSecond = 1000.0;

} // namespace

Figure::~Figure()
{
    if (m_ours.empty()) {
        return;
    }
    const double ours = chosenOf(m_ours);
    m_state.counters["ours_ms"] = ours * millisecondsPerSecond;
    for (const auto &[name, seconds] : m_baselines) {
        const double theirs = chosenOf(seconds);
        m_state.counters[name + "_ms"] = theirs * millisecondsPerSecond;
        m_state.counters["ratio_" + name] = ours / theirs;
    }
}

void Figure::oursTook(double seconds)
{
    m_ours.push_back(seconds);
    m_state.SetIterationTime(seconds);
}

void Figure::baselineTook(const std::string &baseline, double seconds)
{
    m_baselines[baseline].push_back(seconds);
}

// The fastest turn: whatever else the machine does can only add to it.
double Figure::chosenOf(const std::vector<double> &seconds) const
{
    return m_turn == Turn::Best ? *std::min_element(seconds.begin(), seconds.end())
                                : *std::max_element(seconds.begin(), seconds.end());
}

void Figure::wantAtMost(double milliseconds)
{
    m_state.counters["goal_ours_ms"] = milliseconds;
}

void Figure::wantShareOf(const std::string &baseline, double share)
{
    m_state.counters["goal_ratio_" + baseline] = share;
}

double Figure::processorSeconds()
{
    constexpr double nanosecondsPerSecond = 1e9;
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / nanosecondsPerSecond;
}
