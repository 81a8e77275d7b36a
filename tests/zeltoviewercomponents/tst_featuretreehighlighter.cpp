// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>

#include <QSettings>
#include <QTest>

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
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first run") << QVariant() << "#ffff50";
    QTest::newRow("set by hand") << QVariant("#12AB34") << "#12ab34";
    QTest::newRow("by name") << QVariant("red") << "#ff0000";
    QTest::newRow("with alpha") << QVariant("#8012ab34") << "#12ab34";
    QTest::newRow("no colour") << QVariant("loud") << "#ffff50";
    QTest::newRow("empty") << QVariant("") << "#ffff50";
    QTest::newRow("a list") << QVariant(QStringList{"red", "blue"}) << "#ffff50";
    QTest::newRow("huge") << QVariant(QString(1000000, u'f').prepend(u'#')) << "#ffff50";
}

void TestFeatureTreeHighlighter::color()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, expected);
    const QString key = QStringLiteral("FeatureTree/HighlightColor");
    if (stored.isValid()) {
        QSettings().setValue(key, stored);
    }
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.color().name(), expected);
    QCOMPARE(QSettings().value(key).toString(), expected);
    highlighter.setColor(Qt::cyan);
    QCOMPARE(highlighter.color(), QColor(Qt::cyan));
    QCOMPARE(QSettings().value(key).toString(), expected);
}

void TestFeatureTreeHighlighter::matches_data()
{
    using Ranges = QList<FeatureTreeHighlighter::Range>;
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Ranges>("expected");
    QTest::newRow("no search") << ""
                               << "Gain" << Ranges();
    QTest::newRow("no text") << "Gain"
                             << "" << Ranges();
    QTest::newRow("letter case") << "gAIN"
                                 << "Gain Auto Gain" << Ranges{{0, 4}, {10, 14}};
    QTest::newRow("every letter") << "a"
                                  << "Area" << Ranges{{0, 1}, {3, 4}};
    QTest::newRow("no overlap") << "aa"
                                << "aaaaa" << Ranges{{0, 2}, {2, 4}};
    QTest::newRow("literal") << ".*"
                             << "a.*b" << Ranges{{1, 3}};
    QTest::newRow("whole") << "Gain"
                           << "gain" << Ranges{{0, 4}};
    QTest::newRow("longer than the text") << "Gains"
                                          << "gain" << Ranges();
    QTest::newRow("text that grows when folded")
        << "stop" << QString::fromUtf8("ßßİﬁ Stop İ stop") << Ranges{{5, 9}, {12, 16}};
    QTest::newRow("search that grows when folded")
        << QString::fromUtf8("ß") << QString::fromUtf8("Maß ss") << Ranges{{2, 3}};
    QTest::newRow("outside the first plane")
        << QString::fromUtf8("\xF0\x90\x90\xA8") << QString::fromUtf8("x\xF0\x90\x90\x80y") << Ranges{{1, 3}};
}

void TestFeatureTreeHighlighter::matches()
{
    using Ranges = QList<FeatureTreeHighlighter::Range>;
    QFETCH(QString, search);
    QFETCH(QString, text);
    QFETCH(Ranges, expected);
    FeatureTreeHighlighter highlighter;
    highlighter.setText(search);
    QCOMPARE(highlighter.length(), search.size());
    QCOMPARE(highlighter.matchRanges(text), expected);

    const QString opening = QStringLiteral("<span style='background-color: #ffff50; font-weight:bold'>");
    const QString closing = QStringLiteral("</span>");
    const QString marked = highlighter.highlight(text);
    QCOMPARE(marked.count(opening), expected.size());
    QString unmarked = marked;
    QCOMPARE(unmarked.remove(opening).remove(closing), text);
}

void TestFeatureTreeHighlighter::markup()
{
    FeatureTreeHighlighter highlighter;
    highlighter.setText(QStringLiteral("gain"));
    QCOMPARE(highlighter.highlight(QStringLiteral("Gain Auto")),
             QStringLiteral("<span style='background-color: #ffff50; font-weight:bold'>Gain</span> Auto"));
    highlighter.setColor(QColor(0x01, 0x02, 0xff, 0x80));
    highlighter.setText(QStringLiteral("span"));
    QCOMPARE(highlighter.highlight(QStringLiteral("a span <b>")),
             QStringLiteral("a <span style='background-color: #0102ff; font-weight:bold'>span</span> <b>"));
}

QTEST_MAIN(TestFeatureTreeHighlighter)
#include "tst_featuretreehighlighter.moc"
