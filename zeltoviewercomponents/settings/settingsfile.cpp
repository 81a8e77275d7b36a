// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsfile_p.h"

#include <platform/core/exception.h>

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <utility>

namespace {

struct Escape
{
    QChar letter;
    QChar code; // that follows a backslash
};

constexpr Escape escapes[] = {{u'\\', u'\\'}, {u'\n', u'n'}, {u'\r', u'r'},
                              {u'\t', u't'},  {u'\0', u'0'}, {u' ', u's'}};

const QString &headLine()
{
    static const QString line = QStringLiteral("Camera settings 1");
    return line;
}

QString quoted(const QString &text)
{
    constexpr int longest = 60;
    const QString simple = text.simplified();
    return simple.size() > longest ? simple.left(longest) + QChar(0x2026) : simple;
}

bool isFeatureName(const QString &text)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("(@?\\w+/)?[A-Za-z_][\\w.]*(/Alias)?")));
    constexpr int longest = 1000;
    return text.size() <= longest && form.match(text).hasMatch();
}

// A head has one line for each.
QString commented(const char *key, const QString &value)
{
    const QString line = value.simplified();
    return line.isEmpty() ? QString() : QStringLiteral("# %1: %2\n").arg(QLatin1String(key), line);
}

} // namespace

FeatureSettings SettingsFile::read(QIODevice &device)
{
    SettingsFile file;
    qint64 size = 0;
    for (;;) {
        const QByteArray line = device.readLine(longestLine + 2);
        if (line.isEmpty()) {
            break;
        }
        ++file.m_line;
        size += line.size();
        if (line.size() > longestLine) {
            file.fail(tr("longer than %1 KiB").arg(longestLine / 1024));
        }
        if (size > largestFile) {
            file.fail(
                tr("a file of more than %1 MiB holds no camera settings").arg(largestFile / 1024 / 1024));
        }
        file.readLine(line);
    }
    return file.m_settings;
}

void SettingsFile::fail(const QString &reason) const
{
    throw Core::Exception::BaseException(tr("line %1: %2").arg(m_line).arg(reason));
}

void SettingsFile::readLine(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString line = decoder.decode(bytes);
    if (decoder.hasError() || line.contains(QChar(0))) {
        fail(tr("this is no UTF-8 text"));
    }
    while (line.endsWith(QLatin1Char('\n')) || line.endsWith(QLatin1Char('\r'))) {
        line.chop(1);
    }
    const QString trimmed = line.trimmed();
    if (trimmed.startsWith(QLatin1Char('#'))) {
        readComment(trimmed.mid(1).trimmed());
    } else if (!trimmed.isEmpty()) {
        readAssignment(line);
    }
}

void SettingsFile::readComment(const QString &text)
{
    if (text == headLine()) {
        m_isOurs = true;
        return;
    }
    const auto colon = text.indexOf(QLatin1String(": "));
    const QString key = text.left(colon);
    const QString value = text.mid(colon + 2).simplified(); // as it is written
    if (!m_isOurs || colon < 0) {
        return;
    }
    FeatureSettings::Origin &origin = m_settings.origin;
    if (key == QLatin1String("Vendor")) {
        origin.vendor = value;
    } else if (key == QLatin1String("Model")) {
        origin.model = value;
    } else if (key == QLatin1String("Serial number")) {
        origin.serialNumber = value;
    } else if (key == QLatin1String("Date")) {
        origin.taken = QDateTime::fromString(value, Qt::ISODate);
    } else if (key == QLatin1String("Node map")) {
        m_settings.nodeMaps.append({value, {}, {}, false});
    } else if (key == QLatin1String("Selector")) {
        QStringList names = value.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString selector = names.isEmpty() ? QString() : names.takeFirst();
        if (!names.isEmpty()) {
            nodeMap().selected.insert(selector, names);
        }
    }
}

void SettingsFile::readAssignment(const QString &line)
{
    const auto isBlank = [](QChar letter) {
        return letter == QLatin1Char(' ') || letter == QLatin1Char('\t');
    };
    const auto begin = std::find_if_not(line.cbegin(), line.cend(), isBlank);
    const auto end = std::find_if(begin, line.cend(), isBlank);
    const QString name(begin, end - begin);
    if (!isFeatureName(name)) {
        fail(tr("\"%1\" is no name of a feature").arg(quoted(name)));
    }
    if (end == line.cend()) {
        fail(tr("%1 has no value").arg(quoted(name)));
    }
    if (++m_assignments > mostAssignments) {
        fail(tr("there are more than %1 values").arg(mostAssignments));
    }
    const QString rest(end, line.cend() - end);
    // Blanks may be a part of a text; in front of it, they are where a tab could have stood.
    const auto tab = rest.indexOf(QLatin1Char('\t'));
    const bool isTabbed = tab >= 0 && rest.left(tab).trimmed().isEmpty();
    const QString value = isTabbed ? rest.mid(tab + 1) : rest.trimmed();
    nodeMap().assignments.append({name, m_isOurs ? unescaped(value) : value, m_line});
}

FeatureSettings::NodeMap &SettingsFile::nodeMap()
{
    if (m_settings.nodeMaps.isEmpty()) {
        m_settings.nodeMaps.append(FeatureSettings::NodeMap());
    }
    return m_settings.nodeMaps.last();
}

QByteArray SettingsFile::textOf(const FeatureSettings &settings)
{
    const FeatureSettings::Origin &origin = settings.origin;
    QString text = QStringLiteral("# %1\n").arg(headLine());
    text += commented("Vendor", origin.vendor) + commented("Model", origin.model)
        + commented("Serial number", origin.serialNumber)
        + commented("Date", origin.taken.toString(Qt::ISODate));
    for (const FeatureSettings::NodeMap &nodeMap : settings.nodeMaps) {
        text += QLatin1Char('\n') + commented("Node map", nodeMap.name);
        QStringList selectors = nodeMap.selected.keys();
        std::sort(selectors.begin(), selectors.end());
        for (const QString &selector : std::as_const(selectors)) {
            text += commented("Selector",
                              selector + QLatin1Char(' ')
                                  + nodeMap.selected.value(selector).join(QLatin1Char(' ')));
        }
        for (const FeatureSettings::Assignment &assignment : nodeMap.assignments) {
            text += assignment.name + QLatin1Char('\t') + escaped(assignment.value) + QLatin1Char('\n');
        }
    }
    return text.toUtf8();
}

QString SettingsFile::escaped(const QString &value)
{
    QString text;
    for (const QChar letter : value) {
        const auto *escape =
            std::find_if(std::begin(escapes), std::end(escapes),
                         [letter](const Escape &known) { return known.letter == letter && letter != u' '; });
        if (escape == std::end(escapes)) {
            text += letter;
        } else {
            text += u'\\';
            text += escape->code;
        }
    }
    if (text.endsWith(u' ')) {
        text.replace(text.size() - 1, 1, QStringLiteral("\\s")); // editors like to remove blanks at the end
    }
    return text;
}

QString SettingsFile::unescaped(const QString &value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const auto *escape = std::end(escapes);
        if (value[i] == u'\\' && i + 1 < value.size()) {
            escape = std::find_if(std::begin(escapes), std::end(escapes),
                                  [code = value[i + 1]](const Escape &known) { return known.code == code; });
        }
        if (escape == std::end(escapes)) {
            text += value[i];
        } else {
            text += escape->letter;
            ++i;
        }
    }
    return text;
}
