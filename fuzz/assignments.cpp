// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Lines that a script hands to --set, and the features of them to --get: wrong usage, a refusal and a value
// are one line each.

#include "target.h"

#include <cameras/camera.h>
#include <viewer/commandline.h>
#include <viewer/options.h>

#include <QFile>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int mostAssignments = 8;

Cameras::Camera *camera;

/*! \brief Keeps what the program says on the standard error. */
class Complaints
{
public:
    Complaints()
        : m_file(open_memstream(&m_text, &m_size))
        , m_usual(std::exchange(stderr, m_file))
    {
    }

    ~Complaints()
    {
        stderr = m_usual;
        std::fclose(m_file);
        std::free(m_text);
    }
    Q_DISABLE_COPY_MOVE(Complaints)

    QByteArray text() const
    {
        std::fflush(m_file);
        return {m_text, qsizetype(m_size)};
    }

private:
    char *m_text = nullptr;
    std::size_t m_size = 0;
    std::FILE *m_file;
    std::FILE *m_usual;
};

void prepare()
{
    static const std::unique_ptr<Cameras::Camera> opened = Cameras::Camera::openEmbedded();
    camera = opened.get();
    // Values are printed past the buffers of the C library.
    const QByteArray name = QFile::encodeName(Fuzz::scratchFolder() + QStringLiteral("/output"));
    const int file = open(name.constData(), O_CREAT | O_RDWR | O_APPEND, 0600);
    Fuzz::require(file >= 0 && dup2(file, STDOUT_FILENO) >= 0, "the standard output can be kept");
}

QByteArray takeOutput()
{
    QByteArray text(lseek(STDOUT_FILENO, 0, SEEK_END), '\0');
    Fuzz::require(pread(STDOUT_FILENO, text.data(), size_t(text.size()), 0) == text.size()
                      && ftruncate(STDOUT_FILENO, 0) == 0,
                  "the standard output can be read");
    return text;
}

QStringList argumentsOf(const QByteArray &input)
{
    QStringList arguments{QStringLiteral("zelto-viewer")};
    const QStringList lines = QString::fromUtf8(input).split(QLatin1Char('\n'));
    for (const QString &line : lines.mid(0, mostAssignments)) {
        arguments << QStringLiteral("--set") << line << QStringLiteral("--get")
                  << line.section(QLatin1Char('='), 0, 0);
    }
    return arguments;
}

void run(const QByteArray &input)
{
    const ParsedOptions parsed = parseOptions(argumentsOf(input));
    Fuzz::require(!parsed.error.contains(QLatin1Char('\n')), "wrong usage is told in one line");
    if (!parsed.error.isEmpty()) {
        return;
    }
    int code = 0;
    qsizetype complaints = 0;
    {
        const Complaints told;
        code = CommandLine(*camera, parsed.options).run();
        complaints = told.text().count('\n');
    }
    const qsizetype values = takeOutput().count('\n');
    const qsizetype operations = parsed.options.operations.size();
    Fuzz::require(complaints == (code == CommandLine::Done ? 0 : 1)
                      || (code == CommandLine::Failed && complaints <= operations),
                  "a refusal is one line");
    Fuzz::require(code == CommandLine::Done ? values == operations / 2 : values < operations,
                  "a value is one line");
    Fuzz::settle();
}

const Fuzz::Target target("assignments", prepare, run);

} // namespace
