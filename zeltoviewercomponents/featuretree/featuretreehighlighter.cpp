// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreehighlighter.h"

#include <QSettings>

FeatureTreeHighlighter::FeatureTreeHighlighter()
{
    const QString key = QStringLiteral("FeatureTree/HighlightColor");
    const QString defaultColor = QStringLiteral("#ffff50");
    QSettings settings;
    m_color.setNamedColor(settings.value(key, defaultColor).toString());
    if (!m_color.isValid()) {
        m_color.setNamedColor(defaultColor);
    }
    if (settings.value(key) != m_color.name()) { // else the settings would be written each time
        settings.setValue(key, m_color.name());
    }
}

QString FeatureTreeHighlighter::text() const
{
    return m_text;
}

void FeatureTreeHighlighter::setText(const QString &text)
{
    m_text = text;
}

int FeatureTreeHighlighter::length() const
{
    return static_cast<int>(m_text.size());
}

QColor FeatureTreeHighlighter::color() const
{
    return m_color;
}

void FeatureTreeHighlighter::setColor(const QColor &color)
{
    if (color.isValid()) {
        m_color = color;
    }
}

QList<FeatureTreeHighlighter::Range> FeatureTreeHighlighter::matchRanges(const QString &text) const
{
    QList<Range> ranges;
    if (m_text.isEmpty()) {
        return ranges;
    }
    qsizetype start = text.indexOf(m_text, 0, Qt::CaseInsensitive);
    while (start >= 0) {
        const qsizetype end = start + m_text.size();
        ranges.append({start, end});
        start = text.indexOf(m_text, end, Qt::CaseInsensitive);
    }
    return ranges;
}

QString FeatureTreeHighlighter::openingTag() const
{
    return QStringLiteral("<span style='background-color: %1; font-weight:bold'>").arg(m_color.name());
}

template <typename Convert>
QString FeatureTreeHighlighter::marked(const QString &text, Convert convert) const
{
    const QList<Range> ranges = matchRanges(text);
    const QString opening = ranges.isEmpty() ? QString() : openingTag();
    QString result;
    qsizetype done = 0;
    for (const Range &range : ranges) {
        result += convert(text.mid(done, range.first - done));
        result +=
            opening + convert(text.mid(range.first, range.second - range.first)) + QLatin1String("</span>");
        done = range.second;
    }
    return result + convert(text.mid(done));
}

QString FeatureTreeHighlighter::highlight(const QString &text) const
{
    return marked(text, [](const QString &part) { return part; });
}

QString FeatureTreeHighlighter::highlightPlainText(const QString &text) const
{
    return marked(text, [](const QString &part) { return part.toHtmlEscaped(); });
}
