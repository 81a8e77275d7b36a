// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Makes new XML documents from old ones, so that most inputs get past the parser: elements move, multiply and
// go, texts are exchanged, and links lead to nodes that exist.

#include <QByteArray>
#include <QDomDocument>
#include <QList>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maximumSize);

namespace {

constexpr int plainShare = 6; // one mutation in so many knows nothing of XML

const QStringList &texts()
{
    static const QStringList list = QStringLiteral("0,1,-1,31,64,65537,4294967296,0x7fffffffffffffff,"
                                                   "-9223372036854775808,1e400,NaN,,%1,RO,RW,WO,NI,HexNumber,"
                                                   "IPV4Address,MACAddress,Logarithmic,BigEndian,Signed,Yes,"
                                                   "NoCache,Invisible,(A/B),A%B,A<<B,1/0.0,((((1)))),A**A")
                                        .split(QLatin1Char(','));
    return list;
}

const QStringList &links()
{
    static const QStringList list =
        QStringLiteral("pFeature,pValue,pMin,pMax,pInc,pIsImplemented,pIsAvailable,"
                       "pIsLocked,pAddress,pLength,pIndex,pSelected,pInvalidator,"
                       "pAlias,pVariable,pCommandValue,pValueDefault,pPort")
            .split(QLatin1Char(','));
    return list;
}

const QStringList &tags()
{
    static const QStringList list =
        QStringLiteral("Value,Min,Max,Inc,Address,Length,LSB,MSB,Formula,FormulaTo,"
                       "FormulaFrom,PollingTime,Representation,Sign,Endianess,"
                       "Cachable,AccessMode,ImposedAccessMode,Visibility,Unit,Name")
            .split(QLatin1Char(','));
    return list;
}

class Mutation
{
public:
    Mutation(QDomDocument document, unsigned int seed)
        : m_document(std::move(document))
        , m_random(seed)
    {
        collect(m_document.documentElement());
    }

    void apply()
    {
        QDomElement element = any(m_elements);
        switch (m_random() % 6) {
        case 0:
            setText(element, any(texts()));
            break;
        case 1:
            setText(element, any(m_elements).text());
            break;
        case 2:
            any(m_elements).appendChild(element.cloneNode());
            break;
        case 3:
            element.parentNode().removeChild(element);
            break;
        case 4:
            addChild(element, any(links()), any(m_names));
            break;
        default:
            addChild(element, any(tags()), any(texts()));
            break;
        }
    }

    QByteArray result() const { return m_document.toByteArray(-1); }

private:
    template <typename List>
    typename List::value_type any(const List &list)
    {
        return list.isEmpty() ? typename List::value_type() : list.at(m_random() % list.size());
    }

    void collect(const QDomElement &element)
    {
        m_elements.append(element);
        m_names.append(element.attribute(QStringLiteral("Name")));
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            collect(child);
        }
    }

    void setText(QDomElement element, const QString &text)
    {
        if (element.firstChildElement().isNull()) {
            element.replaceChild(m_document.createTextNode(text), element.firstChild());
        } else {
            element.setAttribute(QStringLiteral("Name"), text);
        }
    }

    void addChild(QDomElement element, const QString &tag, const QString &text)
    {
        QDomElement child = m_document.createElement(tag);
        child.appendChild(m_document.createTextNode(text));
        if (tag == QLatin1String("pVariable")) {
            child.setAttribute(QStringLiteral("Name"), QStringLiteral("A"));
        }
        element.appendChild(child);
    }

    QDomDocument m_document;
    std::minstd_rand m_random;
    QList<QDomElement> m_elements;
    QStringList m_names;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maximumSize,
                                               unsigned int seed)
{
    QDomDocument document;
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (seed % plainShare == 0 || !document.setContent(bytes)) {
        return LLVMFuzzerMutate(data, size, maximumSize);
    }
    Mutation mutation(document, seed);
    mutation.apply();
    const QByteArray mutated = mutation.result();
    const auto length = std::min(static_cast<std::size_t>(mutated.size()), maximumSize);
    std::copy_n(mutated.constData(), length, reinterpret_cast<char *>(data));
    return length;
}
