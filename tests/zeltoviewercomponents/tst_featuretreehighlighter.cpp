// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>

#include <QFile>
#include <QSettings>
#include <QTest>

using Ranges = QList<FeatureTreeHighlighter::Range>;

class TestFeatureTreeHighlighter : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }

    void color_data();
    void color();
    void matches_data();
    void matches();
    void markup();
};

void TestFeatureTreeHighlighter::color_data()
{
    columns<QVariant, QString>({"stored", "expected"});
    row("first run", QVariant(), "#ffff50");
    row("set by hand", QVariant("#12AB34"), "#12ab34");
    row("by name", QVariant("red"), "#ff0000");
    row("with alpha", QVariant("#8012ab34"), "#12ab34");
    row("no colour", QVariant("loud"), "#ffff50");
    row("empty", QVariant(""), "#ffff50");
    row("a list", QVariant(QStringList{"red", "blue"}), "#ffff50");
    row("huge", QVariant(QString(1000000, u'f').prepend(u'#')), "#ffff50");
}

void TestFeatureTreeHighlighter::color()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, expected);
    const QString key = "FeatureTree/HighlightColor";
    if (stored.isValid()) {
        QSettings().setValue(key, stored);
    }
    QTest::failOnWarning(QRegularExpression("."));
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.color().name(), expected);
    QCOMPARE(QSettings().value(key).toString(), expected);
    // What is there is not written again.
    QSettings().sync();
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Append) && file.write("; by hand\n") > 0);
    const FeatureTreeHighlighter other;
    QSettings().sync();
    QVERIFY(file.seek(0) && file.readAll().endsWith("; by hand\n"));
    highlighter.setColor(Qt::cyan);
    QCOMPARE(highlighter.color(), QColor(Qt::cyan));
    QCOMPARE(QSettings().value(key).toString(), expected);
}

void TestFeatureTreeHighlighter::matches_data()
{
    columns<QString, QString, Ranges>({"search", "text", "expected"});
    row("no search", "", "Gain", Ranges());
    row("no text", "Gain", "", Ranges());
    row("letter case", "gAIN", "Gain Auto Gain", Ranges{{0, 4}, {10, 14}});
    row("every letter", "a", "Area", Ranges{{0, 1}, {3, 4}});
    row("no overlap", "aa", "aaaaa", Ranges{{0, 2}, {2, 4}});
    row("literal", ".*", "a.*b", Ranges{{1, 3}});
    row("whole", "Gain", "gain", Ranges{{0, 4}});
    row("longer than the text", "Gains", "gain", Ranges());
    row("text that grows when folded", "stop", "ßßİﬁ Stop İ stop", Ranges{{5, 9}, {12, 16}});
    row("search that grows when folded", "ß", "Maß ss", Ranges{{2, 3}});
    row("outside the first plane", "\xF0\x90\x90\xA8", "x\xF0\x90\x90\x80y", Ranges{{1, 3}});
}

void TestFeatureTreeHighlighter::matches()
{
    QFETCH(QString, search);
    QFETCH(QString, text);
    QFETCH(Ranges, expected);
    FeatureTreeHighlighter highlighter;
    highlighter.setText(search);
    QCOMPARE(highlighter.length(), search.size());
    QCOMPARE(highlighter.matchRanges(text), expected);

    const QString opening = "<span style='background-color: #ffff50; font-weight:bold'>";
    const QString closing = "</span>";
    const QString marked = highlighter.highlight(text);
    QCOMPARE(marked.count(opening), expected.size());
    QString unmarked = marked;
    QCOMPARE(unmarked.remove(opening).remove(closing), text);
}

void TestFeatureTreeHighlighter::markup()
{
    FeatureTreeHighlighter highlighter;
    highlighter.setText("gain");
    QCOMPARE(highlighter.highlight("Gain Auto"),
             "<span style='background-color: #ffff50; font-weight:bold'>Gain</span> Auto");
    highlighter.setColor(QColor(0x01, 0x02, 0xff, 0x80));
    highlighter.setText("span");
    QCOMPARE(highlighter.highlight("a span <b>"),
             "a <span style='background-color: #0102ff; font-weight:bold'>span</span> <b>");
}

QTEST_MAIN(TestFeatureTreeHighlighter)
#include "tst_featuretreehighlighter.moc"
