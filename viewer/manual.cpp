// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Writes the viewer's manual page and its completion for bash, from the options that the viewer has: run when
// it is built.

#include "options.h"

#include <platform/parametercollection/valuewords.h>
#include <platform/version.h>

#include <QFile>
#include <QTextStream>

namespace {

// In two pieces, so that tools which look for such lines do not take them for this file's.
QString licence(const char *comment)
{
    const QString line = QLatin1String(comment) + QStringLiteral("SPDX-");
    return line + QLatin1String("FileCopyrightText: 2026 The Zelto viewer components authors\n") + line
        + QLatin1String("License-Identifier: MIT\n");
}

// A hyphen of an option is one that can be searched for; a line must not begin as a request does.
QString roff(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    text.replace(QLatin1Char('-'), QLatin1String("\\-"));
    return text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\''))
        ? QLatin1String("\\&") + text
        : text;
}

void writeManual(QTextStream &out, const QString &version)
{
    out << licence(".\\\" ") << ".TH ZELTO-VIEWER 1 \"\" \"zelto-viewer " << version
        << "\" \"User Commands\"\n"
        << ".SH NAME\nzelto\\-viewer \\- browse and change the features of a camera\n"
        << ".SH SYNOPSIS\n.B zelto\\-viewer\n[\\fIoptions\\fR] [\\fIfile\\fR]\n"
        << ".SH DESCRIPTION\n"
        << roff(applicationDescription()) << "\n.PP\n"
        << "A \\fIfile\\fR is opened as by \\fB\\-\\-description\\fR.\n"
        << ".SH OPTIONS\n";
    const auto options = commandLineOptions();
    for (const QCommandLineOption &option : options) {
        out << ".TP\n\\fB\\-\\-" << roff(option.names().constFirst()) << "\\fR";
        if (!option.valueName().isEmpty()) {
            out << " \\fI" << roff(option.valueName()) << "\\fR";
        }
        out << '\n' << roff(option.description()) << '\n';
    }
    out << ".SH EXAMPLES\n"
        << ".TP\nzelto\\-viewer \\-\\-get ExposureTime \\-\\-set Gain=1.5\n"
        << "Prints a value of the embedded camera and changes another one.\n"
        << ".TP\nzelto\\-viewer \\-\\-description camera.xml \\-\\-dump \\-\\-output json\n"
        << "Prints the features of a description file.\n";
}

// Returns what may follow an option, as a command of the shell that fills COMPREPLY.
QString replies(const QCommandLineOption &option)
{
    if (option.valueName() == QLatin1String("file")) {
        return QStringLiteral("_filedir");
    }
    const QString words = option.valueName() == QLatin1String("level")
        ? ParameterCollection::visibilityNames().join(QLatin1Char(' ')).toLower()
        : option.valueName() == QLatin1String("form") ? QStringLiteral("text json")
                                                      : QString();
    return words.isEmpty() ? QStringLiteral("COMPREPLY=()")
                           : QStringLiteral("COMPREPLY=($(compgen -W '%1' -- \"$cur\"))").arg(words);
}

void writeCompletion(QTextStream &out)
{
    QStringList names;
    const auto options = commandLineOptions();
    out << licence("# ") << "\n"
        << "_zelto_viewer()\n{\n"
        << "    local cur prev words cword\n"
        << "    _init_completion || return\n"
        << "    case $prev in\n";
    for (const QCommandLineOption &option : options) {
        const QString name = QLatin1String("--") + option.names().constFirst();
        names.append(name);
        if (!option.valueName().isEmpty()) {
            out << "        " << name << ")\n            " << replies(option) << "\n            return\n"
                << "            ;;\n";
        }
    }
    out << "    esac\n"
        << "    if [[ $cur == -* ]]; then\n"
        << "        COMPREPLY=($(compgen -W '" << names.join(QLatin1Char(' ')) << "' -- \"$cur\"))\n"
        << "    else\n        _filedir\n    fi\n"
        << "} && complete -F _zelto_viewer zelto-viewer\n";
}

bool write(const char *fileName, void (*contents)(QTextStream &))
{
    QFile file(QString::fromLocal8Bit(fileName));
    if (!file.open(QFile::WriteOnly)) {
        return false;
    }
    QTextStream out(&file);
    contents(out);
    out.flush();
    return out.status() == QTextStream::Ok;
}

} // namespace

int main(int argc, char **argv)
{
    const auto manual = [](QTextStream &out) { writeManual(out, QStringLiteral(ZELTO_VERSION_STRING)); };
    return argc == 3 && write(argv[1], manual) && write(argv[2], writeCompletion) ? 0 : 1;
}
