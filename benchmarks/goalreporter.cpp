// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "goalreporter.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

constexpr std::string_view goalPrefix = "goal_";
constexpr std::string_view ratioPrefix = "ratio_";

bool startsWith(const std::string &text, std::string_view prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

// Returns the library's time and the baseline's, as far as a share was asked for.
std::string timesBeside(const benchmark::UserCounters &counters, const std::string &measured)
{
    if (!startsWith(measured, ratioPrefix)) {
        return {};
    }
    const std::string name = measured.substr(ratioPrefix.size());
    char text[80];
    std::snprintf(text, sizeof(text), "%.2f / %.2f ms %s", counters.at("ours_ms").value,
                  counters.at(name + "_ms").value, name.c_str());
    return text;
}

} // namespace

bool GoalReporter::ReportContext(const Context &)
{
    return true;
}

void GoalReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred) {
            m_failures.push_back(run.benchmark_name() + ": " + run.error_message);
        } else if (run.run_type == Run::RT_Iteration) {
            take(run);
        }
    }
}

void GoalReporter::take(const Run &run)
{
    for (const auto &[name, goal] : run.counters) {
        if (!startsWith(name, goalPrefix)) {
            continue;
        }
        const std::string measured = name.substr(goalPrefix.size());
        const double value = run.counters.at(measured).value;
        const std::string figure = run.run_name.str() + " " + measured;
        const auto [place, isNew] = m_places.emplace(figure, m_rows.size());
        if (isNew) {
            m_rows.push_back({figure, value, timesBeside(run.counters, measured), goal.value});
        } else if (Row &row = m_rows[place->second]; value > row.measured) {
            row.measured = value;
            row.baseline = timesBeside(run.counters, measured);
        }
    }
}

void GoalReporter::Finalize()
{
    std::printf("%-72s %10s %10s  %-4s %s\n", "figure", "measured", "goal", "met", "beside");
    for (const Row &row : m_rows) {
        std::printf("%-72s %10.4g %10.4g  %-4s %s\n", row.figure.c_str(), row.measured, row.goal,
                    row.measured <= row.goal ? "yes" : "NO", row.baseline.c_str());
    }
    for (const std::string &failure : m_failures) {
        std::printf("not measured: %s\n", failure.c_str());
    }
}

bool GoalReporter::areAllMet() const
{
    return m_failures.empty()
        && std::all_of(m_rows.begin(), m_rows.end(), [](const Row &row) { return row.measured <= row.goal; });
}
