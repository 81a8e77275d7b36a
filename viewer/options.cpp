// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "options.h"

#include <platform/parametercollection/valuewords.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>
#include <QList>

#include <algorithm>
#include <array>
#include <utility>

namespace {

std::optional<GenApi::EVisibility> visibilityFrom(const QString &text)
{
    const QStringList &names = ParameterCollection::visibilityNames();
    const auto found = std::find_if(names.cbegin(), names.cend(), [&text](const QString &name) {
        return text.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == names.cend() ? std::nullopt
                                 : std::optional(static_cast<GenApi::EVisibility>(found - names.cbegin()));
}

const QList<std::pair<QString, Operation::Kind>> &operationNames()
{
    static const QList<std::pair<QString, Operation::Kind>> names{
        {QStringLiteral("get"), Operation::Kind::Get},
        {QStringLiteral("set"), Operation::Kind::Set},
        {QStringLiteral("execute"), Operation::Kind::Execute},
        {QStringLiteral("save"), Operation::Kind::Save},
        {QStringLiteral("load"), Operation::Kind::Load},
        {QStringLiteral("compare"), Operation::Kind::Compare},
        {QStringLiteral("watch"), Operation::Kind::Watch},
        {QStringLiteral("grab"), Operation::Kind::Grab},
        {QStringLiteral("stream-statistics"), Operation::Kind::StreamStatistics},
    };
    return names;
}

// The parser keeps the order of all options, and that of the values of each.
QList<Operation> operationsFrom(const QCommandLineParser &parser)
{
    QList<Operation> operations;
    QHash<QString, qsizetype> used;
    const QStringList options = parser.optionNames();
    for (const QString &option : options) {
        for (const auto &[name, kind] : operationNames()) {
            if (name == option) {
                operations.append({kind, parser.values(name).value(used[name]++)});
            }
        }
    }
    return operations;
}

bool isPositive(const QString &text)
{
    bool ok = false;
    return text.toInt(&ok) > 0 && ok;
}

// Returns what is wrong with the form of what is printed, empty when nothing is.
QString mistakeInOutput(const QCommandLineParser &parser, const QList<Operation> &operations)
{
    if (!parser.isSet(QStringLiteral("output"))) {
        return {};
    }
    const QString form = parser.value(QStringLiteral("output"));
    if (form != QLatin1String("text") && form != QLatin1String("json")) {
        return QStringLiteral("Unknown output '%1', expected text or json.").arg(form);
    }
    const bool hasTable = std::any_of(operations.cbegin(), operations.cend(), [](const Operation &operation) {
        return operation.kind == Operation::Kind::Watch || operation.kind == Operation::Kind::StreamStatistics
            || (operation.kind == Operation::Kind::Save && operation.argument == QLatin1String("-"));
    });
    if (hasTable && form == QLatin1String("json")) {
        return QStringLiteral(
            "--output json and what --watch, --stream-statistics or --save - print exclude each other.");
    }
    const bool hasForm = parser.isSet(QStringLiteral("dump")) || parser.isSet(QStringLiteral("get"))
        || parser.isSet(QStringLiteral("compare"));
    return hasForm ? QString() : QStringLiteral("--output needs --dump, --get or --compare.");
}

// Returns what is wrong with the options about operations on a camera, empty when nothing is.
QString mistakeInOperations(const QCommandLineParser &parser)
{
    const QList<Operation> operations = operationsFrom(parser);
    int inputs = 0;
    for (const Operation &operation : operations) {
        if (operation.argument.isEmpty()) {
            return QStringLiteral("The value of an option is empty.");
        }
        if (operation.kind == Operation::Kind::Set && operation.argument.indexOf(QLatin1Char('=')) < 1) {
            return QStringLiteral("--set expects NAME=VALUE, not '%1'.").arg(operation.argument);
        }
        if (operation.kind == Operation::Kind::StreamStatistics && !isPositive(operation.argument)) {
            return QStringLiteral("--stream-statistics expects a positive number, not '%1'.")
                .arg(operation.argument);
        }
        const bool reads =
            operation.kind == Operation::Kind::Load || operation.kind == Operation::Kind::Compare;
        inputs += reads && operation.argument == QLatin1String("-") ? 1 : 0;
    }
    if (inputs > 1) {
        return QStringLiteral("The standard input can be read only once.");
    }
    for (const char *const other :
         {"list", "dump", "favorites", "editors", "screenshot", "expand", "search", "visibility"}) {
        if (!operations.isEmpty() && parser.isSet(QString::fromLatin1(other))) {
            return QStringLiteral("--%1 cannot be combined with operations on a camera.")
                .arg(QString::fromLatin1(other));
        }
    }
    for (const char *const number : {"interval", "count", "grab-count"}) {
        const QString name = QString::fromLatin1(number);
        if (parser.isSet(name) && !isPositive(parser.value(name))) {
            return QStringLiteral("--%1 expects a positive number, not '%2'.").arg(name, parser.value(name));
        }
    }
    // Options that would have no effect.
    static constexpr std::array needs{std::pair{"interval", "watch"}, std::pair{"count", "watch"},
                                      std::pair{"force", "load"}, std::pair{"grab-count", "grab"}};
    for (const auto &[option, needed] : needs) {
        if (parser.isSet(QString::fromLatin1(option)) && !parser.isSet(QString::fromLatin1(needed))) {
            return QStringLiteral("--%1 needs --%2.")
                .arg(QString::fromLatin1(option), QString::fromLatin1(needed));
        }
    }
    return mistakeInOutput(parser, operations);
}

// Without an application object the parser does not know the program's name.
QString helpText(const QCommandLineParser &parser)
{
    return parser.helpText().replace(QLatin1String("<executable_name>"), QCoreApplication::applicationName());
}

// Returns what is wrong with the arguments, empty when nothing is.
QString mistakeIn(const QCommandLineParser &parser)
{
    // An empty text, as from an unset variable of a script, must not pass for an option that was not
    // given.
    for (const char *const option : {"description", "camera", "screenshot", "registers", "save-registers"}) {
        const QString name = QString::fromLatin1(option);
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            return QStringLiteral("The value of --%1 is empty.").arg(name);
        }
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1 || (!files.isEmpty() && files.constFirst().isEmpty())) {
        return QStringLiteral("Unexpected argument '%1'.").arg(files.constLast());
    }
    for (const char *const other : {"description", "camera", "list"}) {
        if (!files.isEmpty() && parser.isSet(QString::fromLatin1(other))) {
            return QStringLiteral("A file and --%1 exclude each other.").arg(QString::fromLatin1(other));
        }
    }
    // What would be ignored is refused as well, so that no script believes it was heeded.
    static constexpr std::array exclusive{
        std::pair{"description", "camera"},
        std::pair{"list", "description"},
        std::pair{"list", "camera"},
        std::pair{"list", "dump"},
        std::pair{"list", "favorites"},
        std::pair{"list", "visibility"},
        std::pair{"list", "search"},
        std::pair{"list", "expand"},
        std::pair{"list", "editors"},
        std::pair{"list", "screenshot"},
        std::pair{"dump", "editors"},
        std::pair{"dump", "screenshot"},
        std::pair{"favorites", "editors"},
        std::pair{"favorites", "screenshot"},
        std::pair{"visibility", "editors"},
        std::pair{"search", "editors"},
        std::pair{"expand", "editors"},
        std::pair{"zeroed", "registers"},
        std::pair{"list", "save-registers"},
        std::pair{"dump", "save-registers"},
        std::pair{"favorites", "save-registers"},
        std::pair{"editors", "save-registers"},
        std::pair{"screenshot", "save-registers"},
    };
    for (const auto &[first, second] : exclusive) {
        const QString one = QString::fromLatin1(first);
        const QString other = QString::fromLatin1(second);
        if (parser.isSet(one) && parser.isSet(other)) {
            return QStringLiteral("--%1 and --%2 exclude each other.").arg(one, other);
        }
    }
    for (const char *const option : {"zeroed", "registers"}) {
        const QString name = QString::fromLatin1(option);
        if (parser.isSet(name) && !parser.isSet(QStringLiteral("description")) && files.isEmpty()) {
            return QStringLiteral("--%1 needs --description.").arg(name);
        }
    }
    const QString mistake = mistakeInOperations(parser);
    if (!mistake.isEmpty()) {
        return mistake;
    }
    const QString level = parser.value(QStringLiteral("visibility"));
    if (parser.isSet(QStringLiteral("visibility")) && !visibilityFrom(level)) {
        return QStringLiteral("Unknown visibility '%1', expected beginner, expert, guru or invisible.")
            .arg(level);
    }
    return {};
}

Options optionsFrom(const QCommandLineParser &parser)
{
    Options options;
    if (parser.isSet(QStringLiteral("help"))) {
        options.helpText = helpText(parser);
    } else if (parser.isSet(QStringLiteral("version"))) {
        options.helpText = QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                         QCoreApplication::applicationVersion());
    }
    const QString description = parser.value(QStringLiteral("description"));
    options.description = description.isEmpty() ? parser.positionalArguments().value(0) : description;
    options.camera = parser.value(QStringLiteral("camera"));
    options.zeroed = parser.isSet(QStringLiteral("zeroed"));
    options.registers = parser.value(QStringLiteral("registers"));
    options.saveRegisters = parser.value(QStringLiteral("save-registers"));
    options.list = parser.isSet(QStringLiteral("list"));
    options.dump = parser.isSet(QStringLiteral("dump"));
    options.favorites = parser.isSet(QStringLiteral("favorites"));
    options.editors = parser.isSet(QStringLiteral("editors"));
    options.expand = parser.isSet(QStringLiteral("expand"));
    options.search = parser.value(QStringLiteral("search"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.operations = operationsFrom(parser);
    options.json = parser.value(QStringLiteral("output")) == QLatin1String("json");
    options.force = parser.isSet(QStringLiteral("force"));
    if (parser.isSet(QStringLiteral("interval"))) {
        options.interval = parser.value(QStringLiteral("interval")).toInt();
    }
    if (parser.isSet(QStringLiteral("grab-count"))) {
        options.grabCount = parser.value(QStringLiteral("grab-count")).toInt();
    }
    options.count = parser.value(QStringLiteral("count")).toInt();
    options.visibility = visibilityFrom(parser.value(QStringLiteral("visibility")));
    if (!options.visibility && (options.dump || options.favorites)) {
        // What a script reads must not depend on the level that the window was left at.
        options.visibility = GenApi::Guru;
    }
    return options;
}

} // namespace

// Options are read before there is an application that could translate; the command line speaks English.
QString applicationDescription()
{
    return QStringLiteral("Shows a camera's features in a tree. Without a description and "
                          "--camera an embedded simulated camera is opened. --get, --set, --execute, --save, "
                          "--load, --compare, --watch, --grab and --stream-statistics are carried out on it "
                          "in the order given, without a "
                          "window. Exit codes: 0 done, 1 refused or different, 2 wrong usage or not opened.");
}

QList<QCommandLineOption> commandLineOptions()
{
    QList<QCommandLineOption> options;
    const auto add = [&options](const char *name, const char *description, const char *value = "") {
        options.append(QCommandLineOption(QString::fromLatin1(name), QString::fromLatin1(description),
                                          QString::fromLatin1(value)));
    };
    add("description", "Open a camera description file on simulated registers.", "file");
    add("camera", "Open the live camera with this id (see --list).", "id");
    add("zeroed", "Let the registers of --description start with zeros.");
    add("registers", "Let them start with what --save-registers has saved.", "file");
    add("save-registers",
        "Save the registers that the features are read from and exit; - is the standard "
        "output.",
        "file");
    add("list", "List the cameras that are reachable and exit.");
    add("dump", "Print the tree as text and exit.");
    add("favorites", "Print the favorites as text and exit.");
    add("visibility", "User level: beginner, expert, guru or invisible.", "level");
    add("search", "Search the features for this text.", "text");
    add("expand", "Expand all branches.");
    add("get", "Print the value of a feature; may be repeated.", "name");
    add("set", "Change a feature; may be repeated.", "name=value");
    add("execute", "Execute a command; may be repeated.", "name");
    add("save", "Save the camera's settings to a file; - is the standard output.", "file");
    add("load", "Bring the settings in a file to the camera; - is the standard input.", "file");
    add("force", "Load settings of another camera model, too.");
    add("compare", "Print in what the camera's settings and those in a file differ.", "file");
    add("watch", "Print the value of a feature again and again, as CSV; may be repeated.", "name");
    add("interval", "Milliseconds between two rows of --watch, 1000 by default.", "ms");
    add("count", "Number of rows of --watch; without it, until interrupted.", "n");
    add("grab",
        "Save one complete image: as shown (.png), raw values (.tif, .pgm, .ppm), or bytes; may be repeated.",
        "file");
    add("grab-count", "Number of images of each --grab, in numbered files; 1 by default.", "n");
    add("stream-statistics", "Take images for some time and print how many came; may be repeated.",
        "seconds");
    add("output", "Form of --dump, --get and --compare: text or json.", "form");
    add("editors", "Show the gallery of value editors.");
    add("screenshot", "Render the window to a PNG file, without a display, and exit.", "file");
    add("help", "Show this help.");
    add("version", "Show the version.");
    return options;
}

bool Options::isInteractive() const
{
    return !list && !dump && !favorites && operations.isEmpty() && screenshot.isEmpty()
        && saveRegisters.isEmpty() && helpText.isEmpty();
}

ParsedOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(applicationDescription());
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The same as --description <file>."),
                                 QStringLiteral("[file]"));
    parser.addOptions(commandLineOptions());
    ParsedOptions parsed;
    parsed.error = parser.parse(arguments) ? mistakeIn(parser) : parser.errorText();
    if (parsed.error.isEmpty()) {
        parsed.options = optionsFrom(parser);
    }
    return parsed;
}
