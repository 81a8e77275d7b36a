// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "registerimage_p.h"

#include <platform/core/exception.h>

#include <QList>

#include <algorithm>
#include <cctype>
#include <limits>
#include <utility>

namespace Cameras {

namespace {

constexpr qsizetype bytesPerLine = 16;
constexpr qsizetype mostLines = 1000000;

bool isHexadecimal(const QByteArray &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](char letter) { return std::isxdigit(static_cast<unsigned char>(letter)); });
}

// Returns no bytes when the line is wrong.
std::pair<quint64, QByteArray> parsedLine(const QByteArray &line)
{
    QList<QByteArray> words = line.simplified().split(' ');
    bool ok = false;
    const quint64 address = words.takeFirst().toULongLong(&ok, 16);
    const QByteArray digits = words.join();
    const bool isWhole = ok && digits.size() % 2 == 0 && isHexadecimal(digits)
        && address <= std::numeric_limits<quint64>::max() - quint64(digits.size() / 2);
    return {address, isWhole ? QByteArray::fromHex(digits) : QByteArray()};
}

} // namespace

RegisterImage::Contents RegisterImage::fromText(const QByteArray &text)
{
    Contents contents;
    qsizetype number = 0;
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype next = text.indexOf('\n', begin);
        const qsizetype end = next < 0 ? text.size() : next;
        QByteArray line = text.mid(begin, end - begin);
        begin = end + 1;
        ++number;
        line = line.split('#').constFirst().trimmed();
        if (line.isEmpty()) {
            continue;
        }
        const auto [address, bytes] = parsedLine(line);
        if (bytes.isEmpty()) {
            throw Core::Exception::BaseException(
                tr("line %1: expected an address and bytes in hexadecimal digits").arg(number));
        }
        if (contents.size() >= mostLines) {
            throw Core::Exception::BaseException(tr("there are more than %1 lines").arg(mostLines));
        }
        contents.insert(address, bytes);
    }
    return contents;
}

QByteArray RegisterImage::toText(const Contents &contents)
{
    QByteArray text;
    for (auto part = contents.cbegin(); part != contents.cend();) {
        const quint64 address = part.key();
        QByteArray run;
        // Registers share bytes, and stand beside each other.
        for (; part != contents.cend() && part.key() - address <= quint64(run.size()); ++part) {
            const qsizetype offset = qsizetype(part.key() - address);
            run.replace(offset, std::min(part->size(), run.size() - offset), *part);
        }
        for (qsizetype i = 0; i < run.size(); i += bytesPerLine) {
            text += "0x" + QByteArray::number(address + quint64(i), 16).rightJustified(8, '0') + ' '
                + run.mid(i, bytesPerLine).toHex(' ') + '\n';
        }
    }
    return text;
}

} // namespace Cameras
