// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "freshvalues.h"
#include "settingsorigin.h"

#include <platform/core/exception.h>
#include <viewer/image/framefile.h>
#include <viewer/image/framegrabber.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingscomparison.h>
#include <zeltoviewercomponents/settings/settingsreader.h>

#include <QBuffer>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

#include <unistd.h>

using namespace ParameterCollection;

namespace {

constexpr int longestCommand = 10000; // milliseconds
constexpr int commandInterval = 50;
constexpr int longestImage = 10000; // until it has come

QString nameOf(const Operation &operation)
{
    switch (operation.kind) {
    case Operation::Kind::Get:
    case Operation::Kind::Execute:
    case Operation::Kind::Watch:
        return operation.argument;
    case Operation::Kind::Set:
        return operation.argument.section(QLatin1Char('='), 0, 0);
    default:
        return {};
    }
}

bool isStandardStream(const QString &fileName)
{
    return fileName == QLatin1String("-");
}

// The camera's own words mostly begin with the feature's name.
QString about(const QString &name, const QString &reason)
{
    return reason.startsWith(name.section(QLatin1Char('/'), -1) + QLatin1String(": "))
        ? reason
        : name + QLatin1String(": ") + reason;
}

// As in files of settings.
QString onOneLine(QString text)
{
    static const QList<std::pair<QString, QString>> escapes{{QStringLiteral("\\"), QStringLiteral("\\\\")},
                                                            {QStringLiteral("\n"), QStringLiteral("\\n")},
                                                            {QStringLiteral("\r"), QStringLiteral("\\r")},
                                                            {QStringLiteral("\t"), QStringLiteral("\\t")}};
    for (const auto &[letter, code] : escapes) {
        text.replace(letter, code);
    }
    return text;
}

// The names of \a count files that are like \a fileName.
QStringList numberedFiles(const QString &fileName, int count)
{
    if (count == 1) {
        return {fileName};
    }
    const QString suffix = QFileInfo(fileName).suffix();
    const QString end = suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix;
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names.append(QStringLiteral("%1-%2%3")
                         .arg(fileName.chopped(end.size()))
                         .arg(i, 4, 10, QLatin1Char('0'))
                         .arg(end));
    }
    return names;
}

QString csvCell(const QString &text)
{
    const bool needsQuotes = std::any_of(text.cbegin(), text.cend(), [](QChar letter) {
        return letter == QLatin1Char(',') || letter == QLatin1Char('"') || letter == QLatin1Char('\n')
            || letter == QLatin1Char('\r');
    });
    return needsQuotes
        ? QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"')
        : text;
}

QJsonObject jsonOf(const SettingsDifference &difference)
{
    const bool isHere = difference.kind != SettingsDifference::Kind::OnlyThere;
    const bool isThere = difference.kind != SettingsDifference::Kind::OnlyHere;
    const FeatureSettings::Setting &setting = isHere ? difference.here : difference.there;
    QJsonObject selectors;
    for (const FeatureSettings::Assignment &selector : setting.selectors) {
        selectors.insert(selector.name, selector.value);
    }
    return {{QStringLiteral("nodeMap"), setting.nodeMap},
            {QStringLiteral("name"), setting.name},
            {QStringLiteral("selectors"), selectors},
            {QStringLiteral("camera"), isHere ? QJsonValue(difference.here.value) : QJsonValue()},
            {QStringLiteral("file"), isThere ? QJsonValue(difference.there.value) : QJsonValue()}};
}

QString lineOf(const SettingsDifference &difference)
{
    switch (difference.kind) {
    case SettingsDifference::Kind::OnlyHere:
        return QStringLiteral("%1\t%2\t\n").arg(difference.here.title(), onOneLine(difference.here.value));
    case SettingsDifference::Kind::OnlyThere:
        return QStringLiteral("%1\t\t%2\n").arg(difference.there.title(), onOneLine(difference.there.value));
    default:
        return QStringLiteral("%1\t%2\t%3\n")
            .arg(difference.here.title(), onOneLine(difference.here.value),
                 onOneLine(difference.there.value));
    }
}

} // namespace

CommandLine::CommandLine(Cameras::Camera &camera, const Options &options)
    : m_camera(camera)
    , m_options(options)
    , m_features(camera.nodeMaps())
{
    // Unbuffered: rows of a watch are seen at once, and a full disk is noticed where it matters.
    (void)m_out.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
}

