// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "simulatedregisters_p.h"

#include "description_p.h"

#include <platform/core/exception.h>

#include <QList>
#include <QString>
#include <QThread>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace Cameras {

namespace {

constexpr quint64 pageSize = 1024;
constexpr double driftPeriod = 20e9; // nanoseconds
constexpr double driftSteps = 100.0; // of a unit: as fine as a sensor tells

template <typename Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray encoded(const QByteArray &type, double value)
{
    if (type == "f32") {
        return bigEndian(float(value));
    }
    if (type == "f64") {
        return bigEndian(value);
    }
    return bigEndian(qint64(std::llround(value))).right(type.mid(1).toInt() / 8);
}

// A 64-bit integer does not fit into the double that living registers count in.
std::optional<QByteArray> encoded(const QByteArray &type, const QByteArray &text)
{
    static const QList<QByteArray> integers{"i8", "i16", "i32", "i64"};
    bool ok = false;
    if (integers.contains(type)) {
        qint64 value = text.toLongLong(&ok, 0);
        if (!ok) {
            value = qint64(text.toULongLong(&ok, 0));
        }
        return ok ? std::optional(bigEndian(value).right(type.mid(1).toInt() / 8)) : std::nullopt;
    }
    if (type == "f32" || type == "f64") {
        const double value = text.toDouble(&ok);
        return ok ? std::optional(encoded(type, value)) : std::nullopt;
    }
    return type == "str" ? std::optional(text + '\0') : std::nullopt;
}

} // namespace

SimulatedRegisters::SimulatedRegisters()
{
    m_clock.start();
}

void SimulatedRegisters::load(const QByteArray &lines)
{
    const std::lock_guard lock(m_mutex);
    for (const QByteArray &line : lines.split('\n')) {
        const QByteArray text = line.split('#').constFirst().trimmed();
        if (!text.isEmpty()) {
            loadLine(text);
        }
    }
    m_loadedPages = m_pages;
}

void SimulatedRegisters::load(const RegisterImage::Contents &image)
{
    const std::lock_guard lock(m_mutex);
    for (auto part = image.cbegin(); part != image.cend(); ++part) {
        store(part.key(), *part);
        if (m_pages.size() * qint64(pageSize) > mostRegisterBytes) {
            throw Core::Exception::BaseException(RegisterImage::tr("the registers take more than %1 MiB")
                                                     .arg(mostRegisterBytes / 1024 / 1024));
        }
    }
    m_loadedPages = m_pages;
}

void SimulatedRegisters::loadLine(const QByteArray &line)
{
    QList<QByteArray> words = line.simplified().split(' ');
    bool ok = false;
    const quint64 address = words.value(0).toULongLong(&ok, 0);
    const QByteArray type = words.value(1);
    if (type == "str") {
        words = {words.value(0), type, words.mid(2).join(' ')};
    }
    const auto bytes = encoded(type, words.value(2));
    static const QHash<QByteArray, Behaviour> behaviours{{"drift", Behaviour::Drift},
                                                         {"clock", Behaviour::Clock},
                                                         {"busy", Behaviour::Busy},
                                                         {"reset", Behaviour::Reset}};
    if (!ok || !bytes || (words.size() > 3 && !behaviours.contains(words[3]))) {
        throw Core::Exception::BaseException(
            QStringLiteral("Wrong register line: %1").arg(QString::fromUtf8(line)));
    }
    store(address, *bytes);
    if (words.size() > 3) {
        Living living{behaviours.value(words[3]), type, words[2].toDouble(), words.value(4).toDouble(), -1};
        m_living.insert(address, living);
    }
}

bool SimulatedRegisters::read(quint64 address, quint32 size, void *buffer)
{
    wait();
    ++m_reads;
    if (size > largestRegister) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    refreshLiving(address, size);
    copy(address, size, static_cast<char *>(buffer));
    return true;
}

void SimulatedRegisters::copy(quint64 address, qsizetype size, char *to) const
{
    for (qsizetype done = 0; done < size;) {
        const quint64 at = address + quint64(done);
        const qsizetype offset = qsizetype(at % pageSize);
        const qsizetype count = std::min<qsizetype>(size - done, qsizetype(pageSize) - offset);
        const auto page = m_pages.constFind(at / pageSize);
        if (page == m_pages.constEnd()) {
            std::memset(to + done, 0, size_t(count));
        } else {
            std::memcpy(to + done, page->constData() + offset, size_t(count));
        }
        done += count;
    }
}

