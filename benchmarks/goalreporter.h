// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/*! \brief Prints one table: each figure that something is wanted of, the worst of its repetitions, what was
 * wanted, and whether that was reached.
 */
class GoalReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

    /*! Returns whether every goal was reached, and no benchmark failed. */
    bool areAllMet() const;

private:
    struct Row
    {
        std::string figure;
        double measured = 0.0;
        std::string baseline; //!< what was measured beside it
        double goal = 0.0;
    };

    void take(const Run &run);

    std::map<std::string, size_t> m_places; // of the rows, by figure
    std::vector<Row> m_rows;
    std::vector<std::string> m_failures;
};