int CommandLine::fail(const QString &reason, ExitCode code)
{
    QString line = reason;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << line << '\n';
    return code;
}

int CommandLine::run()
{
    if (hasWrongNames()) {
        return Failed; // before anything is changed
    }
    int worst = Done;
    for (const Operation &operation : std::as_const(m_options.operations)) {
        int code = Done;
        try {
            code = carryOut(operation);
        } catch (const Core::Exception::BaseException &exception) {
            code = fail(exception.getMessage(), Failed);
        }
        worst = std::max(worst, code);
        const bool isComparison = operation.kind == Operation::Kind::Compare && code == Refused;
        if ((code != Done && !isComparison) || Interruption::isRequested()) {
            break;
        }
    }
    return finish(worst);
}

bool CommandLine::hasWrongNames() const
{
    bool found = false;
    for (const Operation &operation : m_options.operations) {
        const QString mistake = mistakeIn(operation);
        if (!mistake.isEmpty()) {
            fail(mistake, Failed);
            found = true;
        }
    }
    return found;
}

QString CommandLine::mistakeIn(const Operation &operation) const
{
    const QString name = nameOf(operation);
    if (name.isEmpty()) {
        return {};
    }
    const ParameterPtr parameter = m_features.find(name);
    if (!parameter) {
        const QString nearest = m_features.nearest(name);
        return nearest.isEmpty() ? tr("no feature %1").arg(name)
                                 : tr("no feature %1; did you mean %2?").arg(name, nearest);
    }
    const bool isCommand = parameter->type() == ParameterType::Command;
    if (operation.kind == Operation::Kind::Execute) {
        return isCommand ? QString() : tr("%1: this is no command").arg(name);
    }
    const bool isShown = operation.kind == Operation::Kind::Get || operation.kind == Operation::Kind::Watch;
    const bool hasNoValue = isCommand || parameter->type() == ParameterType::Category;
    return isShown && hasNoValue ? tr("%1: this is no feature that has a value").arg(name) : QString();
}

int CommandLine::carryOut(const Operation &operation)
{
    switch (operation.kind) {
    case Operation::Kind::Get:
        return get(operation.argument);
    case Operation::Kind::Set:
        return set(operation.argument);
    case Operation::Kind::Execute:
        return execute(operation.argument);
    case Operation::Kind::Save:
        return save(operation.argument);
    case Operation::Kind::Load:
        return load(operation.argument);
    case Operation::Kind::Compare:
        return compareWith(operation.argument);
    case Operation::Kind::Watch:
        return watch();
    case Operation::Kind::Grab:
        return grab(operation.argument);
    case Operation::Kind::StreamStatistics:
        return printStreamStatistics(operation.argument);
    }
    return Failed;
}

int CommandLine::get(const QString &name)
{
    const ParameterPtr parameter = m_features.find(name);
    const bool isAnswered = FreshValues({parameter}).read();
    const ParameterDataPtr data = parameter->parameterData();
    if (!isAnswered || !data->isReadable) {
        return fail(isAnswered ? tr("%1: it cannot be read now").arg(name)
                               : tr("%1: the camera does not answer").arg(name),
                    Refused);
    }
    if (m_options.json) {
        m_values.append(QJsonObject{{QStringLiteral("name"), parameter->name()},
                                    {QStringLiteral("fullName"), parameter->fullName()},
                                    {QStringLiteral("value"), data->valueString}});
        return Done;
    }
    return print(QStringLiteral("%1\t%2\n").arg(name, onOneLine(data->valueString))) ? Done : Failed;
}

int CommandLine::set(const QString &assignment)
{
    const auto separator = assignment.indexOf(QLatin1Char('='));
    const QString name = assignment.left(separator);
    try {
        m_features.find(name)->setValueFromString(assignment.mid(separator + 1));
    } catch (const std::exception &exception) {
        return fail(about(name, QString::fromUtf8(exception.what())), Refused);
    }
    return Done;
}

