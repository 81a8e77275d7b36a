// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "target.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QList>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

QList<const Fuzz::Target *> &targets()
{
    static QList<const Fuzz::Target *> targets;
    return targets;
}

} // namespace

Fuzz::Target::Target(const char *name, void (*prepare)(), void (*run)(const QByteArray &), Form form)
    : m_name(name)
    , m_prepare(prepare)
    , m_run(run)
    , m_form(form)
{
    targets().append(this);
}

const Fuzz::Target &Fuzz::Target::find(const QByteArray &name)
{
    QByteArray known;
    for (const Target *const target : std::as_const(targets())) {
        if (target->m_name == name) {
            return *target;
        }
        known.append(' ').append(target->m_name);
    }
    std::fprintf(stderr, "No target '%s', only%s\n", name.constData(), known.constData());
    std::exit(EXIT_FAILURE);
}

void Fuzz::require(bool isKept, const char *promise)
{
    if (!isKept) {
        std::fprintf(stderr, "Broken promise: %s\n", promise);
        std::abort();
    }
}

QString Fuzz::scratchFolder()
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/zelto-fuzz-XXXXXX"));
    return folder.path();
}

void Fuzz::writeFile(const QString &name, const QByteArray &contents)
{
    QFile file(name);
    require(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size(),
            "the file of the input can be written");
}

void Fuzz::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Fuzz::Target::start() const
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", scratchFolder().toUtf8());
    qputenv("TMPDIR", scratchFolder().toUtf8());
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    QCoreApplication::setOrganizationName(QStringLiteral("Zelto"));
    QCoreApplication::setApplicationName(QStringLiteral("fuzz"));
    static QApplication application(argc, arguments);
    m_prepare();
}
