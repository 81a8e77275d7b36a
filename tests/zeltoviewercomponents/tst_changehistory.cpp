// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "featuretreetest.h"

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/settings/changehistory.h>

#include <QAbstractItemModelTester>
#include <QAbstractSpinBox>
#include <QAction>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace {

/*! \brief A tree whose edits are recorded, in a window with actions that undo and redo. */
class HistoryBench : public TreeBench
{
public:
    HistoryBench()
    {
        QObject::connect(
            &widget,
            SIGNAL(edited(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)),
            &history,
            SLOT(record(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)));
        auto *const undo = new QAction(&widget);
        undo->setShortcut(QKeySequence::Undo);
        QObject::connect(undo, SIGNAL(triggered()), &history, SLOT(undo()));
        auto *const redo = new QAction(&widget);
        redo->setShortcut(QKeySequence::Redo);
        QObject::connect(redo, SIGNAL(triggered()), &history, SLOT(redo()));
        widget.addActions({undo, redo});
    }

    /*! Types \a text into the editor of a row, and Return. */
    void enter(const QString &feature, const QString &text)
    {
        click(value(feature));
        QWidget *const input = QApplication::focusWidget();
        QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input, text);
        QTest::keyClick(input, Qt::Key_Return);
        settle();
    }
    void press(QKeySequence::StandardKey key)
    {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(key));
        settle();
    }
    QStringList lines()
    {
        settle();
        QStringList lines;
        for (int row = 0; row < history.changes()->rowCount(); ++row) {
            QStringList cells;
            for (int column = ChangeHistory::NameColumn; column < ChangeHistory::ColumnCount; ++column) {
                cells.append(history.changes()->index(row, column).data().toString());
            }
            lines.append(cells.join(QLatin1Char(' ')));
        }
        return lines;
    }

    ChangeHistory history;
    QAbstractItemModelTester tester{history.changes(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class TestChangeHistory : public FeatureTreeTest
{
    Q_OBJECT

private slots:
    void editsAreUndoneByKeys_data();
    void editsAreUndoneByKeys();
};

void TestChangeHistory::editsAreUndoneByKeys_data()
{
    const auto row = [](const char *feature, const char *text, const char *line) {
        QTest::newRow(feature) << QString::fromLatin1(feature) << QString::fromLatin1(text)
                               << QString::fromLatin1(line);
    };
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    row("Width", "32", "");
    row("DeviceUserID", "lab", "");
}

void TestChangeHistory::editsAreUndoneByKeys()
{
    QFETCH(const QString, feature);
    QFETCH(const QString, text);
    HistoryBench bench;
    const QString before = bench.node(feature)->snapshot->valueString;
    bench.enter(feature, text);
    QCOMPARE(bench.node(feature)->snapshot->valueString, text);
    QCOMPARE(bench.lines(), QStringList{feature + ' ' + before + ' ' + text + QStringLiteral(" done")});
    bench.press(QKeySequence::Undo);
    QCOMPARE(bench.node(feature)->snapshot->valueString, before);
    QCOMPARE(bench.lines(), QStringList{feature + ' ' + before + ' ' + text + QStringLiteral(" undone")});
    bench.press(QKeySequence::Redo);
    QCOMPARE(bench.node(feature)->snapshot->valueString, text);
}

QTEST_MAIN(TestChangeHistory)
#include "tst_changehistory.moc"
