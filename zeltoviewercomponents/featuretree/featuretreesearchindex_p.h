// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringMatcher>

class FeatureTreeItem;

/*! \brief The searchable texts of a tree's rows, in one piece.
 *
 * A search through one long text touches no item but those it finds, which makes it several times faster than
 * asking row by row. Categories have no text to search in. The index is out of date once any item has come,
 * gone or changed its name.
 *
 * \ingroup search
 */
class FeatureTreeSearchIndex
{
public:
    /*! \brief A row with its text. */
    struct Row
    {
        FeatureTreeItem *item = nullptr;
        qsizetype textEnd = 0;
        int name = -1; //!< the place in names(), the same for rows of the same feature; -1: no feature
    };

    /*! Takes all existing rows below \a root. */
    void build(FeatureTreeItem &root);
    bool isCurrent() const;
    /*! Returns whether build() has met \a item. */
    bool holds(const FeatureTreeItem *item) const;

    const QList<Row> &rows() const { return m_rows; }
    /*! Returns the names of the features, each once. */
    const QList<QString> &names() const { return m_names; }

    /*! Calls \a visit with each row whose text contains \a foldedText, from top to bottom. */
    template <typename Visit>
    void forEachHit(const QString &foldedText, Visit visit) const
    {
        const QStringMatcher matcher(foldedText);
        auto row = m_rows.cbegin();
        for (qsizetype at = matcher.indexIn(m_text); at >= 0; at = matcher.indexIn(m_text, row++->textEnd)) {
            while (row->textEnd <= at) {
                ++row;
            }
            visit(*row);
        }
    }

private:
    void addBelow(FeatureTreeItem &parent, QHash<QString, int> &numbers);
    void add(FeatureTreeItem &item, QHash<QString, int> &numbers);

    QString m_text;
    QList<Row> m_rows;
    QList<QString> m_names;
    quint64 m_id = 0; // of this content, which the items bear too
    quint64 m_revision = 0;
};