// What follows in a script counts on the command having been carried out.
int CommandLine::execute(const QString &name)
{
    const auto command = qSharedPointerObjectCast<ICommandParameter>(m_features.find(name));
    try {
        command->execute(true);
    } catch (const std::exception &exception) {
        return fail(about(name, QString::fromUtf8(exception.what())), Refused);
    }
    FreshValues fresh({command});
    const QDeadlineTimer deadline(longestCommand);
    while (fresh.read() && !deadline.hasExpired() && !Interruption::isRequested()) {
        if (qSharedPointerDynamicCast<const CommandParameterData>(command->parameterData())->isDone) {
            return Done;
        }
        QEventLoop loop;
        QTimer::singleShot(commandInterval, &loop, SLOT(quit()));
        loop.exec();
    }
    return Done; // it was accepted; a reset, for one, takes the camera away
}

void CommandLine::wait(SettingsTask &task)
{
    QEventLoop loop;
    QObject::connect(&task, SIGNAL(finished()), &loop, SLOT(quit()));
    QObject::connect(&m_interruption, SIGNAL(requested()), &task, SLOT(cancel()));
    task.start();
    loop.exec();
}

bool CommandLine::readSettings(FeatureSettings *settings)
{
    SettingsReader reader(settingsNodeMaps(m_camera));
    wait(reader);
    const QStringList notes = reader.notes();
    for (const QString &note : notes) {
        fail(note, Done);
    }
    if (reader.isLost() || reader.isCancelled()) {
        fail(reader.isLost() ? tr("the camera does not answer") : tr("interrupted"), Refused);
        return false;
    }
    *settings = reader.settings();
    settings->origin = settingsOrigin(m_camera);
    return true;
}

int CommandLine::save(const QString &fileName)
{
    FeatureSettings settings;
    if (!readSettings(&settings)) {
        return Refused;
    }
    if (!isStandardStream(fileName)) {
        settings.save(fileName);
        return Done;
    }
    QBuffer text;
    (void)text.open(QIODevice::WriteOnly);
    settings.write(text);
    return print(QString::fromUtf8(text.data())) ? Done : Failed;
}

FeatureSettings CommandLine::settingsIn(const QString &fileName) const
{
    if (!isStandardStream(fileName)) {
        return FeatureSettings::load(fileName);
    }
    QFile in;
    (void)in.open(STDIN_FILENO, QIODevice::ReadOnly);
    try {
        return FeatureSettings::read(in);
    } catch (const Core::Exception::BaseException &exception) {
        throw Core::Exception::BaseException(tr("standard input: %1").arg(exception.getMessage()));
    }
}

int CommandLine::load(const QString &fileName)
{
    const FeatureSettings settings = settingsIn(fileName);
    if (settings.isEmpty()) {
        return fail(tr("%1: there are no settings in it").arg(fileName), Failed);
    }
    if (!m_options.force && !isOfModel(settings, m_camera)) {
        return fail(tr("%1: these are settings of %2, and this is %3; --force loads them all the same")
                        .arg(fileName, settings.origin.model, m_camera.info()->modelName()),
                    Failed);
    }
    SettingsApplier applier(settings, settingsNodeMaps(m_camera), SettingsApplier::Before::Forget);
    wait(applier);
    const SettingsReport &report = applier.report();
    const QStringList problems = report.problems();
    for (const QString &problem : problems) {
        fail(QStringLiteral("%1: %2").arg(fileName, problem), Refused);
    }
    if (report.isLost || report.isCancelled) {
        fail(report.summary(), Refused);
    }
    return report.isSuccess() ? Done : Refused;
}

int CommandLine::compareWith(const QString &fileName)
{
    const FeatureSettings there = settingsIn(fileName);
    FeatureSettings here;
    if (!readSettings(&here)) {
        return Failed;
    }
    m_hasCompared = true;
    const QList<SettingsDifference> differences = compare(here, there);
    for (const SettingsDifference &difference : differences) {
        if (m_options.json) {
            m_differences.append(jsonOf(difference));
        } else if (!print(lineOf(difference))) {
            return Failed;
        }
    }
    return differences.isEmpty() ? Done : Refused;
}

