// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nodemapfilter.h"

#include <platform/core/exception.h>
#include <platform/core/guard.h>
#include <platform/core/logging.h>

#include <zeltoviewercomponents/resources_p.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringConverter>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

using namespace ParameterCollection;

namespace {

ZELTO_LOG_CATEGORY("zelto.viewer.plugins.FeatureTreeWidget")

using CollectionPointer = QSharedPointer<IParameterCollection>;
using ParameterPointer = QSharedPointer<IParameter>;

constexpr qint64 maximumFileSize = qint64(1024) * 1024;
constexpr qsizetype maximumAttributes = 1000; // the parser compares each with all others of its element
constexpr int maximumDepth = 64;

struct ParseError
{
    QString message;
    int line = 0;
    int column = 0;
};

void trace(const QString &text)
{
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Debug, logCategory(), text);
}

Core::GuardSite guardSite(const char *function)
{
    return {logCategory(), function};
}

// "@StreamGrabber0" gives "StreamGrabber_".
QString nameStem(const QString &nodeMapName)
{
    qsizetype begin = 0;
    while (begin < nodeMapName.size() && nodeMapName.at(begin) == QLatin1Char('@')) {
        ++begin;
    }
    qsizetype end = nodeMapName.size();
    while (end > begin && nodeMapName.at(end - 1) >= QLatin1Char('0')
           && nodeMapName.at(end - 1) <= QLatin1Char('9')) {
        --end;
    }
    const QString stem = nodeMapName.mid(begin, end - begin);
    return stem.isEmpty() ? stem : stem + QLatin1Char('_');
}

QStringList candidateNames(const CollectionPointer &collection, const QString &nodeMapName)
{
    const QString deviceClass =
        Core::guarded(guardSite("NodeMapFilter::createDocument"),
                      QStringLiteral("Failed to get the device class of node map %1").arg(nodeMapName),
                      QString(), [&collection] { return collection->deviceClass(); });
    const QString ending = QStringLiteral("Filter.xml");
    const QString stem = nameStem(nodeMapName);
    QStringList names{deviceClass + QLatin1Char('_') + stem + ending};
    if (!stem.isEmpty()) {
        names.append(stem + ending);
    }
    names.append(QStringLiteral("Default_") + ending);
    return names;
}

std::unique_ptr<QFile> openFirst(const QStringList &names)
{
    const QStringList directories{QCoreApplication::applicationDirPath() + QLatin1Char('/'),
                                  QStringLiteral(":/zeltoviewercomponents/Resources/")};
    for (const QString &name : names) {
        for (const QString &directory : directories) {
            auto file = std::make_unique<QFile>(directory + name);
            // Opening a pipe of that name would wait for its writer.
            if (QFileInfo(*file).isFile() && file->open(QIODevice::ReadOnly)) {
                return file;
            }
        }
    }
    return nullptr;
}

// The files are UTF-8; what declares itself to be something else is welcome.
QStringDecoder decoderFor(const QByteArray &contents)
{
    if (const auto encoding = QStringConverter::encodingForData(contents, u'<')) {
        return QStringDecoder(*encoding);
    }
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([^\"']*)"));
    const QString name = declaration.match(QString::fromLatin1(contents.left(200))).captured(1);
    const QStringDecoder declared(name.toLatin1().constData());
    return declared.isValid() ? QStringDecoder(name.toLatin1().constData())
                              : QStringDecoder(QStringDecoder::Utf8);
}

// Returns the position after the tag that begins at \a position and adds its attributes to \a attributes.
qsizetype skipTag(const QString &text, qsizetype position, qsizetype &attributes)
{
    QChar quote;
    for (; position < text.size(); ++position) {
        const QChar c = text.at(position);
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('=')) {
            ++attributes;
        } else if (c == QLatin1Char('>')) {
            return position + 1;
        }
    }
    return position;
}

// Counts the attributes without a parser, which would compare them with each other.
qsizetype attributeCount(const QString &text)
{
    static constexpr std::array others{std::pair{"<!--", "-->"}, std::pair{"<![CDATA[", "]]>"},
                                       std::pair{"<?", "?>"}};
    qsizetype attributes = 0;
    qsizetype position = text.indexOf(QLatin1Char('<'));
    while (position >= 0) {
        const auto other = std::find_if(others.begin(), others.end(), [&text, position](const auto &ends) {
            return QStringView(text).mid(position).startsWith(QLatin1String(ends.first));
        });
        if (other == others.end()) {
            position = skipTag(text, position, attributes);
        } else {
            const auto size = qsizetype(qstrlen(other->first));
            position = text.indexOf(QLatin1String(other->second), position + size);
        }
        position = position < 0 ? position : text.indexOf(QLatin1Char('<'), position);
    }
    return attributes;
}

