// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "gauge.h"

#include <QDir>
#include <QRegularExpression>

#include <utility>

Holdings Holdings::now()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QFile::ReadOnly)) {
        return {};
    }
    static const QRegularExpression resident(QStringLiteral("VmRSS:\\s*(\\d+)"));
    const auto count = [](const char *folder) {
        return qint64(QDir(QString::fromLatin1(folder))
                          .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                          .size());
    };
    return {resident.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong(),
            count("/proc/self/fd"), count("/proc/self/task")};
}

BlockGauge::BlockGauge()
    : m_statistics(QStringLiteral("/proc/thread-self/schedstat"))
{
    m_statistics.open(QFile::ReadOnly | QFile::Unbuffered);
    m_queued = queued();
    m_since.start();
    callOnTimeout([this] { tick(); });
    start(2);
}

void BlockGauge::tick()
{
    const qint64 before = std::exchange(m_queued, queued());
    const qint64 whole = m_since.restart();
    m_longest.whole = qMax(m_longest.whole, whole);
    m_longest.own = qMax(m_longest.own, whole - (m_queued - before));
}

Block BlockGauge::takeLongest()
{
    tick();
    return std::exchange(m_longest, {});
}

// How long the thread was ready to run without a processor, in ms.
qint64 BlockGauge::queued()
{
    m_statistics.seek(0);
    return m_statistics.read(128).split(' ').value(1).toLongLong() / 1000000;
}
