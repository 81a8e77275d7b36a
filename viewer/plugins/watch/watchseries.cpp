// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "watchseries.h"

#include <algorithm>

namespace {

void merge(WatchSeries::Bucket &into, const WatchSeries::Bucket &next)
{
    into.end = next.end;
    into.minimum = std::min(into.minimum, next.minimum);
    into.maximum = std::max(into.maximum, next.maximum);
    into.sum += next.sum;
    into.count += next.count;
}

} // namespace

void WatchSeries::add(qint64 time, double value)
{
    const Bucket bucket{time, time, value, value, value, 1, m_isInGap};
    if (!m_buckets.empty() && !m_isInGap && m_buckets.back().count < m_valuesPerBucket) {
        merge(m_buckets.back(), bucket);
    } else {
        m_buckets.push_back(bucket);
    }
    m_isInGap = false;
    if (m_buckets.size() > mostBuckets) {
        thin();
    }
}

void WatchSeries::thin()
{
    m_valuesPerBucket *= 2;
    std::vector<Bucket> thinned;
    thinned.reserve(mostBuckets + 1);
    for (const Bucket &bucket : m_buckets) {
        const bool isPairOpen = !thinned.empty() && (&bucket - m_buckets.data()) % 2 == 1;
        if (isPairOpen) {
            merge(thinned.back(), bucket);
        } else {
            thinned.push_back(bucket);
        }
    }
    m_buckets.swap(thinned);
}

void WatchSeries::clear()
{
    *this = WatchSeries();
}
