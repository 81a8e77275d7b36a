// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <vector>

/*! \brief Values over time in bounded memory: as they came for a start, later many of them in one bucket.
 *
 * A bucket keeps the least and the greatest of its values, so that no peak is lost however long it goes on.
 */
class WatchSeries
{
public:
    struct Bucket
    {
        qint64 begin = 0; //!< when its first value came, in milliseconds since the start
        qint64 end = 0; //!< when its last value came
        double minimum = 0.0;
        double maximum = 0.0;
        double sum = 0.0;
        qint64 count = 0;
        bool followsGap = false; //!< whether there was no value for a while before

        double mean() const { return sum / static_cast<double>(count); }
    };

    static constexpr size_t mostBuckets = 4096;

    /*! Adds \a value, which was there at \a time; times do not decrease. */
    void add(qint64 time, double value);
    /*! Notes that there is no value now. */
    void addGap() { m_isInGap = true; }
    void clear();

    const std::vector<Bucket> &buckets() const { return m_buckets; }

private:
    void thin();

    std::vector<Bucket> m_buckets;
    qint64 m_valuesPerBucket = 1;
    bool m_isInGap = false;
};