void SimulatedRegisters::beginTrial()
{
    const std::lock_guard lock(m_mutex);
    m_overwritten.emplace();
    m_newPages.clear();
}

QHash<quint64, quint8> SimulatedRegisters::changedInTrial()
{
    const std::lock_guard lock(m_mutex);
    QHash<quint64, quint8> changed;
    // What was there first counts.
    for (auto part = m_overwritten->crbegin(); part != m_overwritten->crend(); ++part) {
        const auto &[address, before] = *part;
        QByteArray now(before.size(), Qt::Uninitialized);
        copy(address, now.size(), now.data());
        for (qsizetype i = 0; i < now.size(); ++i) {
            changed[address + quint64(i)] = quint8(now[i] ^ before[i]);
        }
    }
    return changed;
}

void SimulatedRegisters::endTrial(bool keep)
{
    const std::lock_guard lock(m_mutex);
    const auto overwritten = std::exchange(m_overwritten, std::nullopt);
    for (auto part = overwritten->crbegin(); !keep && part != overwritten->crend(); ++part) {
        store(part->first, part->second);
    }
    // Thousands of trials must leave nothing behind.
    for (const quint64 page : m_newPages) {
        if (!keep) {
            m_pages.remove(page);
        }
    }
    m_newPages.clear();
}

bool SimulatedRegisters::write(quint64 address, quint32 size, const void *buffer)
{
    wait();
    if (size > largestRegister) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    store(address, QByteArray(static_cast<const char *>(buffer), size));
    const auto living = m_living.find(address);
    if (living == m_living.end()) {
        return true;
    }
    living->writtenAt = m_clock.nsecsElapsed();
    if (living->behaviour == Behaviour::Reset) {
        m_pages = m_loadedPages;
    }
    return true;
}

void SimulatedRegisters::store(quint64 address, const QByteArray &bytes)
{
    if (m_overwritten) {
        QByteArray before(bytes.size(), Qt::Uninitialized);
        copy(address, before.size(), before.data());
        m_overwritten->emplace_back(address, before);
    }
    for (qsizetype done = 0; done < bytes.size();) {
        const quint64 at = address + quint64(done);
        const qsizetype offset = qsizetype(at % pageSize);
        const qsizetype count = std::min<qsizetype>(bytes.size() - done, qsizetype(pageSize) - offset);
        QByteArray &page = m_pages[at / pageSize];
        if (page.isEmpty()) {
            page = QByteArray(qsizetype(pageSize), '\0');
            if (m_overwritten) {
                m_newPages.push_back(at / pageSize);
            }
        }
        std::memcpy(page.data() + offset, bytes.constData() + done, size_t(count));
        done += count;
    }
}

void SimulatedRegisters::refreshLiving(quint64 address, quint32 size)
{
    if (m_living.isEmpty()) {
        return;
    }
    const auto living = m_living.constFind(address);
    if (living == m_living.constEnd()) {
        return;
    }
    const qint64 now = m_clock.nsecsElapsed();
    QByteArray bytes;
    if (living->behaviour == Behaviour::Drift) {
        const double phase = 2.0 * M_PI * double(now) / driftPeriod + double(address);
        const double value = living->value + living->argument * std::sin(phase);
        bytes = encoded(living->type, std::round(value * driftSteps) / driftSteps);
    } else if (living->behaviour == Behaviour::Clock) {
        bytes = encoded(living->type, living->value + double(now));
    } else if (living->writtenAt < 0 || double(now - living->writtenAt) >= living->argument * 1e6) {
        bytes = encoded(living->type, living->value);
    }
    store(address, bytes.left(size));
}

bool SimulatedRegisters::isLiving(quint64 address)
{
    const std::lock_guard lock(m_mutex);
    return m_living.contains(address);
}

void SimulatedRegisters::setDelay(int milliseconds)
{
    m_delay = milliseconds;
}

int SimulatedRegisters::readCount() const
{
    return m_reads;
}

void SimulatedRegisters::wait() const
{
    if (m_delay > 0) {
        QThread::msleep(static_cast<unsigned long>(m_delay));
    }
}

} // namespace Cameras
