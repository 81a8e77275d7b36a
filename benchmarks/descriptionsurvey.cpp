// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Prints of camera descriptions how much of them is alive when they are opened on simulated registers: the
// share of the readable features that have a value, and of the writable ones that can be changed and read
// back. Features of chunks and events have no registers and are left out.

#include <cameras/camera.h>

#include <platform/core/exception.h>
#include <platform/parametercollection/iparameter.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QTextStream>
#include <QThread>
#include <QXmlStreamReader>

#include <ctime>
#include <exception>

using namespace ParameterCollection;
using Cameras::Camera;

namespace {

struct Node
{
    QStringList values; // the nodes that hold or make up the value
    QStringList registers; // of an entry
    QString port;
    QString access;
    QString imposed;
    QString tag;
};

/*! \brief As much of a description as tells what could be read and written, apart from the engine. */
class Sheet
{
public:
    explicit Sheet(const QString &fileName)
    {
        QFile file(fileName);
        file.open(QIODevice::ReadOnly);
        QXmlStreamReader xml(&file);
        QStringList open;
        while (!xml.atEnd()) {
            const auto token = xml.readNext();
            if (token == QXmlStreamReader::StartElement) {
                read(xml, open);
            } else if (token == QXmlStreamReader::EndElement && !open.isEmpty()) {
                open.removeLast();
            }
        }
    }

    bool hasNoRegisters(const QString &name) const
    {
        return any(name, [this](const Node &node) { return m_dataPorts.contains(node.port); });
    }

    bool isReadable(const QString &name) const
    {
        return !isAccess(name, QStringLiteral("WO")) && tag(name) != QLatin1String("Command");
    }

    bool isWritable(const QString &name) const
    {
        return !isAccess(name, QStringLiteral("RO")) && !tag(name).endsWith(QLatin1String("SwissKnife"));
    }

    QString tag(const QString &name) const { return m_nodes.value(name).tag; }

private:
    void read(QXmlStreamReader &xml, QStringList &open)
    {
        const QString tag = xml.name().toString();
        const QString name = xml.attributes().value(QLatin1String("Name")).toString();
        static const QSet<QString> values{QStringLiteral("pValue"), QStringLiteral("pVariable"),
                                          QStringLiteral("pValueIndexed"), QStringLiteral("pValueDefault")};
        const bool isNode = !name.isEmpty() && tag != QLatin1String("EnumEntry")
            && tag != QLatin1String("Constant") && tag != QLatin1String("Expression")
            && tag != QLatin1String("pVariable") && tag != QLatin1String("Group");
        const QString owner = open.isEmpty() ? QString() : open.constLast();
        if (isNode) {
            m_nodes[name].tag = tag;
            if (tag == QLatin1String("StructEntry")) {
                m_nodes[name].values.append(owner);
            }
            open.append(name);
            return;
        }
        if (tag == QLatin1String("StructReg")) {
            open.append(QStringLiteral("/%1").arg(xml.lineNumber()));
            return;
        }
        if (tag == QLatin1String("EnumEntry")) {
            open.append(QStringLiteral("//entry"));
            return;
        }
        const bool isLeaf = values.contains(tag) || tag == QLatin1String("pPort")
            || tag == QLatin1String("AccessMode") || tag == QLatin1String("ImposedAccessMode")
            || tag == QLatin1String("ChunkID") || tag == QLatin1String("EventID");
        if (!isLeaf) {
            open.append(owner);
            return;
        }
        const QString text = xml.readElementText().trimmed();
        Node &node = m_nodes[owner];
        if (values.contains(tag)) {
            node.values.append(text);
        } else if (tag == QLatin1String("pPort")) {
            node.port = text;
        } else if (tag == QLatin1String("AccessMode")) {
            node.access = text;
        } else if (tag == QLatin1String("ImposedAccessMode")) {
            node.imposed = text;
        } else {
            m_dataPorts.insert(owner);
        }
    }

    template <typename Test>
    bool any(const QString &name, Test test) const
    {
        QStringList names{name};
        for (int i = 0; i < names.size(); ++i) {
            const Node node = m_nodes.value(names[i]);
            if (test(node)) {
                return true;
            }
            for (const QString &next : node.values) {
                if (!names.contains(next)) {
                    names.append(next);
                }
            }
        }
        return false;
    }

    // Along the nodes that hold the value.
    bool isAccess(const QString &name, const QString &access) const
    {
        QString at = name;
        for (int depth = 0; depth < 100 && m_nodes.contains(at); ++depth) {
            const Node node = m_nodes.value(at);
            if (node.imposed == access || node.access == access
                || (access == QLatin1String("RO") && node.tag.endsWith(QLatin1String("SwissKnife")))) {
                return true;
            }
            at = node.values.isEmpty() ? QString() : node.values.constFirst();
        }
        return false;
    }

