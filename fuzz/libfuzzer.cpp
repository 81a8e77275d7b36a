// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// The doors that libFuzzer knocks at: zelto-fuzz --target=TARGET ... (it leaves options of two dashes alone).

#include "target.h"
#include "xmlmutator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

const Fuzz::Target *target;

QByteArray targetName(int argc, char **argv)
{
    static constexpr char option[] = "--target=";
    char **const found = std::find_if(argv, argv + argc, [](const char *argument) {
        return qstrncmp(argument, option, sizeof(option) - 1) == 0;
    });
    return found == argv + argc ? QByteArray() : QByteArray(*found + sizeof(option) - 1);
}

} // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maximumSize);

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    target = &Fuzz::Target::find(targetName(*argc, *argv));
    target->start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    target->run(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maximumSize,
                                               unsigned int seed)
{
    const auto input =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArray mutated = target->form() == Fuzz::Form::Xml ? mutatedXml(input, seed) : QByteArray();
    if (mutated.isEmpty()) {
        return LLVMFuzzerMutate(data, size, maximumSize);
    }
    const auto length = std::min(static_cast<std::size_t>(mutated.size()), maximumSize);
    std::copy_n(mutated.constData(), length, reinterpret_cast<char *>(data));
    return length;
}
