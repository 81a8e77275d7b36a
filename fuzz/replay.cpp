// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Replays inputs that are kept in files: replay_<target> FOLDER...

#include "target.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>
#include <cstdlib>

int main(int argc, char *argv[])
{
    Fuzz::start();
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            Fuzz::require(file.open(QIODevice::ReadOnly), "the input can be read");
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout); // the one that ends the process has to be known
            Fuzz::run(file.readAll());
            ++inputs;
        }
    }
    Fuzz::require(inputs > 0, "there are inputs to replay");
    return EXIT_SUCCESS;
}