    QHash<QString, Node> m_nodes;
    QSet<QString> m_dataPorts;
};

constexpr unsigned long settlingTime = 3; // milliseconds

QString number(double value)
{
    return QString::number(value, 'g', 17);
}

// Returns another value that the feature should take, empty when there is none.
QString otherValue(const IParameter &parameter)
{
    const ParameterDataPtr data = parameter.parameterData();
    if (const auto *integer = dynamic_cast<const IntegerParameterData *>(data.get())) {
        const qint64 value = integer->value;
        const qint64 step = integer->increment;
        if (value <= integer->maximum - step) {
            return QString::number(value + step);
        }
        return value >= integer->minimum + step ? QString::number(value - step) : QString();
    }
    if (const auto *real = dynamic_cast<const FloatParameterData *>(data.get())) {
        const double middle = real->minimum / 2.0 + real->maximum / 2.0;
        const double other = qAbs(middle) > 1e30 ? real->value + 1.0
            : middle != real->value              ? middle
                                                 : real->minimum;
        return other >= real->minimum && other <= real->maximum && other != real->value ? number(other)
                                                                                        : QString();
    }
    if (const auto *boolean = dynamic_cast<const BooleanParameterData *>(data.get())) {
        return boolean->value ? QStringLiteral("false") : QStringLiteral("true");
    }
    if (const auto *entries = dynamic_cast<const EnumParameterData *>(data.get())) {
        for (const QString &name : entries->symbolicNames) {
            if (name != data->valueString) {
                return name;
            }
        }
        return {};
    }
    return data->type == ParameterType::String && data->valueString != QLatin1String("A")
        ? QStringLiteral("A")
        : QString();
}

bool isSame(const IParameter &parameter, const QString &text)
{
    const ParameterDataPtr data = parameter.parameterData();
    if (!data->isReadable) {
        return false;
    }
    const auto *real = dynamic_cast<const FloatParameterData *>(data.get());
    if (!real) {
        const auto *integer = dynamic_cast<const IntegerParameterData *>(data.get());
        return (integer ? QString::number(integer->value) : data->valueString) == text;
    }
    // Converters lead to integers, and registers may hold single precision.
    const double wanted = text.toDouble();
    return qAbs(real->value - wanted) <= qMax(1.0, qAbs(wanted) * 0.01);
}

struct Count
{
    int all = 0;
    int good = 0;

    void add(bool isGood)
    {
        ++all;
        good += isGood ? 1 : 0;
    }
    QString text() const
    {
        return QStringLiteral("%1/%2 %3%")
            .arg(good)
            .arg(all)
            .arg(all ? 100.0 * good / all : 100.0, 0, 'f', 1);
    }
};

QString failureOf(IParameter &parameter)
{
    const ParameterDataPtr before = parameter.parameterData();
    if (!before->isWritable || !before->isReadable) {
        return QStringLiteral("not writable");
    }
    const QString other = otherValue(parameter);
    if (other.isEmpty()) {
        return QStringLiteral("no room");
    }
    try {
        parameter.setValueFromString(other);
        const bool isTaken = isSame(parameter, other);
        const QString now = parameter.parameterData()->valueString;
        parameter.setValueFromString(before->valueString);
        return isTaken ? QString() : QStringLiteral("wrote %1, read %2").arg(other, now);
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    }
}

void survey(const QString &fileName, Cameras::Start start, bool isTalkative, QTextStream &out)
{
    const Sheet sheet(fileName);
    const std::clock_t begin = std::clock();
    const auto camera = Camera::openDescription(fileName, start);
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    const auto collection = camera->nodeMaps().at(0).collection;
    QSet<QString> names;
    for (const QString &name : collection->childNames(QStringLiteral("Root"), 100, false)) {
        names.insert(name);
    }
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    const auto isLeftOut = [&sheet, &collection](const QString &name) {
        return collection->parameter(name)->type() == ParameterType::Category || sheet.hasNoRegisters(name)
            || !sheet.isReadable(name);
    };
    sorted.removeIf(isLeftOut);
    Count values;
    for (const QString &name : std::as_const(sorted)) {
        const bool hasValue = collection->parameter(name)->parameterData()->isReadable;
        values.add(hasValue);
        if (isTalkative && !hasValue) {
            out << "  no value: " << name << '\n';
        }
    }
    Count writes;
    for (const QString &name : std::as_const(sorted)) {
        if (!sheet.isWritable(name)) {
            continue;
        }
        const QString failure = failureOf(*collection->parameter(name));
        writes.add(failure.isEmpty());
        if (isTalkative && !failure.isEmpty()) {
            out << "  not changed: " << name << ": " << failure << '\n';
        }
        QThread::msleep(settlingTime); // what depends on it is read again
    }
    out << QFileInfo(fileName).fileName() << (start == Cameras::Start::Alive ? " alive" : " zeroed")
        << "\tvalue " << values.text() << "\tchanged " << writes.text() << '\t' << qRound(seconds * 1000.0)
        << " ms\n";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool isTalkative = arguments.removeAll(QStringLiteral("-v")) > 0;
    QTextStream out(stdout);
    for (const QString &fileName : std::as_const(arguments)) {
        try {
            survey(fileName, Cameras::Start::Zeroed, false, out);
            survey(fileName, Cameras::Start::Alive, isTalkative, out);
        } catch (const Core::Exception::BaseException &exception) {
            out << exception.getMessage() << '\n';
        }
    }
    return 0;
}
