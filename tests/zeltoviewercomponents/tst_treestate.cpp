// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>
#include <zeltoviewercomponents/featuretree/treewidgetbase.h>

#include <QAction>
#include <QApplication>
#include <QDataStream>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QIODevice>
#include <QImage>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <limits>

namespace {

/* A tree of three columns with a text of its own behind the widths. */
class Tree : public TreeWidgetBase
{
public:
    explicit Tree(int columns = 3)
        : m_model(1, columns)
        , m_view(this)
    {
        m_view.setModel(&m_model);
        m_view.resize(600, 100);
    }

    QTreeView *treeView() const override { return hasView ? const_cast<QTreeView *>(&m_view) : nullptr; }

    QList<int> widths() const
    {
        QList<int> all;
        for (int i = 0; i < m_view.header()->count(); ++i) {
            all.append(m_view.header()->sectionSize(i));
        }
        return all;
    }

    bool hasView = true;
    QString own;

protected:
    void onSaveState(QDataStream &stream) override { stream << own; }
    void onRestoreState(QDataStream &stream) override { stream >> own; }

private:
    QStandardItemModel m_model;
    QTreeView m_view;
};

QByteArray stateOf(const QList<qint32> &numbers, const QString &own = {})
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    for (const qint32 number : numbers) {
        stream << number;
    }
    if (!own.isNull()) {
        stream << own;
    }
    return state;
}

/* Returns the part of the box that differs between both pictures. */
QRect difference(const QImage &one, const QImage &other)
{
    QRect changed;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

} // namespace

class TestTreeState : public QObject
{
    Q_OBJECT

private slots:

    void savedForm();
    void restores();
    void refusedStates_data();
    void refusedStates();
    void randomStates();
    void searchEditTakesTurns();
    void searchEditPaintsPlaceholder();
    void searchEditMirrorsAndElides();
    void searchEditKeepsItsFont();
};

void TestTreeState::savedForm()
{
    Tree tree;
    tree.own = "x";
    tree.treeView()->header()->resizeSection(0, 210);
    tree.treeView()->header()->resizeSection(1, 90);
    QCOMPARE(tree.saveState(7), stateOf({7, 3, 210, 90, tree.widths().at(2)}, "x"));
    tree.hasView = false;
    QCOMPARE(tree.saveState(7), QByteArray());
    QVERIFY(!tree.restoreState(stateOf({7, 3, 1, 2, 3}), 7));
}

void TestTreeState::restores()
{
    Tree tree;
    const int last = tree.widths().at(2);
    QVERIFY(last != 500);
    QVERIFY(tree.restoreState(stateOf({7, 3, 222, 111, 500}, "mine"), 7));
    QCOMPARE(tree.widths().mid(0, 2), QList<int>({222, 111}));
    QCOMPARE(tree.own, "mine");
    QCOMPARE(tree.widths().at(2), last);
    const QList<int> before = tree.widths();
    const qint32 smallest = std::numeric_limits<qint32>::min();
    QVERIFY(tree.restoreState(stateOf({7, 3, smallest, std::numeric_limits<qint32>::max(), -1}, ""), 7));
    QCOMPARE(tree.widths(), before);
    Tree empty(0);
    QVERIFY(empty.restoreState(empty.saveState(1), 1));
}

void TestTreeState::refusedStates_data()
{
    columns<QByteArray, QList<int>>({"state", "resized"});
    const QList<int> none;
    row("empty", QByteArray(), none);
    row("half a number", QByteArray("\0\0", 2), none);
    row("version alone", stateOf({7}), none);
    row("other version", stateOf({8, 3, 222, 111, 50}), none);
    row("fewer columns", stateOf({7, 2, 222, 111}), none);
    row("more columns", stateOf({7, 4, 222, 111, 50, 50}), none);
    row("huge count", stateOf({7, std::numeric_limits<qint32>::max(), 222, 111, 50}), none);
    row("negative count", stateOf({7, -3, 222, 111, 50}), none);
    row("cut before the second size", stateOf({7, 3, 222}), QList<int>({222}));
    row("cut inside the last size", stateOf({7, 3, 222, 111, 50}).chopped(1), QList<int>({222, 111}));
}

