// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

/*! \brief One figure: what the library takes and what its baselines take, measured in turns in the same run.
 *
 * The library's time is the benchmark's own (manual) time; the best turn of each side, in milliseconds, and
 * the library's share of each baseline become counters. Where the worst turn is what a user notices, as when
 * scrolling, that counts instead. What is wanted of a counter is a counter "goal_" and its name.
 */
class Figure
{
public:
    enum class Turn { Best, Worst };

    explicit Figure(benchmark::State &state, Turn turn = Turn::Best)
        : m_state(state)
        , m_turn(turn)
    {
    }
    ~Figure();
    Figure(const Figure &) = delete;
    Figure &operator=(const Figure &) = delete;

    /*! Times \a work as the library's side of an iteration. */
    template <typename Work>
    void ours(Work work)
    {
        oursTook(secondsOf(std::move(work)));
    }
    /*! Notes what the library's side of an iteration took where it is not work of this process. */
    void oursTook(double seconds);

    /*! Times \a work as the side of \a baseline, a word that names counters. */
    template <typename Work>
    void baseline(const std::string &baseline, Work work)
    {
        baselineTook(baseline, secondsOf(std::move(work)));
    }
    void baselineTook(const std::string &baseline, double seconds);

    /*! States that the library is to take at most \a milliseconds. */
    void wantAtMost(double milliseconds);
    /*! States that the library is to take at most \a share of what \a baseline takes. */
    void wantShareOf(const std::string &baseline, double share);

    /*! Returns the processor time, in seconds, that \a work takes in all threads: on a busy machine it tells
     * more than the clock on the wall. */
    template <typename Work>
    static double secondsOf(Work work)
    {
        const double begin = processorSeconds();
        work();
        return processorSeconds() - begin;
    }

private:
    static double processorSeconds();
    double chosenOf(const std::vector<double> &seconds) const;

    benchmark::State &m_state;
    Turn m_turn;
    std::vector<double> m_ours;
    std::map<std::string, std::vector<double>> m_baselines;
};
