// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Replays inputs that are kept in files: zelto-replay TARGET FOLDER...

#include "target.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>
#include <cstdlib>

#ifdef __SANITIZE_ADDRESS__
extern "C" int __lsan_do_recoverable_leak_check(); // its header comes with clang alone
#endif

int main(int argc, char *argv[])
{
    const Fuzz::Target &target = Fuzz::Target::find(argc > 1 ? argv[1] : "");
    target.start();
    int inputs = 0;
    for (int i = 2; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            Fuzz::require(file.open(QIODevice::ReadOnly), "the input can be read");
            std::fprintf(stderr, "%s\n", qPrintable(file.fileName())); // it may end the process
            target.run(file.readAll());
            ++inputs;
        }
    }
    Fuzz::require(inputs > 0, "there are inputs to replay");
#ifdef __SANITIZE_ADDRESS__
    // Now, as the fuzzers do: what lives as long as the process is no leak.
    Fuzz::require(__lsan_do_recoverable_leak_check() == 0, "nothing is leaked");
#endif
    return EXIT_SUCCESS;
}