// All watched features make one table, where the first of them stands among the operations.
int CommandLine::watch()
{
    if (std::exchange(m_hasWatched, true)) {
        return Done;
    }
    QList<ParameterPtr> watched;
    QStringList row{QStringLiteral("time")};
    for (const Operation &operation : std::as_const(m_options.operations)) {
        if (operation.kind == Operation::Kind::Watch) {
            watched.append(m_features.find(operation.argument));
            row.append(csvCell(operation.argument));
        }
    }
    if (!print(row.join(QLatin1Char(',')) + QLatin1Char('\n'))) {
        return Failed;
    }
    FreshValues fresh(watched);
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, SIGNAL(timeout()), &loop, SLOT(quit()));
    QObject::connect(&m_interruption, SIGNAL(requested()), &loop, SLOT(quit()));
    timer.start(m_options.interval);
    for (int i = 0; (m_options.count == 0 || i < m_options.count) && !Interruption::isRequested(); ++i) {
        if (i > 0) {
            loop.exec();
        }
        if (Interruption::isRequested()) {
            break;
        }
        const QDateTime now = QDateTime::currentDateTime();
        const bool isAnswered = fresh.read();
        row = {now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODateWithMs)};
        for (const ParameterPtr &parameter : std::as_const(watched)) {
            const ParameterDataPtr data = parameter->parameterData();
            row.append(isAnswered && data->isReadable ? csvCell(data->valueString) : QString());
        }
        if (!print(row.join(QLatin1Char(',')) + QLatin1Char('\n'))) {
            return Failed;
        }
        if (m_camera.isLost()) {
            return fail(tr("the camera does not answer"), Refused);
        }
    }
    return Done;
}

int CommandLine::grab(const QString &fileName)
{
    const QStringList names = numberedFiles(fileName, m_options.grabCount);
    for (const QString &name : names) {
        if (QFileInfo::exists(name)) {
            return fail(tr("%1 is there already, and nothing is overwritten").arg(name), Failed);
        }
    }
    if (!m_camera.stream()) {
        return fail(tr("this camera delivers no images"), Refused);
    }
    FrameGrabber grabber(m_camera.stream());
    QObject::connect(&m_interruption, SIGNAL(requested()), &grabber, SLOT(interrupt()));
    for (const QString &name : names) {
        const Cameras::FramePointer frame = grabber.next(longestImage);
        if (!frame) {
            return fail(grabber.failure().isEmpty() ? tr("no image came") : grabber.failure(), Refused);
        }
        const QString failure = FrameFile::save(*frame, name);
        if (!failure.isEmpty()) {
            return fail(failure, Failed);
        }
    }
    return Done;
}

int CommandLine::printStreamStatistics(const QString &seconds)
{
    if (!m_camera.stream()) {
        return fail(tr("this camera delivers no images"), Refused);
    }
    FrameGrabber grabber(m_camera.stream());
    QObject::connect(&m_interruption, SIGNAL(requested()), &grabber, SLOT(interrupt()));
    constexpr qint64 longest = std::numeric_limits<int>::max();
    const Cameras::StreamStatistics statistics =
        grabber.watch(int(std::min<qint64>(seconds.toInt() * qint64(1000), longest)));
    const QString table = QStringLiteral("complete\t%1\nincomplete\t%2\ndropped\t%3\n"
                                         "framesPerSecond\t%4\nbytesPerSecond\t%5\n")
                              .arg(statistics.complete)
                              .arg(statistics.incomplete)
                              .arg(statistics.dropped)
                              .arg(statistics.framesPerSecond, 0, 'f', 2)
                              .arg(statistics.bytesPerSecond, 0, 'f', 0);
    if (!print(table)) {
        return Failed;
    }
    if (!grabber.failure().isEmpty()) {
        return fail(grabber.failure(), Refused);
    }
    return statistics.complete + statistics.incomplete > 0 ? Done : fail(tr("no image came"), Refused);
}

bool CommandLine::print(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (m_out.write(bytes) == bytes.size()) {
        return true;
    }
    fail(tr("Cannot write to the standard output."), Failed);
    return false;
}

// One document, however many results there are.
int CommandLine::finish(int code)
{
    if (!m_options.json) {
        return code;
    }
    QJsonObject all;
    if (!m_values.isEmpty()) {
        all.insert(QStringLiteral("get"), m_values);
    }
    if (m_hasCompared) {
        all.insert(QStringLiteral("compare"), m_differences);
    }
    return print(QString::fromUtf8(QJsonDocument(all).toJson())) ? code : Failed;
}
