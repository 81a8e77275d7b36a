// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "xmlmutator.h"

#include <QDomDocument>
#include <QList>
#include <QString>
#include <QStringList>

#include <random>
#include <utility>

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

QByteArray mutatedXml(const QByteArray &document, unsigned int seed)
{
    QDomDocument parsed;
    if (seed % plainShare == 0 || !parsed.setContent(document)) {
        return {};
    }
    Mutation mutation(parsed, seed);
    mutation.apply();
    return mutation.result();
}