// Nodes of a document are freed recursively, and a document type's declarations may stand for any length of
// text, so both are looked at before the document is built. Returns why it is refused; empty when it is not.
QString refusal(const QString &text)
{
    if (attributeCount(text) > maximumAttributes) {
        return QStringLiteral("there are more than %1 attributes").arg(maximumAttributes);
    }
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false); // as for the document: an unknown prefix ends neither
    int depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::DTD && reader.text().contains(QLatin1Char('['))) {
            return QStringLiteral("the document type has declarations");
        }
        if (token == QXmlStreamReader::StartElement && ++depth > maximumDepth) {
            return QStringLiteral("elements are nested more than %1 deep").arg(maximumDepth);
        }
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
    }
    return {};
}

bool parse(QDomDocument &document, QFile &file, ParseError &error)
{
    const QByteArray contents = file.read(maximumFileSize + 1);
    if (contents.size() > maximumFileSize) {
        error.message = QStringLiteral("the file is larger than %1 bytes").arg(maximumFileSize);
        return false;
    }
    // Decoded here, so that the attributes counted are those that are parsed.
    QStringDecoder decoder = decoderFor(contents);
    const QString text = decoder(contents);
    error.message = decoder.hasError() ? QStringLiteral("the file is wrongly encoded") : refusal(text);
    return error.message.isEmpty() && document.setContent(text, &error.message, &error.line, &error.column);
}

QDomElement firstElement(const QDomElement &entry, const QString &tag)
{
    return entry.elementsByTagName(tag).at(0).toElement();
}

QString entryName(const QDomElement &entry)
{
    const QDomElement element = firstElement(entry, QStringLiteral("Name"));
    if (element.isNull()) {
        trace(QStringLiteral("%1: failed to get the name of a filter item")
                  .arg(QLatin1String("NodeMapFilter::processElement")));
    } else if (element.text().isEmpty()) {
        trace(QStringLiteral("%1: empty name found").arg(QLatin1String("NodeMapFilter::processElement")));
    }
    return element.text();
}

// Returns the parameter called \a name, null when there is none or none that may be filtered.
ParameterPointer filterableParameter(const CollectionPointer &collection, const QString &name)
{
    return Core::guarded(guardSite("NodeMapFilter::processElement"),
                         QStringLiteral("Failed to find the node %1").arg(name), ParameterPointer(),
                         [&collection, &name]() -> ParameterPointer {
                             ParameterPointer parameter = collection->parameter(name);
                             if (parameter && parameter->isExcluded() && !parameter->isImposingAllowed()) {
                                 return {};
                             }
                             return parameter;
                         });
}

// Imposes the property called \a tag when \a entry has an element of that name.
bool impose(const QDomElement &entry, const ParameterPointer &parameter, const QString &tag,
            const QString &headline)
{
    const QDomElement element = firstElement(entry, tag);
    if (element.isNull()) {
        return true;
    }
    return Core::guardedRun(
        guardSite("NodeMapFilter::processElement"),
        [&parameter, &headline] { return headline.arg(parameter->name()); },
        [&] {
            const auto access = parameter->propertyAccess();
            if (!access) {
                throw Core::Exception::BaseException(QStringLiteral("The node has no properties."));
            }
            access->setProperty(tag, element.text());
        });
}

} // namespace

void NodeMapFilter::apply(const CollectionPointer &collection, const QString &nodeMapName)
{
    QDomDocument document;
    if (!createDocument(document, collection, nodeMapName)) {
        return;
    }
    for (QDomElement entry = document.documentElement().firstChildElement(); !entry.isNull();
         entry = entry.nextSiblingElement()) {
        processElement(entry, collection);
    }
}

bool NodeMapFilter::createDocument(QDomDocument &document, CollectionPointer collection,
                                   const QString &nodeMapName)
{
    if (!collection) {
        return false;
    }
    const auto file = openFirst(candidateNames(collection, nodeMapName));
    if (!file) {
        trace(QStringLiteral("Failed to open any of the filter files."));
        return false;
    }
    ParseError error;
    if (parse(document, *file, error)) {
        return true;
    }
    document.clear();
    trace(QStringLiteral("%1: failed to parse file %2: %3 (%4, %5)")
              .arg(QLatin1String("NodeMapFilter::createDocument"), file->fileName(), error.message,
                   QString::number(error.line), QString::number(error.column)));
    return false;
}

bool NodeMapFilter::processElement(const QDomElement &entry, CollectionPointer collection)
{
    const QString name = entryName(entry);
    if (name.isEmpty() || !collection) {
        return false;
    }
    const ParameterPointer parameter = filterableParameter(collection, name);
    return parameter
        && impose(entry, parameter, QStringLiteral("Visibility"),
                  QStringLiteral("Failed to impose the visibility of node %1"))
        && impose(entry, parameter, QStringLiteral("AccessMode"),
                  QStringLiteral("Failed to impose the access mode of node %1"));
}
