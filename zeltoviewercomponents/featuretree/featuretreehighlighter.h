// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QColor>
#include <QList>
#include <QPair>
#include <QString>

/*! \brief Finds the search text in displayed texts, whatever its letter case, and marks it.
 *
 * The colour is read from the settings ("FeatureTree/HighlightColor"), where it can be edited by hand.
 *
 * \ingroup search
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureTreeHighlighter
{
public:
    /*! A match: the positions of its first character and of the one after its last. */
    using Range = QPair<qsizetype, qsizetype>;

    FeatureTreeHighlighter();

    /*! Returns the search text. */
    QString text() const;
    /*! Sets the search text; an empty one matches nothing. */
    void setText(const QString &text);
    /*! Returns the number of characters of the search text. */
    int length() const;
    /*! Returns the colour of marks. */
    QColor color() const;
    /*! Sets the colour for this run; an invalid one is ignored. */
    void setColor(const QColor &color);

    /*! Returns the matches in \a text from left to right, none overlapping. */
    QList<Range> matchRanges(const QString &text) const;
    /*! Returns \a text with a coloured, bold span around each match. The text is not escaped. */
    QString highlight(const QString &text) const;
    /*! Returns the plain text \a text as HTML, escaped, with a coloured, bold span around each match. */
    QString highlightPlainText(const QString &text) const;

private:
    QString openingTag() const;
    template <typename Convert>
    QString marked(const QString &text, Convert convert) const;

    QString m_text;
    QColor m_color;
};