void TestTreeState::refusedStates()
{
    QFETCH(QByteArray, state);
    QFETCH(QList<int>, resized);
    Tree tree;
    const QList<int> expected = resized + tree.widths().mid(resized.size());
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!tree.restoreState(state, 7));
    QVERIFY(timer.elapsed() < 500);
    QCOMPARE(tree.widths().mid(0, 2), expected.mid(0, 2));
    QVERIFY(tree.own.isNull());
}

void TestTreeState::randomStates()
{
    Tree tree;
    tree.own = "own";
    const QByteArray good = tree.saveState(7);
    QRandomGenerator random(19);
    int restored = 0;
    for (int round = 0; round < 5000; ++round) {
        QByteArray state = good.left(random.bounded(good.size() + 1));
        for (int i = 0; i < round % 4 && !state.isEmpty(); ++i) {
            state[random.bounded(state.size())] = static_cast<char>(random.bounded(256));
        }
        restored += tree.restoreState(state, 7) ? 1 : 0;
        const QList<int> widths = tree.widths();
        QVERIFY(std::all_of(widths.cbegin(), widths.cend(), [](int width) { return width >= 0; }));
    }
    QVERIFY(restored > 0 && restored < 5000);
    QVERIFY(tree.restoreState(good, 7));
    QCOMPARE(tree.own, "own");
}

void TestTreeState::searchEditTakesTurns()
{
    SearchEdit edit;
    QAction *const search = edit.actions().value(0);
    QAction *const clear = edit.actions().value(1);
    QVERIFY(search && clear);
    QVERIFY(search->isVisible() && !search->isEnabled() && !clear->isVisible());
    QTest::keyClick(&edit, Qt::Key_G);
    QVERIFY(!search->isVisible() && clear->isVisible());
    edit.show();
    for (QToolButton *button : edit.findChildren<QToolButton *>()) {
        if (button->defaultAction() == clear) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(edit.text(), QString());
    QVERIFY(search->isVisible() && !clear->isVisible());
}

void TestTreeState::searchEditPaintsPlaceholder()
{
    SearchEdit edit;
    edit.resize(240, 28);
    const auto picture = [&edit] { return edit.grab().toImage(); };
    const QImage bare = picture();
    edit.setPlaceholder("HHHH");
    QCOMPARE(edit.placeholderText(), QString());
    const QImage hinted = picture();
    const QRect hint = difference(bare, hinted);
    QVERIFY(!hint.isEmpty());
    // It stands on the line of the text that will take its place.
    edit.setPlaceholderEnabled(false);
    QCOMPARE(picture(), bare);
    edit.setText("HHHH");
    const QImage typed = picture();
    // Beside the text, the clear button has taken the place of the lens.
    const QRect besideButtons(0, 0, edit.width() - edit.height(), edit.height());
    const QRect text = difference(bare.copy(besideButtons), typed.copy(besideButtons));
    QCOMPARE(hint.top(), text.top());
    QCOMPARE(hint.bottom(), text.bottom());
    QVERIFY(std::abs(hint.left() - text.left()) <= 1);

    edit.setPlaceholderEnabled(true);
    QCOMPARE(picture(), typed);
}

void TestTreeState::searchEditMirrorsAndElides()
{
    SearchEdit edit;
    const QImage bare = edit.grab().toImage();
    edit.setPlaceholder("Search for features by their names (Ctrl+F)");
    QVERIFY(edit.sizeHint().width() > edit.fontMetrics().horizontalAdvance(edit.placeholder()));
    edit.setLayoutDirection(Qt::RightToLeft);
    edit.resize(120, 28);
    const QImage mirrored = edit.grab().toImage();
    edit.setPlaceholderEnabled(false);
    const QRect hint = difference(edit.grab().toImage(), mirrored);
    QVERIFY(hint.left() >= edit.height() - 4);
    QVERIFY(hint.height() <= edit.fontMetrics().height());
}

void TestTreeState::searchEditKeepsItsFont()
{
    SearchEdit edit;
    QFont large = edit.font();
    large.setPointSize(31);
    edit.setFont(large);
    QCOMPARE(edit.font().pointSize(), 31);
    const int height = edit.sizeHint().height();
    QVERIFY(height > QFontMetrics(large).height());
    edit.setStyleSheet(edit.styleSheet());
    QCOMPARE(edit.font().pointSize(), 31);
}

QTEST_MAIN(TestTreeState)
#include "tst_treestate.moc"
