// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Runs the program of the README, and uses its window from the event loop.

#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

int readmeMain(int argc, char **argv);

class TestReadme : public QObject
{
    Q_OBJECT

private slots:
    void programIsShort();
    void windowHasItsRows();
    void valuesAreEdited();
    void rowsAreFound();

private:
    static FeatureTreeWidget *tree()
    {
        return qobject_cast<FeatureTreeWidget *>(QApplication::topLevelWidgets().value(0));
    }
    static QModelIndex row(const QString &name)
    {
        const QAbstractItemModel *const model = tree()->treeView()->model();
        const auto found = model->match(model->index(0, 0), Qt::DisplayRole, name, 1,
                                        Qt::MatchStartsWith | Qt::MatchRecursive);
        return found.value(0);
    }
};

void TestReadme::programIsShort()
{
    QVERIFY(ZELTO_README_LINES > 5);
    QVERIFY(ZELTO_README_LINES <= 30);
}

void TestReadme::windowHasItsRows()
{
    QVERIFY(tree() && QTest::qWaitForWindowExposed(tree()));
    for (const char *const name : {"Lamp", "Light", "Brightness", "Colour", "Pulse length", "Flash"}) {
        QVERIFY2(row(QString::fromLatin1(name)).isValid(), name);
    }
}

void TestReadme::valuesAreEdited()
{
    auto *const view = tree()->treeView();
    QVERIFY(tree()->showFeature(QStringLiteral("@Lamp/PulseLength")));
    QApplication::setActiveWindow(tree());
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    auto *const line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(line);
    QTest::ignoreMessage(QtInfoMsg, "The lamp pulses for 720 us");
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("720"));
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(row(QStringLiteral("Pulse length")).siblingAtColumn(1).data(Qt::EditRole).toString(),
                 QStringLiteral("720"));
}

void TestReadme::rowsAreFound()
{
    tree()->setSearchText(QStringLiteral("bright"));
    QVERIFY(row(QStringLiteral("Brightness")).isValid());
    QVERIFY(!row(QStringLiteral("Colour")).isValid());
}

static void runInside()
{
    QTimer::singleShot(0, qApp, [] {
        TestReadme test;
        QApplication::exit(QTest::qExec(&test, QApplication::arguments()));
    });
}
Q_COREAPP_STARTUP_FUNCTION(runInside)

int main(int argc, char **argv)
{
    return readmeMain(argc, argv);
}

#include "tst_readme.moc"
