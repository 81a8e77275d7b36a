// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "figure.h"

#include <algorithm>

namespace {

constexpr double millisecondsPerSecond = 1000.0;

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Figure::~Figure()
{
    if (m_ours.empty()) {
        return;
    }
    const double ours = medianOf(m_ours);
    m_state.counters["ours_ms"] = ours * millisecondsPerSecond;
    for (const auto &[name, seconds] : m_baselines) {
        const double theirs = medianOf(seconds);
        m_state.counters[name + "_ms"] = theirs * millisecondsPerSecond;
        m_state.counters["ratio_" + name] = ours / theirs;
    }
}
