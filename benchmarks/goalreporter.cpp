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

std::string withTime(const std::string &text, double milliseconds)
{
    char time[40];
    std::snprintf(time, sizeof(time), "%.2f ms", milliseconds);
    return text + time;
}

// Returns the library's time and the baseline's for a share, and all baselines for the time alone.
std::string timesBeside(const benchmark::UserCounters &counters, const std::string &measured)
{
    if (startsWith(measured, ratioPrefix)) {
        const std::string name = measured.substr(ratioPrefix.size());
        const std::string ours = withTime({}, counters.at("ours_ms").value);
        return withTime(ours + " / " + name + ' ', counters.at(name + "_ms").value);
    }
    std::string times;
    for (const auto &[name, share] : counters) {
        if (measured == "ours_ms" && startsWith(name, ratioPrefix)) {
            const std::string baseline = name.substr(ratioPrefix.size());
            times = withTime(times + (times.empty() ? "" : ", ") + baseline + ' ',
                             counters.at(baseline + "_ms").value);
        }
    }
    return times;
}

// The number of turns tells nothing here.
std::string nameOf(const benchmark::BenchmarkReporter::Run &run, const std::string &measured)
{
    std::string name = run.run_name.function_name;
    for (const std::string &part : {run.run_name.args, run.report_label}) {
        name += part.empty() ? "" : ' ' + part;
    }
    return name + ' ' + measured;
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
        const std::string figure = nameOf(run, measured);
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
