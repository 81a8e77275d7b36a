// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Replays inputs that are kept in files: zelto-replay TARGET FOLDER...

#include "target.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>
#include <cstdlib>

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
    return EXIT_SUCCESS;
}
